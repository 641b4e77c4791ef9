// The frame of the item menu's settings, and how its values come from an element and go back.
//
// The booleans of a menu's record are plain bools: true stands for the 16-bit number -1, false for
// 0; a ticked box is true.
#pragma once

#include "document/skin_document.h"

#include <array>
#include <string>
#include <string_view>

namespace tarvel {

/// The entries of both alignment choosers; the position is the TextAlignment.
inline constexpr std::array<std::string_view, 3> alignmentEntries = {"Left", "Right", "Center"};

/// What the controls of fraQor hold, by their names; at first the settings of a new menu.
struct MenuFrame {
    bool chkThumbVis = true;
    bool chkSmoothScroll = true;
    bool chkSelGlow = false;
    bool chkShowDesc = true;
    std::string txtScrollFactor = "3";
    std::string txtNumItems = "5";
    int cmbTitleAlign = 0; ///< position in alignmentEntries
    int cmbDescAlign = 1;
    // Backgrounds of the colour boxes, and text colours of the preview labels that belong to them.
    ColorNumber colSelTitle = makeColor(255, 255, 255);
    ColorNumber colUnselTitle = makeColor(255, 255, 255);
    ColorNumber colSelDesc = makeColor(255, 255, 255);
    ColorNumber colUnselDesc = makeColor(255, 255, 255);
    /// Of the previews lblSelTitle and lblUnselTitle. Follows only the user's choices.
    TextAlignment titlePreview = TextAlignment::left;
    /// Of the previews lblSelDesc and lblUnselDesc. Follows only the user's choices.
    TextAlignment descPreview = TextAlignment::right;

    bool operator==(const MenuFrame&) const = default;
};

/// Shows the settings in the frame. An alignment that is no entry of the choosers shows as "Left".
/// The previews' alignments stay.
void showMenuSettings(const MenuSettings& settings, MenuFrame& frame);

/// The settings that the frame shows. Numbers are read leniently, rounded with halves to even and
/// held at the limits of 16 bits; only one that is exactly 0 becomes 1.
[[nodiscard]] MenuSettings menuSettingsOf(const MenuFrame& frame);

/// The settings of the last menu that was made after an element, as when a skin was loaded; nullptr
/// when none was. Good until the document changes.
[[nodiscard]] const MenuSettings* lastMenuAfter(const SkinDocument& document, int elementId);

/// The user chose an entry (0 to 2) of cmbTitleAlign or cmbDescAlign.
void chooseTitleAlign(MenuFrame& frame, int position);
void chooseDescAlign(MenuFrame& frame, int position);

} // namespace tarvel
