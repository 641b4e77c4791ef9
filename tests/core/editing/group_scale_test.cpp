// Several elements moved and scaled as one.
#include "editing/group_scale.h"
#include "editing/manipulation.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

namespace tarvel {
namespace {

using test::add;
using test::boxAt;
using test::lineAt;
using test::placeOf;
using Places = std::vector<Place>;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
constexpr Handle frameHandles[] = {Handle::topLeft,    Handle::top,         Handle::topRight,
                                   Handle::right,      Handle::bottomRight, Handle::bottom,
                                   Handle::bottomLeft, Handle::left};

// Boxes and then lines, as at the start of a drag.
struct Group {
    explicit Group(const Places& boxes, const Places& lines = {}) {
        for (const Place& place : boxes) {
            ids.push_back(add(document, boxAt(place)));
        }
        for (const Place& place : lines) {
            ids.push_back(add(document, lineAt(place)));
        }
        starts = startPlaces(document, ids);
        frame = commonFrame(starts);
    }

    bool drag(Handle handle, float dx, float dy, bool keepProportions = false) {
        return scaleAll(document, starts, frame, resized(frame, handle, dx, dy, keepProportions));
    }
    [[nodiscard]] Places places() const {
        Places result;
        for (const int id : ids) {
            result.push_back(placeOf(document, id));
        }
        return result;
    }

    SkinDocument document;
    std::vector<int> ids;
    std::vector<StartPlace> starts;
    Place frame{};
};

TEST(GroupScale, HasOneFrameAroundAll) {
    EXPECT_EQ(Group({{10, 20, 30, 40}, {100, 10, 50, 5}}).frame, (Place{10, 10, 140, 50}));
    EXPECT_EQ(Group({{10, 20, 30, 40}}, {{5, 90, 20, 15}}).frame, (Place{5, 15, 35, 75}));
    EXPECT_EQ(Group({{10, 20, -30, 40}}).frame, (Place{10, 20, 0, 40}));
    EXPECT_EQ(Group({}).frame, (Place{0, 0, 0, 0}));
}

TEST(GroupScale, HasTheHandlesThatOneElementHas) {
    const Places frames = {{100, 50, 140, 80}, {100, 50, 20, 80}, {100, 50, 140, 0}};
    for (const Place& frame : frames) {
        const Element same = boxAt(frame);
        for (const Handle handle : frameHandles) {
            EXPECT_EQ(hasFrameHandle(frame, handle), hasHandle(same, handle));
            const SkinPoint centre = frameHandleCentre(frame, handle);
            EXPECT_EQ(centre, handleCentre(same.elementControl, handle));
            EXPECT_EQ(frameHandleAt(frame, centre), handleAt(same, centre));
        }
        EXPECT_FALSE(hasFrameHandle(frame, Handle::firstEnd));
    }
    EXPECT_EQ(frameHandleAt(frames[0], {170, 90}), Handle::none);
    EXPECT_EQ(frameHandleAt(frames[0], {242, 132}), Handle::bottomRight);
}

TEST(GroupScale, ScalesWhatIsInTheFrame) {
    struct Case {
        Handle handle;
        float dx;
        float dy;
        bool keepProportions;
        Places places; // two boxes and a line
    };
    const Place first{100, 100, 20, 10};
    const Place second{160, 150, 40, 50};
    const Place line{180, 110, 120, 130}; // the frame is 100, 100, 100, 100
    const Case cases[] = {
        {Handle::right,
         100,
         9,
         false,
         {{100, 100, 40, 10}, {220, 150, 80, 50}, {260, 110, 140, 130}}},
        {Handle::left,
         50,
         9,
         false,
         {{150, 100, 10, 10}, {180, 150, 20, 50}, {190, 110, 160, 130}}},
        {Handle::bottom,
         9,
         -50,
         false,
         {{100, 100, 20, 5}, {160, 125, 40, 25}, {180, 105, 120, 115}}},
        {Handle::top, 9, -100, false, {{100, 0, 20, 20}, {160, 100, 40, 100}, {180, 20, 120, 60}}},
        {Handle::bottomRight,
         100,
         0,
         true,
         {{100, 100, 40, 20}, {220, 200, 80, 100}, {260, 120, 140, 160}}},
        {Handle::topLeft,
         50,
         50,
         true,
         {{150, 150, 10, 5}, {180, 175, 20, 25}, {190, 155, 160, 165}}},
        {Handle::right,
         100,
         0,
         true,
         {{100, 50, 40, 20}, {220, 150, 80, 100}, {260, 70, 140, 110}}},
        {Handle::none, 50, 50, false, {first, second, line}},
        {Handle::bottomRight, 0, 0, false, {first, second, line}},
    };
    for (const auto& c : cases) {
        Group group({first, second}, {line});
        const bool changes = c.places != Places{first, second, line};
        EXPECT_EQ(group.drag(c.handle, c.dx, c.dy, c.keepProportions), changes);
        EXPECT_EQ(group.places(), c.places) << static_cast<int>(c.handle);
        EXPECT_EQ(group.drag(c.handle, 0, 0), changes); // back to where the drag began
        EXPECT_EQ(group.places(), (Places{first, second, line})) << static_cast<int>(c.handle);
    }
}

TEST(GroupScale, OfOneElementIsWhatSizingItIs) {
    const Places starts = {{100, 50, 40, 20}, {10.5F, 20.25F, 0.5F, 3},
                           {0, 0, 0, 20},     {5, 5, 20, 0},
                           {7, 7, 0, 0},      {-30, 470, 1, 1}};
    const float ways[] = {-500, -20.5F, -1, 0, 1, 7, 300.25F};
    for (const Place& start : starts) {
        for (const Handle handle : frameHandles) {
            for (const float dx : ways) {
                for (const float dy : ways) {
                    for (const bool keep : {false, true}) {
                        Group group({start});
                        group.drag(handle, dx, dy, keep);
                        EXPECT_EQ(group.places(), Places{resized(start, handle, dx, dy, keep)})
                            << testing::PrintToString(start) << static_cast<int>(handle) << ' '
                            << dx << ' ' << dy << ' ' << keep;
                    }
                }
            }
        }
    }
}

TEST(GroupScale, KeepsSidesOfAPixelWithinTheFrame) {
    Group group({{0, 0, 10, 10}, {90, 0, 10, 0.5F}}, {{0, 0, 100, 100}});
    EXPECT_TRUE(group.drag(Handle::bottomRight, -99, -90)); // to 1 by 10
    EXPECT_EQ(group.places(), (Places{{0, 0, 1, 1}, {0, 0, 1, 0.5F}, {0, 0, 1, 10}}));
    EXPECT_TRUE(group.drag(Handle::bottomRight, -900, -900)); // past the other corner
    EXPECT_EQ(group.places(), (Places{{0, 0, 1, 1}, {0, 0, 1, 0.5F}, {0, 0, 1, 1}}));
    EXPECT_TRUE(group.drag(Handle::topLeft, 900, 900));
    EXPECT_EQ(group.places(), (Places{{99, 99, 1, 1}, {99, 99, 1, 0.5F}, {99, 99, 100, 100}}));
}

TEST(GroupScale, TurnsNothingOverAndKeepsAllInTheFrame) {
    std::mt19937 random(11); // NOLINT: the same numbers in every run
    const auto number = [&](int from, int to) {
        return static_cast<float>(std::uniform_int_distribution(from * 4, to * 4)(random)) / 4;
    };
    for (int round = 0; round < 300; ++round) {
        Places boxes;
        Places lines;
        for (int i = 0; i < 5; ++i) {
            boxes.push_back({number(0, 600), number(0, 400), number(0, 40), number(0, 40)});
            lines.push_back({number(0, 600), number(0, 400), number(0, 600), number(0, 400)});
        }
        Group group(boxes, lines);
        const Place to = resized(group.frame, frameHandles[random() % 8], number(-700, 700),
                                 number(-700, 700), round % 2 == 0);
        scaleAll(group.document, group.starts, group.frame, to);
        const Bounds after = commonBounds(startPlaces(group.document, group.ids));
        EXPECT_NEAR(after.across.start, to[0], 1e-3);
        EXPECT_NEAR(after.down.start, to[1], 1e-3);
        EXPECT_NEAR(after.across.length, to[2], 1e-3);
        EXPECT_NEAR(after.down.length, to[3], 1e-3);
        const Places places = group.places();
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            EXPECT_GE(places[i][2], std::min(boxes[i][2], smallestSide));
            EXPECT_GE(places[i][3], std::min(boxes[i][3], smallestSide));
            const Place& before = lines[i];
            const Place& line = places[i + boxes.size()];
            EXPECT_GE((before[2] - before[0]) * (line[2] - line[0]), 0);
            EXPECT_GE((before[3] - before[1]) * (line[3] - line[1]), 0);
        }
    }
}

TEST(GroupScale, WithoutExtentStretchesBoxesOnly) {
    // A row of level lines and a box without height.
    const Places boxes = {{10, 50, 20, 0}};
    const Places lines = {{40, 50, 60, 50}, {90, 50, 70, 50}};
    Group group(boxes, lines);
    EXPECT_EQ(group.frame, (Place{10, 50, 80, 0}));
    EXPECT_TRUE(group.drag(Handle::bottom, 0, 30));
    EXPECT_EQ(group.places(), (Places{{10, 50, 20, 30}, lines[0], lines[1]}));
    EXPECT_TRUE(group.drag(Handle::top, 0, -30));
    EXPECT_EQ(group.places(), (Places{{10, 20, 20, 30}, lines[0], lines[1]}));
    EXPECT_TRUE(group.drag(Handle::right, 80, 0, true)); // no proportions to keep
    EXPECT_EQ(group.places(), (Places{{10, 50, 40, 0}, {70, 50, 110, 50}, {170, 50, 130, 50}}));

    Group level({}, lines);
    EXPECT_FALSE(level.drag(Handle::bottom, 0, 30));
    EXPECT_EQ(level.places(), lines);
    EXPECT_TRUE(level.drag(Handle::left, 25, 0));
    EXPECT_EQ(level.places(), (Places{{65, 50, 75, 50}, {90, 50, 80, 50}}));
}

TEST(GroupScale, ChangesNothingAlongAnAxisThatIsTheSame) {
    Group group({{10, 10, -5, 8}, {0.1F, 7, 0.3F, 1}}, {{1e-3F, 0, 1e5F, 9}});
    const Places start = group.places();
    EXPECT_TRUE(group.drag(Handle::bottom, 5, 30));
    for (std::size_t i = 0; i < start.size(); ++i) {
        EXPECT_EQ(group.places()[i][0], start[i][0]);
        EXPECT_EQ(group.places()[i][2], start[i][2]);
        EXPECT_NE(group.places()[i], start[i]);
    }
}

TEST(GroupScale, MovesLevelLinesWithTheRest) {
    Group group({{0, 0, 10, 100}}, {{0, 50, 100, 50}});
    EXPECT_TRUE(group.drag(Handle::bottom, 0, 100));
    EXPECT_EQ(group.places(), (Places{{0, 0, 10, 200}, {0, 100, 100, 100}}));
}

TEST(GroupScale, LeavesWhatIsNotInTheDrag) {
    Group group({{0, 0, 10, 10}, {20, 0, 10, 10}});
    const int other = add(group.document, boxAt({5, 5, 5, 5}));
    test::setLocked(group.document, 2, true); // in the middle of the drag
    EXPECT_TRUE(group.drag(Handle::right, 30, 0));
    EXPECT_TRUE(moveAll(group.document, group.starts, 100, 0));
    EXPECT_EQ(group.places(), (Places{{100, 0, 10, 10}, {20, 0, 10, 10}}));
    EXPECT_EQ(placeOf(group.document, other), (Place{5, 5, 5, 5}));
}

TEST(GroupScale, RefusesFramesThatAreNone) {
    const Place good{0, 0, 30, 10};
    const Place bad[] = {{noNumber, 0, 30, 10},
                         {0, infinity, 30, 10},
                         {0, 0, -1, 10},
                         {0, 0, 30, -infinity},
                         {0, 0, 30, -0.5F}};
    for (const Place& frame : bad) {
        Group group({{0, 0, 10, 10}, {20, 0, 10, 10}});
        const SkinDocument before = group.document;
        EXPECT_FALSE(scaleAll(group.document, group.starts, group.frame, frame));
        EXPECT_FALSE(scaleAll(group.document, group.starts, frame, good));
        EXPECT_EQ(group.document, before);
    }
}

TEST(GroupScale, StandsTheLargestNumbers) {
    Group group({{-3e38F, 0, 3e38F, 1e-40F}, {3e38F, 0, 3e38F, 0}}, {{0, 0, 1e-45F, 0}});
    group.drag(Handle::bottomRight, 3e38F, 3e38F);
    for (const Place& place : group.places()) {
        EXPECT_TRUE(isFinite(place)) << testing::PrintToString(place);
    }
}

TEST(MoveAll, AddsTheOffsetToTheStart) {
    Group group({{10, 20, 30, 40}, {1.5F, 2, 3, 4}}, {{5, 6, 7, 8}});
    const Places start = group.places();
    EXPECT_TRUE(moveAll(group.document, group.starts, 100, -50));
    EXPECT_TRUE(moveAll(group.document, group.starts, 10.25, -5)); // not on top of the first
    EXPECT_EQ(group.places(),
              (Places{{20.25F, 15, 30, 40}, {11.75F, -3, 3, 4}, {15.25F, 1, 17.25F, 3}}));
    EXPECT_FALSE(moveAll(group.document, group.starts, 10.25, -5));
    for (const double bad : {double{infinity}, -double{infinity}, double{noNumber}}) {
        EXPECT_FALSE(moveAll(group.document, group.starts, bad, 0));
        EXPECT_FALSE(moveAll(group.document, group.starts, 0, bad));
    }
    EXPECT_TRUE(moveAll(group.document, group.starts, 0, 0));
    EXPECT_EQ(group.places(), start);
}

} // namespace
} // namespace tarvel
