// Errors, handles, paths and searches of Windows. Paths are UTF-16 there.
#include "files/system_calls_windows.h"

#include "files/path_text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

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

// Only those that lead to another place; others hold the content of a file in some other way. What
// does not tell how it does may be a link, too.
bool isLink(DWORD attributes, DWORD tag) {
    return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (IsReparseTagNameSurrogate(tag) || tag == IO_REPARSE_TAG_RESERVED_ZERO);
}

} // namespace

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

std::string utf8Of(const fs::path& path) {
    return narrowOf(path.native());
}

std::string slashedUtf8Of(const fs::path& path) {
    return narrowOf(slashed(path.native()));
}

fs::path pathOf(std::string_view utf8) {
    return fs::path(wideOf(utf8)).make_preferred();
}

FileKind kindOf(DWORD attributes, DWORD tag) {
    return isLink(attributes, tag)                        ? FileKind::link
           : (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileKind::folder
                                                          : FileKind::regular;
}

// Backup semantics let folders be opened as well.
Descriptor opened(const fs::path& path, DWORD access, DWORD disposition, DWORD flags, DWORD share) {
    const HANDLE handle =
        ::CreateFileW(inFull(path).c_str(), access, share, nullptr, disposition,
                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        noteReason();
    }
    return descriptorOf(handle);
}

} // namespace tarvel
