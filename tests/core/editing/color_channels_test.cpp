// Dragging and limits of the colour values.
#include "editing/color_channels.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>

namespace tarvel {
namespace {

using enum ChannelValue;

TEST(ColorChannels, AreNamed) {
    EXPECT_EQ(channelNames, (std::array<std::string_view, 4>{"Alpha", "Red", "Green", "Blue"}));
    EXPECT_EQ(channelValueName(Min), "Min");
    EXPECT_EQ(channelValueName(Max), "Max");
    EXPECT_EQ(channelValueName(Period), "Period");
}

TEST(ColorChannels, DragHoldsValuesAtTheirLimits) {
    struct Case {
        ColorChannel channel;
        ChannelValue which;
        double pixels;
        double expected;
    };
    constexpr Case cases[] = {
        {{false, 10, 200, 1000}, Min, 5, 15},
        {{false, 10, 200, 1000}, Min, 0, 10},
        {{false, 10, 200, 1000}, Min, -10, 0},
        {{false, 10, 200, 1000}, Min, -11, 0},
        {{false, 10, 200, 1000}, Min, 190, 200},
        {{false, 10, 200, 1000}, Min, 191, 200},
        {{false, 10, 200, 1000}, Min, 4000, 200},
        {{false, 0, 0, 1000}, Min, 1, 0},
        {{false, 10, 200, 1000}, Max, 5, 205},
        {{false, 10, 200, 1000}, Max, 55, 255},
        {{false, 10, 200, 1000}, Max, 56, 255},
        {{false, 10, 200, 1000}, Max, -190, 10},
        {{false, 10, 200, 1000}, Max, -191, 10},
        {{false, 255, 255, 1000}, Max, -1, 255},
        {{false, 10, 200, 1000}, Period, 1, 1010},
        {{false, 10, 200, 1000}, Period, -95, 50},
        {{false, 10, 200, 1000}, Period, -96, 50},
        {{false, 10, 200, 50}, Period, -1, 50},
        {{false, 10, 200, 1000}, Period, 1000000, 10001000},
        // Values out of a file need not be in order, in range or whole.
        {{false, 10, -5, 1000}, Min, -1, -5},
        {{false, 10, -5, 1000}, Min, -20, 0},
        {{false, 300, 200, 1000}, Min, 1, 200},
        {{false, 300, 400, 1000}, Min, 1, 301},
        {{false, 300, 280, 1000}, Max, 1, 300},
        {{false, -20, 200, 1000}, Max, -210, -10},
        {{false, 10, 200, 7}, Period, 1, 50},
        {{false, 0.5, 200, 1000}, Min, 0, 0},
        {{false, 1.5, 200, 1000}, Min, 0, 2},
        {{false, 12.5, 200, 1000}, Min, 1, 14},
        {{false, 0, 99.5, 1000}, Max, 1, 100},
        {{false, 0, 200, 100.4}, Period, 1, 110},
    };
    for (const Case& c : cases) {
        ColorChannel channel = c.channel;
        channel.drag(c.which, c.pixels);
        ColorChannel expected = c.channel;
        expected.setValue(c.which, c.expected);
        EXPECT_EQ(channel, expected)
            << channelValueName(c.which) << " from " << c.channel.value(c.which) << " by "
            << c.pixels << " is " << channel.value(c.which);
    }
}

TEST(ColorChannels, ChangeMakesWholeAndHoldsAtTheLimits) {
    struct Case {
        ChannelValue which;
        double asked;
        double expected;
    };
    constexpr Case cases[] = {{Min, 15.4, 15}, {Min, 15.5, 16},   {Min, 16.5, 16},
                              {Min, 500, 200}, {Min, -0.4, 0},    {Max, 254.6, 255},
                              {Max, 256, 255}, {Max, 3, 10},      {Period, 50.5, 50},
                              {Period, 1, 50}, {Period, 1e9, 1e9}};
    for (const Case& c : cases) {
        ColorChannel channel{true, 10, 200, 1000};
        ColorChannel expected = channel;
        expected.setValue(c.which, c.expected);
        channel.change(c.which, c.asked);
        EXPECT_EQ(channel, expected) << channelValueName(c.which) << ' ' << c.asked;
    }
}

TEST(ColorChannels, KeepTheirValuesApart) {
    ColorChannel channel{true, 1, 2, 3};
    for (const ChannelValue which : channelValues) {
        channel.setValue(which, channel.value(which) + 10);
    }
    EXPECT_EQ(channel, (ColorChannel{true, 11, 12, 13}));
}

TEST(HandlePointer, ChangesByTheDistanceSinceTheLastMoveOfAnyLabel) {
    HandlePointer pointer;
    ColorChannel red;
    ColorChannel blue;
    pointer.mouseMove(red, Min, 20, false);
    EXPECT_EQ(red, ColorChannel{});
    pointer.mouseMove(red, Min, 25, true);
    EXPECT_EQ(red.Min, 5);
    pointer.mouseMove(red, Min, 32, true);
    EXPECT_EQ(red.Min, 12);
    pointer.mouseMove(red, Min, 30, true);
    EXPECT_EQ(red.Min, 10);
    // The position is remembered across labels and kinds of value.
    pointer.mouseMove(blue, Period, 33, true);
    EXPECT_EQ(blue.Period, 1030);
    pointer.mouseMove(blue, Max, 30, true);
    EXPECT_EQ(blue.Max, 252);
    pointer.mouseMove(blue, Max, 100, false);
    pointer.mouseMove(red, Min, 101, true);
    EXPECT_EQ(red.Min, 11);
    EXPECT_EQ(blue, (ColorChannel{false, 0, 252, 1030}));
}

TEST(HandlePointer, StartsAtTheLeftEdge) {
    HandlePointer pointer;
    ColorChannel channel;
    pointer.mouseMove(channel, Min, 7, true);
    EXPECT_EQ(channel.Min, 7);
}

TEST(HandlePointer, TakesNoNoticeOfHowFarTheLimitsWerePassed) {
    HandlePointer pointer;
    ColorChannel channel;
    pointer.mouseMove(channel, Max, 50, true);
    EXPECT_EQ(channel.Max, 255);
    pointer.mouseMove(channel, Max, 40, true);
    EXPECT_EQ(channel.Max, 245);
}

} // namespace
} // namespace tarvel
