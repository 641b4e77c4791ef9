// Links for tests, on every system.
#pragma once

#include "files/system_files.h"

#include <filesystem>

namespace tarvel::test {

/// Makes a link at `at` that leads to `target`, a path in full or one seen from the link's folder,
/// whether anything is there or not. On Windows one to a folder that is there becomes a junction.
void makeLink(const std::filesystem::path& target, const std::filesystem::path& at);

/// True for a link itself, as its folder tells it.
[[nodiscard]] inline bool isLink(const std::filesystem::path& path) {
    bool found = false;
    eachEntryOf(path.parent_path(), [&](const FolderEntry& entry) {
        found = found || (entry.kind == FileKind::link && entry.path == path);
        return !found;
    });
    return found;
}

/// False where the system follows links without telling that they are some: those to files under
/// Wine. A test that needs to know skips itself then by the words of `linksUntold`.
[[nodiscard]] bool areFileLinksTold();

inline constexpr const char* linksUntold =
    "Wine follows a link to a file without telling that it is one";

} // namespace tarvel::test
