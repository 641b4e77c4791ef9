// Arguments and consoles of POSIX are bytes, and those are taken for UTF-8.
#include "files/own_process.h"

namespace tarvel {

std::vector<std::string> ownArguments(int argc, const char* const* argv) {
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

ConsoleInUtf8::ConsoleInUtf8() = default;

ConsoleInUtf8::~ConsoleInUtf8() {
    before_ = 0;
}

void useConsoleOfStarter() {}

} // namespace tarvel
