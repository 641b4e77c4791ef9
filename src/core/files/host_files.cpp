// Files of the host, by POSIX calls where a write must be flushed, locked or renamed.
#include "files/host_files.h"

#include "files/open_file.h"
#include "files/replacement.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

// A file for reading. Without O_NONBLOCK a pipe in the place of a picture would wait for a writer.
class SourceFile : public OpenFile {
  public:
    explicit SourceFile(const fs::path& path)
        : OpenFile(path, O_RDONLY | O_NONBLOCK) {
        const auto mode = status().st_mode;
        if (!S_ISREG(mode)) {
            throw FileError(S_ISDIR(mode) ? EISDIR : EINVAL, path);
        }
    }
};

// True when the file was changed since `before`.
bool changedSince(const struct stat& before, const struct stat& now) {
    return now.st_size != before.st_size || now.st_mtim.tv_sec != before.st_mtim.tv_sec ||
           now.st_mtim.tv_nsec != before.st_mtim.tv_nsec;
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
bool isTheFileAt(const struct stat& file, const fs::path& path) {
    struct stat now {};
    return ::stat(path.c_str(), &now) == 0 && now.st_ino == file.st_ino &&
           now.st_dev == file.st_dev;
}

std::string saveReadDelete(const OpenFile& file, off_t staleSize, const fs::path& path,
                           std::string_view text) {
    // Cutting an empty file as well would have some file systems bring it to the disk.
    if (staleSize > 0 && uninterrupted([&] { return ::ftruncate(file.number(), 0); }) != 0) {
        file.fail();
    }
    file.write(text.data(), text.size());
    if (::lseek(file.number(), 0, SEEK_SET) != 0) {
        file.fail();
    }
    std::string result = file.readAll();
    if (::unlink(path.c_str()) != 0) {
        throw FileError(errno, path);
    }
    return result;
}

} // namespace

FileError::FileError(int errorNumber, const fs::path& file)
    : std::runtime_error(std::generic_category().message(errorNumber) + ": " + file.string())
    , errorNumber_(errorNumber) {}

FileError::FileError(const std::string& problem, const fs::path& file)
    : std::runtime_error(problem + ": " + file.string()) {}

std::string readFile(const fs::path& path) {
    return SourceFile(path).readAll();
}

void writeFile(const fs::path& path, std::string_view bytes) {
    Replacement replacement(path);
    replacement.file().write(bytes.data(), bytes.size());
    replacement.takePlace();
}

bool copyFile(const fs::path& from, const fs::path& to, const CopyStep& progress) {
    std::error_code error;
    if (fs::equivalent(from, to, error) && !error) {
        return true;
    }
    const SourceFile source(from);
    const struct stat before = source.status();
    Replacement replacement(to);
    if (!copyBytes(source, replacement.file(),
                   static_cast<std::uintmax_t>(std::max<off_t>(before.st_size, 0)), progress)) {
        return false;
    }
    if (changedSince(before, source.status())) {
        throw FileError("The file changed while it was copied", from);
    }
    replacement.takePlace();
    return true;
}

void createFolder(const fs::path& path) {
    if (::mkdir(path.c_str(), 0777) == 0) {
        return;
    }
    const int reason = errno;
    struct stat there {};
    if (reason != EEXIST || ::stat(path.c_str(), &there) != 0) {
        throw FileError(reason != EEXIST ? reason : errno, path);
    }
    if (!S_ISDIR(there.st_mode)) {
        throw FileError(ENOTDIR, path);
    }
}

void createFolders(const fs::path& path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (error) {
        throw FileError(error.value(), path);
    }
}

void removeFile(const fs::path& path) {
    if (::unlink(path.c_str()) != 0 && errno != ENOENT) {
        throw FileError(errno, path);
    }
}

void moveFile(const fs::path& from, const fs::path& to) {
    if (::rename(from.c_str(), to.c_str()) != 0) {
        throw FileError(errno, from);
    }
}

std::string throughTempFile(const fs::path& folder, std::string_view text) {
    const fs::path path = folder / "temp.xml";
    constexpr int tries = 10;
    for (int i = 0; i < tries; ++i) {
        const OpenFile file(path, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, 0600);
        const struct stat status = file.status();
        if (!S_ISREG(status.st_mode)) {
            throw FileError(EINVAL, path);
        }
        if (!tryLock(file.descriptor())) {
            break;
        }
        if (isTheFileAt(status, path)) {
            return saveReadDelete(file, status.st_size, path, text);
        }
    }
    return std::string(text); // as it would be read back: nobody is to wait for another program
}

fs::path programFolder() {
    std::error_code error;
    fs::path own = fs::read_symlink("/proc/self/exe", error).parent_path();
    if (!error && ::access(own.c_str(), W_OK) == 0) {
        return own;
    }
    const char* data = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    fs::path folder = data != nullptr && *data != '\0' ? fs::path(data)
                      : home != nullptr                ? fs::path(home) / ".local/share"
                                                       : fs::temp_directory_path();
    folder /= "tarvel";
    fs::create_directories(folder, error);
    return folder;
}

} // namespace tarvel
