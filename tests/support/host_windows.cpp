// Links and processes for tests, by Windows and by Wine.
#include "files/path_text.h"
#include "files/system_files.h"
#include "support/links.h"
#include "support/other_process.h"
#include "support/temporary_folder.h"
#include "support/wine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>
#include <windows.h>
#include <winioctl.h>

namespace tarvel::test {

namespace fs = std::filesystem;

namespace {

std::map<std::string, OtherWork>& works() {
    static std::map<std::string, OtherWork> all;
    return all;
}

template <class Function> Function* exported(const char* library, const char* name) {
    return reinterpret_cast<Function*>( // NOLINT: functions come without their type
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA(library), name))); // NOLINT
}

// A path as the system below Wine writes it; what is relative only takes its slashes.
std::string pathBelowWine(const fs::path& path) {
    if (path.is_relative()) {
        return slashedUtf8Of(path);
    }
    auto* const unixName =
        exported<char* __cdecl(const wchar_t*)>("kernel32", "wine_get_unix_file_name");
    char* const name = unixName(path.c_str());
    const std::string text = name == nullptr ? "" : name;
    ::HeapFree(::GetProcessHeap(), 0, name);
    return text;
}

PROCESS_INFORMATION started(const std::wstring& program, std::wstring line) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                         &startup, &process) == 0) {
        throw std::runtime_error("a process cannot be started");
    }
    return process;
}

std::string shellQuoted(const std::string& text) {
    return " '" + text + "'";
}

std::string belowWine(const fs::path& path) {
    return shellQuoted(pathBelowWine(path.parent_path()) + '/' + utf8Of(path.filename()));
}

// Wine starts programs of the system below it, but does not tell when they end.
void runBelowWine(const std::string& command) {
    static int count = 0;
    const fs::path done = fs::temp_directory_path() / ("done-" + std::to_string(processNumber()) +
                                                       "-" + std::to_string(++count));
    const std::string line = "sh -c \"" + command + "; :>" + belowWine(done) + '"';
    started(LR"(Z:\bin\sh)", fs::path(line).native()); // without handles of its own
    while (!statusOf(done)) {
        ::Sleep(1);
    }
    removeName(done);
}

// Where Wine is told to remove a link it removes what that leads to.
void removeLinksBelowWine(const fs::path& folder) {
    runBelowWine("find" + belowWine(folder) + " -type l -delete");
}

// Wine makes no links by itself.
void linkBelowWine(const fs::path& target, const fs::path& at) {
    beforeRemoval = &removeLinksBelowWine;
    runBelowWine("ln -s" + shellQuoted(pathBelowWine(target)) + belowWine(at));
}

struct Junction {
    DWORD tag;
    WORD size; // of what follows the next number
    WORD reserved;
    WORD targetPlace;
    WORD targetSize;
    WORD shownPlace;
    WORD shownSize;
    WCHAR texts[1]; // NOLINT: the system's own form
};

void makeJunction(const fs::path& target, const fs::path& at) {
    const std::wstring goal = LR"(\??\)" + target.native();
    const std::size_t bytes = goal.size() * sizeof(WCHAR);
    std::vector<std::uint64_t> room((sizeof(Junction) + bytes) / sizeof(std::uint64_t) + 2);
    auto* const junction = reinterpret_cast<Junction*>(room.data()); // NOLINT: of no fixed size
    constexpr std::size_t ends = 2 * sizeof(WCHAR);
    constexpr std::size_t numbers = 4 * sizeof(WORD);
    junction->tag = IO_REPARSE_TAG_MOUNT_POINT;
    junction->size = static_cast<WORD>(numbers + bytes + ends);
    junction->targetSize = static_cast<WORD>(bytes);
    junction->shownPlace = static_cast<WORD>(bytes + sizeof(WCHAR));
    std::copy(goal.begin(), goal.end(), &junction->texts[0]);
    fs::create_directory(at);
    const HANDLE link =
        ::CreateFileW(at.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    DWORD unused = 0;
    const DWORD size = junction->size + sizeof(DWORD) + 2 * sizeof(WORD);
    const BOOL made = ::DeviceIoControl(link, FSCTL_SET_REPARSE_POINT, junction, size, nullptr, 0,
                                        &unused, nullptr);
    ::CloseHandle(link);
    if (made == 0) {
        throw std::runtime_error("no junction can be made: " + utf8Of(at));
    }
}

constexpr const wchar_t* workVariable = L"TARVEL_TEST_WORK";
constexpr const wchar_t* pathVariable = L"TARVEL_TEST_PATH";
constexpr const wchar_t* readyVariable = L"TARVEL_TEST_READY"; // a file that it makes

fs::path variable(const wchar_t* name) {
    const wchar_t* const value = ::_wgetenv(name);
    return value == nullptr ? fs::path() : fs::path(value);
}

} // namespace

bool isWine() {
    return ::GetProcAddress(::GetModuleHandleA("ntdll"), "wine_get_version") != nullptr;
}

bool areFileLinksTold() {
    return !isWine();
}

void makeLink(const fs::path& target, const fs::path& at) {
    if (isWine()) {
        linkBelowWine(target, at);
        return;
    }
    const fs::path full = (at.parent_path() / target).lexically_normal();
    const auto status = statusOf(full);
    if (status && status->kind == FileKind::folder) {
        makeJunction(full, at);
        return;
    }
    // Developers may do it without further rights.
    if (::CreateSymbolicLinkW(at.c_str(), fs::path(target).make_preferred().c_str(),
                              SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE) == 0) {
        throw std::runtime_error("no link can be made: " + utf8Of(at));
    }
}

bool OtherProcess::knows(const std::string& name, OtherWork work) {
    return works().emplace(name, work).second;
}

// This program once more, with a test that does the work.
OtherProcess::OtherProcess(const std::string& name, const fs::path& path) {
    const TemporaryFolder folder;
    const fs::path ready = folder / "ready";
    ::SetEnvironmentVariableW(workVariable, pathOf(name).c_str());
    ::SetEnvironmentVariableW(pathVariable, path.c_str());
    ::SetEnvironmentVariableW(readyVariable, ready.c_str());
    std::wstring own(longestPath(), L'\0');
    own.resize(::GetModuleFileNameW(nullptr, own.data(), static_cast<DWORD>(own.size())));
    ::SetEnvironmentVariableW(L"GTEST_TOTAL_SHARDS", nullptr);
    ::SetEnvironmentVariableW(L"GTEST_SHARD_INDEX", nullptr);
    const PROCESS_INFORMATION begun =
        started(own, L"\"" + own +
                         L"\" --gtest_brief=1 --gtest_also_run_disabled_tests"
                         L" --gtest_filter=OtherProcess.DISABLED_DoesItsWork");
    ::CloseHandle(begun.hThread);
    const HANDLE process = begun.hProcess;
    process_ = reinterpret_cast<std::intptr_t>(process); // NOLINT: a pointer kept as a number
    constexpr DWORD pause = 10;                          // milliseconds
    while (!ready_ && ::WaitForSingleObject(process, pause) == WAIT_TIMEOUT) {
        ready_ = statusOf(ready).has_value();
    }
}

void OtherProcess::waitForItsEnd() {
    for (;;) {
        ::Sleep(INFINITE);
    }
}

void OtherProcess::kill() {
    const auto process = reinterpret_cast<HANDLE>(std::exchange(process_, 0)); // NOLINT: as above
    if (process != nullptr) {
        ::TerminateProcess(process, 1);
        ::WaitForSingleObject(process, INFINITE);
        ::CloseHandle(process);
    }
}

TEST(OtherProcess, DISABLED_DoesItsWork) {
    const fs::path ready = variable(readyVariable);
    works().at(utf8Of(variable(workVariable)))(variable(pathVariable),
                                               [&] { writeFile(ready, "x"); });
    OtherProcess::waitForItsEnd();
}

} // namespace tarvel::test
