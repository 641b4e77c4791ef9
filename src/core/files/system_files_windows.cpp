// Files of Windows: opening, reading, writing, status, locks, renaming.
#include "files/system_calls_windows.h"

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

} // namespace

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

} // namespace tarvel
