// The catalogue of modifier types, read from "modifiers.xml": which types an element of a kind may
// have, on which targets, and which values a type takes.
#pragma once

#include "document/element.h"
#include "text/xml_node.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// The catalogue's file in the program's own folder.
inline constexpr std::string_view catalogueFileName = "modifiers.xml";

/// The catalogue's file: the one in the program's own folder, where it can be edited; where there
/// is none, the one that was installed with the program, if that is there.
[[nodiscard]] std::filesystem::path catalogueFile(const std::filesystem::path& programFolder);

/// That of the running program: the user's in programFolder(), or else the one that the program
/// came with.
[[nodiscard]] std::filesystem::path programsCatalogue();

/// The first row of every list of types: no modifier.
inline constexpr std::string_view noModifier = "None";

/// The values that a modifier type takes beyond its target.
enum class ParameterPanel : std::uint8_t { none, Range, Bounds, Color };

/// The motion that stands for a modifier type while a screen plays.
enum class ModifierPreview : std::uint8_t {
    still,   ///< none: what the type does is not known
    color,   ///< colour channels swing
    opacity, ///< the opacity goes up and down
    scale,   ///< the size does
    move     ///< the element travels
};

/// The parsed file. Whatever is missing from it, offers less: a catalogue without anything offers
/// "None" only. No member function fails.
class ModifierCatalogue {
  public:
    ModifierCatalogue() = default;
    explicit ModifierCatalogue(XmlTree tree);

    /// The catalogue in a file; an empty one when the file is missing, unreadable or no XML.
    [[nodiscard]] static ModifierCatalogue read(const std::filesystem::path& file);

    /// "None", then the types for a kind in file order. Where no entry of the catalogue is for the
    /// kind, the entries themselves are offered as if they were types.
    [[nodiscard]] std::vector<std::string> typesFor(ElementKind kind) const;

    /// The targets of a type on a kind, in file order; those of the last entry where the type is
    /// listed twice. None when the type is not listed or its text is blank.
    [[nodiscard]] std::vector<std::string> targetsOf(ElementKind kind, std::string_view type) const;

    /// The word that names the type's values, as it is spelt; "" for an unknown type. Valid while
    /// the catalogue lives, unmoved.
    [[nodiscard]] std::string_view panelName(std::string_view type) const;

    /// The type's values by that word; letter case matters.
    [[nodiscard]] ParameterPanel panelOf(std::string_view type) const;

    /// How a type plays: by its attribute "preview", in any letter case, as long as the type has
    /// the values for it; without the attribute a Color type plays as `color`, and any other word
    /// leaves the element still.
    [[nodiscard]] ModifierPreview previewOf(std::string_view type) const;

  private:
    [[nodiscard]] XmlNode kindEntry(ElementKind kind) const;

    XmlTree tree_;
};

/// True for a target that is shown but not written: its text begins with "(".
[[nodiscard]] bool isPlaceholderTarget(std::string_view target);

} // namespace tarvel
