// Picture files by POSIX calls: they take paths that are no Unicode, and tell times exactly.
#include "surface/picture_file.h"

#include "files/host_files.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace tarvel {

namespace {

constexpr std::int64_t largestFile = std::int64_t{256} << 20;

bool isBuiltIn(const QByteArray& file) {
    return file.startsWith(":/");
}

std::filesystem::path resolved(const QByteArray& file) {
    return hostPath({file.constData(), static_cast<std::size_t>(file.size())});
}

std::int64_t nanoseconds(const timespec& time) {
    constexpr std::int64_t second = 1'000'000'000;
    return time.tv_sec * second + time.tv_nsec;
}

FileStamp stampOf(const std::filesystem::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return {};
    }
    return {.there = true,
            .device = status.st_dev,
            .number = status.st_ino,
            .size = status.st_size,
            .written = nanoseconds(status.st_mtim),
            .changed = nanoseconds(status.st_ctim)};
}

FileStamp innermostFolder(std::filesystem::path path) {
    FileStamp stamp;
    while (!stamp.there && path.has_relative_path()) {
        path = path.parent_path();
        stamp = stampOf(path);
    }
    return stamp;
}

} // namespace

SeenFile lookFor(const QByteArray& file) {
    if (isBuiltIn(file) || file.isEmpty()) {
        return {};
    }
    SeenFile seen{.path = resolved(file), .stamp = {}, .folder = {}};
    seen.stamp = stampOf(seen.path);
    if (!seen.stamp.there) {
        seen.folder = innermostFolder(seen.path);
    }
    return seen;
}

bool hasChanged(const QByteArray& file, SeenFile& seen) {
    if (seen.path.empty()) {
        return false;
    }
    const FileStamp now = stampOf(seen.path);
    if (seen.stamp.there || now.there) {
        return now != seen.stamp;
    }
    // It may have appeared in other letter case, which takes long to look for: not while the
    // folder is the same.
    if (innermostFolder(seen.path) == seen.folder) {
        return false;
    }
    seen = lookFor(file);
    return seen.stamp.there;
}

QString openPicture(const QByteArray& file, const SeenFile& seen, QFile& into) {
    auto notFound = QStringLiteral("not found");
    auto notReadable = QStringLiteral("not readable");
    if (isBuiltIn(file)) {
        into.setFileName(QString::fromUtf8(file));
        return into.open(QIODevice::ReadOnly) ? QString() : notFound;
    }
    struct stat status {};
    if (file.isEmpty() || ::stat(seen.path.c_str(), &status) != 0) {
        const bool missing = file.isEmpty() || errno == ENOENT || errno == ENOTDIR;
        return missing ? notFound : notReadable;
    }
    // Only regular files: opening a pipe would wait for its writer.
    if (!S_ISREG(status.st_mode)) {
        return notReadable;
    }
    if (status.st_size > largestFile) {
        return QStringLiteral("too large");
    }
    // O_NONBLOCK for a pipe that takes the file's place just now.
    const int descriptor =
        ::open(seen.path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); // NOLINT: variadic by POSIX
    const bool opened =
        descriptor >= 0 && into.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    return opened ? QString() : notReadable;
}

} // namespace tarvel
