// Adding resources: which names may be taken, what names are suggested, and the pictures that the
// dashboard itself supplies.
#pragma once

#include "document/skin_document.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

inline constexpr std::string_view reservedNameMessage = "Use a different resource name";
inline constexpr std::string_view takenNameMessage = "Enter a unique resource name";
/// The name of the background resource; not for others, in exactly this spelling.
inline constexpr std::string_view reservedName = "bground";

/// A picture that the dashboard supplies.
struct PresetResource {
    std::string_view entry;
    std::string_view description;
};

inline constexpr std::string_view presetWithoutDescription = "---";
inline constexpr std::array<PresetResource, 18> presetResources = {{
    {"PreviewMedia", "This shows each game's preview video or screenshot"},
    {"GameIcon", "This shows each game's icon"},
    {"::ICO_ACTION", presetWithoutDescription},
    {"::ICO_DIR", presetWithoutDescription},
    {"::ICO_DVD", presetWithoutDescription},
    {"::ICO_EMU", presetWithoutDescription},
    {"::ICO_FILE", presetWithoutDescription},
    {"::ICO_HD", presetWithoutDescription},
    {"::ICO_LOCK", presetWithoutDescription},
    {"::ICO_MEDIA", presetWithoutDescription},
    {"::ICO_MUSIC", presetWithoutDescription},
    {"::ICO_WAVE", presetWithoutDescription},
    {"::ICO_XBE", presetWithoutDescription},
    {"::SkyTile", presetWithoutDescription},
    {"::Logo", presetWithoutDescription},
    {"::HelpGCScreen", presetWithoutDescription},
    {"::HelpKBScreen", presetWithoutDescription},
    {"::HelpIRScreen", presetWithoutDescription},
}};

/// The XML fragment that a preset entry stands for; its first two characters decide.
[[nodiscard]] std::string presetContent(std::string_view entry);
/// The name suggested for a preset entry: its text without any "::".
[[nodiscard]] std::string presetName(std::string_view entry);
/// The name suggested for a file: its document path without folders and extension.
[[nodiscard]] std::string suggestedName(std::string_view path);

/// What became of a wish to add a resource.
enum class AddOutcome : std::uint8_t {
    added,
    reserved,  ///< the name is reservedName
    taken,     ///< another resource has exactly this name
    incomplete ///< something is not filled in or chosen yet
};

/// Adds a file under a name, unless the name is reserved or taken, or either is empty.
AddOutcome addCustomResource(SkinDocument& document, std::string_view name, std::string_view path);
/// Adds each of the files, document paths, under its suggested name, and returns how many. One
/// whose name is taken, in whatever letter case, or reserved gets the first free of "Name 2", "Name
/// 3" and so on, as a pasted resource does. Left out are files that the skin has under such a name
/// already. Takes time as the files and the resources grow. The observers are told once.
int addCustomResources(SkinDocument& document, const std::vector<std::string>& paths);
/// Adds a preset by its place in presetResources, unless the name is taken or `preset` is -1. Here
/// no name is reserved.
AddOutcome addPresetResource(SkinDocument& document, int preset, std::string_view name);

} // namespace tarvel
