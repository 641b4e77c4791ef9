// Files while signals break into every call of the system.
#include "files/folder_hold.h"
#include "files/host_files.h"
#include "files/open_file.h"
#include "support/system_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

bool isInterrupted(const char* call) {
    auto& calls = tarvel::systemCalls;
    if (!calls.interrupted || ++calls.signalsTaken[call] % 2 == 0) {
        return false;
    }
    errno = EINTR;
    return true;
}

} // namespace

// These take the place of the system's in the whole test program.
extern "C" {

int fsync(int descriptor) {
    auto& calls = tarvel::systemCalls;
    if (isInterrupted("fsync")) {
        return -1;
    }
    struct stat status {};
    if (::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)) {
        ++calls.folderFlushes;
    } else if (++calls.flushes == calls.failFlush) {
        errno = ENOSPC;
        return -1;
    }
    return ::fdatasync(descriptor);
}

int openat(int at, const char* path, int flags, ...) { // NOLINT: variadic by POSIX
    ++tarvel::systemCalls.opens;
    if (isInterrupted("openat")) {
        return -1;
    }
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return static_cast<int>(::syscall(SYS_openat, at, path, flags, mode));
}

ssize_t read(int descriptor, void* data, size_t size) {
    return isInterrupted("read") ? -1 : ::syscall(SYS_read, descriptor, data, size);
}

ssize_t write(int descriptor, const void* data, size_t size) {
    ++tarvel::systemCalls.writes;
    return isInterrupted("write") ? -1 : ::syscall(SYS_write, descriptor, data, size);
}

// Its name is that of a type as well.
int lockCall(int descriptor, int operation) noexcept __asm__("flock");
int lockCall(int descriptor, int operation) noexcept {
    return isInterrupted("flock") ? -1
                                  : static_cast<int>(::syscall(SYS_flock, descriptor, operation));
}

int ftruncate(int descriptor, off_t size) noexcept {
    ++tarvel::systemCalls.cuts;
    return isInterrupted("ftruncate")
               ? -1
               : static_cast<int>(::syscall(SYS_ftruncate, descriptor, size));
}

int rename(const char* from, const char* to) noexcept {
    return isInterrupted("rename")
               ? -1
               : static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

} // extern "C"

namespace tarvel {

namespace {

// Signals break in as long as this lives.
class Signals {
  public:
    Signals() {
        systemCalls = {};
        systemCalls.interrupted = true;
    }
    ~Signals() { systemCalls = {}; }
    Signals(const Signals&) = delete;
    Signals& operator=(const Signals&) = delete;

    [[nodiscard]] static int taken(const std::string& call) {
        return systemCalls.signalsTaken[call];
    }
};

} // namespace

TEST(InterruptedCalls, ReadingAndWritingGoOn) {
    const TemporaryFolder folder;
    folder.file("a", "older");
    std::string content;
    {
        const Signals signals;
        writeFile(folder / "a", "newer");
        content = readFile(folder / "a");
        for (const char* call : {"openat", "read", "write", "fsync", "flock", "rename"}) {
            EXPECT_GT(Signals::taken(call), 1) << call;
        }
    }
    EXPECT_EQ(content, "newer");
}

TEST(InterruptedCalls, CopyingGoesOn) {
    const TemporaryFolder folder;
    const std::string content(600'000, 'c');
    folder.file("from", content);
    {
        const Signals signals;
        EXPECT_TRUE(copyFile(folder / "from", folder / "to"));
    }
    EXPECT_EQ(readFile(folder / "to"), content);
}

TEST(InterruptedCalls, TheTemporaryFileOfModifiersIsHeldAllTheSame) {
    const TemporaryFolder folder;
    folder.file("temp.xml", "stale");
    {
        const Signals signals;
        EXPECT_EQ(throughTempFile(folder.path(), "<a/>"), "<a/>");
        EXPECT_GT(Signals::taken("flock"), 1);
        EXPECT_GT(Signals::taken("ftruncate"), 1);
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "temp.xml"));
}

TEST(InterruptedCalls, AFolderIsHeldAllTheSame) {
    const TemporaryFolder folder;
    const Signals signals;
    const FolderHold first(folder.path());
    EXPECT_FALSE(first.isTaken());
    EXPECT_TRUE(FolderHold(folder.path()).isTaken());
}

} // namespace tarvel
