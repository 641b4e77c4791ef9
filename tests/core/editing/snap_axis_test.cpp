// Lines and neighbours along an axis are those that a walk over all finds.
#include "editing/snap_axis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <tuple>
#include <vector>

namespace tarvel {

inline void PrintTo(const SnapItem& item, std::ostream* out) {
    *out << item.start << " to " << item.end << ", across " << item.from << " to " << item.to;
}

inline void PrintTo(const SnapLine& line, std::ostream* out) {
    *out << "at " << line.position << ", across " << line.from << " to " << line.to;
}

namespace {

using Items = std::vector<SnapItem>;

constexpr double anywhere = std::numeric_limits<double>::infinity();

TEST(SnapAxis, FindsNothingWhereNothingIs) {
    const SnapAxis axis;
    EXPECT_EQ(axis.nearest(0, anywhere), std::nullopt);
    EXPECT_EQ(axis.lineAt(0), std::nullopt);
    EXPECT_EQ(axis.before(100, {0, 100}), nullptr);
    EXPECT_EQ(axis.after(0, {0, 100}), nullptr);
}

TEST(SnapAxis, FindsTheNearestEdgeOrMiddle) {
    const Items other = {{200, 240, 0, 480}};
    const SnapAxis axis({{10, 30, 0, 9}, {100, 160, 0, 9}}, other); // middles 20, 130 and 220
    struct Case {
        double position;
        double tolerance;
        std::optional<double> found;
    };
    const Case cases[] = {
        {11, 6, 10},   {10, 0, 10},   {10.25, 0, std::nullopt},
        {16, 6, 20},   {15, 5, 10},   {15, 4.75, std::nullopt}, // as near: the lesser
        {25, 6, 20},   {36, 6, 30},   {36.25, 6, std::nullopt},
        {133, 6, 130}, {-5, 100, 10}, {999, anywhere, 240},
        {223, 6, 220}, {201, 6, 200},
    };
    for (const auto& [position, tolerance, found] : cases) {
        EXPECT_EQ(axis.nearest(position, tolerance), found) << position << ' ' << tolerance;
    }
}

TEST(SnapAxis, JoinsWhatLiesOnOneLine) {
    const Items other = {{0, 640, 0, 480}};
    const SnapAxis axis({{10, 30, 50, 60}, {10, 50, 20, 30}, {30, 70, 5, 6}, {30.005F, 40, 90, 95}},
                        other);
    EXPECT_EQ(axis.lineAt(10), (SnapLine{10, 20, 60}));
    EXPECT_EQ(axis.lineAt(30), (SnapLine{30, 5, 95})); // an end, a middle and two starts
    EXPECT_EQ(axis.lineAt(50.005), (SnapLine{50, 5, 30}));
    EXPECT_EQ(axis.lineAt(50.02), std::nullopt);
    EXPECT_EQ(axis.lineAt(640), (SnapLine{640, 0, 480}));
    EXPECT_EQ(axis.lineAt(320), (SnapLine{320, 0, 480}));
}

TEST(SnapAxis, TakesOfEqualNeighboursTheOneWithTheSmallerGap) {
    const SnapAxis axis({{-5, -0.0F, 0, 9}, {-9, 0, 0, 9}, {20, 28, 0, 9}, {20, 23, 0, 9}}, {});
    EXPECT_EQ(axis.before(0, {0, 9})->start, -5);
    EXPECT_EQ(axis.after(9, {0, 9})->end, 23);
}

Items randomItems(std::mt19937& random, int count) {
    const auto number = [&](int limit) {
        return static_cast<float>(random() % static_cast<unsigned>(limit));
    };
    Items items;
    for (int i = 0; i < count; ++i) {
        const float start = number(200) - 60;
        const float from = number(100);
        items.push_back({start, start + number(10), from, from + number(20)});
    }
    return items;
}

// What is looked for, by walking over all.
const SnapItem* walkBefore(const Items& items, double limit, const Extent& cross) {
    const SnapItem* found = nullptr;
    for (const SnapItem& item : items) {
        const bool fits = item.end <= limit && item.from < cross.end() && item.to > cross.start;
        if (fits && (found == nullptr ||
                     std::tie(found->end, found->start) <= std::tie(item.end, item.start))) {
            found = &item;
        }
    }
    return found;
}

const SnapItem* walkAfter(const Items& items, double limit, const Extent& cross) {
    const SnapItem* found = nullptr;
    for (const SnapItem& item : items) {
        const bool fits = item.start >= limit && item.from < cross.end() && item.to > cross.start;
        if (fits && (found == nullptr ||
                     std::tie(item.start, item.end) < std::tie(found->start, found->end))) {
            found = &item;
        }
    }
    return found;
}

std::optional<double> walkNearest(const Items& items, double position, double tolerance) {
    std::optional<double> found;
    for (const SnapItem& item : items) {
        for (const double at :
             {double{item.start}, (double{item.start} + item.end) / 2, double{item.end}}) {
            const double way = std::abs(at - position);
            const double best = found ? std::abs(*found - position) : anywhere;
            if (way <= tolerance && (way < best || (way == best && at < *found))) {
                found = at;
            }
        }
    }
    return found;
}

std::optional<SnapItem> value(const SnapItem* item) {
    return item == nullptr ? std::nullopt : std::optional(*item);
}

TEST(SnapAxis, AgreesWithTheWalkOverAll) {
    std::mt19937 random(5); // NOLINT: the same numbers in every run
    for (const int count : {1, 5, 63, 64, 65, 400}) {
        const Items items = randomItems(random, count);
        const SnapAxis axis(items, {});
        int found = 0;
        for (int round = 0; round < 500; ++round) {
            const double at = static_cast<double>(random() % 2000U) / 10 - 60;
            const Extent cross{static_cast<double>(random() % 120U),
                               static_cast<double>(random() % 20U)};
            ASSERT_EQ(value(axis.before(at, cross)), value(walkBefore(items, at, cross))) << at;
            ASSERT_EQ(value(axis.after(at, cross)), value(walkAfter(items, at, cross))) << at;
            ASSERT_EQ(axis.nearest(at, 6), walkNearest(items, at, 6)) << at;
            found += axis.before(at, cross) != nullptr ? 1 : 0;
        }
        EXPECT_GT(found, 0);
    }
}

} // namespace
} // namespace tarvel
