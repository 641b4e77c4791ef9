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
    /// Why folders of the skin could not be made; the copying goes on all the same.
    std::vector<std::string> folderProblems;
    /// Ended early: nothing could be begun (writeProblem tells why), or a copy failed or was
    /// cancelled.
    bool stopped = false;
    /// Resources outside the skin's folder, which were not copied.
    std::vector<std::string> leftOut;
    /// File names that stood for two files, of which the later one was kept.
    std::vector<std::string> sharedNames;

    [[nodiscard]] bool succeeded() const {
        return textWritten && folderProblems.empty() && !stopped;
    }
};

/// Saves into an existing folder. Existing files are replaced, each only when its new content is
/// whole. The document keeps its content; its shown screen becomes "Menu".
///
/// Nothing is written where folderProblem() refuses the folder, the text cannot be generated,
/// somebody else is saving into the folder, its Media or Music leads elsewhere, or one file of the
/// skin would take the place of another one's original.
SaveOutcome saveSkin(SkinDocument& document, SkinWriter& writer,
                     const std::filesystem::path& folder, const SaveHooks& hooks);

/// One sentence naming the file names that stood for two files; "" for none.
[[nodiscard]] std::string sharedNamesMessage(const std::vector<std::string>& names);

/// The bytes of QOR_Skin.xml for a generated text.
[[nodiscard]] std::string skinFileBytes(std::string_view xmlText);

} // namespace tarvel
