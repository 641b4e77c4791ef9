// Looking for files by their names in a folder and everything below it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace tarvel {

/// How many entries of folders a search looks at before it stops.
inline constexpr std::size_t mostEntries = 200'000;

/// Told now and then how many entries were looked at; false ends the search.
using SearchStep = std::function<bool(std::size_t entries)>;

struct FileSearch {
    /// Paths of the host, by the names that were asked for.
    std::unordered_map<std::string, std::filesystem::path> found;
    /// False when the search stopped before its end.
    bool complete = true;
};

/// Looks for files whose names are among `names`, lower-cased ones, without regard to letter case.
/// Of several files of one name the one in the fewest folders counts, and of these the first in
/// alphabetical order. Goes through no link to a folder, takes a link to a file only when the file
/// lies below `folder` too, leaves out what no skin can hold, and passes over what cannot be read.
/// Ends as soon as all are found. Never throws but for want of memory.
[[nodiscard]] FileSearch searchFiles(const std::filesystem::path& folder,
                                     const std::unordered_set<std::string>& names,
                                     std::size_t limit = mostEntries, const SearchStep& step = {});

} // namespace tarvel
