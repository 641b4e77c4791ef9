// What the description of an element in a skin file tells, found once for all kinds.
#pragma once

#include "document/skin_document.h"
#include "text/xml_node.h"

#include <array>
#include <string_view>

namespace tarvel {

/// The description of one element: its node, and the children that several kinds look for. Of
/// contents the last counts, of nodes the first.
struct ElementDescription {
    /// Finds the children in one walk: loading makes thousands of elements.
    ElementDescription(const SkinDocument& document, std::string_view source, XmlNode node);

    const SkinDocument& document; ///< whose resources the source can name
    std::string_view source;      ///< the Source attribute
    XmlNode node;
    std::string_view color;
    std::string_view borderColor;
    std::string_view condition;
    std::string_view constant;
    bool hasConstant = false;
    std::string_view textColor; ///< of a TextColor without a Color child
    XmlNode textColorNode;      ///< with one
    bool timers = false;
    bool modifiers = false;

    static constexpr std::string_view modifierTag = "Modifier";
    static constexpr std::string_view timerTag = "Timer";

  private:
    void take(XmlNode child);
};

/// The attributes of a Pos node; of one given twice, in whatever letter case, the last.
struct PosTexts {
    explicit PosTexts(XmlNode node);

    std::string_view x, l, y, t, w, h;
    std::string_view x1, y1, x2, y2;

  private:
    std::string_view* memberNamed(std::string_view name);
};

/// The numbers of a place before they are stored as singles.
using PlaceNumbers = std::array<double, 4>;

// The ways in which kinds read a place. A corner can be given as X and Y, as L and T, or as both.

/// Both spellings are numbers, and added.
[[nodiscard]] PlaceNumbers summedPlace(const PosTexts& pos);
/// Both spellings are one text: "10" and "20" are 1020.
[[nodiscard]] PlaceNumbers joinedPlace(const PosTexts& pos);
/// X1, Y1, X2 and Y2.
[[nodiscard]] PlaceNumbers endsPlace(const PosTexts& pos);

} // namespace tarvel
