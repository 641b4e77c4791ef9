// The visibility conditions of the dashboard: a fixed table, and look-up in it.
#pragma once

#include <array>
#include <string_view>

namespace tarvel {

/// A row of the condition list: what is stored, and what it means.
struct ConditionRow {
    std::string_view text;
    std::string_view description;
};

/// "ItemNext " is stored and compared with its blank.
inline constexpr std::array<ConditionRow, 7> conditionRows = {
    {{"None", "Element will always show up"},
     {"ItemPrev", "Element shows up if there is one or more displayable menu items not visible at "
                  "the head of the item list"},
     {"ItemNext ", "Element shows up if there is one or more displayable menu items not visible at "
                   "the tail of the menu list"},
     {"ItemEntry", "Element shows up if the currently selected menu item is NOT a sub menu entry"},
     {"ItemSubMenu", "Element shows up if the currently selected menu item is a sub menu entry"},
     {"ItemPassCode",
      "Element shows up if the currently selected menu item requires passcode entry"},
     {"ItemNoPassCode",
      "Element shows up if the currently selected menu item does not require passcode entry"}}};

/// The last row whose text equals `text` in any letter case; 0, "None", when there is none.
[[nodiscard]] int getcondNum(std::string_view text);

} // namespace tarvel
