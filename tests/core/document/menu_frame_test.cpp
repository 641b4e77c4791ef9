// The item menu's settings in the frame and back.
#include "document/kinds/menu_frame.h"
#include "document/kinds/panel_texts.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvel {
namespace {

TEST(MenuFrame, StartsWithTheSettingsOfANewMenu) {
    MenuFrame frame;
    EXPECT_EQ(frame.itemsShown, "5");
    EXPECT_EQ(frame.scrollFactor, "3");
    showMenuSettings(MenuSettings{}, frame);
    EXPECT_EQ(frame, MenuFrame{});
}

TEST(MenuFrame, HasItsFixedTexts) {
    EXPECT_EQ(alignmentEntries, (std::array<std::string_view, 3>{"Left", "Right", "Center"}));
    EXPECT_EQ(caption::thumbnailsVisible, "Thumbnails visible");
    EXPECT_EQ(caption::smoothScroll, "Smooth Scrolling");
    EXPECT_EQ(caption::scrollFactor, "Scroll Factor");
    EXPECT_EQ(caption::itemsShown, "# of games shown at a time");
    EXPECT_EQ(caption::glowSelected, "Glow Selected items");
    EXPECT_EQ(caption::showDescription, "Show Game Description");
    EXPECT_EQ(caption::selectedTitle, "Selected Title");
    EXPECT_EQ(caption::unselectedTitle, "Unselected Title");
    EXPECT_EQ(caption::selectedDescription, "Selected Description");
    EXPECT_EQ(caption::unselectedDescription, "Unselected Description");
    EXPECT_EQ(caption::preview, "Preview:");
    EXPECT_EQ(caption::alignment, "Alignment:");
    EXPECT_EQ(caption::gameTitle, "Game Title");
    EXPECT_EQ(caption::gameDescription, "Game Description");
}

TEST(ShowMenuSettings, FillsEveryControl) {
    const MenuSettings settings{.thumbnailsVisible = false,
                                .smoothScroll = false,
                                .scrollFactor = -2,
                                .itemsShown = 12,
                                .glowSelected = true,
                                .showDescription = false,
                                .titleAlignment = "Right",
                                .descriptionAlignment = "center",
                                .selectedTitleColor = "255",
                                .unselectedTitleColor = "65280",
                                .selectedDescriptionColor = "16711680",
                                .unselectedDescriptionColor = "1"};
    MenuFrame frame;
    showMenuSettings(settings, frame);
    MenuFrame expected;
    expected.thumbnailsVisible = false;
    expected.smoothScroll = false;
    expected.glowSelected = true;
    expected.showDescription = false;
    expected.scrollFactor = "-2";
    expected.itemsShown = "12";
    expected.titleAlignment = 1;
    expected.descriptionAlignment = 2;
    expected.selectedTitleColor = makeColor(255, 0, 0);
    expected.unselectedTitleColor = makeColor(0, 255, 0);
    expected.selectedDescriptionColor = makeColor(0, 0, 255);
    expected.unselectedDescriptionColor = makeColor(1, 0, 0);
    EXPECT_EQ(frame, expected);
}

TEST(ShowMenuSettings, ShowsEachBooleanInItsOwnBox) {
    const MenuSettings off{.thumbnailsVisible = false,
                           .smoothScroll = false,
                           .glowSelected = false,
                           .showDescription = false};
    using Boxes = std::array<bool, 4>;
    const auto boxes = [](const MenuSettings& settings) {
        MenuFrame frame;
        showMenuSettings(settings, frame);
        return Boxes{frame.thumbnailsVisible, frame.smoothScroll, frame.glowSelected,
                     frame.showDescription};
    };
    MenuSettings settings = off;
    settings.thumbnailsVisible = true;
    EXPECT_EQ(boxes(settings), (Boxes{true, false, false, false}));
    settings = off;
    settings.smoothScroll = true;
    EXPECT_EQ(boxes(settings), (Boxes{false, true, false, false}));
    settings = off;
    settings.glowSelected = true;
    EXPECT_EQ(boxes(settings), (Boxes{false, false, true, false}));
    settings = off;
    settings.showDescription = true;
    EXPECT_EQ(boxes(settings), (Boxes{false, false, false, true}));
}

TEST(ShowMenuSettings, FindsAlignmentsInAnyLetterCase) {
    struct Case {
        std::string text;
        int position;
    };
    const Case cases[] = {{"Left", 0},   {"left", 0},    {"Right", 1}, {"RIGHT", 1}, {"Center", 2},
                          {"center", 2}, {"Justify", 0}, {"", 0},      {"Centre", 0}};
    for (const auto& c : cases) {
        MenuSettings settings;
        settings.titleAlignment = c.text;
        settings.descriptionAlignment = c.text;
        MenuFrame frame;
        frame.titleAlignment = 1;
        frame.descriptionAlignment = 1;
        showMenuSettings(settings, frame);
        EXPECT_EQ(frame.titleAlignment, c.position) << c.text;
        EXPECT_EQ(frame.descriptionAlignment, c.position) << c.text;
    }
}

TEST(ShowMenuSettings, ReadsColoursLeniently) {
    struct Case {
        std::string text;
        ColorNumber color;
    };
    const Case cases[] = {{"255", 255},    {"", 0},         {"red", 0},
                          {"12abc", 12},   {"2.5", 2},      {"16777215", 0xFFFFFF},
                          {"16777216", 0}, {"-1", 0xFFFFFF}};
    for (const auto& c : cases) {
        MenuSettings settings;
        settings.selectedTitleColor = c.text;
        MenuFrame frame;
        showMenuSettings(settings, frame);
        EXPECT_EQ(frame.selectedTitleColor, c.color) << c.text;
    }
}

TEST(MenuSettingsOf, ReadsNumbersWithTheZeroRule) {
    struct Case {
        std::string text;
        std::int16_t number;
    };
    const Case cases[] = {
        {"5", 5},     {"0", 1},       {"", 1},          {"x", 1},         {"-0", 1},
        {"0.0", 1},   {"2.5", 2},     {"3.5", 4},       {"-3", -3},       {"0.4", 0},
        {"0.5", 0},   {"-0.4", 0},    {"7 games", 7},   {" 8", 8},        {"&H10", 1},
        {"1e2", 100}, {"1e9", 32767}, {"-1e9", -32768}, {"32768", 32767}, {"-2.5", -2},
    };
    for (const auto& c : cases) {
        MenuFrame frame;
        frame.itemsShown = c.text;
        EXPECT_EQ(menuSettingsOf(frame).itemsShown, c.number) << c.text;
        EXPECT_EQ(menuSettingsOf(frame).scrollFactor, 3) << c.text;
        frame = {};
        frame.scrollFactor = c.text;
        EXPECT_EQ(menuSettingsOf(frame).scrollFactor, c.number) << c.text;
        EXPECT_EQ(menuSettingsOf(frame).itemsShown, 5) << c.text;
    }
}

TEST(MenuSettingsOf, TakesEveryControl) {
    MenuFrame frame;
    frame.thumbnailsVisible = false;
    frame.smoothScroll = true;
    frame.glowSelected = true;
    frame.showDescription = false;
    frame.scrollFactor = "9";
    frame.itemsShown = "11";
    frame.titleAlignment = 2;
    frame.descriptionAlignment = 0;
    frame.selectedTitleColor = makeColor(255, 0, 0);
    frame.unselectedTitleColor = makeColor(0, 1, 0);
    frame.selectedDescriptionColor = makeColor(0, 0, 1);
    frame.unselectedDescriptionColor = makeColor(255, 255, 255);
    const MenuSettings expected{.thumbnailsVisible = false,
                                .smoothScroll = true,
                                .scrollFactor = 9,
                                .itemsShown = 11,
                                .glowSelected = true,
                                .showDescription = false,
                                .titleAlignment = "Center",
                                .descriptionAlignment = "Left",
                                .selectedTitleColor = "255",
                                .unselectedTitleColor = "256",
                                .selectedDescriptionColor = "65536",
                                .unselectedDescriptionColor = "16777215"};
    EXPECT_EQ(menuSettingsOf(frame), expected);
}

TEST(MenuSettingsOf, BringsBackWhatWasShown) {
    const MenuSettings settings{.thumbnailsVisible = false,
                                .smoothScroll = true,
                                .scrollFactor = -7,
                                .itemsShown = 1,
                                .glowSelected = true,
                                .showDescription = false,
                                .titleAlignment = "Center",
                                .descriptionAlignment = "Left",
                                .selectedTitleColor = "1",
                                .unselectedTitleColor = "2",
                                .selectedDescriptionColor = "3",
                                .unselectedDescriptionColor = "4"};
    MenuFrame frame;
    showMenuSettings(settings, frame);
    EXPECT_EQ(menuSettingsOf(frame), settings);
}

TEST(AlignmentPreviews, FollowTheUsersChoicesOnly) {
    MenuFrame frame;
    EXPECT_EQ(frame.titlePreview, TextAlignment::left);
    EXPECT_EQ(frame.descPreview, TextAlignment::right);
    chooseTitleAlign(frame, 2);
    EXPECT_EQ(frame.titleAlignment, 2);
    EXPECT_EQ(frame.titlePreview, TextAlignment::center);
    EXPECT_EQ(frame.descPreview, TextAlignment::right);
    chooseDescAlign(frame, 0);
    EXPECT_EQ(frame.descriptionAlignment, 0);
    EXPECT_EQ(frame.descPreview, TextAlignment::left);
    EXPECT_EQ(frame.titlePreview, TextAlignment::center);

    MenuSettings settings;
    settings.titleAlignment = "Right";
    settings.descriptionAlignment = "Right";
    showMenuSettings(settings, frame);
    EXPECT_EQ(frame.titleAlignment, 1);
    EXPECT_EQ(frame.titlePreview, TextAlignment::center);
    EXPECT_EQ(frame.descPreview, TextAlignment::left);
}

} // namespace
} // namespace tarvel
