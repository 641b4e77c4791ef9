// Looking paths up part by part, each in the opened folder before it, so that a path of many parts
// costs no more than its length.
#include "files/host_paths.h"

#include "files/host_files.h"
#include "files/open_file.h"
#include "text/text_case.h"

#include <algorithm>
#include <array>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t longestPath = PATH_MAX - 1;

std::string slashed(std::string_view documentPath) {
    std::string spelt(documentPath);
    std::replace(spelt.begin(), spelt.end(), '\\', '/');
    return spelt;
}

bool isThere(const std::string& path) {
    struct stat result {};
    return ::stat(path.c_str(), &result) == 0;
}

// True for what can be no path at all.
bool isNoPath(const std::string& spelt) {
    return spelt.size() > longestPath || spelt.find('\0') != std::string::npos;
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

// Calls take(name) for each entry of an open folder until it returns true.
template <class Take> void eachEntry(const Descriptor& folder, Take&& take) {
    const int again = uninterrupted(
        [&] { return ::openat(folder.number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    const auto close = [](DIR* open) { ::closedir(open); };
    const std::unique_ptr<DIR, decltype(close)> entries(again < 0 ? nullptr : ::fdopendir(again),
                                                        close);
    while (const dirent* entry = entries ? ::readdir(entries.get()) : nullptr) {
        const std::string_view name = &entry->d_name[0];
        if (name != "." && name != ".." && take(name)) {
            return;
        }
    }
}

// The entry that is called `name` but for letter case; empty when there is none.
std::string entryIgnoringCase(const Descriptor& folder, std::string_view name) {
    std::string found;
    eachEntry(folder, [&](std::string_view entry) {
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
    const bool absolute = spelt.starts_with('/');
    std::string found = absolute ? "/" : "";
    // What is found so far; closed from the first part on that is missing.
    Descriptor here = openAt(AT_FDCWD, absolute ? "/" : ".", O_PATH);
    forEachPart(spelt, [&](std::string_view part) {
        std::string name(part);
        if (here.isOpen()) {
            Descriptor next = openAt(here.number(), name.c_str(), O_PATH);
            if (const std::string other = next.isOpen() ? "" : entryIgnoringCase(here, part);
                !other.empty()) {
                name = other;
                next = openAt(here.number(), name.c_str(), O_PATH);
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
           folder.native().size() + 1 + spelt.size() > longestPath;
}

// The path behind all links, by one call of the system where it offers that; nothing for a path
// that does not exist.
std::optional<std::string> realPath(const std::string& path) {
    const Descriptor file = openAt(AT_FDCWD, path.c_str(), O_PATH);
    if (!file.isOpen()) {
        return std::nullopt;
    }
    const std::string link = "/proc/self/fd/" + std::to_string(file.number());
    std::array<char, PATH_MAX> text{};
    const auto size = ::readlink(link.c_str(), text.data(), text.size());
    if (size > 0 && static_cast<std::size_t>(size) < text.size() && text.front() == '/') {
        return std::string(text.data(), static_cast<std::size_t>(size));
    }
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return error ? std::nullopt : std::optional(real.string());
}

// The path behind all links; nothing for what does not exist. Throws for what cannot be looked at,
// so that nobody takes it for something else.
std::optional<std::string> realPathIfThere(const fs::path& path) {
    auto real = realPath(path.native());
    if (!real && errno != ENOENT && errno != ENOTDIR && errno != ELOOP) {
        throw FileError(errno, path);
    }
    return real;
}

std::string realPathOf(const fs::path& path) {
    auto real = realPath(path.native());
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
    std::error_code error;
    const fs::path full = fs::absolute(path, error);
    if (error) {
        return FileError(error.value(), path).what();
    }
    if (full.native().find('\\') != std::string::npos) {
        return std::string(beginning).append(" cannot hold a backslash: ").append(full.native());
    }
    return {};
}

} // namespace

fs::path hostPath(std::string_view documentPath) {
    std::string spelt = slashed(documentPath);
    return isNoPath(spelt) || isThere(spelt) ? std::move(spelt) : spelledByTheDisk(spelt);
}

std::string documentPath(const fs::path& path) {
    std::error_code error;
    const fs::path full = fs::absolute(path, error);
    std::string text = error ? path.string() : full.string();
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

bool leadsOutside(const fs::path& folder, std::string_view file) {
    return FileFinder().leadsOutside(folder, file);
}

bool liesWithin(const fs::path& folder, const fs::path& path) {
    const auto real = realPathIfThere(path);
    return real && isBelow(realPathOf(folder), *real);
}

fs::path writtenPath(const fs::path& folder, const fs::path& target) {
    std::error_code error;
    if (!fs::is_symlink(target, error) || !fs::is_regular_file(target, error) ||
        !liesWithin(folder, target)) {
        return target;
    }
    return realPath(target.native()).value_or(target.native());
}

fs::path FileFinder::hostPath(std::string_view documentPath) {
    return located(slashed(documentPath)).path;
}

bool FileFinder::FileExists(std::string_view path) {
    const Found found = located(slashed(path));
    if (!found.isThere) {
        return false;
    }
    std::error_code error;
    const auto status = fs::status(found.path, error);
    return !error && fs::exists(status) && !fs::is_directory(status);
}

bool FileFinder::isSameFile(std::string_view a, std::string_view b) {
    std::error_code error;
    return fs::equivalent(hostPath(a), hostPath(b), error) && !error;
}

bool FileFinder::leadsOutside(const fs::path& folder, std::string_view file) {
    const std::string spelt = slashed(file);
    if (isSpeltOutside(folder, spelt)) {
        return true;
    }
    const Found found = located(folder.native() + '/' + spelt);
    const auto real = found.isThere ? realPath(found.path) : std::nullopt;
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
        const bool there = isThere(path);
        return {std::move(path), there};
    }
    const std::string_view name = std::string_view(spelt).substr(slash + 1);
    Folder& folder = folderOf(std::string_view(spelt).substr(0, slash + 1));
    std::string path = folder.spelling + std::string(name);
    if (folder.entries == nullptr && isThere(path)) {
        return {std::move(path), true};
    }
    const Entries& entries = entriesOf(folder);
    const auto entry = entries.find(lowerCased(name));
    if (entry == entries.end()) {
        return {std::move(path), false};
    }
    if (entry->second == name || isThere(path)) {
        return {std::move(path), true};
    }
    return {folder.spelling + entry->second, true};
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
    const Descriptor open = openAt(AT_FDCWD, folder.spelling.c_str(), O_PATH);
    struct stat status {};
    if (!open.isOpen() || ::fstat(open.number(), &status) != 0) {
        folder.entries = &none;
        return none;
    }
    const auto [known, isNew] = entries_.try_emplace({status.st_dev, status.st_ino});
    if (isNew) {
        eachEntry(open, [&names = known->second](std::string_view name) {
            names.try_emplace(lowerCased(name), name);
            return false;
        });
    }
    folder.entries = &known->second;
    return *folder.entries;
}

} // namespace tarvel
