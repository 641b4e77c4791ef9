// Goes on with what the system did in part, and tells of what failed.
#include "files/open_file.h"

#include "files/host_files.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tarvel {

Descriptor::Descriptor(Descriptor&& other) noexcept
    : number_(std::exchange(other.number_, none)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    if (this != &other) {
        reset();
        number_ = std::exchange(other.number_, none);
    }
    return *this;
}

OpenFile::OpenFile(const std::filesystem::path& path, Opening how, std::filesystem::path shownAs)
    : path_(std::move(shownAs))
    , descriptor_(openFile(path, how)) {
    if (!descriptor_.isOpen()) {
        fail();
    }
}

OpenFile::OpenFile(const std::filesystem::path& path, Opening how)
    : OpenFile(path, how, path) {}

void OpenFile::fail() const {
    throw FileError(errno, path_);
}

void OpenFile::write(const char* data, std::size_t size) const {
    while (size > 0) {
        const auto written = writeSome(descriptor_, data, size);
        if (written < 0) {
            fail();
        }
        data += written;
        size -= static_cast<std::size_t>(written);
    }
}

void OpenFile::writeAt(std::uint64_t place, const char* data, std::size_t size) const {
    while (size > 0) {
        const auto written = writeSomeAt(descriptor_, place, data, size);
        if (written < 0) {
            fail();
        }
        place += static_cast<std::uint64_t>(written);
        data += written;
        size -= static_cast<std::size_t>(written);
    }
}

std::size_t OpenFile::read(char* data, std::size_t size) const {
    const auto got = readSome(descriptor_, data, size);
    if (got < 0) {
        fail();
    }
    return static_cast<std::size_t>(got);
}

std::size_t OpenFile::readAt(std::uint64_t place, char* data, std::size_t size) const {
    const auto got = readSomeAt(descriptor_, place, data, size);
    if (got < 0) {
        fail();
    }
    return static_cast<std::size_t>(got);
}

std::string OpenFile::readAll() const {
    std::string bytes;
    bytes.resize(static_cast<std::size_t>(std::max<std::int64_t>(status().size, 0)) + 1);
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

FileStatus OpenFile::status() const {
    const auto status = statusOf(descriptor_);
    if (!status) {
        fail();
    }
    return *status;
}

void OpenFile::flush() const {
    if (!flushToDisk(descriptor_)) {
        fail();
    }
}

void OpenFile::close() {
    if (!descriptor_.reset()) {
        fail();
    }
}

void flushFolder(const std::filesystem::path& folder) {
    const Descriptor opened = openFile(folder.empty() ? "." : folder, Opening::folder);
    // A folder may be closed to reading and open to changes: there is no flushing it then.
    if (!opened.isOpen() && errno != ENOENT) {
        return;
    }
    if (!opened.isOpen() || !flushToDisk(opened)) {
        throw FileError(errno, folder);
    }
    const auto status = statusOf(opened);
    if (status && status->links == 0) {
        throw FileError(ENOENT, folder);
    }
}

} // namespace tarvel
