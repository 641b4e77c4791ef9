// Files that are written beside their place, and what runs that were killed left of them.
#pragma once

#include "files/open_file.h"

#include <filesystem>

namespace tarvel {

/// A new file beside `target` that takes its place when it is whole, and vanishes otherwise. It
/// keeps the permission bits of the file that it replaces.
class Replacement {
  public:
    /// Throws FileError when no file can be made there.
    explicit Replacement(std::filesystem::path target);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    [[nodiscard]] const OpenFile& file() const { return file_; }

    /// Throws FileError; the older file is still there unless it was the flush of the folder that
    /// failed.
    void takePlace();

  private:
    std::filesystem::path target_;
    std::filesystem::path beside_;
    OpenFile file_;
};

/// Removes from the folder, and not from those below it, the files that replacements of killed runs
/// have left. Those of runs that are still at work stay. Never fails.
void removeLeftovers(const std::filesystem::path& folder);

} // namespace tarvel
