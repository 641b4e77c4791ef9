// Snapping in a drag: where the pointer is taken for, to elements, to the grid, and to both.
#include "document/element_kinds.h"
#include "editing/snap_drag.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

namespace tarvel {
namespace {

using What = SnapSubject::What;

constexpr double reach = 6;

// A box of id 1 at 100, 100 with sides of 50, and one of id 2 at 401, 203 with sides of 40, 20.
SkinDocument twoBoxes() {
    SkinDocument document;
    for (const Place& place : {Place{100, 100, 50, 50}, Place{401, 203, 40, 20}}) {
        Element element;
        setPlace(element.elementControl, place);
        document.addElement(std::move(element));
    }
    return document;
}

SnapSubject movesSecond(What what, Handle handle = Handle::none) {
    return {.what = what,
            .start = {401, 203, 40, 20},
            .press = {410, 210},
            .handle = handle,
            .ids = {2}};
}

SnapSubject drawn(What what) {
    return {.what = what, .start = {}, .press = {200, 20}, .ids = {}};
}

struct Case {
    const char* what;
    SnapSubject subject;
    SnapOptions options;
    SkinPoint pointer;
    SkinPoint snapped;
    std::size_t guides;
};

const SnapOptions elements{.toElements = true};
const SnapOptions grid{.toGrid = true, .grid = 10};
const SnapOptions both{.toElements = true, .toGrid = true, .grid = 10};

TEST(SnapDrag, TakesThePointerToWhereItMeets) {
    const Case cases[] = {
        // The left edge stands at 102 then, 2 from that of the other box.
        {"edge", movesSecond(What::whole), elements, {111, 410}, {109, 410}, 1},
        {"out of reach", movesSecond(What::whole), elements, {500, 410}, {500, 410}, 0},
        {"both axes", movesSecond(What::whole), elements, {111, 109}, {109, 107}, 2},
        {"grid", movesSecond(What::whole), grid, {112, 403}, {109, 407}, 0},
        {"elements before the grid", movesSecond(What::whole), both, {111, 403}, {109, 407}, 1},
        {"the grid where nothing is met",
         movesSecond(What::whole),
         both,
         {500, 403},
         {499, 407},
         0},
        {"a handle moves its edges alone",
         movesSecond(What::handle, Handle::right),
         elements,
         {120, 410},
         {120, 410},
         0},
        {"handle", movesSecond(What::handle, Handle::topLeft), elements, {161, 105}, {159, 107}, 2},
        {"handle on the grid",
         movesSecond(What::handle, Handle::bottom),
         grid,
         {333, 222},
         {333, 227},
         0},
        {"corner", drawn(What::corner), elements, {153, 104}, {150, 100}, 2},
        {"corner on the grid", drawn(What::corner), grid, {153, 106}, {150, 110}, 0},
        {"line's end", drawn(What::lineEnd), elements, {153, 77}, {150, 77}, 1},
        {"nothing is on", drawn(What::lineEnd), {}, {153, 104}, {153, 104}, 0},
    };
    const SkinDocument document = twoBoxes();
    for (const Case& c : cases) {
        SnapDrag drag(document, c.subject, c.options);
        EXPECT_EQ(drag.snapped(c.pointer, reach), c.snapped) << c.what;
        EXPECT_EQ(drag.guides().size(), c.guides) << c.what;
    }
}

TEST(SnapDrag, ForgetsWhatItMet) {
    const SkinDocument document = twoBoxes();
    SnapDrag drag(document, movesSecond(What::whole), elements);
    (void)drag.snapped({111, 410}, reach);
    EXPECT_EQ(drag.guides().size(), 1U);
    (void)drag.snapped({500, 410}, reach);
    EXPECT_TRUE(drag.guides().empty());
}

TEST(SnapDrag, NeverMeetsWhatItMoves) {
    const SkinDocument document = twoBoxes();
    SnapDrag drag(document, movesSecond(What::whole), elements);
    EXPECT_EQ(drag.snapped({412, 213}, reach), (SkinPoint{412, 213})); // 2, 3 from where it was
}

TEST(SnapDrag, TakesAPressToALineOrTheGrid) {
    const SkinDocument document = twoBoxes();
    EXPECT_EQ(snappedPress(document, {103, 20}, elements, reach), (SkinPoint{100, 20}));
    EXPECT_EQ(snappedPress(document, {103, 24}, grid, reach), (SkinPoint{100, 20}));
    EXPECT_EQ(snappedPress(document, {103, 24}, {}, reach), (SkinPoint{103, 24}));
}

} // namespace
} // namespace tarvel
