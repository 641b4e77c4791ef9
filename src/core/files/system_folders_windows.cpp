// Folders of Windows and the places in them. Names are found in whatever letter case.
#include "files/path_text.h"
#include "files/system_calls_windows.h"

#include <cerrno>
#include <shlobj.h>
#include <system_error>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

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

} // namespace tarvel
