// What the property panel holds of an element, and which parts of it belong to an element: the
// values as they are typed and chosen, before they become the element's.
#pragma once

#include "document/element.h"
#include "document/kinds/menu_frame.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tarvel {

/// A colour swatch. A transparent one has no colour chosen.
struct Swatch {
    FillStyle fillStyle = FillStyle::transparent;
    ColorNumber color = 0;

    bool operator==(const Swatch&) const = default;
};

/// The four numbers of a place as texts, in the order of a Place.
using PositionTexts = std::array<std::string, 4>;

/// The panel keeps its values when nothing is selected: they are those of the next element that is
/// drawn.
struct PanelValues {
    Swatch border{FillStyle::solid, makeColor(255, 255, 255)}; ///< or line
    Swatch fill;                                               ///< or font
    std::string opacity = "100";                               ///< in percent, as typed
    std::string text;
    /// The text is one of predefinedTexts that was chosen, or came from an element that shows a
    /// field of the dashboard; false once text was typed.
    bool textIsEntry = false;
    FontChoice font;
    int resource = -1; ///< position of the chosen resource in the skin's list; -1 for none
    MenuFrame menu;
    PositionTexts position;

    bool operator==(const PanelValues&) const = default;
};

/// Which parts of the panel are shown.
struct PanelLayout {
    /// The kind that is noted as shown; none for a png control.
    std::optional<ElementKind> kindFlag;
    bool colors = false;   ///< colours and opacity
    bool fillPart = false; ///< fill or font colour, and opacity: the lower part of the colours
    bool text = false;
    bool resource = false;
    bool menu = false;
    bool borderColor = false; ///< border or line colour
    bool fillColor = false;   ///< fill or font colour
    bool clearFill = false;   ///< the fill can be cleared
    bool opacity = false;
    std::string_view borderCaption;
    std::string_view fillCaption;

    bool operator==(const PanelLayout&) const = default;
};

} // namespace tarvel
