// Each new file is locked while its run is alive: a file of this name that can be locked is a
// leftover.
#include "files/replacement.h"

#include "files/host_files.h"

#include <algorithm>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view besidePrefix = ".tarvel-";

// Short, so that it fits beside any other name. A killed run can have left files of the same name.
fs::path nextBeside(const fs::path& target) {
    static int count = 0;
    std::string name(besidePrefix);
    name.append(std::to_string(::getpid())).append("-").append(std::to_string(++count));
    return target.parent_path() / name;
}

bool isBesideName(std::string_view name) {
    return name.starts_with(besidePrefix) && name.size() > besidePrefix.size() &&
           name.find_first_not_of("0123456789-", besidePrefix.size()) == std::string_view::npos;
}

// Between its making and its locking the file looks like a leftover to others, who may have removed
// it or be about to.
bool isOurs(const OpenFile& file) {
    const bool taken = !tryLock(file.descriptor()) && errno == EWOULDBLOCK;
    return !taken && file.status().st_nlink > 0;
}

// Leaves nothing of a file that is not ours, or that cannot be looked at.
bool isOursOrGone(const OpenFile& file, const fs::path& path) {
    try {
        if (isOurs(file)) {
            return true;
        }
    } catch (const FileError&) {
        ::unlink(path.c_str());
        throw;
    }
    ::unlink(path.c_str());
    return false;
}

OpenFile openBeside(const fs::path& target, fs::path& beside) {
    constexpr int tries = 10000;
    for (int i = 1;; ++i) {
        beside = nextBeside(target);
        try {
            OpenFile file(beside, O_WRONLY | O_CREAT | O_EXCL, 0666, target);
            if (isOursOrGone(file, beside)) {
                return file;
            }
        } catch (const FileError& error) {
            if (error.errorNumber() != EEXIST || i == tries) {
                throw;
            }
        }
    }
}

void keepPermissions(const fs::path& target, const OpenFile& file) {
    struct stat older {};
    if (::lstat(target.c_str(), &older) == 0 && S_ISREG(older.st_mode)) {
        constexpr mode_t permissionBits = 0777;
        (void)::fchmod(file.number(), older.st_mode & permissionBits); // not known everywhere
    }
}

void removeIfLeft(const fs::path& path) {
    const Descriptor opened = openAt(AT_FDCWD, path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    struct stat status {};
    if (!opened.isOpen() || ::fstat(opened.number(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return;
    }
    if (tryLock(opened)) {
        ::unlink(path.c_str());
    }
}

} // namespace

Replacement::Replacement(fs::path target)
    : target_(std::move(target))
    , file_(openBeside(target_, beside_)) {
    keepPermissions(target_, file_);
}

Replacement::~Replacement() {
    if (!beside_.empty()) {
        ::unlink(beside_.c_str());
    }
}

void Replacement::takePlace() {
    file_.flush();
    // Still open, and so locked: nobody takes the file for a leftover before it has its name.
    if (uninterrupted([this] { return ::rename(beside_.c_str(), target_.c_str()); }) != 0) {
        throw FileError(errno, target_);
    }
    beside_.clear();
    file_.close();
    flushFolder(target_.parent_path());
}

void removeLeftovers(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> candidates;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (isBesideName(entry->path().filename().native())) {
            candidates.push_back(entry->path());
        }
    }
    std::for_each(candidates.begin(), candidates.end(), removeIfLeft);
}

} // namespace tarvel
