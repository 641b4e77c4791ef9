// A file of the host that is open: calls that go on after a signal, and failures that name the
// file.
#pragma once

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>

namespace tarvel {

/// The result of a system call that reports failures as -1 and errno, made again when a signal
/// broke in.
template <class Call> auto uninterrupted(Call&& call) {
    for (;;) {
        const auto result = call();
        if (result != -1 || errno != EINTR) {
            return result;
        }
    }
}

/// A file descriptor that closes itself; it may be none.
class Descriptor {
  public:
    explicit Descriptor(int number = -1)
        : number_(number) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    /// Closes it; false when the system reports a failure.
    bool reset();

  private:
    int number_;
};

/// Opens a path below the folder `at` (AT_FDCWD: the working folder); not open when that fails,
/// with the reason in errno. Programs that are started do not inherit it.
[[nodiscard]] Descriptor openAt(int at, const char* path, int flags, mode_t mode = 0);

/// Takes an open file or folder for this descriptor alone, until it is closed. False when another
/// has it (errno is EWOULDBLOCK then), or when the file system knows no such thing.
[[nodiscard]] bool tryLock(const Descriptor& file);

/// An open file. Everything that fails throws FileError.
class OpenFile {
  public:
    /// `shownAs` is the file that failures name.
    OpenFile(const std::filesystem::path& path, int flags, mode_t mode,
             std::filesystem::path shownAs);
    OpenFile(const std::filesystem::path& path, int flags, mode_t mode = 0666);

    [[nodiscard]] int number() const { return descriptor_.number(); }
    [[nodiscard]] const Descriptor& descriptor() const { return descriptor_; }
    /// Throws for the failure that errno tells of.
    [[noreturn]] void fail() const;

    void write(const char* data, std::size_t size) const;
    /// Over what stands at a place, in bytes from the beginning; write() goes on where it was.
    void writeAt(std::uint64_t place, const char* data, std::size_t size) const;
    /// 0 at the end of the file.
    std::size_t read(char* data, std::size_t size) const;
    /// The same from a place of its own, in bytes from the beginning.
    std::size_t readAt(std::uint64_t place, char* data, std::size_t size) const;
    /// From where the file stands to its end.
    [[nodiscard]] std::string readAll() const;
    [[nodiscard]] struct stat status() const;
    /// Brings what was written to the disk.
    void flush() const;
    void close();

  private:
    std::filesystem::path path_;
    Descriptor descriptor_;
};

/// Brings it to the disk which files a folder holds. Throws FileError, also for a folder that is
/// gone.
void flushFolder(const std::filesystem::path& folder);

} // namespace tarvel
