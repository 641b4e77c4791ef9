// Moving, sizing, drawing and keys: what each pointer path and key does to an element's numbers.
#include "editing/manipulation.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <vector>

namespace tarvel {
namespace {

using test::add;
using test::boxAt;
using test::elementAt;
using test::lineAt;
using test::placeOf;
using test::RecordingObserver;
using test::setLocked;
using Points = std::vector<SkinPoint>;

constexpr int menu = 1;

TEST(Readout, ShowsThePointWithFourBlanks) {
    EXPECT_EQ(initialReadout, "X: 0 Y: 0");
    EXPECT_EQ(readoutText({0, 0}), "X: 0    Y: 0");
    EXPECT_EQ(readoutText({639, 479}), "X: 639    Y: 479");
    EXPECT_EQ(readoutText({-3, 12.5F}), "X: -3    Y: 12.5");
}

TEST(KeyStep, IsOnePlusEightTimesTheModifiers) {
    const int steps[] = {1, 9, 17, 25, 33, 41, 49, 57};
    for (int modifiers = 0; modifiers < 8; ++modifiers) {
        EXPECT_EQ(keyStep(modifiers), steps[modifiers]) << modifiers;
    }
    EXPECT_EQ(keyStep(shiftModifier), 9);
    EXPECT_EQ(keyStep(ctrlModifier), 17);
    EXPECT_EQ(keyStep(shiftModifier | ctrlModifier), 25);
    EXPECT_EQ(keyStep(altModifier), 33);
}

TEST(ArrowKeys, HaveTheirKeyCodes) {
    EXPECT_EQ(static_cast<int>(ArrowKey::Left), 37);
    EXPECT_EQ(static_cast<int>(ArrowKey::Up), 38);
    EXPECT_EQ(static_cast<int>(ArrowKey::Right), 39);
    EXPECT_EQ(static_cast<int>(ArrowKey::Down), 40);
}

TEST(ArrowKeys, MoveTheSelectedElement) {
    struct Case {
        ArrowKey key;
        int modifiers;
        Place place;
    };
    const Case cases[] = {
        {ArrowKey::Left, 0, {99, 50, 40, 20}},
        {ArrowKey::Right, 0, {101, 50, 40, 20}},
        {ArrowKey::Up, 0, {100, 49, 40, 20}},
        {ArrowKey::Down, 0, {100, 51, 40, 20}},
        {ArrowKey::Left, shiftModifier, {91, 50, 40, 20}},
        {ArrowKey::Right, ctrlModifier, {117, 50, 40, 20}},
        {ArrowKey::Down, shiftModifier | ctrlModifier, {100, 75, 40, 20}},
        {ArrowKey::Up, altModifier, {100, 17, 40, 20}},
        // Nothing holds it on the screen.
        {ArrowKey::Up, shiftModifier | ctrlModifier | altModifier, {100, -7, 40, 20}},
    };
    for (const auto& c : cases) {
        SkinDocument document;
        const int id = add(document, boxAt({100, 50, 40, 20}));
        EXPECT_TRUE(moveByKey(document, id, c.key, c.modifiers));
        EXPECT_EQ(placeOf(document, id), c.place) << static_cast<int>(c.key) << ' ' << c.modifiers;
    }
}

TEST(ArrowKeys, LeaveLinesLockedOnesAndNothingAlone) {
    SkinDocument document;
    const int line = add(document, lineAt({10, 10, 50, 50}));
    const int box = add(document, boxAt({10, 10, 50, 50}));
    setLocked(document, box, true);
    const SkinDocument before = document;
    for (const int id : {line, box, 0, -1}) {
        EXPECT_FALSE(moveByKey(document, id, ArrowKey::Right, 0)) << id;
    }
    EXPECT_EQ(document, before);
}

TEST(MoveDrag, KeepsThePointOfTheGrab) {
    struct Case {
        SkinPoint press;
        Points path;
        Place place;
    };
    const Case cases[] = {
        {{110, 60}, {{111, 60}}, {101, 50, 40, 20}},
        {{110, 60}, {{120, 55}, {130, 40}}, {120, 30, 40, 20}},
        {{110, 60}, {{700, 600}, {110, 60}}, {100, 50, 40, 20}}, // out of the window and back
        {{110, 60}, {{-50, -40}}, {-60, -50, 40, 20}},           // not held within the screen
        {{110, 60}, {{710, 560}}, {700, 550, 40, 20}},
        {{110, 60}, {{110, 61}}, {100, 51, 40, 20}},
        {{110, 60}, {{110.5F, 60.25F}}, {100.5F, 50.25F, 40, 20}},
        {{110, 60}, {}, {100, 50, 40, 20}},
    };
    for (const auto& c : cases) {
        SkinDocument document;
        const int id =
            add(document, elementAt(ElementKind::Text, ControlKind::txt, {100, 50, 40, 20}));
        MoveDrag drag(document, id, c.press);
        for (const SkinPoint point : c.path) {
            EXPECT_TRUE(drag.moveTo(document, point)) << point.x << ' ' << point.y;
        }
        EXPECT_EQ(placeOf(document, id), c.place) << testing::PrintToString(c.path);
        EXPECT_EQ(drag.takeBack(document), c.place != (Place{100, 50, 40, 20}));
        EXPECT_EQ(placeOf(document, id), (Place{100, 50, 40, 20}));
    }
}

TEST(MoveDrag, TellsNothingWhereThePointerStays) {
    SkinDocument document;
    const int id = add(document, boxAt({100, 50, 40, 20}));
    RecordingObserver observer;
    const auto watch = document.watch(observer);
    MoveDrag drag(document, id, {110, 60});
    EXPECT_FALSE(drag.moveTo(document, {110, 60}));
    EXPECT_EQ(observer.notes.size(), 0U);
    EXPECT_TRUE(drag.moveTo(document, {111, 60}));
    EXPECT_FALSE(drag.moveTo(document, {111, 60}));
    EXPECT_EQ(observer.notes.size(), 1U);
}

TEST(MoveDrag, AddsToWhereTheElementIsNow) {
    SkinDocument document;
    const int id = add(document, boxAt({100, 50, 40, 20}));
    MoveDrag drag(document, id, {110, 60});
    drag.moveTo(document, {115, 60});
    moveByKey(document, id, ArrowKey::Down, shiftModifier); // a key in the middle of a drag
    drag.moveTo(document, {116, 60});
    EXPECT_EQ(placeOf(document, id), (Place{106, 59, 40, 20}));
}

TEST(MoveDrag, LeavesLockedElementsAndLines) {
    SkinDocument document;
    const int box = add(document, boxAt({100, 50, 40, 20}));
    const int line = add(document, lineAt({100, 50, 140, 70}));
    setLocked(document, box, true);
    const SkinDocument before = document;
    for (const int id : {box, line}) {
        MoveDrag drag(document, id, {110, 60});
        EXPECT_FALSE(drag.moveTo(document, {150, 90})) << id;
    }
    EXPECT_EQ(document, before);
}

TEST(LineEndDrag, MovesOneEndAndHoldsItWithinTheScreen) {
    struct Case {
        Handle end;
        SkinPoint press;
        Points path;
        Place ends;
    };
    const Case cases[] = {
        {Handle::firstEnd, {100, 100}, {{110, 90}}, {110, 90, 200, 300}},
        {Handle::firstEnd, {103, 98}, {{113, 88}}, {110, 90, 200, 300}}, // grabbed off the end
        {Handle::secondEnd, {200, 300}, {{150, 310}}, {100, 100, 150, 310}},
        {Handle::firstEnd, {100, 100}, {{-20, -1}}, {0, 0, 200, 300}},
        {Handle::firstEnd, {100, 100}, {{641, 481}}, {640, 480, 200, 300}},
        {Handle::firstEnd, {100, 100}, {{640, 480}}, {640, 480, 200, 300}},
        {Handle::secondEnd, {200, 300}, {{900, -10}}, {100, 100, 640, 0}},
        {Handle::secondEnd, {200, 300}, {{-900, 500}}, {100, 100, 0, 480}},
        // Back from beyond the edge, the end is under the pointer again.
        {Handle::secondEnd, {200, 300}, {{900, 300}, {500, 300}}, {100, 100, 500, 300}},
        {Handle::secondEnd, {200, 300}, {{10, 20}, {200, 300}}, {100, 100, 200, 300}},
    };
    for (const auto& c : cases) {
        SkinDocument document;
        const int id = add(document, lineAt({100, 100, 200, 300}));
        const LineEndDrag drag(document, id, c.end, c.press);
        for (const SkinPoint point : c.path) {
            EXPECT_TRUE(drag.moveTo(document, point));
        }
        EXPECT_EQ(placeOf(document, id), c.ends) << testing::PrintToString(c.path);
        drag.takeBack(document);
        EXPECT_EQ(placeOf(document, id), (Place{100, 100, 200, 300}));
    }
}

TEST(LineEndDrag, HoldsOnlyTheEndThatIsMoved) {
    SkinDocument document;
    const int id = add(document, lineAt({-50, 100, 700, 500}));
    const LineEndDrag drag(document, id, Handle::secondEnd, {700, 500});
    EXPECT_TRUE(drag.moveTo(document, {701, 500}));
    EXPECT_EQ(placeOf(document, id), (Place{-50, 100, 640, 480}));
}

TEST(LineEndDrag, LeavesLockedLines) {
    SkinDocument document;
    const int id = add(document, lineAt({100, 100, 200, 300}));
    setLocked(document, id, true);
    const LineEndDrag drag(document, id, Handle::firstEnd, {100, 100});
    EXPECT_FALSE(drag.moveTo(document, {110, 110}));
    EXPECT_EQ(placeOf(document, id), (Place{100, 100, 200, 300}));
}

TEST(Resized, MovesTheEdgesOfTheHandle) {
    struct Case {
        Handle handle;
        float dx;
        float dy;
        Place place;
    };
    const Case cases[] = {
        {Handle::topLeft, 10, 5, {110, 55, 30, 15}},
        {Handle::top, 10, 5, {100, 55, 40, 15}},
        {Handle::topRight, 10, 5, {100, 55, 50, 15}},
        {Handle::right, 10, 5, {100, 50, 50, 20}},
        {Handle::bottomRight, 10, 5, {100, 50, 50, 25}},
        {Handle::bottom, 10, 5, {100, 50, 40, 25}},
        {Handle::bottomLeft, 10, 5, {110, 50, 30, 25}},
        {Handle::left, 10, 5, {110, 50, 30, 20}},
        {Handle::left, -10.5F, 0, {89.5F, 50, 50.5F, 20}},
        // The edge stops one pixel from the other one.
        {Handle::right, -40, 0, {100, 50, 1, 20}},
        {Handle::right, -300, 0, {100, 50, 1, 20}},
        {Handle::left, 300, 0, {139, 50, 1, 20}},
        {Handle::top, 0, 300, {100, 69, 40, 1}},
        {Handle::bottom, 0, -300, {100, 50, 40, 1}},
        {Handle::topLeft, 300, 300, {139, 69, 1, 1}},
        {Handle::none, 10, 5, {100, 50, 40, 20}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(resized({100, 50, 40, 20}, c.handle, c.dx, c.dy, false), c.place)
            << static_cast<int>(c.handle) << ' ' << c.dx << ' ' << c.dy;
    }
}

TEST(Resized, KeepsProportions) {
    struct Case {
        Place start;
        Handle handle;
        float dx;
        float dy;
        Place place;
    };
    const Place start{100, 50, 40, 20};
    const Case cases[] = {
        {start, Handle::bottomRight, 40, 0, {100, 50, 80, 40}},
        {start, Handle::bottomRight, 0, 20, {100, 50, 80, 40}},
        {start, Handle::bottomRight, 40, 40, {100, 50, 120, 60}}, // by the greater change
        {start, Handle::bottomRight, -20, -20, {100, 50, 20, 10}},
        {start, Handle::topLeft, -40, 0, {60, 30, 80, 40}},
        {start, Handle::topLeft, 20, 10, {120, 60, 20, 10}},
        {start, Handle::topRight, 40, 0, {100, 30, 80, 40}},
        {start, Handle::bottomLeft, -40, 0, {60, 50, 80, 40}},
        {start, Handle::right, 40, 99, {100, 40, 80, 40}}, // the other side about its middle
        {start, Handle::left, -40, 0, {60, 40, 80, 40}},
        {start, Handle::bottom, 99, 20, {80, 50, 80, 40}},
        {start, Handle::top, 0, 10, {110, 60, 20, 10}},
        {start, Handle::bottomRight, 1, 0, {100, 50, 41, 21}}, // whole pixels, 20.5 up
        {start, Handle::bottomRight, -300, -300, {100, 50, 2, 1}},
        {start, Handle::right, -300, 0, {100, 60, 1, 1}},
        {{0, 0, 100, 1}, Handle::right, -90, 0, {0, 0, 10, 1}}, // no side below a pixel
        {{0, 0, 2, 1}, Handle::bottomRight, 2, 0, {0, 0, 4, 2}},
        {{0, 0, 1, 2}, Handle::bottomRight, 0, 2, {0, 0, 2, 4}},
        {{0, 0, 0, 20}, Handle::bottomRight, 5, 7, {0, 0, 5, 27}}, // no proportions to keep
        {{0, 0, 20, 0}, Handle::right, 5, 7, {0, 0, 25, 0}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(resized(c.start, c.handle, c.dx, c.dy, true), c.place)
            << static_cast<int>(c.handle) << ' ' << c.dx << ' ' << c.dy;
    }
}

TEST(Resized, CountsNegativeSizesAsZero) {
    EXPECT_EQ(resized({10, 10, -5, -8}, Handle::bottomRight, 3, 4, false), (Place{10, 10, 3, 4}));
    EXPECT_EQ(resized({10, 10, -5, 8}, Handle::bottom, 0, 4, false), (Place{10, 10, 0, 12}));
}

TEST(Resized, StandsTheLargestNumbers) {
    constexpr float huge = 3e38F;
    EXPECT_EQ(resized({huge, 0, huge, 10}, Handle::right, huge, 0, false),
              (Place{huge, 0, std::numeric_limits<float>::max(), 10}));
    EXPECT_EQ(resized({0, 0, 1e-40F, 10}, Handle::right, 100, 0, true)[3],
              std::numeric_limits<float>::max());
}

TEST(ResizeDrag, FollowsThePointerFromThePress) {
    SkinDocument document;
    const int id = add(document, boxAt({100, 50, 40, 20}));
    const ResizeDrag drag(document, id, Handle::bottomRight, {142, 71});
    EXPECT_FALSE(drag.moveTo(document, {142, 71}, false));
    EXPECT_TRUE(drag.moveTo(document, {152, 76}, false));
    EXPECT_EQ(placeOf(document, id), (Place{100, 50, 50, 25}));
    EXPECT_TRUE(drag.moveTo(document, {182, 71}, true)); // Shift is pressed
    EXPECT_EQ(placeOf(document, id), (Place{100, 50, 80, 40}));
    EXPECT_TRUE(drag.moveTo(document, {182, 71}, false)); // and let go
    EXPECT_EQ(placeOf(document, id), (Place{100, 50, 80, 20}));
    EXPECT_TRUE(drag.moveTo(document, {0, 0}, false)); // past the other corner and back
    EXPECT_TRUE(drag.moveTo(document, {152, 76}, false));
    EXPECT_EQ(placeOf(document, id), (Place{100, 50, 50, 25}));
    EXPECT_TRUE(drag.takeBack(document));
    EXPECT_EQ(placeOf(document, id), (Place{100, 50, 40, 20}));
}

TEST(ResizeDrag, LeavesLockedElements) {
    SkinDocument document;
    const int id = add(document, boxAt({100, 50, 40, 20}));
    setLocked(document, id, true);
    const ResizeDrag drag(document, id, Handle::left, {100, 60});
    EXPECT_FALSE(drag.moveTo(document, {90, 60}, false));
    EXPECT_EQ(placeOf(document, id), (Place{100, 50, 40, 20}));
}

TEST(WholePoint, RoundsHalvesToEven) {
    EXPECT_EQ(wholePoint({10.4F, 10.6F}), (SkinPoint{10, 11}));
    EXPECT_EQ(wholePoint({10.5F, 11.5F}), (SkinPoint{10, 12}));
    EXPECT_EQ(wholePoint({-0.5F, -1.5F}), (SkinPoint{0, -2}));
}

// An element without extent at a point, as it is at a press.
int pressed(SkinDocument& document, ElementKind kind, SkinPoint at) {
    if (kind == ElementKind::Line) {
        return add(document, lineAt({at.x, at.y, at.x, at.y}));
    }
    return add(document, elementAt(kind, ControlKind::box, {at.x, at.y, 0, 0}));
}

TEST(DrawDrag, SpansTheRectangleBetweenPressAndPointer) {
    struct Case {
        SkinPoint press;
        Points path;
        Place place;
    };
    const Case cases[] = {
        {{100, 100}, {{150, 130}}, {100, 100, 50, 30}},
        {{100, 100}, {{60, 130}}, {60, 100, 40, 30}},
        {{100, 100}, {{150, 80}}, {100, 80, 50, 20}},
        {{100, 100}, {{60, 80}}, {60, 80, 40, 20}},
        {{100, 100}, {{150, 130}, {90, 95}}, {90, 95, 10, 5}},
        {{100, 100}, {{150, 130}, {100, 100}}, {100, 100, 0, 0}},
        {{100, 100}, {{101, 100}}, {100, 100, 1, 0}},
        {{100, 100}, {{700, -40}}, {100, -40, 600, 140}}, // out of the window
        {{100, 100}, {{700, 600}, {110, 120}}, {100, 100, 10, 20}},
        {{100.6F, 99.5F}, {{110, 120}}, {101, 100, 9, 20}}, // the press counts in whole numbers
        {{100, 100}, {{150, 100}, {150, 130}}, {100, 100, 50, 30}},
    };
    for (const auto& c : cases) {
        SkinDocument document;
        const int id = pressed(document, ElementKind::Box, wholePoint(c.press));
        DrawDrag drag(id, c.press);
        for (const SkinPoint point : c.path) {
            EXPECT_TRUE(drag.moveTo(document, point));
            EXPECT_FALSE(drag.moveTo(document, point));
        }
        EXPECT_EQ(placeOf(document, id), c.place) << testing::PrintToString(c.path);
    }
}

TEST(DrawDrag, LooksOnlyAtTheDirectionThatThePointerMovedIn) {
    SkinDocument document;
    const int id = pressed(document, ElementKind::Box, {101, 100});
    DrawDrag drag(id, {100.6F, 100});
    EXPECT_TRUE(drag.moveTo(document, {100.6F, 130}));
    EXPECT_EQ(placeOf(document, id), (Place{101, 100, 0, 30}));
}

TEST(DrawDrag, LeavesALinesFirstEndAtThePress) {
    struct Case {
        Points path;
        Place ends;
    };
    const Case cases[] = {
        {{{150, 130}}, {100, 100, 150, 130}}, {{{60, 80}}, {100, 100, 60, 80}},
        {{{700, -40}}, {100, 100, 700, -40}}, {{{150, 130}, {100, 50}}, {100, 100, 100, 50}},
        {{{150, 100}}, {100, 100, 150, 100}},
    };
    for (const auto& c : cases) {
        SkinDocument document;
        const int id = pressed(document, ElementKind::Line, {100, 100});
        DrawDrag drag(id, {100, 100});
        for (const SkinPoint point : c.path) {
            EXPECT_TRUE(drag.moveTo(document, point));
        }
        EXPECT_EQ(placeOf(document, id), c.ends) << testing::PrintToString(c.path);
        drag.finish(document, c.path.back(), {});
        EXPECT_EQ(placeOf(document, id), c.ends) << testing::PrintToString(c.path);
    }
}

TEST(DrawDrag, LeavesADefaultSizeWithoutADrag) {
    struct Case {
        ElementKind kind;
        SkinPoint release;
        Place place;
    };
    const Case cases[] = {
        {ElementKind::Box, {100, 100}, {100, 100, 120, 80}},
        {ElementKind::Box, {103, 97}, {100, 100, 120, 80}},
        {ElementKind::Box, {96.5F, 103.5F}, {100, 100, 120, 80}},
        {ElementKind::Box, {104, 100}, {100, 100, 4, 1}}, // drawn, but no thinner than a pixel
        {ElementKind::Box, {104, 104}, {100, 100, 4, 4}},
        {ElementKind::Box, {100, 96}, {100, 96, 1, 4}},
        {ElementKind::Box, {102, 150}, {100, 100, 2, 50}},
        {ElementKind::Line, {103, 103}, {100, 100, 220, 100}},
        {ElementKind::Line, {100, 104}, {100, 100, 100, 104}},
        {ElementKind::Image, {100, 100}, {100, 100, 160, 120}},
        {ElementKind::Menu, {100, 100}, {100, 100, 400, 240}},
    };
    for (const auto& c : cases) {
        SkinDocument document;
        const int id = pressed(document, c.kind, {100, 100});
        DrawDrag drag(id, {100, 100});
        drag.finish(document, c.release, {});
        EXPECT_EQ(placeOf(document, id), c.place)
            << static_cast<int>(c.kind) << ' ' << c.release.x << ' ' << c.release.y;
    }
}

TEST(DrawDrag, CountsAReturnToThePressAsNoDrag) {
    SkinDocument document;
    const int id = pressed(document, ElementKind::Box, {100, 100});
    DrawDrag drag(id, {100, 100});
    drag.moveTo(document, {300, 300});
    drag.moveTo(document, {50, 50});
    drag.finish(document, {101, 101}, {});
    EXPECT_EQ(placeOf(document, id), (Place{100, 100, 120, 80}));
}

TEST(DrawDrag, TakesTheNaturalSizeWithoutADragOnly) {
    SkinDocument document;
    const int click = pressed(document, ElementKind::Image, {100, 100});
    DrawDrag(click, {100, 100}).finish(document, {100, 100}, SkinSize{64, 32});
    EXPECT_EQ(placeOf(document, click), (Place{100, 100, 64, 32}));
    const int drawn = pressed(document, ElementKind::Image, {100, 100});
    DrawDrag(drawn, {100, 100}).finish(document, {150, 150}, SkinSize{64, 32});
    EXPECT_EQ(placeOf(document, drawn), (Place{100, 100, 50, 50}));
}

TEST(DrawDrag, IsTakenBackWithTheElement) {
    SkinDocument document;
    pressed(document, ElementKind::Box, {0, 0});
    const int id = pressed(document, ElementKind::Box, {100, 100});
    DrawDrag drag(id, {100, 100});
    drag.moveTo(document, {150, 150});
    drag.takeBack(document);
    EXPECT_EQ(test::rowIds(document, menu), (std::vector<int>{1}));
    EXPECT_EQ(document.screenElementCount(menu), 1);
    EXPECT_EQ(document.lastElementId(), 2);
}

TEST(DefaultSize, IsThatOfTheKindOrOfWhatItShows) {
    struct Case {
        ElementKind kind;
        std::optional<SkinSize> natural;
        SkinSize size;
    };
    const Case cases[] = {
        {ElementKind::Box, {}, {120, 80}},
        {ElementKind::Box, SkinSize{50, 50}, {120, 80}},
        {ElementKind::Line, {}, {120, 0}},
        {ElementKind::Image, {}, {160, 120}},
        {ElementKind::Image, SkinSize{64, 32}, {64, 32}},
        {ElementKind::Image, SkinSize{640, 480}, {640, 480}},
        {ElementKind::Image, SkinSize{641, 480}, {160, 120}},
        {ElementKind::Image, SkinSize{640, 481}, {160, 120}},
        {ElementKind::Image, SkinSize{0, 0}, {160, 120}},
        {ElementKind::Image, SkinSize{1, 1}, {1, 1}},
        {ElementKind::Image, SkinSize{13, 0}, {160, 120}},
        {ElementKind::Text, SkinSize{73.2F, 12.5F}, {74, 13}},
        {ElementKind::Text, SkinSize{2000, 13}, {2000, 13}},
        {ElementKind::Text, {}, {120, 16}},
        {ElementKind::Text, SkinSize{0, 13}, {120, 16}},
        {ElementKind::Menu, SkinSize{50, 50}, {400, 240}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(defaultSize(c.kind, c.natural), c.size) << static_cast<int>(c.kind);
    }
}

TEST(MiddlePlace, IsInTheMiddleOfTheScreen) {
    EXPECT_EQ(middlePlace(ElementKind::Box, {}), (Place{260, 200, 120, 80}));
    EXPECT_EQ(middlePlace(ElementKind::Line, {}), (Place{260, 240, 380, 240}));
    EXPECT_EQ(middlePlace(ElementKind::Image, {}), (Place{240, 180, 160, 120}));
    EXPECT_EQ(middlePlace(ElementKind::Image, SkinSize{63, 33}), (Place{288, 223, 63, 33}));
    EXPECT_EQ(middlePlace(ElementKind::Text, SkinSize{700, 13}), (Place{-30, 233, 700, 13}));
    EXPECT_EQ(middlePlace(ElementKind::Menu, {}), (Place{120, 120, 400, 240}));
}

} // namespace
} // namespace tarvel
