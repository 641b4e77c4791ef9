// Names, holds and the order of the files in the folder of recovery.
#include "skinfile/recovery_store.h"

#include "files/host_files.h"
#include "files/path_text.h"
#include "files/replacement.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <limits>
#include <set>
#include <utility>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

constexpr const char* workSuffix = ".recovery";
constexpr const char* lockSuffix = ".lock";
constexpr const char* asideSuffix = ".unreadable";

fs::path withSuffix(fs::path stem, const char* suffix) {
    stem += suffix;
    return stem;
}

std::string runName() {
    using std::chrono::milliseconds;
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto time = std::chrono::duration_cast<milliseconds>(now).count();
    return "run-" + std::to_string(time) + "-" + std::to_string(processNumber());
}

// The runs with a file in the folder, as paths without suffix.
std::set<fs::path> runsIn(const fs::path& folder) {
    std::set<fs::path> stems;
    eachEntryOf(folder, [&](const FolderEntry& entry) {
        const fs::path& path = entry.path;
        const bool isOurs = path.extension() == workSuffix || path.extension() == lockSuffix;
        if (isOurs && utf8Of(path.filename()).starts_with("run-")) {
            stems.insert(folder / path.stem());
        }
        return true;
    });
    return stems;
}

bool isFile(const fs::path& path) {
    const auto status = statusOfItself(path);
    return status && status->kind == FileKind::regular;
}

std::int64_t timeOf(const fs::path& path) {
    const auto status = statusOf(path);
    return status ? status->written : std::numeric_limits<std::int64_t>::min();
}

// True when nothing is left of it.
bool isRemoved(const fs::path& path) {
    return removeName(path) || errno == ENOENT;
}

} // namespace

RecoveryStore::RecoveryStore(fs::path folder)
    : folder_(std::move(folder)) {
    createFolders(folder_);
    constexpr int tries = 1000;
    const std::string name = runName();
    for (int i = 0; !own_; ++i) {
        const fs::path stem = folder_ / (i == 0 ? name : name + "-" + std::to_string(i));
        file_ = withSuffix(stem, workSuffix);
        auto hold = HeldFile::tryHold(withSuffix(stem, lockSuffix));
        if (hold && !isFile(file_)) {
            own_ = std::move(hold);
        } else if (i == tries) {
            throw FileError(EBUSY, folder_);
        }
    }
}

void RecoveryStore::keep(const WorkState& work) {
    if (own_) {
        writeFile(file_, recoveryBytes(work, buffer_));
    }
}

void RecoveryStore::keepNothing() {
    if (own_) {
        removeFile(file_);
    }
}

std::vector<fs::path> RecoveryStore::takeLost() {
    removeLeftovers(folder_);
    for (const fs::path& stem : runsIn(folder_)) {
        findLostRun(stem);
    }
    std::vector<std::pair<std::int64_t, fs::path>> found;
    for (const LostRun& run : lost_) {
        found.emplace_back(timeOf(run.file), run.file);
    }
    std::sort(found.rbegin(), found.rend());
    std::vector<fs::path> files(found.size());
    std::transform(found.begin(), found.end(), files.begin(),
                   [](auto& each) { return std::move(each.second); });
    return files;
}

// Nothing of a run can be lost that still holds its lock: then it lives, or another store has it.
void RecoveryStore::findLostRun(const fs::path& stem) {
    try {
        auto hold = HeldFile::tryHold(withSuffix(stem, lockSuffix));
        if (!hold) {
            return;
        }
        fs::path file = withSuffix(stem, workSuffix);
        if (isFile(file)) {
            lost_.push_back({std::move(file), std::move(*hold)});
        } else {
            hold->remove(); // it kept nothing
        }
    } catch (const FileError&) {
        return; // somebody else's, who shares the folder
    }
}

WorkState RecoveryStore::read(const fs::path& lost) {
    return readRecovery(readFile(lost));
}

void RecoveryStore::forget(const fs::path& lost) {
    removeFile(lost);
    letGo(lost);
}

fs::path RecoveryStore::setAside(const fs::path& lost) {
    const fs::path stem = folder_ / lost.stem();
    fs::path target = withSuffix(stem, asideSuffix);
    for (int i = 2; statusOfItself(target); ++i) {
        const std::string number = std::to_string(i);
        target = withSuffix(stem, ('-' + number + asideSuffix).c_str());
    }
    moveFile(lost, target);
    letGo(lost);
    return target;
}

void RecoveryStore::leave(const fs::path& lost) {
    std::erase_if(lost_, [&](const LostRun& each) { return each.file == lost; });
}

void RecoveryStore::letGo(const fs::path& lost) {
    const auto run = std::find_if(lost_.begin(), lost_.end(),
                                  [&](const LostRun& each) { return each.file == lost; });
    if (run != lost_.end()) {
        run->hold.remove();
        lost_.erase(run);
    }
}

void RecoveryStore::endProperly() {
    for (LostRun& run : lost_) {
        if (isRemoved(run.file)) {
            run.hold.remove();
        }
    }
    lost_.clear();
    if (own_ && isRemoved(file_)) {
        own_->remove();
    }
    own_.reset();
}

} // namespace tarvel
