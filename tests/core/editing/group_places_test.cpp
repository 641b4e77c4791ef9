// The rectangles that several elements cover, and which of them take part.
#include "editing/group_places.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace tarvel {
namespace {

using test::add;
using test::boxAt;
using test::lineAt;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();

std::vector<int> idsOf(const std::vector<StartPlace>& starts) {
    std::vector<int> ids;
    for (const StartPlace& start : starts) {
        ids.push_back(start.elementId);
    }
    return ids;
}

TEST(GroupPlaces, TellWhatIsCovered) {
    struct Case {
        Place place;
        PlaceForm form;
        Bounds bounds;
    };
    const Case cases[] = {
        {{10, 20, 30, 40}, PlaceForm::rectangle, {{10, 30}, {20, 40}}},
        {{10, 20, -30, 0}, PlaceForm::rectangle, {{10, 0}, {20, 0}}},
        {{10, 20, 30, 40}, PlaceForm::ends, {{10, 20}, {20, 20}}},
        {{30, 40, 10, 40}, PlaceForm::ends, {{10, 20}, {40, 0}}},
        {{-5, 9, -8, 2}, PlaceForm::ends, {{-8, 3}, {2, 7}}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(boundsOf(c.place, c.form), c.bounds) << testing::PrintToString(c.place);
    }
}

TEST(GroupPlaces, UniteInTheSmallestRectangle) {
    const StartPlace box{1, PlaceForm::rectangle, {10, 20, 30, 40}};
    const StartPlace line{2, PlaceForm::ends, {50, 90, 5, 25}};
    EXPECT_EQ(commonBounds(std::vector{box}), boundsOf(box));
    EXPECT_EQ(commonBounds(std::vector{box, line}), (Bounds{{5, 45}, {20, 70}}));
    EXPECT_EQ(commonBounds(std::vector{line, box}), (Bounds{{5, 45}, {20, 70}}));
    EXPECT_EQ(commonBounds({}), Bounds{});
}

TEST(GroupPlaces, LeaveOutWhatCannotBeMoved) {
    SkinDocument document;
    const int first = add(document, boxAt({1, 2, 3, 4}));
    const int locked = add(document, boxAt({1, 2, 3, 4}));
    const int infinite = add(document, boxAt({1, infinity, 3, 4}));
    const int nowhere = add(document, lineAt({1, 2, noNumber, 4}));
    const int line = add(document, lineAt({5, 6, 7, 8}));
    test::setLocked(document, locked, true);
    const std::vector<int> ids = {line, 0, -3, 99, locked, infinite, nowhere, first, line, first};
    const auto starts = startPlaces(document, ids);
    EXPECT_EQ(idsOf(starts), (std::vector{first, line}));
    EXPECT_EQ(starts.front().place, (Place{1, 2, 3, 4}));
    EXPECT_EQ(starts.front().form, PlaceForm::rectangle);
    EXPECT_EQ(starts.back().place, (Place{5, 6, 7, 8}));
    EXPECT_EQ(starts.back().form, PlaceForm::ends);
    EXPECT_TRUE(startPlaces(document, {}).empty());
}

TEST(GroupPlaces, MoveAndFitAlongOneAxis) {
    const StartPlace box{1, PlaceForm::rectangle, {10, 20, 30, 40}};
    const StartPlace line{2, PlaceForm::ends, {50, 90, 5, 25}};
    const StartPlace upright{3, PlaceForm::ends, {50, 90, 50, 25}};
    EXPECT_EQ(movedAlong(box, Axis::across, 2.5), (Place{12.5F, 20, 30, 40}));
    EXPECT_EQ(movedAlong(box, Axis::down, -4), (Place{10, 16, 30, 40}));
    EXPECT_EQ(movedAlong(line, Axis::across, 2.5), (Place{52.5F, 90, 7.5F, 25}));
    EXPECT_EQ(movedAlong(line, Axis::down, -4), (Place{50, 86, 5, 21}));
    EXPECT_EQ(fittedAlong(box, Axis::across, {7, 8}), (Place{7, 20, 8, 40}));
    EXPECT_EQ(fittedAlong(box, Axis::down, {7, 8}), (Place{10, 7, 30, 8}));
    EXPECT_EQ(fittedAlong(line, Axis::across, {7, 8}), (Place{15, 90, 7, 25}));
    EXPECT_EQ(fittedAlong(upright, Axis::across, {7, 8}), upright.place);
    EXPECT_EQ(fittedAlong(upright, Axis::down, {7, 8}), (Place{50, 15, 50, 7}));
    EXPECT_EQ(movedAlong({1, PlaceForm::rectangle, {3e38F, 0, 1, 1}}, Axis::across, 3e38)[0],
              std::numeric_limits<float>::max());
}

} // namespace
} // namespace tarvel
