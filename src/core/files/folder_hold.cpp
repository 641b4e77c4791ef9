// Holds a folder by a hold of the system, which leaves no file behind.
#include "files/folder_hold.h"

#include <cerrno>

namespace tarvel {

FolderHold::FolderHold(const std::filesystem::path& folder)
    : folder_(tryHoldFolder(folder))
    , taken_(!folder_.isOpen() && errno == EWOULDBLOCK) {}

} // namespace tarvel
