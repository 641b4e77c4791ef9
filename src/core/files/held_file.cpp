// The hold is a lock of the system on the open file, which ends with its process.
#include "files/held_file.h"

#include "files/host_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarvel {

namespace {

// Another holder may have deleted the file between its opening and its lock.
bool isStillAt(const Descriptor& file, const std::filesystem::path& path) {
    struct stat held {};
    struct stat there {};
    return ::fstat(file.number(), &held) == 0 && ::lstat(path.c_str(), &there) == 0 &&
           held.st_dev == there.st_dev && held.st_ino == there.st_ino;
}

} // namespace

std::optional<HeldFile> HeldFile::tryHold(const std::filesystem::path& path) {
    constexpr int tries = 100;
    for (int i = 0; i < tries; ++i) {
        Descriptor file = openAt(AT_FDCWD, path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW, 0600);
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
        ::unlink(path_.c_str());
        file_.reset();
    }
}

} // namespace tarvel
