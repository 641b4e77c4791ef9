// The hold is a lock of the system on the open file, which ends with its process.
#include "files/held_file.h"

#include "files/host_files.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarvel {

namespace {

int openFile(const std::filesystem::path& path) {
    for (;;) {
        const int flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC;
        const int descriptor = ::open(path.c_str(), flags, 0600); // NOLINT: variadic by POSIX
        if (descriptor >= 0) {
            return descriptor;
        }
        if (errno != EINTR) {
            throw FileError(errno, path);
        }
    }
}

// False when somebody else has the lock.
bool lock(int descriptor, const std::filesystem::path& path) {
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) {
            return false;
        }
        if (errno != EINTR) {
            throw FileError(errno, path);
        }
    }
    return true;
}

// Another holder may have deleted the file between its opening and its lock.
bool isStillAt(int descriptor, const std::filesystem::path& path) {
    struct stat held {};
    struct stat there {};
    return ::fstat(descriptor, &held) == 0 && ::lstat(path.c_str(), &there) == 0 &&
           held.st_dev == there.st_dev && held.st_ino == there.st_ino;
}

} // namespace

std::optional<HeldFile> HeldFile::tryHold(const std::filesystem::path& path) {
    constexpr int tries = 100;
    for (int i = 0; i < tries; ++i) {
        HeldFile file(path, openFile(path));
        if (!lock(file.descriptor_, path)) {
            return std::nullopt;
        }
        if (isStillAt(file.descriptor_, path)) {
            return file;
        }
    }
    return std::nullopt;
}

HeldFile::HeldFile(std::filesystem::path path, int descriptor)
    : path_(std::move(path))
    , descriptor_(descriptor) {}

HeldFile::HeldFile(HeldFile&& other) noexcept
    : path_(std::move(other.path_))
    , descriptor_(std::exchange(other.descriptor_, -1)) {}

HeldFile& HeldFile::operator=(HeldFile&& other) noexcept {
    if (this != &other) {
        letGo();
        path_ = std::move(other.path_);
        descriptor_ = std::exchange(other.descriptor_, -1);
    }
    return *this;
}

HeldFile::~HeldFile() {
    letGo();
}

void HeldFile::remove() noexcept {
    if (descriptor_ >= 0) {
        ::unlink(path_.c_str());
    }
    letGo();
}

void HeldFile::letGo() noexcept {
    if (descriptor_ >= 0) {
        ::close(std::exchange(descriptor_, -1));
    }
}

} // namespace tarvel
