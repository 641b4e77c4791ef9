// The fields of the dashboard while a screen plays.
#include "document/kinds/panel_texts.h"
#include "playing/sample_texts.h"

#include <gtest/gtest.h>

namespace tarvel {
namespace {

constexpr WallClock clock{.year = 2026, .month = 3, .day = 9, .hour = 7, .minute = 5, .second = 2};

TEST(PlayedText, OfTheClockRuns) {
    EXPECT_EQ(playedText("Time", clock, nullptr), "07:05:02");
    EXPECT_EQ(playedText("Date", clock, nullptr), "03/09/2026");
    EXPECT_EQ(playedText("DateTime", clock, nullptr), "03/09/2026 07:05:02");
    WallClock later = clock;
    later.second = 59;
    EXPECT_EQ(playedText("Time", later, nullptr), "07:05:59");
}

TEST(PlayedText, OfAnItemFollowsTheSelectedOne) {
    for (const ListItem& item : sampleItems) {
        EXPECT_EQ(playedText("CGTitle", clock, &item), item.title);
        EXPECT_EQ(playedText("Name", clock, &item), item.title);
        EXPECT_EQ(playedText("CGDescr", clock, &item), item.description);
    }
    EXPECT_EQ(playedText("CGTitle", clock, nullptr), "");
    EXPECT_EQ(playedText("CGDescr", clock, nullptr), "");
}

TEST(PlayedText, IsThereForEveryField) {
    for (const std::string_view field : predefinedTexts) {
        const std::string text = playedText(field, clock, &sampleItems.front());
        EXPECT_NE(text, field);
        EXPECT_NE(text, "") << field;
    }
}

TEST(PlayedText, OfNoFieldIsItself) {
    EXPECT_EQ(playedText("Hello", clock, nullptr), "Hello");
    EXPECT_EQ(playedText("time", clock, nullptr), "time"); // fields are told apart by case
    EXPECT_EQ(playedText("", clock, nullptr), "");
}

TEST(Later, GoesOnByTheCalendar) {
    struct Case {
        WallClock from;
        PlayTime time;
        WallClock expected;
    };
    constexpr PlayTime day = 24 * 3600 * 1000;
    const std::vector<Case> cases = {
        {{2026, 11, 21, 20, 15, 0}, 999, {2026, 11, 21, 20, 15, 0}},
        {{2026, 11, 21, 20, 15, 0}, 61'000, {2026, 11, 21, 20, 16, 1}},
        {{2026, 12, 31, 23, 59, 59}, 1000, {2027, 1, 1, 0, 0, 0}},
        {{2028, 2, 28, 12, 0, 0}, day, {2028, 2, 29, 12, 0, 0}},
        {{2026, 3, 1, 0, 0, 0}, -1, {2026, 2, 28, 23, 59, 59}},
        {{2000, 1, 1, 0, 0, 0}, PlayTime{1} << 31, {2000, 1, 25, 20, 31, 23}},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(later(each.from, each.time), each.expected) << each.time;
    }
    EXPECT_EQ(later({}, never), later({}, never - 1)); // held
}

} // namespace
} // namespace tarvel
