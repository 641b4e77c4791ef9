// Loaded before a program, lets one of its calls to the system fail, or something happen to its
// files just before the call.
//
// TARVEL_FAULT="KIND NUMBER HOW [PATH]": the call of that kind and number (from 1) fails with errno
// HOW, does only one byte ("short"), or is made after PATH was made shorter ("shrink"), longer
// ("grow") or was deleted ("vanish"; a folder with all that it holds).
// TARVEL_FAULT_COUNTS=FILE: at the end, how many calls of each kind there were.
#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Kind {
    const char* name;
    int calls;
};
std::array<Kind, 15> kinds = {{{"open", 0},
                               {"read", 0},
                               {"write", 0},
                               {"fsync", 0},
                               {"close", 0},
                               {"rename", 0},
                               {"mkdir", 0},
                               {"unlink", 0},
                               {"fchmod", 0},
                               {"flock", 0},
                               {"ftruncate", 0},
                               {"lseek", 0},
                               {"stat", 0},
                               {"opendir", 0},
                               {"copy_file_range", 0}}};

struct Fault {
    char kind[32] = ""; // NOLINT
    int number = 0;
    char how[32] = "";    // NOLINT
    char path[4096] = ""; // NOLINT
    bool busy = false;    // what the fault does itself is not counted
};

Fault& fault() {
    static Fault fault = [] {
        Fault read;
        if (const char* text = std::getenv("TARVEL_FAULT")) {
            std::sscanf(text, "%31s %d %31s %4095[^\n]", read.kind, &read.number, read.how,
                        read.path);
        }
        return read;
    }();
    return fault;
}

void act(const Fault& what) {
    if (std::strcmp(what.how, "shrink") == 0) {
        static_cast<void>(::truncate(what.path, 1000));
    } else if (std::strcmp(what.how, "grow") == 0) {
        std::FILE* file = std::fopen(what.path, "ab");
        std::fputs("and more", file);
        std::fclose(file);
    } else if (std::strcmp(what.how, "vanish") == 0) {
        std::error_code ignored;
        std::filesystem::remove_all(what.path, ignored);
    }
}

enum class Outcome { real, failed, oneByte };

// What happens to this call; errno is set where it fails.
Outcome outcome(const char* kind) {
    Fault& what = fault();
    if (what.busy) {
        return Outcome::real;
    }
    int number = 0;
    for (Kind& each : kinds) {
        if (std::strcmp(each.name, kind) == 0) {
            number = ++each.calls;
        }
    }
    if (number != what.number || std::strcmp(what.kind, kind) != 0) {
        return Outcome::real;
    }
    if (std::strcmp(what.how, "short") == 0) {
        return Outcome::oneByte;
    }
    if (const int error = std::atoi(what.how); error != 0) {
        errno = error;
        return Outcome::failed;
    }
    what.busy = true;
    act(what);
    what.busy = false;
    return Outcome::real;
}

struct Counts {
    ~Counts() {
        if (const char* name = std::getenv("TARVEL_FAULT_COUNTS")) {
            fault().busy = true;
            std::FILE* file = std::fopen(name, "w");
            for (const Kind& kind : kinds) {
                std::fprintf(file, "%s %d\n", kind.name, kind.calls);
            }
            std::fclose(file);
        }
    }
} counts; // NOLINT: its end is the program's

template <class Call> Call* realCall(const char* name) {
    return reinterpret_cast<Call*>(::dlsym(RTLD_NEXT, name)); // NOLINT
}

bool isStandard(int descriptor) {
    return descriptor >= 0 && descriptor <= 2;
}

mode_t modeOf(int flags, va_list arguments) {
    return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

// NOLINTBEGIN: the system's own names and forms
#define MODE_OF(flags)                                                                             \
    va_list arguments;                                                                             \
    va_start(arguments, flags);                                                                    \
    const mode_t mode = modeOf(flags, arguments);                                                  \
    va_end(arguments)

#define OPEN_CALL(name)                                                                            \
    int name(const char* path, int flags, ...) {                                                   \
        MODE_OF(flags);                                                                            \
        return outcome("open") == Outcome::failed                                                  \
                   ? -1                                                                            \
                   : realCall<int(const char*, int, ...)>(#name)(path, flags, mode);               \
    }
#define OPENAT_CALL(name)                                                                          \
    int name(int at, const char* path, int flags, ...) {                                           \
        MODE_OF(flags);                                                                            \
        return outcome("open") == Outcome::failed                                                  \
                   ? -1                                                                            \
                   : realCall<int(int, const char*, int, ...)>(#name)(at, path, flags, mode);      \
    }
#define STAT_CALL(name, type)                                                                      \
    int name(const char* path, struct type* result) {                                              \
        return outcome("stat") == Outcome::failed                                                  \
                   ? -1                                                                            \
                   : realCall<int(const char*, struct type*)>(#name)(path, result);                \
    }
#define FSTAT_CALL(name, type)                                                                     \
    int name(int file, struct type* result) {                                                      \
        return outcome("stat") == Outcome::failed                                                  \
                   ? -1                                                                            \
                   : realCall<int(int, struct type*)>(#name)(file, result);                        \
    }
#define FSTATAT_CALL(name, type)                                                                   \
    int name(int at, const char* path, struct type* result, int flags) {                           \
        return outcome("stat") == Outcome::failed                                                  \
                   ? -1                                                                            \
                   : realCall<int(int, const char*, struct type*, int)>(#name)(at, path, result,   \
                                                                               flags);             \
    }
#define SYNC_CALL(name)                                                                            \
    int name(int file) {                                                                           \
        return outcome("fsync") == Outcome::failed ? -1 : realCall<int(int)>(#name)(file);         \
    }

extern "C" {

OPEN_CALL(open)
OPEN_CALL(open64)
OPENAT_CALL(openat)
OPENAT_CALL(openat64)
STAT_CALL(stat, stat)
STAT_CALL(stat64, stat64)
STAT_CALL(lstat, stat)
STAT_CALL(lstat64, stat64)
FSTAT_CALL(fstat, stat)
FSTAT_CALL(fstat64, stat64)
FSTATAT_CALL(fstatat, stat)
FSTATAT_CALL(fstatat64, stat64)
SYNC_CALL(fsync)
SYNC_CALL(fdatasync)

ssize_t read(int file, void* data, size_t size) {
    const auto real = realCall<ssize_t(int, void*, size_t)>("read");
    const Outcome what = isStandard(file) ? Outcome::real : outcome("read");
    return what == Outcome::failed ? -1 : real(file, data, what == Outcome::oneByte ? 1 : size);
}

ssize_t write(int file, const void* data, size_t size) {
    const auto real = realCall<ssize_t(int, const void*, size_t)>("write");
    const Outcome what = isStandard(file) ? Outcome::real : outcome("write");
    return what == Outcome::failed ? -1 : real(file, data, what == Outcome::oneByte ? 1 : size);
}

ssize_t copy_file_range(int from, off64_t* fromAt, int to, off64_t* toAt, size_t size,
                        unsigned flags) {
    const auto real =
        realCall<ssize_t(int, off64_t*, int, off64_t*, size_t, unsigned)>("copy_file_range");
    const Outcome what = outcome("copy_file_range");
    return what == Outcome::failed
               ? -1
               : real(from, fromAt, to, toAt, what == Outcome::oneByte ? 1 : size, flags);
}

// The system has closed the file when it says that something was wrong with it.
int close(int file) {
    const Outcome what = isStandard(file) ? Outcome::real : outcome("close");
    const int error = errno;
    const int result = realCall<int(int)>("close")(file);
    if (what == Outcome::failed) {
        errno = error;
        return -1;
    }
    return result;
}

int rename(const char* from, const char* to) {
    return outcome("rename") == Outcome::failed
               ? -1
               : realCall<int(const char*, const char*)>("rename")(from, to);
}

int renameat(int fromAt, const char* from, int toAt, const char* to) {
    return outcome("rename") == Outcome::failed ? -1
                                                : realCall<int(int, const char*, int, const char*)>(
                                                      "renameat")(fromAt, from, toAt, to);
}

int mkdir(const char* path, mode_t mode) {
    return outcome("mkdir") == Outcome::failed
               ? -1
               : realCall<int(const char*, mode_t)>("mkdir")(path, mode);
}

int unlink(const char* path) {
    return outcome("unlink") == Outcome::failed ? -1 : realCall<int(const char*)>("unlink")(path);
}

int unlinkat(int at, const char* path, int flags) {
    return outcome("unlink") == Outcome::failed
               ? -1
               : realCall<int(int, const char*, int)>("unlinkat")(at, path, flags);
}

int remove(const char* path) {
    return outcome("unlink") == Outcome::failed ? -1 : realCall<int(const char*)>("remove")(path);
}

int fchmod(int file, mode_t mode) {
    return outcome("fchmod") == Outcome::failed ? -1
                                                : realCall<int(int, mode_t)>("fchmod")(file, mode);
}

int flock(int file, int operation) {
    return outcome("flock") == Outcome::failed ? -1
                                               : realCall<int(int, int)>("flock")(file, operation);
}

int ftruncate(int file, off_t size) {
    return outcome("ftruncate") == Outcome::failed
               ? -1
               : realCall<int(int, off_t)>("ftruncate")(file, size);
}

off_t lseek(int file, off_t offset, int whence) {
    return outcome("lseek") == Outcome::failed
               ? -1
               : realCall<off_t(int, off_t, int)>("lseek")(file, offset, whence);
}

DIR* opendir(const char* path) {
    return outcome("opendir") == Outcome::failed ? nullptr
                                                 : realCall<DIR*(const char*)>("opendir")(path);
}

} // extern "C"
// NOLINTEND
