// The only code that opens, copies or creates files, and that knows how paths look on this host.
//
// Paths in the document are UTF-8 with backslashes. Failures throw FileError unless stated
// otherwise.
#pragma once

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

    /// errno of the failed operation.
    [[nodiscard]] int errorNumber() const { return errorNumber_; }

  private:
    int errorNumber_;
};

/// The host's path of a document path. What is not found as spelt is looked for without regard to
/// letter case, folder by folder; parts that do not exist at all stay as spelt. Never throws.
[[nodiscard]] std::filesystem::path hostPath(std::string_view documentPath);

/// The document's spelling of a host path, made absolute.
[[nodiscard]] std::string documentPath(const std::filesystem::path& path);

/// What keeps a skin from lying in a folder, as a sentence for the user; "" for nothing. A path
/// with a backslash would come back from its document spelling as that of another folder.
[[nodiscard]] std::string folderProblem(const std::filesystem::path& folder);

/// True when the path exists and is no folder; false on every error.
[[nodiscard]] bool FileExists(std::string_view path);

/// True when `file`, a File text of a skin, leads out of the skin's folder: by "..", as an absolute
/// path, by a drive letter or through a link.
[[nodiscard]] bool leadsOutside(const std::filesystem::path& folder, std::string_view file);

[[nodiscard]] std::string readFile(const std::filesystem::path& path);

/// Replaces the file only when the new content is wholly on the disk.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

/// Told how many bytes of how many are copied; false cancels.
using CopyStep = std::function<bool(std::uintmax_t done, std::uintmax_t total)>;

/// Copies a file over another, which is replaced only when the copy is whole. A file is never
/// copied onto itself, through whatever link: nothing happens then. Returns false when cancelled,
/// and leaves the older file then, as on failure.
bool copyFile(const std::filesystem::path& from, const std::filesystem::path& to,
              const CopyStep& progress = {});

/// Makes a folder; that it exists already is no failure.
void createFolder(const std::filesystem::path& path);

/// Makes a folder and all above it that are missing.
void createFolders(const std::filesystem::path& path);

/// Deletes a file; that there is none is no failure.
void removeFile(const std::filesystem::path& path);

/// Renames a file within its file system; one that has the new name already is replaced.
void moveFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Saves the text as "temp.xml" in the folder, reads it back and deletes the file. The file is held
/// exclusively meanwhile; other holders are waited for, and a stale file is no obstacle.
[[nodiscard]] std::string throughTempFile(const std::filesystem::path& folder,
                                          std::string_view text);

/// The folder of the executable when it can be written to, otherwise the user's data folder of
/// Tarvel, which is made when needed.
[[nodiscard]] std::filesystem::path programFolder();

} // namespace tarvel
