// Chooses the command by its name, and carries out `resave` and `check`.
#include "tool/skin_commands.h"

#include "files/host_files.h"
#include "skinfile/skin_check.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "skinfile/version.h"

#include <algorithm>
#include <exception>
#include <ostream>
#include <string_view>

namespace tarvel::tool {

namespace {

constexpr std::string_view usage = "usage: tarvel-skin resave IN OUT\n"
                                   "       tarvel-skin check FOLDER\n"
                                   "       tarvel-skin render FOLDER SCREEN OUT.png\n"
                                   "       tarvel-skin --help | --version\n";

constexpr std::string_view help =
    "\n"
    "resave  reads the skin folder IN as the editor loads it and saves it to the folder OUT\n"
    "check   prints one line for each thing worth knowing before the skin goes to the console\n"
    "render  draws one screen (Title, Menu, Load, Saver, JukeBox or FileManager) to a PNG file\n"
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
        return resave(arguments[1], arguments[2], output);
    }
    if (command == "check" && arguments.size() == 2) {
        return check(arguments[1], output);
    }
    if (command == "render" && arguments.size() == 4) {
        return render(arguments[1], arguments[2], arguments[3], output);
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
