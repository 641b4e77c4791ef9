// What several kinds have in common: rectangles and colours in the file and in the panel.
#pragma once

#include "document/element_kinds.h"

#include <string_view>

namespace tarvel {

inline constexpr ColorNumber white = makeColor(255, 255, 255);

/// What the file has of a colour number: its 24 bits.
[[nodiscard]] constexpr ColorNumber keptColor(ColorNumber color) {
    return color & 0xFFFFFFU;
}

/// The opacity of an element, out of the text of its colour.
[[nodiscard]] std::int16_t opacityIn(std::string_view color);

/// A colour with opacity in its form of the file, where an opacity over 100 shifts the colour's
/// digits.
[[nodiscard]] std::string fileColor(std::int16_t opacity, ColorNumber color);

/// Whether no colour is chosen.
[[nodiscard]] bool isClear(const Swatch& swatch);
/// Whether the opacity cannot be taken for a new element. An exact "0" and negative numbers can.
[[nodiscard]] bool isBadOpacity(std::string_view text);
/// The opacity as it is shown.
[[nodiscard]] std::string opacityText(const Element& element);

// The place of a rectangle as a line of the file, and its form.
void writeRectangle(const ElementControl& control, LineWriter& lines);
void addRectangleForm(const ElementForms& element);
/// The form of a line `<name>colour</name>`, given start and end tag.
void addColorForm(const ElementForms& element, std::string_view start, std::string_view end);

// Fill and border of an area.
void readArea(Element& element, const ElementDescription& description);
void writeArea(const Element& element, LineWriter& lines);
void addAreaForms(const ElementForms& element);
void keepArea(Element& record, const Element& element);
[[nodiscard]] PanelLayout areaPanel();
void showArea(const Element& element, PanelValues& values);
void takeArea(const PanelValues& values, ElementControl& control);
[[nodiscard]] std::vector<std::string_view> areaFaults(const PanelValues& values);

} // namespace tarvel
