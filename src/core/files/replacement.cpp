// Each new file is locked while its run is alive: a file of this name that can be locked is a
// leftover.
#include "files/replacement.h"

#include "files/host_files.h"
#include "files/path_text.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <string_view>
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
    name.append(std::to_string(processNumber())).append("-").append(std::to_string(++count));
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
    return !taken && file.status().links > 0;
}

// Leaves nothing of a file that is not ours, or that cannot be looked at.
bool isOursOrGone(const OpenFile& file, const fs::path& path) {
    try {
        if (isOurs(file)) {
            return true;
        }
    } catch (const FileError&) {
        removeName(path);
        throw;
    }
    removeName(path);
    return false;
}

OpenFile openBeside(const fs::path& target, fs::path& beside) {
    constexpr int tries = 10000;
    for (int i = 1;; ++i) {
        beside = nextBeside(target);
        try {
            OpenFile file(beside, Opening::makeNew, target);
            if (isOursOrGone(file, beside)) {
                return file;
            }
            if (i == tries) {
                throw FileError(EAGAIN, target);
            }
        } catch (const FileError& error) {
            if (error.errorNumber() != EEXIST || i == tries) {
                throw;
            }
        }
    }
}

void removeIfLeft(const fs::path& path) {
    const Descriptor opened = openFile(path, Opening::readItself);
    const auto status = opened.isOpen() ? statusOf(opened) : std::nullopt;
    if (status && status->kind == FileKind::regular && tryLock(opened)) {
        removeName(path);
    }
}

} // namespace

Replacement::Replacement(fs::path target)
    : target_(std::move(target))
    , file_(openBeside(target_, beside_)) {
    keepPermissions(target_, file_.descriptor());
}

Replacement::~Replacement() {
    if (!beside_.empty()) {
        removeName(beside_);
    }
}

void Replacement::takePlace() {
    file_.flush();
    // Still open, and so locked: nobody takes the file for a leftover before it has its name.
    if (!renameOver(beside_, target_)) {
        throw FileError(errno, target_);
    }
    beside_.clear();
    file_.close();
    flushFolder(target_.parent_path());
}

void removeLeftovers(const fs::path& folder) {
    std::vector<fs::path> candidates;
    eachEntryOf(folder, [&](const FolderEntry& entry) {
        if (isBesideName(utf8Of(entry.path.filename()))) {
            candidates.push_back(entry.path);
        }
        return true;
    });
    std::for_each(candidates.begin(), candidates.end(), removeIfLeft);
}

} // namespace tarvel
