// Holds a folder by a lock on the folder itself, which leaves no file behind.
#include "files/folder_hold.h"

#include <fcntl.h>

namespace tarvel {

FolderHold::FolderHold(const std::filesystem::path& folder)
    : folder_(openAt(AT_FDCWD, folder.c_str(), O_RDONLY | O_DIRECTORY))
    , taken_(folder_.isOpen() && !tryLock(folder_) && errno == EWOULDBLOCK) {}

} // namespace tarvel
