// The hold is a lock of the system on the open file, which ends with its process.
#include "files/held_file.h"

#include "files/host_files.h"

#include <cerrno>
#include <utility>

namespace tarvel {

namespace {

// Another holder may have deleted the file between its opening and its lock.
bool isStillAt(const Descriptor& file, const std::filesystem::path& path) {
    const auto held = statusOf(file);
    const auto there = held ? statusOfItself(path) : std::nullopt;
    return there && held->identity == there->identity;
}

} // namespace

std::optional<HeldFile> HeldFile::tryHold(const std::filesystem::path& path) {
    constexpr int tries = 100;
    for (int i = 0; i < tries; ++i) {
        Descriptor file = openFile(path, Opening::own);
        if (!file.isOpen()) {
            throw FileError(errno, path);
        }
        if (!tryLock(file)) {
            if (errno != EWOULDBLOCK) {
                throw FileError(errno, path);
            }
            return std::nullopt;
        }
        if (isStillAt(file, path)) {
            return HeldFile(path, std::move(file));
        }
    }
    return std::nullopt;
}

HeldFile::HeldFile(std::filesystem::path path, Descriptor file)
    : path_(std::move(path))
    , file_(std::move(file)) {}

void HeldFile::remove() noexcept {
    if (file_.isOpen()) {
        removeName(path_);
        file_.reset();
    }
}

} // namespace tarvel
