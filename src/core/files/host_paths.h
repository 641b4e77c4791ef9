// How paths look on this host, and how those of a document become paths of it.
//
// Paths in the document are UTF-8 with backslashes. Nothing here throws unless stated otherwise.
#pragma once

#include "files/system_files.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarvel {

/// The host's path of a document path. What is not found as spelt is looked for without regard to
/// letter case, folder by folder; parts that do not exist at all stay as spelt, and so does a path
/// that is longer than the host's can be.
[[nodiscard]] std::filesystem::path hostPath(std::string_view documentPath);

/// The document's spelling of a host path, made absolute.
[[nodiscard]] std::string documentPath(const std::filesystem::path& path);

/// What keeps a file from being part of a skin, as a sentence for the user; "" for nothing. A path
/// with a backslash would come back from its document spelling as that of another file.
[[nodiscard]] std::string fileProblem(const std::filesystem::path& file);

/// What keeps a skin from lying in a folder, as a sentence for the user; "" for nothing.
[[nodiscard]] std::string folderProblem(const std::filesystem::path& folder);

/// True when the path exists and is no folder; false on every error.
[[nodiscard]] bool FileExists(std::string_view path);

/// True when both paths lead to one file or folder that is there.
[[nodiscard]] bool isSameFile(const std::filesystem::path& a, const std::filesystem::path& b);

/// True when `file`, a File text of a skin, leads out of the skin's folder: by "..", as an absolute
/// path, by a drive letter or through a link, or by a name that Windows cannot have where that is
/// the host. Also when it is longer than any path of the host, so that nothing can lie there.
/// Throws FileError when the folder cannot be looked at.
[[nodiscard]] bool leadsOutside(const std::filesystem::path& folder, std::string_view file);

/// True when the path exists and lies below the folder (or is it), whatever links lead there.
/// Throws FileError when either cannot be looked at.
[[nodiscard]] bool liesWithin(const std::filesystem::path& folder,
                              const std::filesystem::path& path);

/// Where something has to be written for `target`, a path of the skin in `folder`: for a link to a
/// file within the folder that file; otherwise the target itself, so that what a link outside leads
/// to is never changed. Throws FileError as liesWithin() does.
[[nodiscard]] std::filesystem::path writtenPath(const std::filesystem::path& folder,
                                                const std::filesystem::path& target);

/// hostPath() and leadsOutside() for many files, in time that grows as their number: which files a
/// folder holds is read once. What comes meanwhile may be missed, so a finder serves one piece of
/// work and goes.
class FileFinder {
  public:
    [[nodiscard]] std::filesystem::path hostPath(std::string_view documentPath);
    [[nodiscard]] bool FileExists(std::string_view path);
    [[nodiscard]] bool leadsOutside(const std::filesystem::path& folder, std::string_view file);
    /// True when both document paths lead to one file that is there.
    [[nodiscard]] bool isSameFile(std::string_view a, std::string_view b);

  private:
    using Entries = std::unordered_map<std::string, std::string>; // names by their lower-cased form
    struct Folder {
        std::string spelling;             // of the host
        const Entries* entries = nullptr; // known once they are needed
    };

    struct Found {
        std::string path;
        bool isThere = false;
    };

    [[nodiscard]] Found located(const std::string& spelt);
    [[nodiscard]] static Found locatedBySystem(const std::string& folder, std::string name);
    [[nodiscard]] Folder& folderOf(std::string_view spelt);
    [[nodiscard]] const Entries& entriesOf(Folder& folder);

    std::unordered_map<std::string, Folder> folders_; // by their spelling in the document
    std::map<FileIdentity, Entries> entries_;
    std::filesystem::path root_; // the folder asked for last, and its real path
    std::string realRoot_;
};

} // namespace tarvel
