// What the property panel holds, which of its controls belong to a kind, and how an element is
// shown in it.
#pragma once

#include "document/element.h"
#include "document/skin_settings.h"
#include "editing/menu_frame.h"
#include "editing/position_fields.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// A colour swatch. A transparent one has no colour chosen.
struct Swatch {
    FillStyle fillStyle = FillStyle::transparent;
    ColorNumber color = 0;

    bool operator==(const Swatch&) const = default;
};

/// What the controls of the panel hold, by their names. The panel keeps its values when nothing is
/// selected: they are those of the next element that is drawn.
struct PanelValues {
    Swatch lColor{FillStyle::solid, makeColor(255, 255, 255)}; ///< border, or line
    Swatch fColor;                                             ///< fill, or font
    std::string txtAlpha = "100";                              ///< opacity in percent, as typed
    std::string txtText;
    /// An entry of predefinedTexts is selected in txtText, or the text came from an element that
    /// shows a field of the dashboard; false once text was typed.
    bool textIsEntry = false;
    FontChoice cmdFont;
    int lstR = -1; ///< position of the chosen resource in the skin's list; -1 for none
    MenuFrame fraQor;
    PositionTexts position;

    bool operator==(const PanelValues&) const = default;
};

/// The user chose a colour for a swatch.
void chooseColor(Swatch& swatch, ColorNumber color);
/// What the buttons cmdClearL and cmdClearF do.
void clearBorder(PanelValues& values);
void clearFill(PanelValues& values);

/// Which controls of the panel are shown.
struct PanelLayout {
    /// The kind that is noted as shown; none for a png control.
    std::optional<ElementKind> kindFlag;
    bool fraShared = false; ///< colours and opacity
    bool fraBox = false;    ///< fill or font colour, and opacity: the lower part of fraShared
    bool fraText = false;
    bool fraImg = false;
    bool fraQor = false;
    bool borderColor = false; ///< lblBorderColor, lColor, lblL and cmdClearL
    bool fillColor = false;   ///< lblFillColor, fColor and lblF
    bool cmdClearF = false;
    bool alpha = false; ///< lblAlpha and txtAlpha
    std::string_view lblBorderColor;
    std::string_view lblFillColor;

    bool operator==(const PanelLayout&) const = default;
};

/// The controls for a kind of control. Of the values it changes swatches: a line's is solid, and
/// a text's font swatch always solid white, whatever colour the text has.
PanelLayout editControls(ControlKind kind, PanelValues& values);

/// Shows an element in the panel, then calls editControls() for it. The font is not read back.
/// `resources` are those of the skin; an image whose resource is not among them shows the first.
PanelLayout showEditControls(const Element& element, const std::vector<Resource>& resources,
                             PanelValues& values);

} // namespace tarvel
