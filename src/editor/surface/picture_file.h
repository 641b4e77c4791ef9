// The file of a picture: opening it, and telling later whether it is still the same.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <cstdint>
#include <filesystem>

namespace tarvel {

/// How the file system described a file. Where two are equal, so is the file's content.
struct FileStamp {
    bool there = false;
    std::uint64_t device = 0;
    std::uint64_t number = 0; // of the file on its device
    std::int64_t size = 0;
    std::int64_t written = 0; // nanoseconds
    std::int64_t changed = 0; // nanoseconds; of its rights and names as well

    bool operator==(const FileStamp&) const = default;
};

/// A picture's file as it was when it was looked for.
struct SeenFile {
    std::filesystem::path path; // empty for a picture of the program
    FileStamp stamp;
    FileStamp folder; // of a missing file: the innermost of its folders that is there
};

/// Looks for a file by its document path. A text that begins with ":/" names a picture built into
/// the program.
[[nodiscard]] SeenFile lookFor(const QByteArray& file);

/// Whether the file that was seen changed since then, went, or appeared. Brings up to date what was
/// seen of a file that is still missing.
[[nodiscard]] bool hasChanged(const QByteArray& file, SeenFile& seen);

/// Opens the file that was seen for reading; a few words when that cannot be done.
[[nodiscard]] QString openPicture(const QByteArray& file, const SeenFile& seen, QFile& into);

} // namespace tarvel
