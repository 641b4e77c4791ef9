// The only code that opens, copies or creates files. Failures throw FileError unless stated
// otherwise.
#pragma once

#include "files/host_paths.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvel {

/// A file operation that failed; what() describes it for the user and names the file.
class FileError : public std::runtime_error {
  public:
    FileError(int errorNumber, const std::filesystem::path& file);
    /// For a failure that no number of the system tells.
    FileError(const std::string& problem, const std::filesystem::path& file);

    /// errno of the failed operation; 0 where there is none.
    [[nodiscard]] int errorNumber() const { return errorNumber_; }

  private:
    int errorNumber_ = 0;
};

[[nodiscard]] std::string readFile(const std::filesystem::path& path);

/// Replaces the file only when the new content is wholly on the disk. Its permission bits stay.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

/// Told how many bytes of how many are copied; false cancels.
using CopyStep = std::function<bool(std::uintmax_t done, std::uintmax_t total)>;

/// Copies a file over another, which is replaced only when the copy is whole. A file is never
/// copied onto itself, through whatever link: nothing happens then. One that changes meanwhile is a
/// failure: what was read of it may be neither the old nor the new. Returns false when cancelled,
/// and leaves the older file then, as on failure.
bool copyFile(const std::filesystem::path& from, const std::filesystem::path& to,
              const CopyStep& progress = {});

/// Makes a folder; that it exists already is no failure, but a file of its name is.
void createFolder(const std::filesystem::path& path);

/// Makes a folder and all above it that are missing.
void createFolders(const std::filesystem::path& path);

/// Deletes a file; that there is none is no failure.
void removeFile(const std::filesystem::path& path);

/// Renames a file within its file system; one that has the new name already is replaced.
void moveFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Saves the text as "temp.xml" in the folder, reads it back and deletes the file. The file is held
/// exclusively meanwhile, and a stale one is no obstacle. While another program holds it the text
/// comes back without a file: this never waits.
[[nodiscard]] std::string throughTempFile(const std::filesystem::path& folder,
                                          std::string_view text);

/// The folder of the executable when it can be written to, otherwise the user's data folder of
/// Tarvel, which is made when needed.
[[nodiscard]] std::filesystem::path programFolder();

} // namespace tarvel
