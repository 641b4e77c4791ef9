// System colours: labels, what each sets, proper opacities.
#include "editing/color_rules.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace tarvel {
namespace {

std::vector<std::string_view> labels(const ColorGroup& group) {
    std::vector<std::string_view> texts;
    for (const auto& color : group.colors) {
        texts.push_back(color.label);
    }
    return texts;
}

TEST(ColorGroups, HaveTheLabelsInOrder) {
    EXPECT_EQ(colorGroups[0].caption, "MESSAGE BOX:");
    EXPECT_EQ(labels(colorGroups[0]), (std::vector<std::string_view>{"Boder Color", "Text Color",
                                                                     "Shadow Color", "Box Color"}));
    EXPECT_EQ(colorGroups[1].caption, "SYSTEM MENU:");
    EXPECT_EQ(labels(colorGroups[1]),
              (std::vector<std::string_view>{"Boder Color", "Text Color", "Select Color",
                                             "Value Color", "Select Value Color", ""}));
}

TEST(ColorGroups, SetTenDifferentColors) {
    SystemColors colors;
    ColorNumber next = 1;
    for (const auto& group : colorGroups) {
        for (const auto& color : group.colors) {
            setColor(colors, color, next++);
        }
    }
    // In the order of the groups: border, text, shadow, box; border, text, select, value, select
    // value, box.
    EXPECT_EQ(colors.boxes[0], (SampleBox{.fillColor = 4, .borderColor = 1}));
    EXPECT_EQ(colors.boxes[1], (SampleBox{.fillColor = 10, .borderColor = 5}));
    const auto text = [&](SampleText which) { return colors.texts[std::size_t(which)]; };
    EXPECT_EQ(text(SampleText::messageText), 2U);
    EXPECT_EQ(text(SampleText::messageShadow), 3U);
    EXPECT_EQ(text(SampleText::menuText), 6U);
    EXPECT_EQ(text(SampleText::menuSelect), 7U);
    EXPECT_EQ(text(SampleText::menuValue), 8U);
    EXPECT_EQ(text(SampleText::menuSelectValue), 9U);
}

TEST(ColorOf, FindsWhatSetColorSet) {
    SystemColors colors;
    ColorNumber next = 0x010203;
    for (const auto& group : colorGroups) {
        for (const auto& color : group.colors) {
            setColor(colors, color, ++next);
            EXPECT_EQ(colorOf(colors, color), next) << color.meaning;
        }
    }
}

TEST(SampleTexts, AreTheFourWords) {
    EXPECT_EQ(sampleTexts[std::size_t(SampleText::messageText)], "Text");
    EXPECT_EQ(sampleTexts[std::size_t(SampleText::messageShadow)], "Text");
    EXPECT_EQ(sampleTexts[std::size_t(SampleText::menuSelect)], "Selected");
    EXPECT_EQ(sampleTexts[std::size_t(SampleText::menuText)], "Unselected");
    EXPECT_EQ(sampleTexts[std::size_t(SampleText::menuValue)], "Value");
    EXPECT_EQ(sampleTexts[std::size_t(SampleText::menuSelectValue)], "Value");
}

TEST(ProperOpacity, IsANumberOtherThanZeroOrExactlyZero) {
    for (const std::string_view text : {"0", "1", "100", "250", "-5", " 7", "50%", "0.5", "1e2"}) {
        EXPECT_TRUE(isProperOpacity(text)) << text;
    }
    for (const std::string_view text : {"", "0.0", "00", " 0", "0 ", "-0", "abc", "%50", "0%"}) {
        EXPECT_FALSE(isProperOpacity(text)) << text;
    }
}

TEST(FirstImproperOpacity, NamesTheFirstBox) {
    SystemColors colors;
    EXPECT_EQ(firstImproperOpacity(colors), -1);
    colors.opacityTexts = {"0", "250"};
    EXPECT_EQ(firstImproperOpacity(colors), -1);
    colors.opacityTexts = {"100", "0.0"};
    EXPECT_EQ(firstImproperOpacity(colors), 1);
    colors.opacityTexts = {"", ""};
    EXPECT_EQ(firstImproperOpacity(colors), 0);
}

} // namespace
} // namespace tarvel
