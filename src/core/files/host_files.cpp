// Files of the host: what is written is flushed, locked and renamed.
#include "files/host_files.h"

#include "files/open_file.h"
#include "files/path_text.h"
#include "files/replacement.h"

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

// A file for reading.
class SourceFile : public OpenFile {
  public:
    explicit SourceFile(const fs::path& path)
        : OpenFile(path, Opening::read) {
        const FileKind kind = status().kind;
        if (kind != FileKind::regular) {
            throw FileError(kind == FileKind::folder ? EISDIR : EINVAL, path);
        }
    }
};

// True when the file was changed since `before`.
bool changedSince(const FileStatus& before, const FileStatus& now) {
    return now.size != before.size || now.written != before.written;
}

// Copies the bytes of an open file; false when cancelled.
bool copyBytes(const OpenFile& source, const OpenFile& target, std::uintmax_t total,
               const CopyStep& progress) {
    std::vector<char> block(std::size_t{256} * 1024);
    // Flushed bit by bit: all at once at the end would hold up the progress for seconds.
    constexpr std::uintmax_t flushAfter = std::uintmax_t{8} << 20;
    std::uintmax_t done = 0;
    std::uintmax_t flushed = 0;
    while (const std::size_t got = source.read(block.data(), block.size())) {
        target.write(block.data(), got);
        done += got;
        if (done - flushed >= flushAfter) {
            target.flush();
            flushed = done;
        }
        if (progress && !progress(done, total)) {
            return false;
        }
    }
    return true;
}

// What has been locked may have been deleted by its last holder.
bool isTheFileAt(const FileStatus& file, const fs::path& path) {
    const auto now = statusOf(path);
    return now && now->identity == file.identity;
}

std::string saveReadDelete(const OpenFile& file, std::int64_t staleSize, const fs::path& path,
                           std::string_view text) {
    // Cutting an empty file as well would have some file systems bring it to the disk.
    if (staleSize > 0 && !cutToNothing(file.descriptor())) {
        file.fail();
    }
    file.write(text.data(), text.size());
    if (!moveToBeginning(file.descriptor())) {
        file.fail();
    }
    std::string result = file.readAll();
    if (!removeName(path)) {
        throw FileError(errno, path);
    }
    return result;
}

} // namespace

FileError::FileError(int errorNumber, const fs::path& file)
    : std::runtime_error(errorWords(errorNumber) + ": " + utf8Of(file))
    , errorNumber_(errorNumber) {}

FileError::FileError(const std::string& problem, const fs::path& file)
    : std::runtime_error(problem + ": " + utf8Of(file)) {}

std::string readFile(const fs::path& path) {
    return SourceFile(path).readAll();
}

void writeFile(const fs::path& path, std::string_view bytes) {
    Replacement replacement(path);
    replacement.file().write(bytes.data(), bytes.size());
    replacement.takePlace();
}

bool copyFile(const fs::path& from, const fs::path& to, const CopyStep& progress) {
    if (isSameFile(from, to)) {
        return true;
    }
    const SourceFile source(from);
    const FileStatus before = source.status();
    Replacement replacement(to);
    if (!copyBytes(source, replacement.file(),
                   static_cast<std::uintmax_t>(std::max<std::int64_t>(before.size, 0)), progress)) {
        return false;
    }
    if (changedSince(before, source.status())) {
        throw FileError("The file changed while it was copied", from);
    }
    replacement.takePlace();
    return true;
}

void createFolder(const fs::path& path) {
    if (makeFolder(path)) {
        return;
    }
    const int reason = errno;
    const auto there = reason == EEXIST ? statusOf(path) : std::nullopt;
    if (!there) {
        throw FileError(reason != EEXIST ? reason : errno, path);
    }
    if (there->kind != FileKind::folder) {
        throw FileError(ENOTDIR, path);
    }
}

void createFolders(const fs::path& path) {
    if (!makeFolders(path)) {
        throw FileError(errno, path);
    }
}

void removeFile(const fs::path& path) {
    if (!removeName(path) && errno != ENOENT) {
        throw FileError(errno, path);
    }
}

void moveFile(const fs::path& from, const fs::path& to) {
    if (!renameOver(from, to)) {
        throw FileError(errno, from);
    }
}

std::string throughTempFile(const fs::path& folder, std::string_view text) {
    const fs::path path = folder / "temp.xml";
    constexpr int tries = 10;
    for (int i = 0; i < tries; ++i) {
        const OpenFile file(path, Opening::own);
        const FileStatus status = file.status();
        if (status.kind != FileKind::regular) {
            throw FileError(EINVAL, path);
        }
        if (!tryLock(file.descriptor())) {
            break;
        }
        if (isTheFileAt(status, path)) {
            return saveReadDelete(file, status.size, path, text);
        }
    }
    return std::string(text); // as it would be read back: nobody is to wait for another program
}

fs::path programFolder() {
    fs::path own = executableFolder();
    if (!own.empty() && canWriteInto(own)) {
        return own;
    }
    fs::path folder = userDataFolder() / "tarvel";
    makeFolders(folder); // what it is needed for tells of a failure
    return folder;
}

} // namespace tarvel
