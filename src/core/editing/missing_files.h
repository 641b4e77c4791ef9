// Files that a skin names and that are not there: which these are, and finding them again.
#pragma once

#include "document/skin_document.h"
#include "files/file_search.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tarvel {

/// A file that is not there.
struct MissingFile {
    enum class What : std::uint8_t { resource, background, music };
    What what = What::resource;
    int index = 0;    ///< in the skin's resources, or in its music files; 0 for the background
    std::string path; ///< document path

    bool operator==(const MissingFile&) const = default;
};

/// The missing files of resources, the background and listed music, in this order. What lies
/// outside of the skin's folder is not looked at, and no part of it.
[[nodiscard]] std::vector<MissingFile> missingFiles(const SkinDocument& document);

/// A missing file and one of its name.
struct LocatedFile {
    MissingFile missing;
    std::string path; ///< document path

    bool operator==(const LocatedFile&) const = default;
};

struct LocatedFiles {
    std::vector<LocatedFile> files; ///< proposals, in the order of the missing ones
    bool complete = true;           ///< false when the search stopped before its end
};

/// Looks in a folder and below it for files of the missing ones' names, without regard to letter
/// case, as searchFiles() does.
[[nodiscard]] LocatedFiles locate(const std::vector<MissingFile>& missing,
                                  const std::filesystem::path& folder,
                                  std::size_t limit = mostEntries, const SearchStep& step = {});

/// Puts the files in the places of the missing ones, elements included, and returns how many. One
/// whose place the skin has filled otherwise meanwhile is left out.
int useLocated(SkinDocument& document, const std::vector<LocatedFile>& files);

} // namespace tarvel
