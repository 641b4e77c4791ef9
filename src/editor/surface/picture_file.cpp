// Picture files by the calls of the core: they take paths that are no Unicode, and tell times
// exactly.
#include "surface/picture_file.h"

#include "files/host_files.h"

#include <cerrno>

namespace tarvel {

namespace {

constexpr std::int64_t largestFile = std::int64_t{256} << 20;

bool isBuiltIn(const QByteArray& file) {
    return file.startsWith(":/");
}

std::filesystem::path resolved(const QByteArray& file) {
    return hostPath({file.constData(), static_cast<std::size_t>(file.size())});
}

FileStamp stampOf(const std::filesystem::path& path) {
    const auto status = statusOf(path);
    if (!status) {
        return {};
    }
    return {.there = true,
            .device = status->identity.volume,
            .number = status->identity.number,
            .size = status->size,
            .written = status->written,
            .changed = status->changed};
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
    const auto status = file.isEmpty() ? std::nullopt : statusOf(seen.path);
    if (!status) {
        const bool missing = file.isEmpty() || errno == ENOENT || errno == ENOTDIR;
        return missing ? notFound : notReadable;
    }
    // Only regular files: opening a pipe would wait for its writer.
    if (status->kind != FileKind::regular) {
        return notReadable;
    }
    if (status->size > largestFile) {
        return QStringLiteral("too large");
    }
    // Not waiting for a pipe that takes the file's place just now.
    const int number = openFile(seen.path, Opening::read).release();
    const bool opened =
        number >= 0 && into.open(number, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    return opened ? QString() : notReadable;
}

} // namespace tarvel
