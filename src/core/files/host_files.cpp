// Files of the host, by POSIX calls where a write must be flushed, locked or renamed.
#include "files/host_files.h"

#include "text/text_case.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

// A file descriptor that closes itself. `shownAs` is the file that failures name.
class OpenFile {
  public:
    OpenFile(const fs::path& path, int flags, mode_t mode, fs::path shownAs)
        : path_(std::move(shownAs))
        , descriptor_(::open(path.c_str(), flags | O_CLOEXEC, mode)) { // NOLINT: variadic by POSIX
        if (descriptor_ < 0) {
            fail();
        }
    }
    OpenFile(const fs::path& path, int flags, mode_t mode = 0666)
        : OpenFile(path, flags, mode, path) {}
    ~OpenFile() {
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] int descriptor() const { return descriptor_; }
    [[noreturn]] void fail() const { throw FileError(errno, path_); }

    void write(const char* data, std::size_t size) const {
        while (size > 0) {
            const auto written = ::write(descriptor_, data, size);
            if (written < 0 && errno != EINTR) {
                fail();
            }
            const auto step = static_cast<std::size_t>(std::max<ssize_t>(written, 0));
            data += step;
            size -= step;
        }
    }
    // 0 at the end of the file.
    std::size_t read(char* data, std::size_t size) const {
        for (;;) {
            const auto got = ::read(descriptor_, data, size);
            if (got >= 0) {
                return static_cast<std::size_t>(got);
            }
            if (errno != EINTR) {
                fail();
            }
        }
    }
    [[nodiscard]] struct stat status() const {
        struct stat result {};
        if (::fstat(descriptor_, &result) != 0) {
            fail();
        }
        return result;
    }
    void flush() const {
        // Some file systems have nothing to flush to and say so.
        if (::fsync(descriptor_) != 0 && errno != EINVAL && errno != ENOTSUP) {
            fail();
        }
    }
    void close() {
        const int descriptor = std::exchange(descriptor_, -1);
        if (::close(descriptor) != 0) {
            fail();
        }
    }

  private:
    fs::path path_;
    int descriptor_;
};

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

std::string readAll(const OpenFile& file) {
    std::string bytes;
    bytes.resize(static_cast<std::size_t>(std::max<off_t>(file.status().st_size, 0)) + 1);
    std::size_t size = 0;
    while (const std::size_t got = file.read(bytes.data() + size, bytes.size() - size)) {
        size += got;
        if (size == bytes.size()) {
            bytes.resize(2 * size);
        }
    }
    bytes.resize(size);
    return bytes;
}

// A file beside `target` that takes its place when it is whole, and vanishes otherwise.
class Replacement {
  public:
    explicit Replacement(fs::path target)
        : target_(std::move(target))
        , file_(openBeside(target_, beside_)) {}
    ~Replacement() {
        if (!beside_.empty()) {
            ::unlink(beside_.c_str());
        }
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    [[nodiscard]] const OpenFile& file() const { return file_; }

    void takePlace() {
        file_.flush();
        file_.close();
        if (::rename(beside_.c_str(), target_.c_str()) != 0) {
            throw FileError(errno, target_);
        }
        beside_.clear();
    }

  private:
    // A short name, which fits beside any other. A killed run can have left files of the same.
    static OpenFile openBeside(const fs::path& target, fs::path& beside) {
        static int count = 0;
        constexpr int tries = 10000;
        for (int i = 1;; ++i) {
            std::string name(".tarvel-");
            name.append(std::to_string(::getpid())).append("-").append(std::to_string(++count));
            beside = target.parent_path() / name;
            try {
                return {beside, O_WRONLY | O_CREAT | O_EXCL, 0666, target};
            } catch (const FileError& error) {
                if (error.errorNumber() != EEXIST || i == tries) {
                    throw;
                }
            }
        }
    }

    fs::path target_;
    fs::path beside_;
    OpenFile file_;
};

// The entry of a folder that is called `name` but for letter case; empty when there is none.
fs::path entryIgnoringCase(const fs::path& folder, const std::string& name) {
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error), end;
         !error && entry != end; entry.increment(error)) {
        if (equalsIgnoringCase(entry->path().filename().string(), name)) {
            return entry->path().filename();
        }
    }
    return {};
}

bool isThere(const fs::path& path) {
    struct stat result {};
    return ::stat(path.c_str(), &result) == 0;
}

bool isBelow(const fs::path& folder, const fs::path& path) {
    const auto relative = path.lexically_relative(folder);
    return !relative.empty() && *relative.begin() != "..";
}

// True when ".." parts lead above the start of a relative path.
bool climbsOut(const fs::path& path) {
    int depth = 0;
    for (const auto& part : path) {
        depth += part == ".." ? -1 : part == "." || part.empty() ? 0 : 1;
        if (depth < 0) {
            return true;
        }
    }
    return false;
}

// The locked temp.xml: another holder deletes it before it lets go, so what was locked may be gone.
bool lockedTheFileAt(const OpenFile& file, const fs::path& path) {
    if (::flock(file.descriptor(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) {
            file.fail();
        }
        return false;
    }
    struct stat now {};
    const struct stat held = file.status();
    return ::stat(path.c_str(), &now) == 0 && now.st_ino == held.st_ino &&
           now.st_dev == held.st_dev;
}

std::string saveReadDelete(const OpenFile& file, const fs::path& path, std::string_view text) {
    if (::ftruncate(file.descriptor(), 0) != 0) {
        file.fail();
    }
    file.write(text.data(), text.size());
    if (::lseek(file.descriptor(), 0, SEEK_SET) != 0) {
        file.fail();
    }
    std::string result = readAll(file);
    if (::unlink(path.c_str()) != 0) {
        throw FileError(errno, path);
    }
    return result;
}

} // namespace

FileError::FileError(int errorNumber, const fs::path& file)
    : std::runtime_error(std::generic_category().message(errorNumber) + ": " + file.string())
    , errorNumber_(errorNumber) {}

fs::path hostPath(std::string_view documentPath) {
    std::string spelt(documentPath);
    std::replace(spelt.begin(), spelt.end(), '\\', '/');
    if (spelt.find('\0') != std::string::npos || isThere(spelt)) {
        return spelt;
    }
    fs::path found;
    bool known = true; // everything up to here exists
    for (const auto& part : fs::path(spelt)) {
        fs::path next = found / part;
        if (known && !isThere(next)) {
            const fs::path other = entryIgnoringCase(found, part.string());
            known = !other.empty();
            next = known ? found / other : next;
        }
        found = std::move(next);
    }
    return found;
}

std::string documentPath(const fs::path& path) {
    std::error_code error;
    const fs::path full = fs::absolute(path, error);
    std::string text = error ? path.string() : full.string();
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

std::string folderProblem(const fs::path& folder) {
    if (folder.empty()) {
        return "No folder is named";
    }
    std::error_code error;
    const fs::path full = fs::absolute(folder, error);
    if (error) {
        return FileError(error.value(), folder).what();
    }
    if (full.native().find('\\') != std::string::npos) {
        return "The path of a skin's folder cannot hold a backslash: " + full.string();
    }
    return {};
}

bool FileExists(std::string_view path) {
    std::error_code error;
    const auto status = fs::status(hostPath(path), error);
    return !error && fs::exists(status) && !fs::is_directory(status);
}

bool leadsOutside(const fs::path& folder, std::string_view file) {
    std::string spelt(file);
    std::replace(spelt.begin(), spelt.end(), '\\', '/');
    const bool drive = spelt.size() >= 2 && spelt[1] == ':';
    if (drive || spelt.starts_with('/') || climbsOut(spelt)) {
        return true;
    }
    std::error_code error;
    const fs::path full = hostPath((folder / spelt).string());
    if (!isThere(full)) {
        return false;
    }
    const fs::path real = fs::canonical(full, error);
    const fs::path root = fs::canonical(folder, error);
    return error || !isBelow(root, real);
}

std::string readFile(const fs::path& path) {
    return readAll(SourceFile(path));
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
    const auto total = static_cast<std::uintmax_t>(std::max<off_t>(source.status().st_size, 0));
    Replacement replacement(to);
    std::vector<char> block(std::size_t{256} * 1024);
    // Flushed bit by bit: all at once at the end would hold up the progress for seconds.
    constexpr std::uintmax_t flushAfter = std::uintmax_t{8} << 20;
    std::uintmax_t done = 0;
    std::uintmax_t flushed = 0;
    while (const std::size_t got = source.read(block.data(), block.size())) {
        replacement.file().write(block.data(), got);
        done += got;
        if (done - flushed >= flushAfter) {
            replacement.file().flush();
            flushed = done;
        }
        if (progress && !progress(done, total)) {
            return false;
        }
    }
    replacement.takePlace();
    return true;
}

void createFolder(const fs::path& path) {
    if (::mkdir(path.c_str(), 0777) != 0 && errno != EEXIST) {
        throw FileError(errno, path);
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
    constexpr int tries = 2500; // of 2 ms
    for (int i = 0; i < tries; ++i) {
        const OpenFile file(path, O_RDWR | O_CREAT | O_NOFOLLOW, 0600);
        if (lockedTheFileAt(file, path)) {
            return saveReadDelete(file, path, text);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    throw FileError(EBUSY, path);
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
