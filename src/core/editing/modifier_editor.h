// What the modifier panel shows and stores: the rules of the panel without its widgets.
#pragma once

#include "document/modifier_catalogue.h"
#include "editing/color_channels.h"
#include "text/xml_node.h"

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// A stored modifier that cannot be shown; what() is for the user.
class ModifierShowError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The value boxes of the panel. They keep what they show from one element to the next.
struct ModifierValues {
    std::array<std::string, 2> range{"0", "0"};            ///< X, Y, as typed
    std::array<std::string, 4> bounds{"0", "0", "0", "0"}; ///< L, T, R, B, as typed
    std::array<ColorChannel, channelCount> channels;       ///< by the order of channelNames

    bool operator==(const ModifierValues&) const = default;
};

/// The types of Modifier nodes in their order, as spelt; "" for one without a type.
[[nodiscard]] std::vector<std::string> modifierTypes(const XmlTree& modifiers);

/// Edits the first modifier of one element at a time. An element's further modifiers are neither
/// shown nor changed.
class ModifierEditor {
  public:
    /// Starts with an element of a kind and the Modifier nodes that it has.
    ///
    /// A modifier without parameter children, or of a type that the kind does not have, shows as
    /// "None"; of the values only those that the node gives change, up to the first channel that
    /// it lacks. Values of a Bounds modifier are not shown: the boxes stay.
    /// Throws ModifierShowError when a modifier cannot be shown; what was shown until then stays.
    void open(ModifierCatalogue catalogue, ElementKind kind, const XmlTree& modifiers);

    /// Rows of the type list and of the target list. A target row of -1 is none.
    [[nodiscard]] const std::vector<std::string>& mods() const { return mods_; }
    [[nodiscard]] const std::vector<std::string>& targets() const { return targets_; }
    [[nodiscard]] int modRow() const { return modRow_; }
    [[nodiscard]] int targetRow() const { return targetRow_; }
    /// The target list is hidden for "None".
    [[nodiscard]] bool targetsShown() const { return modRow_ > 0; }
    /// The frame that is shown for the chosen type.
    [[nodiscard]] ParameterPanel frame() const { return frame_; }

    /// Whether the catalogue has the chosen type for a kind; "None" is for all.
    [[nodiscard]] bool isOffered(ElementKind kind) const;

    /// Chooses a type, 0 for "None", and with it the first of its targets.
    void chooseType(int row);
    /// Chooses a target; row < targets().size().
    void chooseTarget(int row);

    /// The last row of that text, letter case included; 0 when there is none.
    [[nodiscard]] int getModNum(std::string_view name) const;
    [[nodiscard]] int getTarNum(std::string_view name) const;

    [[nodiscard]] ModifierValues& values() { return values_; }
    [[nodiscard]] const ModifierValues& values() const { return values_; }

    /// The element's Modifier nodes with the first replaced by what is shown, or taken away when no
    /// target is chosen.
    [[nodiscard]] XmlTree stored(const XmlTree& before) const;

  private:
    void showModifier(XmlNode modifier);
    void addModifier(XmlTree& tree) const;

    ModifierCatalogue catalogue_;
    ElementKind kind_ = ElementKind::Box;
    std::vector<std::string> mods_{std::string(noModifier)};
    std::vector<std::string> targets_;
    int modRow_ = 0;
    int targetRow_ = -1;
    ParameterPanel frame_ = ParameterPanel::none;
    ModifierValues values_;
};

} // namespace tarvel
