// Tells folders from options, and words what is answered to them.
#include "window/arguments.h"

#include "skinfile/version.h"
#include "widgets/qt_text.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tarvel {

namespace {

constexpr int wrongArguments = 2;

constexpr std::string_view help =
    "usage: tarvel [FOLDER ...]\n"
    "       tarvel --help | --version\n"
    "\n"
    "Opens each skin folder in a window of its own, or without a folder an empty skin.\n";

// Of the library under the editor, without their one or two dashes.
constexpr std::array<std::string_view, 12> takesValue = {
    "platform",        "platformpluginpath", "platformtheme", "plugin",
    "qwindowgeometry", "qwindowicon",        "qwindowtitle",  "session",
    "style",           "stylesheet",         "display",       "geometry"};
constexpr std::array<std::string_view, 2> takesNone = {"reverse", "widgetcount"};

template <class List> bool holds(const List& list, std::string_view word) {
    return std::find(list.begin(), list.end(), word) != list.end();
}

std::string version() {
    return "tarvel " + std::to_string(versionMajor) + '.' + std::to_string(versionMinor) + '\n';
}

Reply refused(const std::string& what) {
    return {"tarvel: " + what + "; \"tarvel --help\" tells what it takes.\n", wrongArguments};
}

class Parser {
  public:
    Arguments run(const std::vector<std::string>& arguments) {
        for (const std::string& argument : arguments) {
            if (!std::exchange(skipNext_, false)) {
                take(argument);
            }
        }
        result_.folders.removeDuplicates();
        return std::move(result_);
    }

  private:
    void take(const std::string& argument) {
        if (argument == "--" && !onlyFolders_) {
            onlyFolders_ = true;
        } else if (!onlyFolders_ && argument.size() > 1 && argument.front() == '-') {
            takeOption(argument);
        } else if (argument.empty()) {
            reply(refused("an empty argument names no folder"));
        } else {
            result_.folders << QDir::cleanPath(QDir().absoluteFilePath(qtText(argument)));
        }
    }

    void takeOption(const std::string& argument) {
        const auto dashes = std::min(argument.find_first_not_of('-'), argument.size());
        const std::string_view word = std::string_view(argument).substr(dashes);
        if (argument == "--help") {
            reply({std::string(help)});
        } else if (argument == "--version") {
            reply({version()});
        } else if (holds(takesValue, word)) {
            skipNext_ = true;
        } else if (!holds(takesNone, word) && !holds(takesValue, word.substr(0, word.find('=')))) {
            reply(refused("the option " + argument + " is unknown"));
        }
    }

    // The first one counts.
    void reply(Reply reply) {
        if (!result_.reply) {
            result_.reply = std::move(reply);
        }
    }

    Arguments result_;
    bool skipNext_ = false;
    bool onlyFolders_ = false;
};

} // namespace

Arguments parseArguments(const std::vector<std::string>& arguments) {
    return Parser().run(arguments);
}

} // namespace tarvel
