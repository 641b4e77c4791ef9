// The calls of Windows. Paths are UTF-16 there; names are found in whatever letter case.
#include "files/path_text.h"
#include "files/system_files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <io.h>
#include <limits>
#include <shlobj.h>
#include <system_error>
#include <utility>
#include <vector>
#include <windows.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

struct Reason {
    DWORD windows;
    int number;
};
// Not every header has these.
constexpr DWORD virusFound = 225;
constexpr DWORD quotaUsed = 1295;
// Of files whose content lies elsewhere until it is read.
constexpr DWORD cloudWithoutProvider = 362;
constexpr DWORD cloudWithoutNetwork = 388;

constexpr std::array reasons = {Reason{ERROR_FILE_NOT_FOUND, ENOENT},
                                Reason{ERROR_PATH_NOT_FOUND, ENOENT},
                                Reason{ERROR_INVALID_DRIVE, ENOENT},
                                Reason{ERROR_BAD_NETPATH, ENOENT},
                                Reason{ERROR_BAD_NET_NAME, ENOENT},
                                Reason{ERROR_NOT_READY, ENODEV},
                                Reason{ERROR_DEV_NOT_EXIST, ENODEV},
                                Reason{ERROR_UNRECOGNIZED_VOLUME, ENODEV},
                                Reason{ERROR_FILE_INVALID, ENODEV}, // its disk was taken out
                                Reason{ERROR_NO_MEDIA_IN_DRIVE, ENODEV},
                                Reason{ERROR_DEVICE_NOT_CONNECTED, ENODEV},
                                Reason{ERROR_UNEXP_NET_ERR, ENETUNREACH},
                                Reason{ERROR_NETNAME_DELETED, ENETUNREACH},
                                Reason{ERROR_NETWORK_UNREACHABLE, ENETUNREACH},
                                Reason{cloudWithoutProvider, ENETUNREACH},
                                Reason{cloudWithoutNetwork, ENETUNREACH},
                                Reason{ERROR_INVALID_NAME, ENOENT},
                                Reason{ERROR_BAD_PATHNAME, ENOENT},
                                Reason{ERROR_DIRECTORY, ENOTDIR},
                                Reason{ERROR_ACCESS_DENIED, EACCES},
                                Reason{ERROR_DELETE_PENDING, EACCES},
                                Reason{ERROR_NETWORK_ACCESS_DENIED, EACCES},
                                Reason{ERROR_LOGON_FAILURE, EACCES},
                                Reason{virusFound, EACCES},
                                Reason{ERROR_CANT_ACCESS_FILE, EACCES},
                                Reason{ERROR_SHARING_VIOLATION, EBUSY},
                                Reason{ERROR_USER_MAPPED_FILE, EBUSY},
                                Reason{ERROR_LOCK_VIOLATION, EWOULDBLOCK},
                                Reason{ERROR_IO_PENDING, EWOULDBLOCK},
                                Reason{ERROR_FILE_EXISTS, EEXIST},
                                Reason{ERROR_ALREADY_EXISTS, EEXIST},
                                Reason{ERROR_DISK_FULL, ENOSPC},
                                Reason{ERROR_HANDLE_DISK_FULL, ENOSPC},
                                Reason{quotaUsed, ENOSPC},
                                Reason{ERROR_CANNOT_MAKE, ENOSPC}, // a folder takes no more names
                                Reason{ERROR_WRITE_PROTECT, EROFS},
                                Reason{ERROR_FILE_TOO_LARGE, EFBIG},
                                Reason{ERROR_NOT_SAME_DEVICE, EXDEV},
                                Reason{ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
                                Reason{ERROR_BUFFER_OVERFLOW, ENAMETOOLONG},
                                Reason{ERROR_TOO_MANY_OPEN_FILES, EMFILE},
                                Reason{ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
                                Reason{ERROR_OUTOFMEMORY, ENOMEM},
                                Reason{ERROR_INVALID_HANDLE, EBADF},
                                Reason{ERROR_DIR_NOT_EMPTY, ENOTEMPTY},
                                Reason{ERROR_CANT_RESOLVE_FILENAME, ELOOP},
                                Reason{ERROR_INVALID_FUNCTION, ENOSYS},
                                Reason{ERROR_NOT_SUPPORTED, ENOSYS},
                                Reason{ERROR_INVALID_PARAMETER, EINVAL}};

void noteReason() {
    const DWORD error = ::GetLastError();
    const auto* const found = std::find_if(
        reasons.begin(), reasons.end(), [=](const Reason& each) { return each.windows == error; });
    errno = found == reasons.end() ? EIO : found->number;
}

bool noted(BOOL result) {
    if (result == 0) {
        noteReason();
    }
    return result != 0;
}

HANDLE handleOf(const Descriptor& file) {
    return reinterpret_cast<HANDLE>(file.number()); // NOLINT: a number that is kept as a pointer
}

Descriptor descriptorOf(HANDLE handle) {
    return Descriptor(reinterpret_cast<std::intptr_t>(handle)); // NOLINT: as above
}

std::wstring wideOf(std::string_view utf8) {
    const int size = static_cast<int>(utf8.size());
    std::wstring wide(utf8.size(), L'\0');
    const int got = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), size);
    wide.resize(static_cast<std::size_t>(std::max(got, 0)));
    return wide;
}

std::string narrowOf(std::wstring_view wide) {
    constexpr std::size_t mostForOne = 3;
    const int size = static_cast<int>(wide.size());
    std::string utf8(mostForOne * wide.size(), '\0');
    const int got = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(),
                                          static_cast<int>(utf8.size()), nullptr, nullptr);
    utf8.resize(static_cast<std::size_t>(std::max(got, 0)));
    return utf8;
}

std::wstring slashed(std::wstring wide) {
    std::replace(wide.begin(), wide.end(), L'\\', L'/');
    return wide;
}

constexpr std::wstring_view plainPrefix = LR"(\\?\)";
constexpr std::wstring_view sharePrefix = LR"(\\?\UNC\)";

// A path in full, which the system takes as it stands: of any length, and with names that it would
// change otherwise.
std::wstring inFull(const fs::path& path) {
    std::wstring full = path.native();
    std::replace(full.begin(), full.end(), L'/', L'\\');
    if (full.empty() || full.starts_with(plainPrefix)) {
        return full;
    }
    std::wstring buffer(::GetFullPathNameW(full.c_str(), 0, nullptr, nullptr), L'\0');
    buffer.resize(::GetFullPathNameW(full.c_str(), static_cast<DWORD>(buffer.size()), buffer.data(),
                                     nullptr));
    if (buffer.starts_with(LR"(\\.\)")) {
        return buffer; // a device, told by name
    }
    if (buffer.starts_with(LR"(\\)")) {
        return buffer.replace(0, 2, sharePrefix);
    }
    return buffer.insert(0, plainPrefix);
}

std::int64_t nanoseconds(const FILETIME& time) {
    constexpr std::int64_t tick = 100;
    constexpr std::int64_t ticksTo1970 = 116'444'736'000'000'000;
    const auto ticks = static_cast<std::int64_t>(
        static_cast<std::uint64_t>(time.dwHighDateTime) << 32U | time.dwLowDateTime);
    return (ticks - ticksTo1970) * tick;
}

std::uint64_t joined(DWORD high, DWORD low) {
    return static_cast<std::uint64_t>(high) << 32U | low;
}

// Only those that lead to another place; others hold the content of a file in some other way. What
// does not tell how it does may be a link, too.
bool isLink(DWORD attributes, DWORD tag) {
    return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (IsReparseTagNameSurrogate(tag) || tag == IO_REPARSE_TAG_RESERVED_ZERO);
}

FileKind kindOf(DWORD attributes, DWORD tag) {
    return isLink(attributes, tag)                        ? FileKind::link
           : (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileKind::folder
                                                          : FileKind::regular;
}

// Some shares number no files, and other file systems have numbers too long for this: two files are
// never to be taken for one there.
std::uint64_t fileNumber(const Descriptor& file, const BY_HANDLE_FILE_INFORMATION& found) {
    const std::uint64_t number = joined(found.nFileIndexHigh, found.nFileIndexLow);
    if (number != 0 && number != std::numeric_limits<std::uint64_t>::max()) {
        return number;
    }
    std::vector<std::uint64_t> room(sizeof(FILE_NAME_INFO) / sizeof(std::uint64_t) +
                                    longestPath() * sizeof(WCHAR) / sizeof(std::uint64_t));
    auto* const info = reinterpret_cast<FILE_NAME_INFO*>(room.data()); // NOLINT: of no fixed size
    if (::GetFileInformationByHandleEx(handleOf(file), FileNameInfo, info,
                                       static_cast<DWORD>(room.size() * sizeof(std::uint64_t))) ==
        0) {
        return number;
    }
    const DWORD letters = info->FileNameLength / sizeof(WCHAR);
    ::CharLowerBuffW(&info->FileName[0], letters);
    return std::hash<std::wstring_view>()({&info->FileName[0], letters});
}

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Backup semantics let folders be opened as well: what they are is for their status to tell.
Descriptor opened(const fs::path& path, DWORD access, DWORD disposition, DWORD flags = 0,
                  DWORD share = shareAll) {
    const HANDLE handle =
        ::CreateFileW(inFull(path).c_str(), access, share, nullptr, disposition,
                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        noteReason();
    }
    return descriptorOf(handle);
}

// Not even when it leads to nothing.
bool isLinkItself(const Descriptor& file) {
    const auto status = statusOf(file);
    return status && status->kind == FileKind::link;
}

Descriptor openedItself(const fs::path& path, DWORD access, DWORD disposition) {
    Descriptor file = opened(path, access, disposition, FILE_FLAG_OPEN_REPARSE_POINT);
    if (file.isOpen() && isLinkItself(file)) {
        file.reset();
        errno = ELOOP;
    }
    return file;
}

// Piecewise, since the system takes no more at a time than its own numbers hold.
DWORD piece(std::size_t size) {
    return static_cast<DWORD>(std::min<std::size_t>(size, std::size_t{1} << 30U));
}

OVERLAPPED placed(std::uint64_t place) {
    OVERLAPPED at{};
    at.Offset = static_cast<DWORD>(place);
    at.OffsetHigh = static_cast<DWORD>(place >> 32U);
    return at;
}

std::ptrdiff_t readBy(const Descriptor& file, char* data, std::size_t size, OVERLAPPED* at) {
    DWORD got = 0;
    if (::ReadFile(handleOf(file), data, piece(size), &got, at) != 0) {
        return static_cast<std::ptrdiff_t>(got);
    }
    if (::GetLastError() == ERROR_HANDLE_EOF || ::GetLastError() == ERROR_BROKEN_PIPE) {
        return 0;
    }
    noteReason();
    return -1;
}

std::ptrdiff_t writeBy(const Descriptor& file, const char* data, std::size_t size, OVERLAPPED* at) {
    DWORD done = 0;
    if (::WriteFile(handleOf(file), data, piece(size), &done, at) != 0) {
        return static_cast<std::ptrdiff_t>(done);
    }
    noteReason();
    if (errno == EACCES) {
        errno = EBADF; // rights to a file were settled when it was opened: this one is for reading
    }
    return -1;
}

LARGE_INTEGER placeIn(const Descriptor& file) {
    LARGE_INTEGER here{};
    ::SetFilePointerEx(handleOf(file), {}, &here, FILE_CURRENT);
    return here;
}

// Reading or writing at a place of its own moves the file all the same.
template <class Call> std::ptrdiff_t stayingThere(const Descriptor& file, Call&& call) {
    const LARGE_INTEGER here = placeIn(file);
    const std::ptrdiff_t result = call();
    ::SetFilePointerEx(handleOf(file), here, nullptr, FILE_BEGIN);
    return result;
}

// The names of the system's calls that only newer ones know.
constexpr auto renameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
constexpr auto disposeInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(21);

struct RenameInfo {
    DWORD flags;
    HANDLE root;
    DWORD nameBytes;
    WCHAR name[1]; // NOLINT: the system's own form
};

// In one step although others have the older file open, who go on with it.
bool renamedAsPosixDoes(const std::wstring& from, const std::wstring& to) {
    constexpr DWORD replaceIt = 1;
    constexpr DWORD byPosix = 2;
    const Descriptor file = descriptorOf(
        ::CreateFileW(from.c_str(), DELETE | SYNCHRONIZE, shareAll, nullptr, OPEN_EXISTING,
                      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    if (!file.isOpen()) {
        return false;
    }
    const std::size_t size = sizeof(RenameInfo) + to.size() * sizeof(WCHAR);
    std::vector<std::uint64_t> room(size / sizeof(std::uint64_t) + 1);
    auto* const info = reinterpret_cast<RenameInfo*>(room.data()); // NOLINT: of no fixed size
    info->flags = replaceIt | byPosix;
    info->nameBytes = static_cast<DWORD>(to.size() * sizeof(WCHAR));
    std::copy(to.begin(), to.end(), &info->name[0]);
    return ::SetFileInformationByHandle(handleOf(file), renameInfoEx, info,
                                        static_cast<DWORD>(size)) != 0;
}

// The name goes at once although others have the file open.
bool removedAsPosixDoes(const std::wstring& path) {
    constexpr DWORD deleteIt = 1;
    constexpr DWORD byPosix = 2;
    const Descriptor file =
        descriptorOf(::CreateFileW(path.c_str(), DELETE | SYNCHRONIZE, shareAll, nullptr,
                                   OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    DWORD flags = deleteIt | byPosix;
    return file.isOpen() &&
           ::SetFileInformationByHandle(handleOf(file), disposeInfoEx, &flags, sizeof flags) != 0;
}

template <class Take> void eachFound(const std::wstring& pattern, Take&& take) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found,
                                             FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        const std::wstring_view name = &found.cFileName[0];
        if (name != L"." && name != L".." && !take(name, found)) {
            break;
        }
    } while (::FindNextFileW(search, &found) != 0);
    ::FindClose(search);
}

std::wstring allIn(const fs::path& folder) {
    std::wstring pattern = inFull(folder.empty() ? fs::path(".") : folder);
    if (!pattern.ends_with(L'\\')) {
        pattern += L'\\';
    }
    return pattern + L'*';
}

bool hasWildcard(std::string_view name) {
    return name.find_first_of("*?<>\"") != std::string_view::npos;
}

} // namespace

std::string utf8Of(const fs::path& path) {
    return narrowOf(path.native());
}

std::string slashedUtf8Of(const fs::path& path) {
    return narrowOf(slashed(path.native()));
}

fs::path pathOf(std::string_view utf8) {
    return fs::path(wideOf(utf8)).make_preferred();
}

bool Descriptor::reset() {
    const Descriptor* const self = this;
    const HANDLE handle = handleOf(*self);
    return std::exchange(number_, none) == none || noted(::CloseHandle(handle));
}

int Descriptor::release() {
    if (!isOpen()) {
        return -1;
    }
    const int number = ::_open_osfhandle(number_, _O_RDONLY | _O_BINARY | _O_NOINHERIT);
    if (number >= 0) {
        number_ = none;
    }
    return number;
}

Descriptor openFile(const fs::path& path, Opening how) {
    switch (how) {
    case Opening::read:
        return opened(path, GENERIC_READ, OPEN_EXISTING);
    case Opening::readItself:
        return openedItself(path, GENERIC_READ, OPEN_EXISTING);
    case Opening::write:
        return opened(path, GENERIC_WRITE, OPEN_EXISTING);
    case Opening::makeNew:
        return opened(path, GENERIC_WRITE | FILE_READ_ATTRIBUTES, CREATE_NEW);
    case Opening::own:
        return openedItself(path, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    case Opening::folder:
        return opened(path, FILE_LIST_DIRECTORY | FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    case Opening::look:
        break;
    }
    return opened(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
}

std::ptrdiff_t readSome(const Descriptor& file, char* data, std::size_t size) {
    return readBy(file, data, size, nullptr);
}

std::ptrdiff_t readSomeAt(const Descriptor& file, std::uint64_t place, char* data,
                          std::size_t size) {
    OVERLAPPED at = placed(place);
    return stayingThere(file, [&] { return readBy(file, data, size, &at); });
}

std::ptrdiff_t writeSome(const Descriptor& file, const char* data, std::size_t size) {
    return writeBy(file, data, size, nullptr);
}

std::ptrdiff_t writeSomeAt(const Descriptor& file, std::uint64_t place, const char* data,
                           std::size_t size) {
    OVERLAPPED at = placed(place);
    return stayingThere(file, [&] { return writeBy(file, data, size, &at); });
}

bool moveToBeginning(const Descriptor& file) {
    return noted(::SetFilePointerEx(handleOf(file), {}, nullptr, FILE_BEGIN));
}

bool cutToNothing(const Descriptor& file) {
    return moveToBeginning(file) && noted(::SetEndOfFile(handleOf(file)));
}

// Folders cannot be flushed: the file system keeps a journal of their names.
bool flushToDisk(const Descriptor& file) {
    if (::FlushFileBuffers(handleOf(file)) != 0) {
        return true;
    }
    noteReason();
    const int reason = errno;
    const auto status = statusOf(file);
    errno = reason;
    return (status && status->kind == FileKind::folder) || reason == ENOSYS;
}

std::optional<FileStatus> statusOf(const Descriptor& file) {
    BY_HANDLE_FILE_INFORMATION found{};
    if (::GetFileType(handleOf(file)) != FILE_TYPE_DISK) {
        return ::GetFileType(handleOf(file)) == FILE_TYPE_UNKNOWN ? std::nullopt
                                                                  : std::optional(FileStatus{});
    }
    if (!noted(::GetFileInformationByHandle(handleOf(file), &found))) {
        return std::nullopt;
    }
    FILE_ATTRIBUTE_TAG_INFO tag{};
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        ::GetFileInformationByHandleEx(handleOf(file), FileAttributeTagInfo, &tag, sizeof tag);
    }
    FILE_STANDARD_INFO names{};
    ::GetFileInformationByHandleEx(handleOf(file), FileStandardInfo, &names, sizeof names);
    FILE_BASIC_INFO times{};
    ::GetFileInformationByHandleEx(handleOf(file), FileBasicInfo, &times, sizeof times);
    const FILETIME changed{times.ChangeTime.LowPart, static_cast<DWORD>(times.ChangeTime.HighPart)};
    return FileStatus{
        .kind = kindOf(found.dwFileAttributes, tag.ReparseTag),
        .identity = {found.dwVolumeSerialNumber, fileNumber(file, found)},
        .links = names.DeletePending != 0 ? 0 : found.nNumberOfLinks,
        .size = static_cast<std::int64_t>(joined(found.nFileSizeHigh, found.nFileSizeLow)),
        .written = nanoseconds(found.ftLastWriteTime),
        .changed = nanoseconds(changed)};
}

std::optional<FileStatus> statusOf(const fs::path& path) {
    const Descriptor file = openFile(path, Opening::look);
    return file.isOpen() ? statusOf(file) : std::nullopt;
}

std::optional<FileStatus> statusOfItself(const fs::path& path) {
    const Descriptor file =
        opened(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT);
    return file.isOpen() ? statusOf(file) : std::nullopt;
}

// The byte that is locked lies behind any content: locks of the system keep readers away as well,
// and a file that just took its place is to be read.
bool tryLock(const Descriptor& file) {
    OVERLAPPED at = placed(std::uint64_t{1} << 62U);
    return noted(::LockFileEx(handleOf(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY,
                              0, 1, 0, &at));
}

// By an object of the system that has the folder's number in its name, and goes with the last
// descriptor of it. The folder itself is not kept open: whatever of its sharing would keep a second
// save away would also keep files from being renamed into it.
Descriptor tryHoldFolder(const fs::path& folder) {
    const auto status = statusOf(folder);
    if (!status || status->kind != FileKind::folder) {
        errno = status ? ENOTDIR : errno;
        return Descriptor();
    }
    const std::wstring name = LR"(Global\tarvel-save-)" + std::to_wstring(status->identity.volume) +
                              L'-' + std::to_wstring(status->identity.number);
    const HANDLE handle = ::CreateMutexW(nullptr, FALSE, name.c_str());
    const DWORD error = ::GetLastError();
    if (handle == nullptr) {
        noteReason();
        errno = error == ERROR_ACCESS_DENIED ? EWOULDBLOCK : errno; // another user's
        return Descriptor();
    }
    Descriptor held = descriptorOf(handle);
    if (error == ERROR_ALREADY_EXISTS) {
        held.reset();
        errno = EWOULDBLOCK;
    }
    return held;
}

namespace {

// Programs that look through every new file have it open for a moment: tried again for about a
// second, as long as the failure may be theirs.
template <class Call, class MayPass> bool triedAgain(Call&& call, MayPass&& mayPass) {
    constexpr DWORD tries = 10;
    constexpr DWORD pause = 20; // milliseconds, longer each time
    for (DWORD i = 1; !call(); ++i) {
        if (i == tries || !mayPass(errno)) {
            return false;
        }
        ::Sleep(i * pause);
    }
    return true;
}

// Replacing a file that is open is reported as if it were forbidden.
bool isOpenElsewhere(const std::wstring& path) {
    const Descriptor alone = descriptorOf(
        ::CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    return !alone.isOpen() && ::GetLastError() == ERROR_SHARING_VIOLATION;
}

} // namespace

bool renameOver(const fs::path& from, const fs::path& to) {
    const std::wstring older = inFull(from);
    const std::wstring newer = inFull(to);
    const DWORD attributes = ::GetFileAttributesW(newer.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        errno = EACCES;
        return false;
    }
    const auto rename = [&] {
        return renamedAsPosixDoes(older, newer) ||
               noted(::MoveFileExW(older.c_str(), newer.c_str(),
                                   MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
    };
    if (triedAgain(rename, [](int reason) { return reason == EACCES || reason == EBUSY; })) {
        return true;
    }
    if (errno == EACCES) {
        errno = isOpenElsewhere(newer) ? EBUSY : EACCES;
    }
    return false;
}

bool removeName(const fs::path& path) {
    const std::wstring full = inFull(path);
    return triedAgain(
        [&] { return removedAsPosixDoes(full) || noted(::DeleteFileW(full.c_str())); },
        [](int reason) { return reason == EBUSY; });
}

bool makeFolder(const fs::path& path) {
    return noted(::CreateDirectoryW(inFull(path).c_str(), nullptr));
}

bool makeFolders(const fs::path& path) {
    const auto status = statusOf(path);
    if (status) {
        errno = ENOTDIR;
        return status->kind == FileKind::folder;
    }
    const fs::path above = path.parent_path();
    if (!above.empty() && above != path && !makeFolders(above)) {
        return false;
    }
    return makeFolder(path) || errno == EEXIST;
}

// Rights come from the folder, and a file that may only be read is not replaced at all: left is how
// it is shown.
void keepPermissions(const fs::path& older, const Descriptor& file) {
    constexpr DWORD shown = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const DWORD attributes = ::GetFileAttributesW(inFull(older).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & shown) != 0) {
        FILE_BASIC_INFO info{}; // times of 0 stay as they are
        info.FileAttributes = (attributes & shown) | FILE_ATTRIBUTE_ARCHIVE;
        ::SetFileInformationByHandle(handleOf(file), FileBasicInfo, &info, sizeof info);
    }
}

void eachEntryOf(const fs::path& folder, const std::function<bool(const FolderEntry&)>& take) {
    eachFound(allIn(folder), [&](std::wstring_view name, const WIN32_FIND_DATAW& found) {
        return take({folder / name, kindOf(found.dwFileAttributes, found.dwReserved0)});
    });
}

DiskPlace::DiskPlace(const std::string& path)
    : path_(statusOf(pathOf(path)) ? pathOf(path) : fs::path()) {}

bool DiskPlace::isThere() const {
    return !path_.empty();
}

DiskPlace DiskPlace::part(std::string& name) const {
    DiskPlace next;
    if (name == "." || name == "..") {
        next.path_ = path_ / pathOf(name);
    } else if (!hasWildcard(name)) {
        eachFound(inFull(path_ / pathOf(name)), [&](std::wstring_view disk, const auto&) {
            name = narrowOf(disk);
            next.path_ = path_ / disk;
            return false;
        });
    }
    return next;
}

std::optional<FileIdentity> DiskPlace::identity() const {
    const auto status = isThere() ? statusOf(path_) : std::nullopt;
    return status ? std::optional(status->identity) : std::nullopt;
}

void DiskPlace::eachName(const std::function<bool(std::string_view)>& take) const {
    eachFound(allIn(path_),
              [&](std::wstring_view name, const auto&) { return !take(narrowOf(name)); });
}

// The disk may spell it in other letter case.
bool isThereAsSpelt(const std::string& /*path*/) {
    return false;
}

std::size_t rootLength(std::string_view path) {
    if (path.size() >= 2 && path[1] == ':') {
        return path.size() > 2 && path[2] == '/' ? 3 : 2;
    }
    if (!path.starts_with("//")) {
        return path.starts_with('/') ? 1 : 0;
    }
    const auto share = path.find('/', 2);
    const auto end = share == std::string_view::npos ? share : path.find('/', share + 1);
    return end == std::string_view::npos ? path.size() : end + 1;
}

std::size_t longestPath() {
    constexpr std::size_t most = 32'000; // 32767 with what the system adds
    return most;
}

namespace {

// For systems whose own call does not take long paths, or not on every file system.
std::optional<std::string> realPathByParts(const fs::path& path) {
    std::error_code error;
    const fs::path full = fs::absolute(path, error).lexically_normal();
    const auto itself = error ? std::nullopt : statusOfItself(full);
    const auto above = itself && itself->kind != FileKind::link && full.has_relative_path()
                           ? realPath(full.parent_path())
                           : std::nullopt;
    if (!above) {
        errno = EIO;
        return std::nullopt;
    }
    std::string name = utf8Of(full.filename());
    eachFound(inFull(full), [&](std::wstring_view disk, const auto&) {
        name = narrowOf(disk);
        return false;
    });
    return *above + (above->ends_with('/') ? "" : "/") + name;
}

} // namespace

std::optional<std::string> realPath(const fs::path& path) {
    const Descriptor file = openFile(path, Opening::look);
    if (!file.isOpen()) {
        return std::nullopt;
    }
    std::wstring real(::GetFinalPathNameByHandleW(handleOf(file), nullptr, 0, VOLUME_NAME_DOS),
                      L'\0');
    const DWORD size = ::GetFinalPathNameByHandleW(
        handleOf(file), real.data(), static_cast<DWORD>(real.size()), VOLUME_NAME_DOS);
    if (size == 0) {
        return realPathByParts(path);
    }
    real.resize(size);
    if (real.starts_with(sharePrefix)) {
        real.erase(2, sharePrefix.size() - 2);
    } else if (real.starts_with(plainPrefix)) {
        real.erase(0, plainPrefix.size());
    }
    return narrowOf(slashed(real));
}

fs::path executableFolder() {
    std::wstring file(longestPath(), L'\0');
    file.resize(::GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size())));
    return fs::path(file).parent_path();
}

// Its rights alone do not tell: only making something there does.
bool canWriteInto(const fs::path& folder) {
    const fs::path probe = folder / (".tarvel-" + std::to_string(processNumber()) + "-0");
    return opened(probe, GENERIC_WRITE | DELETE, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE).isOpen();
}

fs::path userDataFolder() {
    PWSTR found = nullptr;
    const bool known =
        SUCCEEDED(::SHGetKnownFolderPath(FOLDERID_RoamingAppData, 0, nullptr, &found));
    fs::path folder = known ? fs::path(found) : executableFolder();
    ::CoTaskMemFree(found);
    return folder;
}

long processNumber() {
    return static_cast<long>(::GetCurrentProcessId());
}

std::string errorWords(int errorNumber) {
    switch (errorNumber) {
    case EBUSY:
        return "Another program has it open";
    case ELOOP:
        return "Too many levels of symbolic links";
    case EWOULDBLOCK:
        return "Another program holds it";
    default:
        return std::generic_category().message(errorNumber);
    }
}

} // namespace tarvel
