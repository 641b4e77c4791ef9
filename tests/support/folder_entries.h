// What a folder holds.
#pragma once

#include "files/path_text.h"

#include <cstddef>
#include <filesystem>
#include <set>
#include <string>

namespace tarvel::test {

using Names = std::set<std::string>;

[[nodiscard]] inline Names namesIn(const std::filesystem::path& folder) {
    Names names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(utf8Of(entry.path().filename()));
    }
    return names;
}

/// How many.
[[nodiscard]] inline std::size_t entriesOf(const std::filesystem::path& folder) {
    return namesIn(folder).size();
}

} // namespace tarvel::test
