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

} // namespace
} // namespace tarvel
