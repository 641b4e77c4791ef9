// The arguments that the editor is started with.
#pragma once

#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace tarvel {

/// What is answered in the place of a window.
struct Reply {
    std::string text;
    int exitCode = 0; ///< of the program; what is not 0 belongs on the error stream
};

struct Arguments {
    QStringList folders; ///< absolute paths, each once, to be opened in windows of their own
    std::optional<Reply> reply;
};

/// `arguments` without the program's name, in UTF-8. Options that the window system's library takes
/// for itself, such as "-platform", are passed over. Needs no application.
[[nodiscard]] Arguments parseArguments(const std::vector<std::string>& arguments);

} // namespace tarvel
