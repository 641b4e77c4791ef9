// Saves a document as a skin folder: QOR_Skin.xml, Media\ and Music\.
#pragma once

#include "document/skin_document.h"
#include "skinfile/skin_writer.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

inline constexpr std::string_view enterNameMessage =
    "Enter a name for the skin, and then click save again";
inline constexpr std::string_view saveFolderTitle = "Select an EMPTY folder to save your skin in";

/// How a save reaches the user while it runs.
struct SaveHooks {
    /// Shows the description of a failure.
    std::function<void(const std::string& description)> showProblem;
    /// Told of each step of a copy: the file's name, bytes done, bytes in all. False cancels the
    /// save.
    std::function<bool(std::string_view file, std::uintmax_t done, std::uintmax_t total)> progress;
};

struct SaveOutcome {
    bool textWritten = false;
    /// Why QOR_Skin.xml could not be written; the copying goes on all the same.
    std::string writeProblem;
    /// Ended early: the folder cannot hold a skin, the text could not be generated, a copy failed
    /// or was cancelled.
    bool stopped = false;
    /// Resources outside the skin's folder, which were not copied.
    std::vector<std::string> leftOut;

    [[nodiscard]] bool succeeded() const { return textWritten && !stopped; }
};

/// Saves into an existing folder. Existing files are replaced, each only when its new content is
/// whole. The document keeps its content; its shown screen becomes "Menu". Nothing is written to a
/// folder that folderProblem() refuses.
SaveOutcome saveSkin(SkinDocument& document, SkinWriter& writer,
                     const std::filesystem::path& folder, const SaveHooks& hooks);

/// The bytes of QOR_Skin.xml for a generated text.
[[nodiscard]] std::string skinFileBytes(std::string_view xmlText);

} // namespace tarvel
