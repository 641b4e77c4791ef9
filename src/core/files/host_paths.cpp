// Looking paths up part by part, each in the opened folder before it, so that a path of many parts
// costs no more than its length.
#include "files/host_paths.h"

#include "files/host_files.h"
#include "files/path_text.h"
#include "files/windows_names.h"
#include "text/text_case.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

std::string slashed(std::string_view documentPath) {
    std::string spelt(documentPath);
    std::replace(spelt.begin(), spelt.end(), '\\', '/');
    return spelt;
}

// True for what can be no path at all.
bool isNoPath(const std::string& spelt) {
    return spelt.size() > longestPath() || spelt.find('\0') != std::string::npos;
}

template <class Visit> void forEachPart(std::string_view path, Visit&& visit) {
    while (!path.empty()) {
        const auto end = std::min(path.find('/'), path.size());
        if (end > 0) {
            visit(path.substr(0, end));
        }
        path.remove_prefix(std::min(end + 1, path.size()));
    }
}

// The entry that is called `name` but for letter case; empty when there is none.
std::string entryIgnoringCase(const DiskPlace& folder, std::string_view name) {
    std::string found;
    folder.eachName([&](std::string_view entry) {
        if (equalsIgnoringCase(entry, name)) {
            found = entry;
        }
        return !found.empty();
    });
    return found;
}

void appendPart(std::string& path, std::string_view part) {
    if (!path.empty() && !path.ends_with('/')) {
        path += '/';
    }
    path.append(part);
}

// The path with each part as the disk spells it, as far as it exists.
std::string spelledByTheDisk(std::string_view spelt) {
    const std::size_t root = rootLength(spelt);
    std::string found(spelt.substr(0, root));
    // What is found so far; nowhere from the first part on that is missing.
    DiskPlace here(root > 0 ? found : ".");
    forEachPart(spelt.substr(root), [&](std::string_view part) {
        std::string name(part);
        if (here.isThere()) {
            DiskPlace next = here.part(name);
            if (const std::string other = next.isThere() ? "" : entryIgnoringCase(here, part);
                !other.empty()) {
                name = other;
                next = here.part(name);
            }
            here = std::move(next);
        }
        appendPart(found, name);
    });
    if (spelt.ends_with('/') && !found.ends_with('/')) {
        found += '/';
    }
    return found;
}

// True when ".." parts lead above the start of a relative path.
bool climbsOut(std::string_view path) {
    int depth = 0;
    bool above = false;
    forEachPart(path, [&](std::string_view part) {
        depth += part == ".." ? -1 : part == "." ? 0 : 1;
        above = above || depth < 0;
    });
    return above;
}

// True when its spelling alone tells that a File text leads out of the skin's folder.
bool isSpeltOutside(const fs::path& folder, std::string_view spelt) {
    const bool drive = spelt.size() >= 2 && spelt[1] == ':';
    return drive || spelt.starts_with('/') || climbsOut(spelt) ||
           utf8Of(folder).size() + 1 + spelt.size() > longestPath();
}

// The path behind all links; nothing for what does not exist. Throws for what cannot be looked at,
// so that nobody takes it for something else.
std::optional<std::string> realPathIfThere(const fs::path& path) {
    auto real = realPath(path);
    if (!real && errno != ENOENT && errno != ENOTDIR && errno != ELOOP) {
        throw FileError(errno, path);
    }
    return real;
}

std::string realPathOf(const fs::path& path) {
    auto real = realPath(path);
    if (!real) {
        throw FileError(errno, path);
    }
    return std::move(*real);
}

bool isBelow(std::string_view folder, std::string_view path) {
    return path.starts_with(folder) &&
           (path.size() == folder.size() || folder.ends_with('/') || path[folder.size()] == '/');
}

std::string backslashProblem(std::string_view beginning, const fs::path& path) {
    if constexpr (fs::path::preferred_separator == '\\') {
        return {}; // it only separates
    }
    std::error_code error;
    const fs::path full = fs::absolute(path, error);
    if (error) {
        return FileError(error.value(), path).what();
    }
    if (utf8Of(full).find('\\') != std::string::npos) {
        return std::string(beginning).append(" cannot hold a backslash: ").append(utf8Of(full));
    }
    return {};
}

} // namespace

fs::path hostPath(std::string_view documentPath) {
    std::string spelt = slashed(documentPath);
    return pathOf(isNoPath(spelt) || isThereAsSpelt(spelt) ? spelt : spelledByTheDisk(spelt));
}

std::string documentPath(const fs::path& path) {
    // The folders of a share are not below any drive.
    const bool isOnShare =
        fs::path::preferred_separator == '\\' && slashedUtf8Of(path).starts_with("//");
    std::error_code error;
    const fs::path full = isOnShare ? path : fs::absolute(path, error);
    std::string text = utf8Of(error ? path : full);
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

std::string fileProblem(const fs::path& file) {
    return backslashProblem("The path of a skin's file", file);
}

std::string folderProblem(const fs::path& folder) {
    return folder.empty() ? "No folder is named"
                          : backslashProblem("The path of a skin's folder", folder);
}

bool FileExists(std::string_view path) {
    return FileFinder().FileExists(path);
}

bool isSameFile(const fs::path& a, const fs::path& b) {
    const auto one = statusOf(a);
    const auto other = statusOf(b);
    return one && other && one->kind != FileKind::other && one->identity == other->identity;
}

bool leadsOutside(const fs::path& folder, std::string_view file) {
    return FileFinder().leadsOutside(folder, file);
}

bool liesWithin(const fs::path& folder, const fs::path& path) {
    const auto real = realPathIfThere(path);
    return real && isBelow(realPathOf(folder), *real);
}

fs::path writtenPath(const fs::path& folder, const fs::path& target) {
    const auto itself = statusOfItself(target);
    const auto file = itself && itself->kind == FileKind::link ? statusOf(target) : std::nullopt;
    if (!file || file->kind != FileKind::regular || !liesWithin(folder, target)) {
        return target;
    }
    const auto real = realPath(target);
    return real ? pathOf(*real) : target;
}

fs::path FileFinder::hostPath(std::string_view documentPath) {
    return pathOf(located(slashed(documentPath)).path);
}

bool FileFinder::FileExists(std::string_view path) {
    const Found found = located(slashed(path));
    if (!found.isThere) {
        return false;
    }
    const auto status = statusOf(pathOf(found.path));
    return status && status->kind != FileKind::folder;
}

bool FileFinder::isSameFile(std::string_view a, std::string_view b) {
    return tarvel::isSameFile(hostPath(a), hostPath(b));
}

bool FileFinder::leadsOutside(const fs::path& folder, std::string_view file) {
    const std::string spelt = slashed(file);
    // A colon would open a stream of another file, and a device has its name in every folder.
    const bool isNoName = hasWindowsNamesAlone() && !partWithoutWindowsName(file).empty();
    if (isNoName || isSpeltOutside(folder, spelt)) {
        return true;
    }
    const Found found = located(slashedUtf8Of(folder) + '/' + spelt);
    const auto real = found.isThere ? realPath(pathOf(found.path)) : std::nullopt;
    if (!real) {
        return false;
    }
    if (root_ != folder) {
        realRoot_ = realPathOf(folder);
        root_ = folder;
    }
    return !isBelow(realRoot_, *real);
}

FileFinder::Found FileFinder::located(const std::string& spelt) {
    if (isNoPath(spelt)) {
        return {spelt, false};
    }
    const auto slash = spelt.rfind('/');
    if (slash == std::string::npos || slash + 1 == spelt.size()) {
        std::string path = spelledByTheDisk(spelt);
        const bool there = statusOf(pathOf(path)).has_value();
        return {std::move(path), there};
    }
    const std::string_view name = std::string_view(spelt).substr(slash + 1);
    Folder& folder = folderOf(std::string_view(spelt).substr(0, slash + 1));
    std::string path = folder.spelling + std::string(name);
    if (folder.entries == nullptr && isThereAsSpelt(path)) {
        return {std::move(path), true};
    }
    const Entries& entries = entriesOf(folder);
    const auto entry = entries.find(lowerCased(name));
    if (entry == entries.end()) {
        return locatedBySystem(folder.spelling, std::string(name));
    }
    if (entry->second == name || isThereAsSpelt(path)) {
        return {std::move(path), true};
    }
    return {folder.spelling + entry->second, true};
}

// Where the system finds names as it does, it also knows capitals of other scripts, and short
// names.
FileFinder::Found FileFinder::locatedBySystem(const std::string& folder, std::string name) {
    constexpr bool findsMore = fs::path::preferred_separator == '\\';
    const bool found = findsMore && DiskPlace(folder).part(name).isThere();
    return {folder + name, found};
}

FileFinder::Folder& FileFinder::folderOf(std::string_view spelt) {
    const auto [folder, isNew] = folders_.try_emplace(std::string(spelt));
    if (isNew) {
        folder->second.spelling = spelledByTheDisk(spelt);
    }
    return folder->second;
}

const FileFinder::Entries& FileFinder::entriesOf(Folder& folder) {
    static const Entries none;
    if (folder.entries != nullptr) {
        return *folder.entries;
    }
    const DiskPlace open(folder.spelling);
    const auto identity = open.identity();
    if (!identity) {
        folder.entries = &none;
        return none;
    }
    const auto [known, isNew] = entries_.try_emplace(*identity);
    if (isNew) {
        open.eachName([&names = known->second](std::string_view name) {
            names.try_emplace(lowerCased(name), name);
            return false;
        });
    }
    folder.entries = &known->second;
    return *folder.entries;
}

} // namespace tarvel
