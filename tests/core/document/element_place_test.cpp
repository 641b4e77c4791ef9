// The place of an element: read, written, and who may be moved.
#include "document/element_place.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvel {
namespace {

using test::add;
using test::boxAt;
using test::lineAt;
using test::RecordingObserver;
using test::setLocked;
using Notes = std::vector<std::string>;

TEST(PlaceOf, ReadsTheNumbersOfTheControl) {
    ElementControl control;
    control.left = 1;
    control.top = 2;
    control.width = 3;
    control.height = 4;
    control.X1 = 5;
    control.Y1 = 6;
    control.X2 = 7;
    control.Y2 = 8;
    for (const auto kind : {ControlKind::box, ControlKind::img, ControlKind::png, ControlKind::vid,
                            ControlKind::txt, ControlKind::qor}) {
        control.kind = kind;
        EXPECT_EQ(placeOf(control), (Place{1, 2, 3, 4})) << controlName(kind);
    }
    control.kind = ControlKind::lin;
    EXPECT_EQ(placeOf(control), (Place{5, 6, 7, 8}));
}

TEST(SetPlace, WritesOnlyTheNumbersOfTheKind) {
    ElementControl box;
    setPlace(box, {1, 2, 3, 4});
    ElementControl expected;
    expected.left = 1;
    expected.top = 2;
    expected.width = 3;
    expected.height = 4;
    EXPECT_EQ(box, expected);

    ElementControl line;
    line.kind = ControlKind::lin;
    setPlace(line, {5, 6, 7, 8});
    ElementControl expectedLine;
    expectedLine.kind = ControlKind::lin;
    expectedLine.X1 = 5;
    expectedLine.Y1 = 6;
    expectedLine.X2 = 7;
    expectedLine.Y2 = 8;
    EXPECT_EQ(line, expectedLine);
}

TEST(IsMovable, IsTrueForUnlockedElements) {
    SkinDocument document;
    const int id = add(document, boxAt({0, 0, 10, 10}));
    EXPECT_TRUE(isMovable(document, id));
    setLocked(document, id, true);
    EXPECT_FALSE(isMovable(document, id));
    EXPECT_FALSE(isMovable(document, 0));
    EXPECT_FALSE(isMovable(document, -1));
}

TEST(PlaceElement, TellsOfWhatChangedOnly) {
    SkinDocument document;
    const int id = add(document, lineAt({1, 2, 3, 4}));
    RecordingObserver observer;
    const auto watch = document.watch(observer);

    EXPECT_TRUE(placeElement(document, id, {1, 2, 3, 5}));
    EXPECT_EQ(test::placeOf(document, id), (Place{1, 2, 3, 5}));
    EXPECT_EQ(observer.notes, (Notes{"element 1 1"}));

    EXPECT_FALSE(placeElement(document, id, {1, 2, 3, 5}));
    EXPECT_EQ(observer.notes.size(), 1U);
}

TEST(PlaceElement, LeavesLockedOnesAndNoElementAlone) {
    SkinDocument document;
    const int id = add(document, boxAt({1, 2, 3, 4}));
    setLocked(document, id, true);
    const SkinDocument before = document;
    EXPECT_FALSE(placeElement(document, id, {5, 6, 7, 8}));
    EXPECT_FALSE(placeElement(document, 0, {5, 6, 7, 8}));
    EXPECT_EQ(document, before);
}

} // namespace
} // namespace tarvel
