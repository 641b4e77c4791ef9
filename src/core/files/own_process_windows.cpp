// Arguments and consoles of Windows: UTF-16, or whatever code page a console has.
#include "files/own_process.h"
#include "files/path_text.h"

#include <cstdio>
#include <filesystem>
#include <io.h>
#include <memory>
#include <windows.h>

namespace tarvel {

// Not those of main(): they have lost the letters that the system's code page lacks, and stars in
// them have become names of files.
std::vector<std::string> ownArguments(int /*argc*/, const char* const* /*argv*/) {
    struct Free {
        void operator()(PWSTR* list) const { ::LocalFree(list); }
    };
    int count = 0;
    const std::unique_ptr<PWSTR[], Free> list(::CommandLineToArgvW(::GetCommandLineW(), &count));
    std::vector<std::string> arguments;
    for (int i = 1; list && i < count; ++i) {
        arguments.push_back(utf8Of(std::filesystem::path(list[static_cast<std::size_t>(i)])));
    }
    return arguments;
}

ConsoleInUtf8::ConsoleInUtf8()
    : before_(::GetConsoleOutputCP()) {
    if (before_ != 0) {
        ::SetConsoleOutputCP(CP_UTF8);
    }
}

ConsoleInUtf8::~ConsoleInUtf8() {
    if (before_ != 0) {
        ::SetConsoleOutputCP(before_);
    }
}

namespace {

bool leadsSomewhere(FILE* stream) {
    const int number = ::_fileno(stream);
    return number >= 0 && ::_get_osfhandle(number) >= 0;
}

} // namespace

void useConsoleOfStarter() {
    if (::AttachConsole(ATTACH_PARENT_PROCESS) == 0) {
        return;
    }
    for (FILE* const stream : {stdout, stderr}) {
        if (!leadsSomewhere(stream)) {
            [[maybe_unused]] const FILE* const opened = std::freopen("CONOUT$", "w", stream);
        }
    }
}

} // namespace tarvel
