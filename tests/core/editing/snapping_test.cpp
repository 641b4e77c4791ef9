// What snaps to what, which offset that gives, and which guides are told.
#include "editing/snapping.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <vector>

namespace tarvel {

inline void PrintTo(const Guide& guide, std::ostream* out) {
    *out << (guide.kind == GuideKind::line ? "line" : "gap")
         << (guide.axis == Axis::across ? " across" : " down") << " at " << guide.position
         << ", from " << guide.from << " to " << guide.to;
}

inline void PrintTo(const Snap& snap, std::ostream* out) {
    *out << snap.dx << ", " << snap.dy << ' ' << testing::PrintToString(snap.guides);
}

namespace {

using test::add;
using test::boxAt;
using test::lineAt;
using Places = std::vector<Place>;
using Guides = std::vector<Guide>;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
constexpr Axis across = Axis::across;
constexpr Axis down = Axis::down;

Guide line(Axis axis, double position, double from, double to) {
    return {GuideKind::line, axis, position, from, to};
}

Guide gap(Axis axis, double position, double from, double to) {
    return {GuideKind::gap, axis, position, from, to};
}

SkinDocument boxes(const Places& places) {
    SkinDocument document;
    for (const Place& place : places) {
        add(document, boxAt(place));
    }
    return document;
}

SnapIndex among(const Places& places) {
    return {boxes(places), {}};
}

constexpr double tolerance = 6;

TEST(SnapMove, SnapsEdgesAndMiddlesToThoseOfOthers) {
    // The other one: edges 200 and 250, middle 225; 120 and 150, middle 135.
    const SnapIndex index = among({{200, 120, 50, 30}});
    struct Case {
        Place frame;
        Snap snap;
    };
    const Case cases[] = {
        {{203, 300, 17, 19}, {-3, 0, {line(across, 200, 120, 319)}}},
        {{194, 300, 90, 19}, {6, 0, {line(across, 200, 120, 319)}}},
        {{193.75F, 300, 90, 19}, {}},
        {{180, 300, 17, 19}, {3, 0, {line(across, 200, 120, 319)}}},   // right edge to left edge
        {{215, 300, 17, 19}, {1.5, 0, {line(across, 225, 120, 319)}}}, // middle to middle
        {{236, 300, 17, 19}, {-3, 0, {line(across, 250, 120, 319)}}},  // right edge to right edge
        {{253, 20, 17, 19}, {-3, 0, {line(across, 250, 20, 150)}}},
        {{380, 123, 17, 40}, {0, -3, {line(down, 120, 200, 397)}}},
        {{380, 148, 17, 19}, {0, 2, {line(down, 150, 200, 397)}}},
        {{380, 126, 17, 19}, {0, -0.5, {line(down, 135, 200, 397)}}},
        {{202, 121, 50, 30},
         {-2,
          -1,
          {line(across, 200, 120, 150), line(across, 225, 120, 150), line(across, 250, 120, 150),
           line(down, 120, 200, 250), line(down, 135, 200, 250), line(down, 150, 200, 250)}}},
        {{400, 300, 17, 19}, {}},
        // In place already: nothing to add, and the line is told all the same.
        {{200, 300, 17, 19}, {0, 0, {line(across, 200, 120, 319)}}},
    };
    for (const auto& [frame, snap] : cases) {
        EXPECT_EQ(index.snapMove(frame, tolerance), snap) << testing::PrintToString(frame);
    }
}

TEST(SnapMove, SnapsToTheScreenAndTheSafeArea) {
    const SnapIndex index = among({});
    EXPECT_EQ(safeArea, (Bounds{{64, 512}, {48, 384}}));
    struct Case {
        float left;
        float top;
        Snap snap;
    };
    const Case cases[] = {
        {-4, 100, {4, 0, {line(across, 0, 0, 480)}}},
        {599, 100, {1, 0, {line(across, 640, 0, 480)}}},
        {298, 100, {2, 0, {line(across, 320, 0, 480)}}},
        {61, 100, {3, 0, {line(across, 64, 48, 432)}}},
        {539, 100, {-3, 0, {line(across, 576, 48, 432)}}},
        {100, 3, {0, -3, {line(down, 0, 0, 640)}}},
        {100, 441, {0, -1, {line(down, 480, 0, 640)}}},
        {100, 222, {0, -2, {line(down, 240, 0, 640)}}},
        {100, 50, {0, -2, {line(down, 48, 64, 576)}}},
        {100, 389, {0, 3, {line(down, 432, 64, 576)}}},
        {150, 100, {}},
        {-700, 100, {}},
    };
    for (const auto& [left, top, snap] : cases) {
        EXPECT_EQ(index.snapMove({left, top, 40, 40}, tolerance), snap) << left << ' ' << top;
    }
}

TEST(SnapMove, TakesTheNearestAndOfEqualOnesTheFirst) {
    struct Case {
        Places others;
        Place frame;
        double dx;
    };
    const Case cases[] = {
        {{{200, 0, 3, 9}}, {206, 300, 11, 9}, -3},                 // 203 before 200 and 201.5
        {{{197, 0, 0, 9}, {203, 0, 0, 9}}, {200, 300, 31, 9}, -3}, // the left line
        {{{203, 0, 0, 9}, {238, 0, 0, 9}}, {200, 300, 41, 9}, 3},  // left edge, right edge
        {{{217, 0, 0, 9}, {238, 0, 0, 9}}, {200, 300, 40, 9}, -2}, // the right edge is nearer
        {{{217, 0, 0, 9}, {243, 0, 0, 9}}, {200, 300, 40, 9}, -3}, // middle, right edge
        {{{203, 0, 0, 9}, {217, 0, 0, 9}}, {200, 300, 40, 9}, 3},  // left edge, middle
        // The gaps are equal 3 to the left, the line is as near to the right.
        {{{100, 300, 50, 9}, {254, 300, 50, 9}, {188, 0, 0, 9}}, {185, 300, 40, 9}, 3},
        {{{100, 300, 50, 9}, {254, 300, 50, 9}, {189, 0, 0, 9}}, {185, 300, 40, 9}, -3},
        // Amid the outer two it would stand 1 further, were it not for the third in between.
        {{{100, 300, 50, 9}, {198, 300, 10, 9}, {298, 300, 50, 9}}, {205, 300, 40, 9}, -2},
        {{{102, 300, 50, 9}, {242, 300, 10, 9}, {300, 300, 50, 9}}, {205, 300, 40, 9}, 2},
    };
    for (const auto& [others, frame, dx] : cases) {
        EXPECT_EQ(among(others).snapMove(frame, tolerance).dx, dx)
            << testing::PrintToString(frame) << testing::PrintToString(others);
    }
}

TEST(SnapMove, StandsAmidTwoNeighbours) {
    const SnapIndex index = among({{100, 200, 50, 40}, {300, 210, 50, 40}}); // 150 are between
    struct Case {
        float left;
        float top;
        double dx;
        bool met;
    };
    const Case cases[] = {
        {213, 205, -3, true}, {204, 205, 6, true},  {210, 205, 0, true},
        {203, 205, 0, false}, {217, 205, 0, false}, {213, 251, 0, false}, // below both
        {213, 170, 0, false}, {213, 250, 0, false},                       // only touches
    };
    for (const auto& [left, top, dx, met] : cases) {
        const Snap snap = index.snapMove({left, top, 30, 27}, tolerance);
        EXPECT_EQ(snap.dx, dx) << left << ' ' << top;
        Guides gaps = snap.guides;
        std::erase_if(gaps, [](const Guide& guide) { return guide.kind != GuideKind::gap; });
        EXPECT_EQ(gaps.size(), met ? 2U : 0U) << left << ' ' << top;
    }
    EXPECT_EQ(index.snapMove({213, 195, 30, 60}, 4),
              (Snap{-3, 0, {gap(across, 220, 150, 210), gap(across, 230, 240, 300)}}));
}

TEST(SnapMove, GoesOnWithTheGapOfTwoNeighbours) {
    struct Case {
        Places others;
        Place frame;
        Snap snap;
    };
    const Case cases[] = {
        // Behind them and before them, across and down.
        {{{100, 200, 50, 40}, {173, 200, 50, 40}},
         {249, 193, 33, 75},
         {-3, 0, {gap(across, 220, 150, 173), gap(across, 220, 223, 246)}}},
        {{{400, 200, 50, 40}, {473, 200, 50, 40}},
         {347, 193, 33, 75},
         {-3, 0, {gap(across, 220, 377, 400), gap(across, 220, 450, 473)}}},
        {{{400, 90, 40, 25}, {400, 138, 40, 25}},
         {393, 182, 75, 20},
         {0, 4, {gap(down, 420, 115, 138), gap(down, 420, 163, 186)}}},
        {{{400, 190, 40, 25}, {400, 238, 40, 25}},
         {393, 151, 75, 20},
         {0, -4, {gap(down, 420, 167, 190), gap(down, 420, 215, 238)}}},
        // They overlap or touch: there is no gap.
        {{{100, 200, 50, 40}, {140, 200, 50, 40}}, {213, 193, 33, 75}, {}},
        {{{100, 200, 50, 40}, {150, 200, 57, 40}},
         {213, 193, 33, 75},
         {-6, 0, {line(across, 207, 193, 268)}}},
        // Amid two, and with the same gap on.
        {{{100, 200, 50, 40}, {173, 200, 50, 40}, {302, 200, 50, 40}},
         {247, 193, 33, 75},
         {-1,
          0,
          {gap(across, 220, 150, 173), gap(across, 220, 223, 246), gap(across, 220, 279, 302)}}},
    };
    for (const auto& [others, frame, snap] : cases) {
        EXPECT_EQ(among(others).snapMove(frame, tolerance), snap) << testing::PrintToString(frame);
    }
}

TEST(SnapMove, LooksAtTheElementsOfTheScreenThatStay) {
    SkinDocument document = boxes({{200, 120, 50, 30}, {300, 120, 50, 30}});
    add(document, lineAt({420, 90, 397, 110}));
    document.setCurrentLayout(0);
    add(document, boxAt({500, 0, 10, 10}));
    document.setCurrentLayout(1);
    test::setLocked(document, 1, true);
    const auto dxAt = [&](float left, const std::vector<int>& excluded) {
        return SnapIndex(document, excluded).snapMove({left, 300, 1, 17}, tolerance).dx;
    };
    EXPECT_EQ(dxAt(198, {}), 1); // a locked one stands there too; its own right edge is nearer
    EXPECT_EQ(dxAt(298, {}), 1);
    EXPECT_EQ(dxAt(298, {2, 0, -4, 99}), 0);
    EXPECT_EQ(dxAt(198, {2}), 1);
    EXPECT_EQ(dxAt(394, {}), 2); // the ends of a line, either
    EXPECT_EQ(dxAt(425, {}), -5);
    EXPECT_EQ(dxAt(410, {}), -1.5); // and its middle
    EXPECT_EQ(dxAt(498, {}), 0);
}

TEST(SnapEdges, SnapsOnlyEdgesThatMove) {
    const SnapIndex index = among({{200, 120, 50, 30}});
    const Place frame{203, 123, 44, 24}; // every edge is 3 from one of the other's
    struct Case {
        HandleEdges edges;
        Snap snap;
    };
    const Guide left = line(across, 200, 120, 150);
    const Guide right = line(across, 250, 120, 150);
    const Guide top = line(down, 120, 200, 250);
    const Guide bottom = line(down, 150, 200, 250);
    const Case cases[] = {
        {{-1, 0}, {-3, 0, {left}}},
        {{1, 0}, {3, 0, {right}}},
        {{0, -1}, {0, -3, {top}}},
        {{0, 1}, {0, 3, {bottom}}},
        {{-1, -1}, {-3, -3, {left, top}}},
        {{1, 1}, {3, 3, {right, bottom}}},
        {{0, 0}, {}},
    };
    for (const auto& [edges, snap] : cases) {
        EXPECT_EQ(index.snapEdges(frame, edges, tolerance), snap) << edges.x << ' ' << edges.y;
    }
    EXPECT_EQ(index.snapEdges({213, 300, 24, 9}, {1, 0}, tolerance), Snap{}) << "its middle snaps";
}

TEST(SnapEdges, SnapsToEqualGaps) {
    struct Case {
        Places others;
        Place frame;
        HandleEdges edges;
        Snap snap;
    };
    const Places around = {{100, 200, 50, 40}, {300, 200, 50, 40}};
    const Places behind = {{330, 200, 40, 40}, {387, 200, 41, 40}};
    const Places before = {{100, 200, 40, 40}, {157, 200, 41, 40}};
    const Case cases[] = {
        {around,
         {167, 190, 119, 69},
         {1, 0}, // 17 on the left, 14 on the right
         {-3, 0, {gap(across, 220, 150, 167), gap(across, 220, 283, 300)}}},
        {around,
         {167, 190, 119, 69},
         {-1, 0},
         {-3, 0, {gap(across, 220, 150, 164), gap(across, 220, 286, 300)}}},
        {behind,
         {234, 190, 75, 69},
         {1, 0},
         {4, 0, {gap(across, 220, 313, 330), gap(across, 220, 370, 387)}}},
        {behind, {234, 190, 75, 69}, {-1, 0}, {}},
        {before,
         {211, 190, 80, 69},
         {-1, 0},
         {4, 0, {gap(across, 220, 140, 157), gap(across, 220, 198, 215)}}},
        {before, {211, 190, 80, 69}, {1, 0}, {}},
    };
    for (const auto& [others, frame, edges, snap] : cases) {
        EXPECT_EQ(among(others).snapEdges(frame, edges, 5), snap)
            << testing::PrintToString(frame) << edges.x;
    }
}

TEST(SnapPoint, SnapsToLines) {
    const SnapIndex index = among({{200, 120, 50, 30}});
    struct Case {
        SkinPoint point;
        Snap snap;
    };
    const Case cases[] = {
        {{203, 300}, {-3, 0, {line(across, 200, 120, 300)}}},
        {{246, 50}, {4, -2, {line(across, 250, 48, 150), line(down, 48, 64, 576)}}},
        {{150, 133}, {0, 2, {line(down, 135, 150, 250)}}},
        {{150, 300}, {}},
    };
    for (const auto& [point, snap] : cases) {
        EXPECT_EQ(index.snapPoint(point, tolerance), snap) << testing::PrintToString(point);
    }
}

TEST(Snapping, StandsBadInput) {
    SkinDocument document = boxes({{200, noNumber, 50, 30}, {infinity, 120, 50, 30}});
    add(document, boxAt({3e38F, -3e38F, 3e38F, 3e38F}));
    add(document, boxAt({300, 120, -50, 30}));
    const SnapIndex index(document, {});
    const Place good{203, 300, 10, 10};
    EXPECT_EQ(index.snapMove(good, tolerance).dx, 0);              // not to what has no place
    EXPECT_EQ(index.snapMove({303, 200, 9, 9}, tolerance).dx, -3); // to where it has no width
    for (const double none : {-1.0, double{noNumber}, -double{infinity}}) {
        EXPECT_EQ(index.snapMove({299, 200, 9, 9}, none), Snap{});
        EXPECT_EQ(index.snapEdges({299, 200, 9, 9}, {-1, 0}, none), Snap{});
        EXPECT_EQ(index.snapPoint({299, 200}, none), Snap{});
    }
    for (const float bad : {noNumber, infinity, -infinity}) {
        for (const double reach : {tolerance, double{infinity}}) {
            for (std::size_t i = 0; i < 4; ++i) {
                Place frame = good;
                frame.at(i) = bad;
                EXPECT_EQ(index.snapMove(frame, reach), Snap{});
                EXPECT_EQ(index.snapEdges(frame, {1, 1}, reach), Snap{});
            }
            EXPECT_EQ(index.snapPoint({bad, 0}, reach), Snap{});
            EXPECT_EQ(index.snapPoint({0, bad}, reach), Snap{});
        }
    }
    const Snap far = index.snapMove({-3e38F, 3e38F, 3e38F, 3e38F}, infinity);
    EXPECT_TRUE(std::isfinite(far.dx) && std::isfinite(far.dy));
}

// The offset across that a walk over all others gives.
double walkedOffset(const Places& others, const Place& frame, double reach) {
    std::vector<Place> all = others;
    all.push_back({0, 0, 640, 480});
    all.push_back({64, 48, 512, 384});
    std::optional<double> best;
    const auto offer = [&](double offset) {
        if (std::abs(offset) <= reach && (!best || std::abs(offset) < std::abs(*best))) {
            best = offset;
        }
    };
    const auto lines = [](const Place& place) {
        return std::array<double, 3>{place[0], place[0] + place[2] / 2.0,
                                     double{place[0]} + place[2]};
    };
    for (const double own : lines(frame)) {
        std::vector<double> offsets;
        for (const Place& other : all) {
            for (const double at : lines(other)) {
                offsets.push_back(at - own);
            }
        }
        std::sort(offsets.begin(), offsets.end()); // lesser positions first
        for (const double offset : offsets) {
            offer(offset);
        }
    }
    const auto shares = [&](const Place& other) {
        return other[1] < frame[1] + frame[3] && other[1] + other[3] > frame[1];
    };
    const auto endOf = [](const Place& place) { return double{place[0]} + place[2]; };
    const auto before = [&](double limit) {
        std::optional<Place> found;
        for (const Place& other : others) {
            if (shares(other) && endOf(other) <= limit &&
                (!found || endOf(*found) < endOf(other) ||
                 (endOf(*found) == endOf(other) && (*found)[0] < other[0]))) {
                found = other;
            }
        }
        return found;
    };
    const auto after = [&](double limit) {
        std::optional<Place> found;
        for (const Place& other : others) {
            if (shares(other) && other[0] >= limit &&
                (!found || other[0] < (*found)[0] ||
                 (other[0] == (*found)[0] && endOf(other) < endOf(*found)))) {
                found = other;
            }
        }
        return found;
    };
    const auto left = before(frame[0] + reach);
    const auto right = after(endOf(frame) - reach);
    if (left && right && (*right)[0] - endOf(*left) > frame[2]) {
        offer((endOf(*left) + (*right)[0] - frame[2]) / 2 - frame[0]);
    }
    if (left) {
        if (const auto next = before((*left)[0]); next && (*left)[0] > endOf(*next)) {
            offer(endOf(*left) + (*left)[0] - endOf(*next) - frame[0]);
        }
    }
    if (right) {
        if (const auto next = after(endOf(*right)); next && (*next)[0] > endOf(*right)) {
            offer((*right)[0] - ((*next)[0] - endOf(*right)) - endOf(frame));
        }
    }
    return best.value_or(0);
}

TEST(Snapping, AgreesWithTheWalkOverAll) {
    std::mt19937 random(9); // NOLINT: the same numbers in every run
    const auto number = [&](int limit) {
        return static_cast<float>(random() % static_cast<unsigned>(limit));
    };
    for (int round = 0; round < 150; ++round) {
        Places others;
        for (int i = 0; i < 12; ++i) {
            others.push_back({number(640), number(480), number(50), number(60)});
        }
        const SnapIndex index = among(others);
        for (int i = 0; i < 20; ++i) {
            const Place frame{number(640), number(480), number(70), number(70)};
            ASSERT_EQ(index.snapMove(frame, 4).dx, walkedOffset(others, frame, 4))
                << testing::PrintToString(frame) << testing::PrintToString(others);
        }
    }
}

TEST(Snapping, ComesToRestWhereItSnapped) {
    std::mt19937 random(13); // NOLINT: the same numbers in every run
    const auto number = [&](int limit) {
        return static_cast<float>(random() % static_cast<unsigned>(limit));
    };
    Places others;
    for (int i = 0; i < 20; ++i) {
        others.push_back({number(600), number(440), number(50), number(50)});
    }
    const SnapIndex index = among(others);
    for (int i = 0; i < 500; ++i) {
        Place frame{number(640), number(480), 30, 20};
        const Snap snap = index.snapMove(frame, tolerance);
        EXPECT_LE(std::abs(snap.dx), tolerance);
        EXPECT_LE(std::abs(snap.dy), tolerance);
        const bool lineAcross =
            std::any_of(snap.guides.begin(), snap.guides.end(), [](const Guide& guide) {
                return guide.kind == GuideKind::line && guide.axis == Axis::across;
            });
        frame[0] += static_cast<float>(snap.dx);
        frame[1] += static_cast<float>(snap.dy);
        if (lineAcross) {
            EXPECT_EQ(index.snapMove(frame, tolerance).dx, 0) << testing::PrintToString(frame);
        }
    }
}

TEST(Grid, TakesTheNearestMultiple) {
    struct Case {
        float value;
        int grid;
        float snapped;
    };
    const Case cases[] = {
        {0, 8, 0},         {3, 8, 0},      {4, 8, 8},
        {5, 8, 8},         {11.9F, 8, 8},  {12, 8, 16},
        {-3, 8, 0},        {-4, 8, 0},     {-5, 8, -8},
        {-12, 8, -8},      {1, 2, 2},      {0.9F, 2, 0},
        {33, 64, 64},      {31, 64, 0},    {1, 1, 2},
        {1, 0, 2},         {1, -5, 2},     {40, 99, 64},
        {3e38F, 2, 3e38F}, {101, 10, 100}, {infinity, 8, infinity},
    };
    for (const auto& [value, grid, snapped] : cases) {
        EXPECT_EQ(snapToGrid(value, grid), snapped) << value << ' ' << grid;
    }
    EXPECT_TRUE(std::isnan(snapToGrid(noNumber, 8)));
}

} // namespace
} // namespace tarvel
