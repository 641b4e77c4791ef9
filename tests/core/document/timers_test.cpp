// Timer boxes: texts, keys, warning and values.
#include "document/timers.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string_view>

namespace tarvel {
namespace {

constexpr std::string_view warning =
    "The values are in milliseconds.  i.e. 1s = 1000 ms.  Double-check your values";

TEST(Timers, HaveTheirCaptionsAndHelp) {
    constexpr TimerText expected[] = {
        {"Delay", "The number of milliseconds before the element appears when the screen is first "
                  "activated. Defaults to '0'"},
        {"CycleOn",
         "Once it appears, the element will cycle on by this period. Defaults to 'infinite'"},
        {"CycleOff", "Once it appears, the element will cycle off by this period. If not defined, "
                     "it will inherit from the CycleOn value."},
        {"Liftime", "The length of time the element remains on the screen. Defaults to "
                    "'infinite'"}};
    ASSERT_EQ(timerTexts.size(), std::size(expected));
    for (std::size_t slot = 0; slot < timerTexts.size(); ++slot) {
        EXPECT_EQ(timerTexts.at(slot).caption, expected[slot].caption);
        EXPECT_EQ(timerTexts.at(slot).help, expected[slot].help) << slot;
    }
}

TEST(Numsonly, PassesDigitsAndBackspaceAlone) {
    for (char32_t key = 0; key < 0x300; ++key) {
        const bool passes = (key >= U'0' && key <= U'9') || key == 8;
        EXPECT_EQ(numsonly(key), passes ? key : 0) << static_cast<std::uint32_t>(key);
    }
    EXPECT_EQ(numsonly(U'\u0665'), char32_t{0}); // a digit of another script
}

TEST(TimersMessage, WarnsOfOneToTwentyNine) {
    struct Case {
        std::string_view text;
        bool warns;
    };
    constexpr Case cases[] = {{"", false},        {"0", false},  {"1", true},    {"5", true},
                              {"29", true},       {"30", false}, {"31", false},  {"5000", false},
                              {"-5", false},      {"0.5", true}, {"29.9", true}, {"abc", false},
                              {"7 apples", true}, {"00", false}, {"007", true}};
    for (const Case& c : cases) {
        for (std::size_t slot = 0; slot < timerSlots; ++slot) {
            TimerBoxes boxes{"0", "30", "", "1000"};
            boxes.at(slot) = c.text;
            EXPECT_EQ(timersMessage(boxes), c.warns ? warning : "") << slot << ": " << c.text;
        }
    }
}

TEST(TimerValues, AreReadLenientlyAndRounded) {
    struct Case {
        std::string_view text;
        std::int32_t value;
    };
    constexpr Case cases[] = {{"", 0},
                              {"0", 0},
                              {"500", 500},
                              {"0500", 500},
                              {"-5", -5},
                              {"2.5", 2},
                              {"3.5", 4},
                              {"abc", 0},
                              {"12abc", 12},
                              {"2147483647", 2147483647},
                              {"2147483648", 2147483647},
                              {"99999999999999999999", 2147483647},
                              {"-99999999999", std::numeric_limits<std::int32_t>::min()}};
    for (const Case& c : cases) {
        for (std::size_t slot = 0; slot < timerSlots; ++slot) {
            TimerBoxes boxes{"1", "2", "3", "4"};
            TimerValues expected{1, 2, 3, 4};
            boxes.at(slot) = c.text;
            expected.at(slot) = c.value;
            EXPECT_EQ(timerValues(boxes), expected) << c.text;
        }
    }
}

TEST(TimerBoxes, ShowDecimalNumbers) {
    constexpr auto lowest = std::numeric_limits<std::int32_t>::min();
    constexpr auto highest = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(timerBoxes({0, 500, -5, 30}), (TimerBoxes{"0", "500", "-5", "30"}));
    EXPECT_EQ(timerBoxes({lowest, highest, 0, 1}),
              (TimerBoxes{"-2147483648", "2147483647", "0", "1"}));
    EXPECT_EQ(timerValues(timerBoxes({lowest, highest, 0, 1})),
              (TimerValues{lowest, highest, 0, 1}));
}

} // namespace
} // namespace tarvel
