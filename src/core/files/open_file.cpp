// Makes the calls of the system on one open file, and tells of those that fail.
#include "files/open_file.h"

#include "files/host_files.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace tarvel {

namespace {

// Some file systems have nothing to flush to and say so.
bool flushed(int descriptor) {
    return uninterrupted([=] { return ::fsync(descriptor); }) == 0 || errno == EINVAL ||
           errno == ENOTSUP;
}

} // namespace

Descriptor::Descriptor(Descriptor&& other) noexcept
    : number_(std::exchange(other.number_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    if (this != &other) {
        reset();
        number_ = std::exchange(other.number_, -1);
    }
    return *this;
}

bool Descriptor::reset() {
    const int number = std::exchange(number_, -1);
    // A close that a signal broke into has closed all the same.
    return number < 0 || ::close(number) == 0 || errno == EINTR;
}

Descriptor openAt(int at, const char* path, int flags, mode_t mode) {
    return Descriptor(uninterrupted(
        [=] { return ::openat(at, path, flags | O_CLOEXEC, mode); })); // NOLINT: variadic by POSIX
}

bool tryLock(const Descriptor& file) {
    return uninterrupted([&] { return ::flock(file.number(), LOCK_EX | LOCK_NB); }) == 0;
}

OpenFile::OpenFile(const std::filesystem::path& path, int flags, mode_t mode,
                   std::filesystem::path shownAs)
    : path_(std::move(shownAs))
    , descriptor_(openAt(AT_FDCWD, path.c_str(), flags, mode)) {
    if (!descriptor_.isOpen()) {
        fail();
    }
}

OpenFile::OpenFile(const std::filesystem::path& path, int flags, mode_t mode)
    : OpenFile(path, flags, mode, path) {}

void OpenFile::fail() const {
    throw FileError(errno, path_);
}

void OpenFile::write(const char* data, std::size_t size) const {
    while (size > 0) {
        const auto written = uninterrupted([=, this] { return ::write(number(), data, size); });
        if (written < 0) {
            fail();
        }
        data += written;
        size -= static_cast<std::size_t>(written);
    }
}

void OpenFile::writeAt(std::uint64_t place, const char* data, std::size_t size) const {
    while (size > 0) {
        const auto written = uninterrupted(
            [=, this] { return ::pwrite(number(), data, size, static_cast<off_t>(place)); });
        if (written < 0) {
            fail();
        }
        place += static_cast<std::uint64_t>(written);
        data += written;
        size -= static_cast<std::size_t>(written);
    }
}

std::size_t OpenFile::read(char* data, std::size_t size) const {
    const auto got = uninterrupted([=, this] { return ::read(number(), data, size); });
    if (got < 0) {
        fail();
    }
    return static_cast<std::size_t>(got);
}

std::size_t OpenFile::readAt(std::uint64_t place, char* data, std::size_t size) const {
    const auto got = uninterrupted(
        [=, this] { return ::pread(number(), data, size, static_cast<off_t>(place)); });
    if (got < 0) {
        fail();
    }
    return static_cast<std::size_t>(got);
}

std::string OpenFile::readAll() const {
    std::string bytes;
    bytes.resize(static_cast<std::size_t>(std::max<off_t>(status().st_size, 0)) + 1);
    std::size_t size = 0;
    while (const std::size_t got = read(bytes.data() + size, bytes.size() - size)) {
        size += got;
        if (size == bytes.size()) {
            bytes.resize(2 * size);
        }
    }
    bytes.resize(size);
    return bytes;
}

struct stat OpenFile::status() const {
    struct stat result {};
    if (::fstat(number(), &result) != 0) {
        fail();
    }
    return result;
}

void OpenFile::flush() const {
    if (!flushed(number())) {
        fail();
    }
}

void OpenFile::close() {
    if (!descriptor_.reset()) {
        fail();
    }
}

void flushFolder(const std::filesystem::path& folder) {
    const auto& path = folder.empty() ? std::filesystem::path(".") : folder;
    const Descriptor opened = openAt(AT_FDCWD, path.c_str(), O_RDONLY | O_DIRECTORY);
    // A folder may be closed to reading and open to changes: there is no flushing it then.
    if (!opened.isOpen() && errno != ENOENT) {
        return;
    }
    if (!opened.isOpen() || !flushed(opened.number())) {
        throw FileError(errno, folder);
    }
    struct stat status {};
    if (::fstat(opened.number(), &status) == 0 && status.st_nlink == 0) {
        throw FileError(ENOENT, folder);
    }
}

} // namespace tarvel
