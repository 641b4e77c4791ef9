// The playing list: what is in sight as the selection moves, and when each condition holds.
#include "document/conditions.h"
#include "playing/item_list_play.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <vector>

namespace tarvel {

void PrintTo(const ListPlace& place, std::ostream* out) {
    *out << place.selected << " from " << place.first;
}

namespace {

using Places = std::vector<ListPlace>;

Places walk(int step, ListPlace from, std::size_t items, std::size_t shown, int steps) {
    Places places;
    for (int i = 0; i < steps; ++i) {
        places.push_back(from = movedBy(step, from, items, shown));
    }
    return places;
}

TEST(ListPlace, ScrollsAsFarAsItHasTo) {
    EXPECT_EQ(walk(1, {}, 5, 3, 5), (Places{{1, 0}, {2, 0}, {3, 1}, {4, 2}, {4, 2}}));
    EXPECT_EQ(walk(-1, {4, 2}, 5, 3, 5), (Places{{3, 2}, {2, 2}, {1, 1}, {0, 0}, {0, 0}}));
    EXPECT_EQ(walk(1, {}, 2, 3, 3), (Places{{1, 0}, {1, 0}, {1, 0}})); // all are in sight
    EXPECT_EQ(walk(1, {}, 3, 0, 3), (Places{{1, 1}, {2, 2}, {2, 2}})); // one always fits
    EXPECT_EQ(walk(1, {}, 0, 3, 1), Places(1));
    EXPECT_EQ(walk(0, {1, 1}, 5, 3, 1), (Places{{1, 1}}));
}

TEST(ListPlace, StaysWithinTheList) {
    EXPECT_EQ(placeWith(9, {}, 5, 3), (ListPlace{4, 2}));
    EXPECT_EQ(placeWith(0, {4, 4}, 5, 3), (ListPlace{0, 0}));
    EXPECT_EQ(placeWith(4, {4, 4}, 5, 3), (ListPlace{4, 2})); // no room is wasted
    EXPECT_EQ(placeWith(3, {0, 0}, 0, 3), ListPlace());
}

TEST(Conditions, HoldByTheSelectedItem) {
    const std::vector<ListItem> items = {
        {.title = "game", .description = {}},
        {.title = "folder", .description = {}, .isSubMenu = true},
        {.title = "locked", .description = {}, .hasPassCode = true},
        {.title = "locked folder", .description = {}, .isSubMenu = true, .hasPassCode = true}};
    struct Case {
        const char* condition;
        std::vector<bool> holds; // for each item
    };
    const std::vector<Case> cases = {
        {"None", {true, true, true, true}},
        {"", {true, true, true, true}},
        {"nonsense", {true, true, true, true}},
        {"ItemNext", {true, true, true, true}}, // without its blank it is none of the list
        {"ItemEntry", {true, false, true, false}},
        {"itementry", {true, false, true, false}},
        {"ItemSubMenu", {false, true, false, true}},
        {"ItemPassCode", {false, false, true, true}},
        {"ItemNoPassCode", {true, true, false, false}}};
    for (const Case& each : cases) {
        std::vector<bool> holds;
        for (std::size_t i = 0; i < items.size(); ++i) {
            holds.push_back(conditionHolds(each.condition, items, {i, 0}, 4));
        }
        EXPECT_EQ(holds, each.holds) << each.condition;
    }
}

TEST(Conditions, HoldByWhatIsOutOfSight) {
    const std::vector<ListItem> items(5);
    struct Case {
        ListPlace place;
        std::size_t shown;
        bool before;
        bool after;
    };
    for (const Case& each : {Case{{0, 0}, 3, false, true},
                             {{2, 1}, 3, true, true},
                             {{4, 2}, 3, true, false},
                             {{0, 0}, 5, false, false},
                             {{0, 0}, 9, false, false},
                             {{0, 0}, 0, false, true}}) {
        EXPECT_EQ(conditionHolds("ItemPrev", items, each.place, each.shown), each.before);
        EXPECT_EQ(conditionHolds("ItemNext ", items, each.place, each.shown), each.after);
    }
}

TEST(Conditions, OfNoItemDoNotHold) {
    for (const ConditionRow& row : conditionRows) {
        EXPECT_EQ(conditionHolds(row.text, {}, {}, 5), row.text == "None") << row.text;
    }
}

TEST(SampleItems, HaveEveryKindAndMoreThanFit) {
    const auto any = [](auto is) {
        return std::any_of(sampleItems.begin(), sampleItems.end(), is);
    };
    EXPECT_TRUE(any([](const ListItem& item) { return item.isSubMenu; }));
    EXPECT_TRUE(any([](const ListItem& item) { return item.hasPassCode; }));
    EXPECT_TRUE(any([](const ListItem& item) { return !item.isSubMenu && !item.hasPassCode; }));
    constexpr std::size_t shownAtFirst = 5;
    EXPECT_GT(sampleItems.size(), shownAtFirst);
}

TEST(ScrolledTo, GoesEvenlyByTheFactor) {
    struct Case {
        std::int16_t factor;
        double from;
        std::size_t first;
        PlayTime at;
        double expected;
    };
    constexpr std::array cases = {
        Case{1, 0, 1, 250, 0.5},    Case{1, 0, 1, 500, 1},
        Case{1, 0, 1, 501, 1},      Case{3, 0, 1, 100, 0.6},
        Case{3, 4, 1, 250, 2.5},    Case{3, 4, 1, 500, 1},
        Case{-3, 0, 1, 100, 0.6},   Case{0, 0, 1, 250, 0.5},
        Case{32767, 0, 4, 1, 4},    Case{-32768, 0, 4, 1, 4},
        Case{1, 0, 1, 0, 0},        Case{1, 0, 1, -1, 1},
        Case{1, 2, 2, 7, 2},        Case{1, 0, 1, PlayTime{1} << 50, 1},
        Case{1, 1.5, 1, 125, 1.25},
    };
    for (const Case& each : cases) {
        MenuSettings settings;
        settings.scrollFactor = each.factor;
        EXPECT_DOUBLE_EQ(scrolledTo(settings, {.first = each.first}, {each.from, 0}, each.at),
                         each.expected)
            << each.factor << " at " << each.at;
        settings.smoothScroll = false;
        EXPECT_EQ(scrolledTo(settings, {.first = each.first}, {each.from, 0}, each.at),
                  static_cast<double>(each.first));
    }
}

TEST(ItemsShownBy, IsAtLeastOne) {
    MenuSettings settings;
    for (const auto& [set, shown] : {std::pair{5, 5}, {1, 1}, {0, 1}, {-3, 1}, {32767, 32767}}) {
        settings.itemsShown = static_cast<std::int16_t>(set);
        EXPECT_EQ(itemsShownBy(settings), static_cast<std::size_t>(shown));
    }
}

} // namespace
} // namespace tarvel
