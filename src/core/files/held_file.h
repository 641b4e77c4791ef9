// A file that one process holds at a time, however that process ends.
#pragma once

#include "files/system_files.h"

#include <filesystem>
#include <optional>

namespace tarvel {

/// Holds a file until it is destroyed or its process ends, killed or not. The file has no content;
/// it stays when the hold ends, unless it was removed through the hold.
class HeldFile {
  public:
    /// Makes the file when it is missing; nothing when somebody else holds it, this process
    /// included. Throws FileError.
    [[nodiscard]] static std::optional<HeldFile> tryHold(const std::filesystem::path& path);

    /// Deletes the file and lets go. What cannot be deleted stays, and the next holder finds it.
    void remove() noexcept;

  private:
    HeldFile(std::filesystem::path path, Descriptor file);

    std::filesystem::path path_;
    Descriptor file_;
};

} // namespace tarvel
