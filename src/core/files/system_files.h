// The calls of the system on files: one header, a source for each system.
//
// What fails says so by false, -1 or nothing and leaves the reason in errno, as a number of
// <cerrno>. No call is ended by a signal. Nothing throws but for want of memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarvel {

enum class FileKind : std::uint8_t { regular, folder, link, other };

/// Tells one file from all others of this computer, whatever paths lead to it.
struct FileIdentity {
    std::uint64_t volume = 0;
    std::uint64_t number = 0; // on its volume

    bool operator==(const FileIdentity&) const = default;
    bool operator<(const FileIdentity& other) const {
        return volume < other.volume || (volume == other.volume && number < other.number);
    }
};

struct FileStatus {
    FileKind kind = FileKind::other;
    FileIdentity identity;
    std::uint64_t links = 0;  // names that it has
    std::int64_t size = 0;    // bytes
    std::int64_t written = 0; // nanoseconds
    std::int64_t changed = 0; // nanoseconds; of its rights and names as well
};

/// A file or folder that is open, closed with this; it may be none. Programs that are started do
/// not inherit it.
class Descriptor {
  public:
    static constexpr std::intptr_t none = -1;

    explicit Descriptor(std::intptr_t number = none)
        : number_(number) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    /// The system's own number.
    [[nodiscard]] std::intptr_t number() const { return number_; }
    [[nodiscard]] bool isOpen() const { return number_ != none; }
    /// Closes it; false when the system reports a failure.
    bool reset();
    /// Hands it over, as a file number of the C library, to somebody who closes it; -1 when that
    /// fails.
    [[nodiscard]] int release();

  private:
    std::intptr_t number_;
};

enum class Opening : std::uint8_t {
    read,       // without waiting for whoever may write a pipe
    readItself, // the same, but not what a link leads to
    write,
    makeNew, // for writing, where nothing lies yet
    own,     // for reading and writing, made when missing, for this user alone; no link
    folder,
    look, // for its status alone
};

/// Not open when that fails. Others may read, rename and delete the file meanwhile.
[[nodiscard]] Descriptor openFile(const std::filesystem::path& path, Opening how);

/// How many bytes were read or written, from where the file stands or from a place in bytes; 0 at
/// its end, -1 for a failure.
[[nodiscard]] std::ptrdiff_t readSome(const Descriptor& file, char* data, std::size_t size);
[[nodiscard]] std::ptrdiff_t readSomeAt(const Descriptor& file, std::uint64_t place, char* data,
                                        std::size_t size);
[[nodiscard]] std::ptrdiff_t writeSome(const Descriptor& file, const char* data, std::size_t size);
[[nodiscard]] std::ptrdiff_t writeSomeAt(const Descriptor& file, std::uint64_t place,
                                         const char* data, std::size_t size);
[[nodiscard]] bool moveToBeginning(const Descriptor& file);
[[nodiscard]] bool cutToNothing(const Descriptor& file);
/// Brings an open file or folder to the disk; what has nothing to flush to is no failure.
[[nodiscard]] bool flushToDisk(const Descriptor& file);

[[nodiscard]] std::optional<FileStatus> statusOf(const Descriptor& file);
[[nodiscard]] std::optional<FileStatus> statusOf(const std::filesystem::path& path);
/// Of a link, not of what it leads to.
[[nodiscard]] std::optional<FileStatus> statusOfItself(const std::filesystem::path& path);

/// Takes an open file for this descriptor alone, until it is closed or the process ends. False when
/// another has it (errno is EWOULDBLOCK then), or when the file system knows no such thing. Does
/// not wait.
[[nodiscard]] bool tryLock(const Descriptor& file);
/// The same for a folder; not open when it cannot be held.
[[nodiscard]] Descriptor tryHoldFolder(const std::filesystem::path& folder);

/// Renames a file within its file system in one step, over what has the new name already.
[[nodiscard]] bool renameOver(const std::filesystem::path& from, const std::filesystem::path& to);
/// Deletes a file or a link, no folder.
bool removeName(const std::filesystem::path& path);
[[nodiscard]] bool makeFolder(const std::filesystem::path& path);
/// Makes all folders of the path that are missing.
bool makeFolders(const std::filesystem::path& path);
/// Gives a new file the permission bits of the older one in whose place it comes, as far as they
/// are known.
void keepPermissions(const std::filesystem::path& older, const Descriptor& file);

struct FolderEntry {
    std::filesystem::path path;
    FileKind kind = FileKind::other; // of a link itself
};

/// Calls take(entry) for all that a folder holds, in no order, until it returns false. What cannot
/// be read is passed over.
void eachEntryOf(const std::filesystem::path& folder,
                 const std::function<bool(const FolderEntry&)>& take);

/// A place of the disk from which paths go on part by part. Their texts are UTF-8 with slashes.
class DiskPlace {
  public:
    /// Nowhere.
    DiskPlace() = default;
    explicit DiskPlace(const std::string& path);

    [[nodiscard]] bool isThere() const;
    /// What a folder holds by that name. Where the system finds names in whatever letter case the
    /// name becomes that of the disk.
    [[nodiscard]] DiskPlace part(std::string& name) const;
    [[nodiscard]] std::optional<FileIdentity> identity() const;
    /// Calls take(name) for each name in a folder until it returns true.
    void eachName(const std::function<bool(std::string_view)>& take) const;

  private:
    Descriptor open_;            // on one system
    std::filesystem::path path_; // on the other
};

/// True when something is there whose name is spelt just so. False, too, where only a look at the
/// disk's own names could tell.
[[nodiscard]] bool isThereAsSpelt(const std::string& path);

/// How much of a path with slashes is its root; 0 for a relative one.
[[nodiscard]] std::size_t rootLength(std::string_view path);

/// In bytes of a path's text; nothing can lie at a longer one.
[[nodiscard]] std::size_t longestPath();

/// The path behind all links, by one call of the system where it offers that, as text with slashes;
/// nothing for a path that does not exist.
[[nodiscard]] std::optional<std::string> realPath(const std::filesystem::path& path);

/// The folder of this program's executable; empty when it cannot be told.
[[nodiscard]] std::filesystem::path executableFolder();
[[nodiscard]] bool canWriteInto(const std::filesystem::path& folder);
/// Where the user's programs keep their data.
[[nodiscard]] std::filesystem::path userDataFolder();
[[nodiscard]] long processNumber();

/// An error number in words for the user.
[[nodiscard]] std::string errorWords(int errorNumber);

} // namespace tarvel
