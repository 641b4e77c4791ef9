// The commands of tarvel-skin.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace tarvel::tool {

struct RenderOptions;

/// Exit codes of all commands.
enum ExitCode : int {
    done = 0,
    findings = 1,   ///< check: something to know; resave and render: the output is not complete
    unreadable = 2, ///< the skin cannot be read, or the arguments are wrong
};

/// Where a command writes its results and its complaints.
struct Output {
    std::ostream& out;
    std::ostream& err;
};

/// Writes the text to the error stream as one line, whatever it holds.
void complain(Output output, std::string text);

/// Reads a skin as Load does and saves it as Save does. Makes the output folder when it is missing.
ExitCode resave(const std::filesystem::path& in, const std::filesystem::path& out, Output output);

/// Prints one line for each finding.
ExitCode check(const std::filesystem::path& folder, Output output);

/// Draws screens as the editor's surface shows them, at rest or while they play, as a picture or an
/// animation. A screen is named in any letter case. Nothing is written unless all of it can be.
/// Makes a QGuiApplication of its own, so it runs once in a process.
ExitCode render(const RenderOptions& options, Output output);

/// Runs what the arguments (without the program's name) ask for.
ExitCode run(const std::vector<std::string>& arguments, Output output);

} // namespace tarvel::tool
