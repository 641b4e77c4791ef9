// Chooses the command by its name, and carries out `resave` and `check`.
#include "tool/skin_commands.h"

#include "files/host_files.h"
#include "files/path_text.h"
#include "skinfile/skin_check.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "skinfile/version.h"
#include "tool/render_options.h"

#include <algorithm>
#include <exception>
#include <ostream>
#include <span>
#include <string_view>

namespace tarvel::tool {

namespace {

constexpr std::string_view usage = "usage: tarvel-skin resave IN OUT\n"
                                   "       tarvel-skin check FOLDER\n"
                                   "       tarvel-skin render FOLDER SCREEN|--all OUT [OPTION]...\n"
                                   "       tarvel-skin --help | --version\n";

constexpr std::string_view help =
    "\n"
    "resave  reads the skin folder IN as the editor loads it and saves it to the folder OUT\n"
    "check   prints one line for each thing worth knowing before the skin goes to the console\n"
    "render  draws one screen (Title, Menu, Load, Saver, JukeBox or FileManager), or all six on a\n"
    "        sheet, to the file OUT: a picture where it ends in .png, an animation that repeats\n"
    "        without end where it ends in .webp or .gif\n"
    "\n"
    "Options of render:\n"
    "  --all                    a sheet of all screens with their names, in place of SCREEN\n"
    "  --at SECONDS             picture: as it plays, this long after the screen appeared; "
    "without\n"
    "                           this and the two last options it is drawn at rest\n"
    "  --from S, --to S         animation: from which time (0) to which (5 seconds later)\n"
    "  --fps N                  animation: 1 to 50 frames a second (20), 3000 in all at most\n"
    "  --select N               the Nth of the 9 sample games is selected (1)\n"
    "  --condition NAME=on|off  the condition holds, or does not, whatever is selected; may be\n"
    "                           given once for each condition\n"
    "\n"
    "Times are in seconds from 0 to 1000000, with a point, and count to the millisecond. Clocks "
    "of\n"
    "a skin always begin at 20:15:00 on 15 March 2026, so that the same command draws the same\n"
    "picture. Videos show their frame of that time, going round, or their first one where they\n"
    "cannot be moved to a time. A GIF has at most 255 colours a frame; WebP keeps every pixel.\n"
    "\n"
    "Exit codes: 0 done, nothing found; 1 check found something, or not everything could be\n"
    "written; 2 the skin cannot be read, or the arguments are wrong.\n";

ExitCode save(SkinDocument& document, const std::filesystem::path& out, Output output) {
    if (const std::string problem = folderProblem(out); !problem.empty()) {
        complain(output, problem);
        return unreadable;
    }
    if (document.settings().skinName.empty()) {
        complain(output, std::string(enterNameMessage));
        return findings;
    }
    try {
        createFolder(out);
    } catch (const FileError& error) {
        complain(output, error.what());
        return findings;
    }
    SkinWriter writer(programFolder());
    std::vector<std::string> problems;
    const SaveHooks hooks{.showProblem = [&](const auto& text) { problems.push_back(text); },
                          .progress = {}};
    const SaveOutcome outcome = saveSkin(document, writer, out, hooks);
    // Whatever else fails has the same cause.
    if (!outcome.writeProblem.empty()) {
        problems = {outcome.writeProblem};
    } else if (!outcome.folderProblems.empty()) {
        problems = outcome.folderProblems;
    }
    for (const std::string& problem : problems) {
        complain(output, problem);
    }
    for (const std::string& message :
         {outsideMessage(outcome.leftOut), sharedNamesMessage(outcome.sharedNames)}) {
        if (!message.empty()) {
            complain(output, message);
        }
    }
    return outcome.succeeded() ? done : findings;
}

ExitCode usageError(Output output) {
    output.err << usage;
    return unreadable;
}

} // namespace

void complain(Output output, std::string text) {
    const auto isLineBreak = [](char c) { return c == '\n' || c == '\r'; };
    std::replace_if(text.begin(), text.end(), isLineBreak, ' ');
    output.err << "tarvel-skin: " << text << '\n';
}

ExitCode resave(const std::filesystem::path& in, const std::filesystem::path& out, Output output) {
    SkinDocument document;
    try {
        readSkin(document, in);
    } catch (const SkinReadError& error) {
        complain(output, error.what());
        return unreadable;
    }
    return save(document, out, output);
}

ExitCode check(const std::filesystem::path& folder, Output output) {
    try {
        const std::vector<Finding> found = checkSkin(folder);
        for (const Finding& finding : found) {
            output.out << finding.text << '\n';
        }
        return found.empty() ? done : findings;
    } catch (const std::exception& error) {
        complain(output, error.what());
        return unreadable;
    }
}

namespace {

ExitCode render(std::span<const std::string> arguments, Output output) {
    try {
        const auto options = renderOptions(arguments);
        return options ? render(*options, output) : usageError(output);
    } catch (const OptionError& error) {
        complain(output, error.what());
        return unreadable;
    }
}

ExitCode runCommand(const std::vector<std::string>& arguments, Output output) {
    const std::string command = arguments.empty() ? std::string{} : arguments.front();
    if (command == "--help" && arguments.size() == 1) {
        output.out << usage << help;
        return done;
    }
    if (command == "--version" && arguments.size() == 1) {
        output.out << "tarvel-skin " << versionMajor << '.' << versionMinor << '\n';
        return done;
    }
    if (command == "resave" && arguments.size() == 3) {
        return resave(pathOf(arguments[1]), pathOf(arguments[2]), output);
    }
    if (command == "check" && arguments.size() == 2) {
        return check(pathOf(arguments[1]), output);
    }
    if (command == "render") {
        return render(std::span(arguments).subspan(1), output);
    }
    return usageError(output);
}

} // namespace

ExitCode run(const std::vector<std::string>& arguments, Output output) {
    try {
        return runCommand(arguments, output);
    } catch (const std::exception& error) {
        complain(output, error.what());
        return findings;
    }
}

} // namespace tarvel::tool
