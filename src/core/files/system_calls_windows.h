// What the sources for Windows share: its errors, handles, paths and searches.
#pragma once

#include "files/system_files.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <windows.h>

namespace tarvel {

/// Leaves the reason of the call that just failed in errno.
void noteReason();
/// The same for one that failed; true for one that did not.
bool noted(BOOL result);

[[nodiscard]] HANDLE handleOf(const Descriptor& file);
[[nodiscard]] Descriptor descriptorOf(HANDLE handle);

[[nodiscard]] std::wstring wideOf(std::string_view utf8);
[[nodiscard]] std::string narrowOf(std::wstring_view wide);
[[nodiscard]] std::wstring slashed(std::wstring wide);

/// What a path in full begins with, of a drive and of a share.
inline constexpr std::wstring_view plainPrefix = LR"(\\?\)";
inline constexpr std::wstring_view sharePrefix = LR"(\\?\UNC\)";
/// A path in full, which the system takes as it stands: of any length, and with names that it would
/// change otherwise.
[[nodiscard]] std::wstring inFull(const std::filesystem::path& path);

[[nodiscard]] FileKind kindOf(DWORD attributes, DWORD tag);

inline constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A file or folder: which of them it is is for its status to tell.
[[nodiscard]] Descriptor opened(const std::filesystem::path& path, DWORD access, DWORD disposition,
                                DWORD flags = 0, DWORD share = shareAll);

/// Calls take(name, data) for each name that the pattern finds until it returns false.
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

} // namespace tarvel
