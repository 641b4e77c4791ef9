// Which values of the panel can make an element, and the messages about those that cannot.
#include "document/kinds/panel_texts.h"
#include "editing/panel_check.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvel {
namespace {

using Messages = std::vector<std::string_view>;

constexpr std::string_view noBoxColor = "Choose a color for either the border or the fill";
constexpr std::string_view badOpacity = "Select an opacity from 1-100";

PanelValues boxValues(FillStyle border, FillStyle fill, std::string opacity) {
    PanelValues values;
    values.border.fillStyle = border;
    values.fill.fillStyle = fill;
    values.opacity = std::move(opacity);
    return values;
}

TEST(IsInvalid, ChecksTheColoursOfABox) {
    constexpr auto clear = FillStyle::transparent;
    constexpr auto solid = FillStyle::solid;
    EXPECT_EQ(isInvalid(ElementKind::Box, boxValues(solid, solid, "100")), Messages{});
    EXPECT_EQ(isInvalid(ElementKind::Box, boxValues(solid, clear, "100")), Messages{});
    EXPECT_EQ(isInvalid(ElementKind::Box, boxValues(clear, solid, "100")), Messages{});
    EXPECT_EQ(isInvalid(ElementKind::Box, boxValues(clear, clear, "100")), Messages{noBoxColor});
    EXPECT_EQ(isInvalid(ElementKind::Box, boxValues(clear, clear, "abc")),
              (Messages{noBoxColor, badOpacity}));
}

TEST(IsInvalid, ChecksTheOpacityOfABox) {
    struct Case {
        std::string text;
        bool valid;
    };
    const Case cases[] = {
        {"100", true},   {"1", true},     {"50", true},   {"0", true},      {"-5", true},
        {"0.5", true},   {"100.0", true}, {"50 %", true}, {" 7", true},     {"-32768", true},
        {"", false},     {"abc", false},  {"101", false}, {"00", false},    {" 0", false},
        {"0 ", false},   {"0.0", false},  {"-0", false},  {"100.1", false}, {"1e9", false},
        {"&H10", false},
    };
    for (const auto& c : cases) {
        const auto messages =
            isInvalid(ElementKind::Box, boxValues(FillStyle::solid, FillStyle::solid, c.text));
        EXPECT_EQ(messages, c.valid ? Messages{} : Messages{badOpacity}) << c.text;
    }
}

// A panel that no kind with a check can be made of.
PanelValues hopelessValues() {
    PanelValues values = boxValues(FillStyle::transparent, FillStyle::transparent, "abc");
    values.resource = -1;
    values.text = "";
    return values;
}

TEST(IsInvalid, ChecksWhatTheOtherKindsNeed) {
    const PanelValues hopeless = hopelessValues();
    struct Case {
        std::optional<ElementKind> tool;
        Messages messages;
    };
    const Case cases[] = {
        {ElementKind::Line, {"Choose a line color"}},
        {ElementKind::Image, {"Select a resource"}},
        {ElementKind::Text, {"Enter some text"}},
        {ElementKind::Menu, {}},
        {std::nullopt, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(isInvalid(c.tool, hopeless), c.messages);
    }
}

TEST(IsInvalid, NeverComplainsOfTheOpacitysCaption) {
    EXPECT_EQ(message::badAlpha, "Alpha value should be from 0 to 255");
    EXPECT_EQ(val(caption::opacity), 0); // what the check looks at
    const auto messages = isInvalid(ElementKind::Box, hopelessValues());
    EXPECT_EQ(messages, (Messages{noBoxColor, badOpacity}));
}

TEST(IsInvalid, LooksOnlyAtWhatTheKindNeeds) {
    PanelValues line = hopelessValues();
    line.border.fillStyle = FillStyle::solid;
    EXPECT_EQ(isInvalid(ElementKind::Line, line), Messages{});
    PanelValues image = hopelessValues();
    image.resource = 0;
    EXPECT_EQ(isInvalid(ElementKind::Image, image), Messages{});
    PanelValues text = hopelessValues();
    text.text = "  "; // blanks are a text
    EXPECT_EQ(isInvalid(ElementKind::Text, text), Messages{});
}

} // namespace
} // namespace tarvel
