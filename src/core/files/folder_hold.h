// A folder that one save at a time holds.
#pragma once

#include "files/system_files.h"

#include <filesystem>

namespace tarvel {

/// Holds a folder until it goes, or the process ends in whatever way; nothing of it is on the disk.
/// Only others that ask by a FolderHold are kept away; on Windows, those of this computer.
class FolderHold {
  public:
    /// Does not wait. A folder that is missing, or on a file system without locks, is held by
    /// nobody.
    explicit FolderHold(const std::filesystem::path& folder);

    /// Somebody else holds the folder.
    [[nodiscard]] bool isTaken() const { return taken_; }

  private:
    Descriptor folder_;
    bool taken_;
};

} // namespace tarvel
