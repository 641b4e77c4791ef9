// The colours of the dashboard's message box and system menu: which there are, how they are
// labelled, and which opacities are proper.
#pragma once

#include "document/skin_settings.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace tarvel {

inline constexpr std::string_view opacityMessage = "Enter a proper opacity value";
/// The opacity box stands in the run of blanks.
inline constexpr std::string_view opacityLabel = " Opacity            %";

/// What a colour is used for.
enum class ColorUse : std::uint8_t {
    border, ///< of a sample box
    fill,   ///< of a sample box
    text    ///< a sample text
};

/// One colour of the system colours: the sample box (0 message box, 1 system menu) or the
/// SampleText that it belongs to.
struct SystemColor {
    ColorUse use = ColorUse::border;
    std::size_t index = 0;
    std::string_view label;   ///< as shown; empty for a colour without a label
    std::string_view meaning; ///< in plain words
};

/// The colours of a group in the order of their labels. The misspelt label is meant to be.
inline constexpr std::array<SystemColor, 4> messageBoxColors = {{
    {ColorUse::border, 0, "Boder Color", "Border color of the message box"},
    {ColorUse::text, 0, "Text Color", "Text color of the message box"},
    {ColorUse::text, 1, "Shadow Color", "Shadow color of the message box"},
    {ColorUse::fill, 0, "Box Color", "Box color of the message box"},
}};
inline constexpr std::array<SystemColor, 6> systemMenuColors = {{
    {ColorUse::border, 1, "Boder Color", "Border color of the system menu"},
    {ColorUse::text, 4, "Text Color", "Text color of the system menu"},
    {ColorUse::text, 2, "Select Color", "Select color, for the selected text of the system menu"},
    {ColorUse::text, 5, "Value Color", "Value color of the system menu"},
    {ColorUse::text, 3, "Select Value Color",
     "Select value color, for the selected value of the system menu"},
    {ColorUse::fill, 1, "", "Box color of the system menu"},
}};

/// A group of colours: 0 message box, 1 system menu.
struct ColorGroup {
    std::string_view caption;
    std::span<const SystemColor> colors;
};
inline constexpr std::array<ColorGroup, 2> colorGroups = {
    {{"MESSAGE BOX:", messageBoxColors}, {"SYSTEM MENU:", systemMenuColors}}};

/// The sample texts, by SampleText.
inline constexpr std::array<std::string_view, 6> sampleTexts = {"Text",  "Text",       "Selected",
                                                                "Value", "Unselected", "Value"};

[[nodiscard]] ColorNumber colorOf(const SystemColors& colors, const SystemColor& which);
void setColor(SystemColors& colors, const SystemColor& which, ColorNumber value);

/// False for a text whose number is 0 unless it is exactly "0". There is no upper bound.
[[nodiscard]] bool isProperOpacity(std::string_view text);
/// The first box whose opacity is not proper; -1 when both are.
[[nodiscard]] int firstImproperOpacity(const SystemColors& colors);

} // namespace tarvel
