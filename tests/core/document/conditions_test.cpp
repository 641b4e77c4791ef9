// The table of conditions and its look-up.
#include "document/conditions.h"
#include "document/layout_screens.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tarvel {
namespace {

TEST(Conditions, HaveTheirTextsAndDescriptions) {
    constexpr ConditionRow expected[] = {
        {"None", "Element will always show up"},
        {"ItemPrev", "Element shows up if there is one or more displayable menu items not visible "
                     "at the head of the item list"},
        {"ItemNext ", "Element shows up if there is one or more displayable menu items not visible "
                      "at the tail of the menu list"},
        {"ItemEntry",
         "Element shows up if the currently selected menu item is NOT a sub menu entry"},
        {"ItemSubMenu", "Element shows up if the currently selected menu item is a sub menu entry"},
        {"ItemPassCode",
         "Element shows up if the currently selected menu item requires passcode entry"},
        {"ItemNoPassCode",
         "Element shows up if the currently selected menu item does not require passcode entry"}};
    ASSERT_EQ(conditionRows.size(), std::size(expected));
    for (std::size_t row = 0; row < conditionRows.size(); ++row) {
        EXPECT_EQ(conditionRows.at(row).text, expected[row].text);
        EXPECT_EQ(conditionRows.at(row).description, expected[row].description) << row;
    }
}

TEST(GetcondNum, IgnoresCaseAndCountsBlanks) {
    struct Case {
        std::string_view text;
        int row;
    };
    constexpr Case cases[] = {
        {"None", 0},           {"none", 0},         {"", 0},          {"ItemPrev", 1},
        {"ITEMPREV", 1},       {"ItemNext ", 2},    {"itemnext ", 2}, {"ItemNext", 0},
        {"ItemNext  ", 0},     {" ItemNext ", 0},   {"ItemEntry", 3}, {"itemsubmenu", 4},
        {"ItemSubMenu ", 0},   {"ItemPassCode", 5}, {"ItemPass", 0},  {"ItemNoPassCode", 6},
        {"itemNOpasscode", 6}, {"Something", 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(getcondNum(c.text), c.row) << '"' << c.text << '"';
    }
}

TEST(Conditions, ButTheFirstMarkTheirElement) {
    for (std::size_t row = 0; row < conditionRows.size(); ++row) {
        EXPECT_EQ(isNoCondition(conditionRows.at(row).text), row == 0) << row;
    }
}

} // namespace
} // namespace tarvel
