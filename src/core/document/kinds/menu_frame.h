// The frame of the item menu's settings, and how its values come from an element and go back.
#pragma once

#include "document/skin_document.h"

#include <array>
#include <string>
#include <string_view>

namespace tarvel {

/// The entries of both alignment choosers; the position is the TextAlignment.
inline constexpr std::array<std::string_view, 3> alignmentEntries = {"Left", "Right", "Center"};

/// A check box: on, off, or neither where several menus differ. Reads as off then.
class CheckValue {
  public:
    // It stands wherever a plain "on" does.
    constexpr CheckValue(bool on) // NOLINT(google-explicit-constructor)
        : on_(on) {}
    [[nodiscard]] static constexpr CheckValue various() {
        CheckValue value(false);
        value.various_ = true;
        return value;
    }

    constexpr operator bool() const { return on_; } // NOLINT(google-explicit-constructor)
    [[nodiscard]] constexpr bool isVarious() const { return various_; }

    bool operator==(const CheckValue&) const = default;
    bool operator==(bool on) const { return !various_ && on_ == on; }

  private:
    bool on_;
    bool various_ = false;
};

/// An item menu's settings as they are typed and chosen; at first those of a new menu.
struct MenuFrame {
    CheckValue thumbnailsVisible = true;
    CheckValue smoothScroll = true;
    CheckValue glowSelected = false;
    CheckValue showDescription = true;
    std::string scrollFactor = "3"; ///< as typed
    std::string itemsShown = "5";   ///< as typed
    int titleAlignment = 0;         ///< position in alignmentEntries
    int descriptionAlignment = 1;   ///< position in alignmentEntries
    ColorNumber selectedTitleColor = makeColor(255, 255, 255);
    ColorNumber unselectedTitleColor = makeColor(255, 255, 255);
    ColorNumber selectedDescriptionColor = makeColor(255, 255, 255);
    ColorNumber unselectedDescriptionColor = makeColor(255, 255, 255);
    /// Of both previews of titles. Follows only the user's choices.
    TextAlignment titlePreview = TextAlignment::left;
    /// Of both previews of descriptions. Follows only the user's choices.
    TextAlignment descPreview = TextAlignment::right;

    bool operator==(const MenuFrame&) const = default;
};

/// Shows the settings in the frame. An alignment that is no entry of the choosers shows as "Left".
/// The previews' alignments stay.
void showMenuSettings(const MenuSettings& settings, MenuFrame& frame);

/// The settings that the frame shows. Numbers are read leniently, rounded with halves to even and
/// held at -32,768 to 32,767; only one that is exactly 0 becomes 1.
[[nodiscard]] MenuSettings menuSettingsOf(const MenuFrame& frame);

/// The user chose an entry (0 to 2) for the titles or the descriptions.
void chooseTitleAlign(MenuFrame& frame, int position);
void chooseDescAlign(MenuFrame& frame, int position);

} // namespace tarvel
