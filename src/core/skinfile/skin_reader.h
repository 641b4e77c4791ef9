// Reads a skin folder into a document.
#pragma once

#include "document/skin_document.h"
#include "skinfile/skin_text.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

inline constexpr std::string_view skinFileName = "QOR_Skin.xml";
inline constexpr std::string_view loadFolderTitle = "Select skin folder to open";
/// Shown before loading into a document that holds anything; loading goes on all the same.
inline constexpr std::string_view loadAdvice =
    "Before loading, (save your work) and restart the program to clear all memory";
inline constexpr std::string_view noSkinFile =
    "The selected folder does not contain a QOR_Skin.xml file";

/// A skin that cannot be read; what() is one line for the user.
class SkinReadError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What is worth telling about a skin that was read.
struct SkinReadNotes {
    SkinTextNotes text;
    /// Names of the resources whose files lie outside the skin's folder, with the reason where a
    /// name that Windows cannot have keeps them from it.
    std::vector<std::string> outside;
};

/// The skin's own file in a folder, whatever the letter case of its name.
[[nodiscard]] std::filesystem::path skinFilePath(const std::filesystem::path& folder);

/// Adds the skin in the folder to what the document holds, skin-wide settings and elements, and
/// shows the "Menu" screen. Throws SkinReadError and leaves the document as it was when the folder
/// has no skin file or the file cannot be read, whatever the reason.
SkinReadNotes readSkin(SkinDocument& document, const std::filesystem::path& folder);

/// Adds a skin that is parsed already. `folder` is where its files lie.
void readSkinTree(SkinDocument& document, XmlNode root, const std::filesystem::path& folder,
                  SkinReadNotes& notes);

/// The resource of a Resource node, its file as it is spelt there but with backslashes; nothing for
/// a node whose type is not Image.
[[nodiscard]] std::optional<Resource> describedResource(XmlNode node);

/// Whether elements lie deeper below the root than any that means something.
[[nodiscard]] bool isTooDeep(XmlNode root);

/// The beginning and the names after it, parted by commas; "" for no names.
[[nodiscard]] std::string listMessage(std::string_view beginning,
                                      const std::vector<std::string>& names);

/// The name of a resource outside, with the reason where the host cannot have a name in the path of
/// its file.
[[nodiscard]] std::string outsideName(std::string_view name, std::string_view file);

/// One sentence naming the resources outside the skin's folder; "" for none.
[[nodiscard]] std::string outsideMessage(const std::vector<std::string>& names);

} // namespace tarvel
