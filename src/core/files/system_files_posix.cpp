// The calls of POSIX systems. Paths are bytes there.
#include "files/path_text.h"
#include "files/system_files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

// The result of a call that reports failures as -1 and errno, made again when a signal broke in.
template <class Call> auto uninterrupted(Call&& call) {
    for (;;) {
        const auto result = call();
        if (result != -1 || errno != EINTR) {
            return result;
        }
    }
}

int numberOf(const Descriptor& file) {
    return static_cast<int>(file.number());
}

Descriptor openAt(int at, const char* path, int flags, mode_t mode = 0) {
    return Descriptor(uninterrupted(
        [=] { return ::openat(at, path, flags | O_CLOEXEC, mode); })); // NOLINT: variadic by POSIX
}

FileKind kindOf(mode_t mode) {
    return S_ISREG(mode)   ? FileKind::regular
           : S_ISDIR(mode) ? FileKind::folder
           : S_ISLNK(mode) ? FileKind::link
                           : FileKind::other;
}

FileKind kindOf(fs::file_type type) {
    return type == fs::file_type::regular     ? FileKind::regular
           : type == fs::file_type::directory ? FileKind::folder
           : type == fs::file_type::symlink   ? FileKind::link
                                              : FileKind::other;
}

std::int64_t nanoseconds(const timespec& time) {
    constexpr std::int64_t second = 1'000'000'000;
    return time.tv_sec * second + time.tv_nsec;
}

template <class Call> std::optional<FileStatus> statusBy(Call&& call) {
    struct stat status {};
    if (call(&status) != 0) {
        return std::nullopt;
    }
    return FileStatus{.kind = kindOf(status.st_mode),
                      .identity = {status.st_dev, status.st_ino},
                      .links = status.st_nlink,
                      .size = status.st_size,
                      .written = nanoseconds(status.st_mtim),
                      .changed = nanoseconds(status.st_ctim)};
}

} // namespace

std::string utf8Of(const fs::path& path) {
    return path.native();
}

std::string slashedUtf8Of(const fs::path& path) {
    return path.native();
}

fs::path pathOf(std::string_view utf8) {
    return utf8;
}

bool Descriptor::reset() {
    const auto number = std::exchange(number_, none);
    // A close that a signal broke into has closed all the same.
    return number < 0 || ::close(static_cast<int>(number)) == 0 || errno == EINTR;
}

int Descriptor::release() {
    return static_cast<int>(std::exchange(number_, none));
}

Descriptor openFile(const fs::path& path, Opening how) {
    constexpr mode_t all = 0666;
    constexpr mode_t user = 0600;
    const auto open = [&](int flags, mode_t mode = 0) {
        return openAt(AT_FDCWD, path.c_str(), flags, mode);
    };
    switch (how) {
    case Opening::read: // without O_NONBLOCK a pipe in the place of a picture waits for a writer
        return open(O_RDONLY | O_NONBLOCK);
    case Opening::readItself:
        return open(O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    case Opening::write:
        return open(O_WRONLY);
    case Opening::makeNew:
        return open(O_WRONLY | O_CREAT | O_EXCL, all);
    case Opening::own:
        return open(O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, user);
    case Opening::folder:
        return open(O_RDONLY | O_DIRECTORY);
    case Opening::look:
        break;
    }
    return open(O_PATH);
}

std::ptrdiff_t readSome(const Descriptor& file, char* data, std::size_t size) {
    return uninterrupted([&] { return ::read(numberOf(file), data, size); });
}

std::ptrdiff_t readSomeAt(const Descriptor& file, std::uint64_t place, char* data,
                          std::size_t size) {
    return uninterrupted(
        [&] { return ::pread(numberOf(file), data, size, static_cast<off_t>(place)); });
}

std::ptrdiff_t writeSome(const Descriptor& file, const char* data, std::size_t size) {
    return uninterrupted([&] { return ::write(numberOf(file), data, size); });
}

std::ptrdiff_t writeSomeAt(const Descriptor& file, std::uint64_t place, const char* data,
                           std::size_t size) {
    return uninterrupted(
        [&] { return ::pwrite(numberOf(file), data, size, static_cast<off_t>(place)); });
}

bool moveToBeginning(const Descriptor& file) {
    return ::lseek(numberOf(file), 0, SEEK_SET) == 0;
}

bool cutToNothing(const Descriptor& file) {
    return uninterrupted([&] { return ::ftruncate(numberOf(file), 0); }) == 0;
}

// Some file systems have nothing to flush to and say so.
bool flushToDisk(const Descriptor& file) {
    return uninterrupted([&] { return ::fsync(numberOf(file)); }) == 0 || errno == EINVAL ||
           errno == ENOTSUP;
}

std::optional<FileStatus> statusOf(const Descriptor& file) {
    return statusBy([&](struct stat* status) { return ::fstat(numberOf(file), status); });
}

std::optional<FileStatus> statusOf(const fs::path& path) {
    return statusBy([&](struct stat* status) { return ::stat(path.c_str(), status); });
}

std::optional<FileStatus> statusOfItself(const fs::path& path) {
    return statusBy([&](struct stat* status) { return ::lstat(path.c_str(), status); });
}

bool tryLock(const Descriptor& file) {
    return uninterrupted([&] { return ::flock(numberOf(file), LOCK_EX | LOCK_NB); }) == 0;
}

// The lock is on the folder itself and leaves no file behind.
Descriptor tryHoldFolder(const fs::path& folder) {
    Descriptor opened = openFile(folder, Opening::folder);
    if (opened.isOpen() && !tryLock(opened)) {
        const int reason = errno;
        opened.reset();
        errno = reason;
    }
    return opened;
}

bool renameOver(const fs::path& from, const fs::path& to) {
    return uninterrupted([&] { return ::rename(from.c_str(), to.c_str()); }) == 0;
}

bool removeName(const fs::path& path) {
    return ::unlink(path.c_str()) == 0;
}

bool makeFolder(const fs::path& path) {
    constexpr mode_t all = 0777;
    return ::mkdir(path.c_str(), all) == 0;
}

bool makeFolders(const fs::path& path) {
    std::error_code error;
    fs::create_directories(path, error);
    errno = error.value();
    return !error;
}

void keepPermissions(const fs::path& older, const Descriptor& file) {
    struct stat status {};
    if (::lstat(older.c_str(), &status) == 0 && S_ISREG(status.st_mode)) {
        constexpr mode_t permissionBits = 0777;
        (void)::fchmod(numberOf(file), status.st_mode & permissionBits); // not known everywhere
    }
}

void eachEntryOf(const fs::path& folder, const std::function<bool(const FolderEntry&)>& take) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (!take({entry->path(), kindOf(entry->symlink_status(ignored).type())})) {
            return;
        }
    }
}

DiskPlace::DiskPlace(const std::string& path)
    : open_(openAt(AT_FDCWD, path.c_str(), O_PATH)) {}

bool DiskPlace::isThere() const {
    return open_.isOpen();
}

DiskPlace DiskPlace::part(std::string& name) const { // NOLINT: not const on every system
    DiskPlace next;
    next.open_ = openAt(numberOf(open_), name.c_str(), O_PATH);
    return next;
}

std::optional<FileIdentity> DiskPlace::identity() const {
    const auto status = open_.isOpen() ? statusOf(open_) : std::nullopt;
    return status ? std::optional(status->identity) : std::nullopt;
}

void DiskPlace::eachName(const std::function<bool(std::string_view)>& take) const {
    const int again = uninterrupted(
        [&] { return ::openat(numberOf(open_), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    const auto close = [](DIR* open) { ::closedir(open); };
    const std::unique_ptr<DIR, decltype(close)> entries(again < 0 ? nullptr : ::fdopendir(again),
                                                        close);
    while (const dirent* entry = entries ? ::readdir(entries.get()) : nullptr) {
        const std::string_view name = &entry->d_name[0];
        if (name != "." && name != ".." && take(name)) {
            return;
        }
    }
}

bool isThereAsSpelt(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

std::size_t rootLength(std::string_view path) {
    return path.starts_with('/') ? 1 : 0;
}

std::size_t longestPath() {
    return PATH_MAX - 1;
}

std::optional<std::string> realPath(const fs::path& path) {
    const Descriptor file = openFile(path, Opening::look);
    if (!file.isOpen()) {
        return std::nullopt;
    }
    const std::string link = "/proc/self/fd/" + std::to_string(file.number());
    std::array<char, PATH_MAX> text{};
    const auto size = ::readlink(link.c_str(), text.data(), text.size());
    if (size > 0 && static_cast<std::size_t>(size) < text.size() && text.front() == '/') {
        return std::string(text.data(), static_cast<std::size_t>(size));
    }
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    errno = error.value();
    return error ? std::nullopt : std::optional(real.native());
}

fs::path executableFolder() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).parent_path();
}

bool canWriteInto(const fs::path& folder) {
    return ::access(folder.c_str(), W_OK) == 0;
}

fs::path userDataFolder() {
    const char* data = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    return data != nullptr && *data != '\0' ? fs::path(data)
           : home != nullptr                ? fs::path(home) / ".local/share"
                                            : fs::temp_directory_path();
}

long processNumber() {
    return ::getpid();
}

std::string errorWords(int errorNumber) {
    return std::generic_category().message(errorNumber);
}

} // namespace tarvel
