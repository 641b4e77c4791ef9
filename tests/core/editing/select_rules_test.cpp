// Which rows a rubber band, "all" and a range take.
#include "editing/select_rules.h"
#include "editing/stacking.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

namespace tarvel {
namespace {

using test::add;
using test::boxAt;
using test::lineAt;
using Rows = std::vector<int>;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();

bool isTouched(const Element& element, const RubberBand& band) {
    SkinDocument document;
    add(document, element);
    return rowsTouched(document, band) == Rows{0};
}

TEST(RubberBand, TouchesRectanglesWithTheirEdges) {
    struct Case {
        RubberBand band;
        bool touched;
    };
    const Case cases[] = {
        {{{0, 0}, {640, 480}}, true},
        {{{110, 60}, {120, 65}}, true}, // within
        {{{90, 40}, {100, 50}}, true},  // the corner
        {{{90, 40}, {99.75F, 55}}, false},
        {{{90, 40}, {105, 49.75F}}, false},
        {{{140, 70}, {200, 200}}, true},
        {{{140.25F, 70}, {200, 200}}, false},
        {{{140, 70.25F}, {200, 200}}, false},
        {{{200, 200}, {130, 60}}, true}, // drawn to the left and upwards
        {{{200, 40}, {130, 60}}, true},
        {{{120, 0}, {120, 480}}, true}, // without width
        {{{120, 60}, {120, 60}}, true}, // a point
        {{{99, 60}, {99, 60}}, false},
        {{{noNumber, 0}, {640, 480}}, false},
        {{{0, 0}, {infinity, 480}}, false},
    };
    for (const auto& [band, touched] : cases) {
        EXPECT_EQ(isTouched(boxAt({100, 50, 40, 20}), band), touched)
            << testing::PrintToString(band.press) << testing::PrintToString(band.pointer);
    }
}

TEST(RubberBand, TouchesTheLineItselfAndNotItsBounds) {
    struct Case {
        Place line;
        RubberBand band;
        bool touched;
    };
    const Place falling{100, 100, 200, 200};
    const Place level{100, 100, 200, 100};
    const Case cases[] = {
        {falling, {{140, 140}, {160, 160}}, true}, // its middle
        {falling, {{140, 145}, {144, 160}}, false},
        {falling, {{140, 145}, {145, 160}}, true}, // a corner on it
        {falling, {{160, 100}, {200, 140}}, false},
        {falling, {{190, 190}, {300, 300}}, true},
        {falling, {{200.25F, 200.25F}, {300, 300}}, false}, // goes on only without end
        {falling, {{0, 0}, {99, 99}}, false},
        {falling, {{300, 50}, {50, 300}}, true},
        {{200, 200, 100, 100}, {{160, 160}, {140, 140}}, true},
        {{100, 200, 200, 100}, {{100, 100}, {140, 140}}, false},
        {{100, 200, 200, 100}, {{100, 100}, {150, 150}}, true},
        {level, {{120, 90}, {130, 110}}, true},
        {level, {{120, 90}, {130, 99}}, false},
        {level, {{120, 100}, {130, 110}}, true},
        {level, {{201, 90}, {230, 110}}, false},
        {{100, 100, 100, 200}, {{90, 150}, {110, 160}}, true},
        {{100, 100, 100, 200}, {{90, 201}, {110, 210}}, false},
        {{100, 100, 100, 100}, {{90, 90}, {110, 110}}, true},
        {{100, 100, 100, 100}, {{90, 90}, {99, 110}}, false},
        {{100, noNumber, 200, 100}, {{0, 0}, {640, 480}}, false},
        {{-3e38F, 0, 3e38F, 0}, {{0, -1}, {1, 1}}, true},
        {{-3e38F, -3e38F, 3e38F, 3e38F}, {{0, 0}, {1, 1}}, true},
    };
    for (const auto& [line, band, touched] : cases) {
        EXPECT_EQ(isTouched(lineAt(line), band), touched)
            << testing::PrintToString(line) << testing::PrintToString(band.press)
            << testing::PrintToString(band.pointer);
    }
}

TEST(RubberBand, TouchesALineWhereOneOfItsPointsIs) {
    std::mt19937 random(3); // NOLINT: the same numbers in every run
    const auto number = [&] { return static_cast<float>(random() % 64); };
    int touched = 0;
    for (int round = 0; round < 2000; ++round) {
        const Place line{number(), number(), number(), number()};
        const RubberBand band{{number(), number()}, {number(), number()}};
        const auto [left, right] = std::minmax({band.press.x, band.pointer.x});
        const auto [top, bottom] = std::minmax({band.press.y, band.pointer.y});
        constexpr int steps = 1000;
        double least = 1e9; // how far the nearest point of the line is from the band
        for (int i = 0; i <= steps; ++i) {
            const double part = static_cast<double>(i) / steps;
            const double x = line[0] + (line[2] - line[0]) * part;
            const double y = line[1] + (line[3] - line[1]) * part;
            least = std::min(least, std::max({left - x, x - right, top - y, y - bottom}));
        }
        const bool isIt = isTouched(lineAt(line), band);
        if (least <= 0) {
            EXPECT_TRUE(isIt) << round;
        } else if (least > 0.1) { // nearer than the steps tell apart
            EXPECT_FALSE(isIt) << round;
        }
        touched += isIt ? 1 : 0;
    }
    EXPECT_GT(touched, 300);
    EXPECT_LT(touched, 1700);
}

TEST(RubberBand, LeavesSizesBelowZeroAndPlacesThatAreNone) {
    const RubberBand all{{-1000, -1000}, {1000, 1000}};
    EXPECT_TRUE(isTouched(boxAt({10, 10, 0, 0}), all));
    EXPECT_FALSE(isTouched(boxAt({10, 10, -5, 20}), all));
    EXPECT_FALSE(isTouched(boxAt({10, 10, 5, -20}), all));
    EXPECT_FALSE(isTouched(boxAt({10, noNumber, 5, 20}), all));
    EXPECT_FALSE(isTouched(boxAt({10, 10, infinity, 20}), all));
}

TEST(SelectRules, TakeUnlockedRowsOfTheCurrentScreen) {
    SkinDocument document;
    document.setCurrentLayout(0);
    add(document, boxAt({0, 0, 10, 10}));
    document.setCurrentLayout(1);
    EXPECT_EQ(unlockedRows(document), Rows{});
    for (int i = 0; i < 5; ++i) {
        add(document, boxAt({0, 0, 10, 10}));
    }
    const RubberBand band{{5, 5}, {50, 50}};
    EXPECT_EQ(unlockedRows(document), (Rows{0, 1, 2, 3, 4}));
    EXPECT_EQ(rowsTouched(document, band), (Rows{0, 1, 2, 3, 4}));
    lockRows(document, 1);
    placeElement(document, document.itemData(1, 3), {90, 90, 10, 10});
    EXPECT_EQ(unlockedRows(document), (Rows{2, 3, 4}));
    EXPECT_EQ(rowsTouched(document, band), (Rows{2, 4}));
    restack(document, 4, StackingCommand::Back); // rows are those of the list, not ids
    EXPECT_EQ(rowsTouched(document, band), (Rows{2, 3}));
}

TEST(SelectRules, TakeTheRangeBetweenTwoRows) {
    struct Case {
        int from;
        int to;
        Rows rows;
    };
    const Case cases[] = {
        {1, 3, {1, 2, 3}}, {3, 1, {1, 2, 3}}, {2, 2, {2}}, {0, 4, {0, 1, 2, 3, 4}},
        {-1, 3, {3}},      {5, 3, {3}},       {3, -1, {}}, {3, 5, {}},
        {-1, -1, {}},
    };
    SkinDocument document;
    EXPECT_EQ(rowRange(document, 0, 0), Rows{});
    for (int i = 0; i < 5; ++i) {
        add(document, boxAt({0, 0, 10, 10}));
    }
    lockRows(document, 1);
    for (const auto& [from, to, rows] : cases) {
        EXPECT_EQ(rowRange(document, from, to), rows) << from << ' ' << to;
    }
}

} // namespace
} // namespace tarvel
