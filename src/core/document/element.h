// One element of a skin: what the dashboard is told of it, and the state of the control that draws
// it.
//
// Positions and sizes are skin pixels of the 640 by 480 screen, origin top left, y downward.
#pragma once

#include "document/kind_list.h"
#include "document/shared_value.h"
#include "text/value_encodings.h"
#include "text/xml_node.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvel {

/// The name of a control: "box", "lin", "img", "png", "vid", "txt" or "qor".
[[nodiscard]] std::string_view controlName(ControlKind kind);

enum class FillStyle : std::uint8_t { solid = 0, transparent = 1 };
enum class BorderStyle : std::uint8_t { none = 0, solid = 1 };
/// Values as the alignment choosers number them.
enum class TextAlignment : std::uint8_t { left = 0, right = 1, center = 2 };

/// What an image control shows.
enum class PictureContent : std::uint8_t {
    file,        ///< the control's file; unreadable files show as a crossed frame
    programIcon, ///< the built-in picture of a program
    barred       ///< a file outside the skin's folder, which is never opened
};

/// The font of a Text element. A skin file carries no fonts.
struct FontChoice {
    std::string family = "Tahoma";
    float size = 8.25F; ///< points at 96 dots per inch
    bool bold = false;
    bool underline = false;

    bool operator==(const FontChoice&) const = default;
};

/// The drawn object of an element: everything that is not kept in the tables.
struct ElementControl {
    ControlKind kind = ControlKind::box;
    FillStyle fillStyle = FillStyle::transparent;
    BorderStyle borderStyle = BorderStyle::none;
    TextAlignment alignment = TextAlignment::left;
    PictureContent picture = PictureContent::file;

    float left = 0; ///< of a rectangle
    float top = 0;
    float width = 0;
    float height = 0;
    float X1 = 0; ///< of what has two ends
    float Y1 = 0;
    float X2 = 0;
    float Y2 = 0;

    ColorNumber fillColor = 0;
    ColorNumber borderColor = 0; ///< of a lin: the colour of the line
    ColorNumber textColor = 0;

    std::string caption; ///< txt: the fixed text or the name of the text source
    std::string file;    ///< img, png, vid: path with backslashes
    SharedValue<FontChoice> font;

    bool operator==(const ElementControl&) const = default;
};

/// Settings of an item menu. The colours are decimal colour numbers kept as text.
struct MenuSettings {
    bool thumbnailsVisible = true;
    bool smoothScroll = true;
    std::int16_t scrollFactor = 3;
    std::int16_t itemsShown = 5;
    bool glowSelected = false;
    bool showDescription = true;
    std::string titleAlignment = "left";
    std::string descriptionAlignment = "right";
    std::string selectedTitleColor = "16777215";
    std::string unselectedTitleColor = "16777215";
    std::string selectedDescriptionColor = "16777215";
    std::string unselectedDescriptionColor = "16777215";

    bool operator==(const MenuSettings&) const = default;
};

/// Timer slots of an element, in milliseconds; 0 is not set.
enum class TimerSlot : std::uint8_t { Delay, CycleOn, CycleOff, Lifetime };
inline constexpr std::size_t timerSlots = 4;

/// The record of one element id.
struct Element {
    ElementKind elementKind = ElementKind::Box;
    bool elementLocked = false;
    bool textIsConstant = false; ///< Text: fixed text rather than a source of the dashboard
    std::int16_t elementLayout = 0;
    std::int16_t elementAlpha = 100; ///< opacity in percent
    std::array<std::int32_t, timerSlots> elementTimers{};
    ElementControl elementControl;
    std::string label; ///< the text of the element's row in its screen's list
    std::string imageSource;
    std::string elementCondition; ///< "" for none
    /// The element's Modifier nodes as top-level elements; empty without one.
    SharedValue<XmlTree> elementModifiers;
    SharedValue<MenuSettings> menuSettings;

    bool operator==(const Element&) const = default;
};

} // namespace tarvel
