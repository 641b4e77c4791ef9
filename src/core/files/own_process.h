// What the system tells this program of itself, and how its words come to a console: one header, a
// source for each system.
#pragma once

#include <string>
#include <vector>

namespace tarvel {

/// The arguments without the program's name, in UTF-8. To be given what main() is given, which the
/// system may spell in another way than it was typed.
[[nodiscard]] std::vector<std::string> ownArguments(int argc, const char* const* argv);

/// While it lives, a console shows what is written to the streams of the C library as the UTF-8
/// that it is.
class ConsoleInUtf8 {
  public:
    ConsoleInUtf8();
    ~ConsoleInUtf8();
    ConsoleInUtf8(const ConsoleInUtf8&) = delete;
    ConsoleInUtf8& operator=(const ConsoleInUtf8&) = delete;

  private:
    unsigned before_ = 0; // of the console; 0 for none
};

/// Lets a program with windows write to the console from which it was started, where the system
/// keeps the two apart. Streams that lead to a file or a pipe stay.
void useConsoleOfStarter();

} // namespace tarvel
