// Hits: elements by their edges, lines by their ends, the frontmost first, and the handles.
#include "editing/hit_test.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace tarvel {
namespace {

using test::add;
using test::boxAt;
using test::elementAt;
using test::lineAt;
using test::setLocked;

TEST(OnElement, CountsTheEdgesAsInside) {
    const ElementControl box = boxAt({100, 50, 40, 20}).elementControl;
    struct Case {
        float x;
        float y;
        bool hit;
    };
    const Case cases[] = {
        {120, 60, true},     {100, 50, true},   {140, 50, true},     {100, 70, true},
        {140, 70, true},     {141, 60, false},  {140.5F, 60, false}, {99, 60, false},
        {99.75F, 60, false}, {120, 71, false},  {120, 49, false},    {120, 70.25F, false},
        {20, 60, false},     {120, 200, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(onElement(c.x, c.y, box), c.hit) << c.x << ' ' << c.y;
    }
}

TEST(OnElement, FindsElementsWithoutExtentAtTheirPointOnly) {
    const ElementControl dot = boxAt({10, 10, 0, 0}).elementControl;
    EXPECT_TRUE(onElement(10, 10, dot));
    EXPECT_FALSE(onElement(11, 10, dot));
    const ElementControl inverted = boxAt({10, 10, -5, 20}).elementControl;
    EXPECT_FALSE(onElement(10, 10, inverted));
    EXPECT_FALSE(onElement(7, 15, inverted));
}

TEST(OnElementLine, FindsTheEndsOnly) {
    const ElementControl line = lineAt({100, 100, 200, 300}).elementControl;
    struct Case {
        float x;
        float y;
        bool hit;
    };
    const Case cases[] = {
        {100, 100, true},    {106, 106, true},  {94, 94, true},    {106, 94, true},
        {107, 100, false},   {100, 107, false}, {93, 100, false},  {100, 93, false},
        {106.5F, 100, true}, {107, 107, false}, {200, 300, true},  {206, 294, true},
        {207, 300, false},   {200, 293, false}, {150, 200, false}, {120, 140, false},
        {100, 300, false},   {200, 100, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(onElementLine(c.x, c.y, line), c.hit) << c.x << ' ' << c.y;
    }
}

TEST(IsAt, LooksAtTheKind) {
    EXPECT_TRUE(isAt(boxAt({0, 0, 100, 100}), {50, 50}));
    EXPECT_FALSE(isAt(lineAt({0, 0, 100, 100}), {50, 50}));
    EXPECT_TRUE(isAt(lineAt({0, 0, 100, 100}), {-6, 3}));
    EXPECT_FALSE(isAt(boxAt({0, 0, 100, 100}), {-1, 3}));
    for (const auto& [kind, control] : std::array<std::pair<ElementKind, ControlKind>, 5>{
             {{ElementKind::Image, ControlKind::img},
              {ElementKind::Image, ControlKind::png},
              {ElementKind::Image, ControlKind::vid},
              {ElementKind::Text, ControlKind::txt},
              {ElementKind::Menu, ControlKind::qor}}}) {
        Element element = elementAt(kind, control, {10, 10, 20, 20});
        EXPECT_TRUE(isAt(element, {30, 30})) << controlName(control);
        EXPECT_FALSE(isAt(element, {31, 30})) << controlName(control);
        element.elementLocked = true;
        EXPECT_FALSE(isAt(element, {30, 30})) << controlName(control);
    }
}

TEST(RowAt, FindsTheFrontmost) {
    SkinDocument document;
    add(document, boxAt({0, 0, 100, 100}));
    add(document, boxAt({50, 50, 100, 100}));
    add(document, lineAt({60, 60, 200, 200}));
    struct Case {
        SkinPoint point;
        int row;
    };
    const Case cases[] = {
        {{10, 10}, 0},   {{50, 50}, 1},   {{100, 100}, 1}, {{62, 62}, 2},
        {{67, 60}, 1},   {{140, 140}, 1}, {{194, 194}, 2}, {{300, 300}, -1},
        {{151, 10}, -1}, {{-1, 5}, -1},   {{100, 49}, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(rowAt(document, c.point), c.row) << c.point.x << ' ' << c.point.y;
    }
    document.moveRow(1, 0, 2);
    EXPECT_EQ(rowAt(document, {62, 62}), 2); // the first box is now in front
    EXPECT_EQ(document.itemData(1, 2), 1);
}

TEST(RowAt, FindsWhatHasNoColours) {
    SkinDocument document;
    const Element invisible = boxAt({10, 10, 10, 10});
    ASSERT_EQ(invisible.elementControl.fillStyle, FillStyle::transparent);
    ASSERT_EQ(invisible.elementControl.borderStyle, BorderStyle::none);
    add(document, invisible);
    EXPECT_EQ(rowAt(document, {15, 15}), 0);
}

TEST(RowAt, LooksAtTheCurrentScreenOnly) {
    SkinDocument document;
    EXPECT_EQ(rowAt(document, {5, 5}), -1);
    add(document, boxAt({0, 0, 10, 10}));
    document.setCurrentLayout(0);
    EXPECT_EQ(rowAt(document, {5, 5}), -1);
    add(document, boxAt({100, 0, 10, 10}));
    add(document, boxAt({0, 0, 10, 10}));
    EXPECT_EQ(rowAt(document, {5, 5}), 1);
    document.setCurrentLayout(1);
    EXPECT_EQ(rowAt(document, {5, 5}), 0);
}

TEST(RowAt, PassesLockedElements) {
    SkinDocument document;
    add(document, boxAt({0, 0, 100, 100}));
    const int front = add(document, boxAt({0, 0, 100, 100}));
    setLocked(document, front, true);
    EXPECT_EQ(rowAt(document, {5, 5}), 0);
    setLocked(document, 1, true);
    EXPECT_EQ(rowAt(document, {5, 5}), -1);
    setLocked(document, front, false);
    EXPECT_EQ(rowAt(document, {5, 5}), 1);
}

TEST(EdgesOf, NamesTheEdgesThatMove) {
    struct Case {
        Handle handle;
        int x;
        int y;
    };
    const Case cases[] = {
        {Handle::topLeft, -1, -1},   {Handle::top, 0, -1},        {Handle::topRight, 1, -1},
        {Handle::right, 1, 0},       {Handle::bottomRight, 1, 1}, {Handle::bottom, 0, 1},
        {Handle::bottomLeft, -1, 1}, {Handle::left, -1, 0},       {Handle::none, 0, 0},
        {Handle::firstEnd, 0, 0},    {Handle::secondEnd, 0, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(edgesOf(c.handle).x, c.x) << static_cast<int>(c.handle);
        EXPECT_EQ(edgesOf(c.handle).y, c.y) << static_cast<int>(c.handle);
    }
}

TEST(HandleCentre, IsOnTheCornersAndMiddlesOfTheBoxAndTheEndsOfALine) {
    const ElementControl box = boxAt({100, 50, 40, 20}).elementControl;
    const ElementControl line = lineAt({1, 2, 3, 4}).elementControl;
    struct Case {
        const ElementControl& control;
        Handle handle;
        SkinPoint centre;
    };
    const Case cases[] = {
        {box, Handle::topLeft, {100, 50}},     {box, Handle::top, {120, 50}},
        {box, Handle::topRight, {140, 50}},    {box, Handle::right, {140, 60}},
        {box, Handle::bottomRight, {140, 70}}, {box, Handle::bottom, {120, 70}},
        {box, Handle::bottomLeft, {100, 70}},  {box, Handle::left, {100, 60}},
        {line, Handle::firstEnd, {1, 2}},      {line, Handle::secondEnd, {3, 4}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(handleCentre(c.control, c.handle), c.centre) << static_cast<int>(c.handle);
    }
    const ElementControl inverted = boxAt({100, 50, -40, -20}).elementControl;
    EXPECT_EQ(handleCentre(inverted, Handle::bottomRight), (SkinPoint{100, 50}));
}

TEST(HandleAt, TakesAPressAroundEachHandle) {
    const Element box = boxAt({100, 100, 200, 80});
    struct Case {
        SkinPoint point;
        Handle handle;
    };
    const Case cases[] = {
        {{100, 100}, Handle::topLeft},
        {{95, 95}, Handle::topLeft},
        {{105, 105}, Handle::topLeft},
        {{106, 100}, Handle::none}, // on the edge, but on none of its handles
        {{94, 100}, Handle::none},
        {{100, 94}, Handle::none},
        {{200, 100}, Handle::top},
        {{195, 105}, Handle::top},
        {{206, 100}, Handle::none},
        {{305, 95}, Handle::topRight},
        {{306, 95}, Handle::none},
        {{300, 140}, Handle::right},
        {{295, 145}, Handle::right},
        {{294, 140}, Handle::none},
        {{305, 185}, Handle::bottomRight},
        {{200, 180}, Handle::bottom},
        {{95, 185}, Handle::bottomLeft},
        {{100, 140}, Handle::left},
        {{200, 140}, Handle::none},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(handleAt(box, c.point), c.handle) << c.point.x << ' ' << c.point.y;
    }
}

TEST(HandleAt, LeavesTheMiddleOfSmallElementsToMoveThemBy) {
    const Element small = boxAt({100, 100, 8, 8});
    struct Case {
        SkinPoint point;
        Handle handle;
    };
    const Case cases[] = {
        {{104, 104}, Handle::none},       {{103, 104}, Handle::none},
        {{102, 102}, Handle::topLeft},    {{103, 103}, Handle::none},
        {{106, 102}, Handle::topRight},   {{106, 106}, Handle::bottomRight},
        {{102, 106}, Handle::bottomLeft}, {{113, 113}, Handle::bottomRight},
        {{104, 95}, Handle::none},        {{95, 104}, Handle::none},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(handleAt(small, c.point), c.handle) << c.point.x << ' ' << c.point.y;
    }
    const Element nothing = boxAt({100, 100, 0, 0});
    EXPECT_EQ(handleAt(nothing, {100, 100}), Handle::bottomRight);
    EXPECT_EQ(handleAt(nothing, {98, 98}), Handle::topLeft);
}

TEST(HandleAt, KnowsLinesByTheNearerEnd) {
    struct Case {
        Place line;
        SkinPoint point;
        Handle handle;
    };
    const Case cases[] = {
        {{100, 100, 200, 100}, {106, 94}, Handle::firstEnd},
        {{100, 100, 200, 100}, {107, 100}, Handle::none},
        {{100, 100, 200, 100}, {194, 106}, Handle::secondEnd},
        {{100, 100, 200, 100}, {150, 100}, Handle::none},
        {{100, 100, 108, 100}, {103, 100}, Handle::firstEnd},
        {{100, 100, 108, 100}, {105, 100}, Handle::secondEnd},
        {{100, 100, 108, 100}, {104, 100}, Handle::secondEnd},
        {{100, 100, 100, 100}, {101, 101}, Handle::secondEnd},
        {{100, 100, 113, 106}, {106, 106}, Handle::firstEnd}, // the other end is out of reach
    };
    for (const auto& c : cases) {
        EXPECT_EQ(handleAt(lineAt(c.line), c.point), c.handle) << c.point.x << ' ' << c.point.y;
    }
}

TEST(Handles, AreNotOnLockedElements) {
    Element box = boxAt({100, 100, 200, 80});
    Element line = lineAt({100, 100, 200, 100});
    box.elementLocked = line.elementLocked = true;
    EXPECT_EQ(handleAt(box, {100, 100}), Handle::none);
    EXPECT_EQ(handleAt(line, {100, 100}), Handle::none);
    EXPECT_FALSE(hasHandle(box, Handle::topLeft));
    EXPECT_FALSE(hasHandle(line, Handle::firstEnd));
}

TEST(HasHandle, LeavesOutTheMiddlesOfShortSides) {
    struct Case {
        Element element;
        Handle handle;
        bool has;
    };
    const Case cases[] = {
        {boxAt({0, 0, 24, 23}), Handle::top, true},
        {boxAt({0, 0, 24, 23}), Handle::bottom, true},
        {boxAt({0, 0, 24, 23}), Handle::left, false},
        {boxAt({0, 0, 24, 23}), Handle::right, false},
        {boxAt({0, 0, 23, 24}), Handle::top, false},
        {boxAt({0, 0, 23, 24}), Handle::right, true},
        {boxAt({0, 0, 0, 0}), Handle::topLeft, true},
        {boxAt({0, 0, 50, 50}), Handle::none, false},
        {boxAt({0, 0, 50, 50}), Handle::firstEnd, false},
        {lineAt({0, 0, 50, 50}), Handle::firstEnd, true},
        {lineAt({0, 0, 50, 50}), Handle::secondEnd, true},
        {lineAt({0, 0, 50, 50}), Handle::topLeft, false},
        {lineAt({0, 0, 50, 50}), Handle::none, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(hasHandle(c.element, c.handle), c.has)
            << testing::PrintToString(c.element) << static_cast<int>(c.handle);
    }
}

} // namespace
} // namespace tarvel
