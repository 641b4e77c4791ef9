// The pick index finds what the walk over the rows finds, and keeps up with the document.
#include "editing/hit_test.h"
#include "editing/pick_index.h"
#include "editing/stacking.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvel {
namespace {

using test::add;
using test::boxAt;
using test::lineAt;

// A document whose index is told of its changes.
struct Indexed {
    SkinDocument document;
    PickIndex index;
    DocumentWatch watch = document.watch(index);

    int rowAt(SkinPoint point) { return index.rowAt(document, point); }
};

TEST(PickIndex, KeepsUpWithTheDocument) {
    Indexed pick;
    SkinDocument& document = pick.document;
    EXPECT_EQ(pick.rowAt({5, 5}), -1);
    const int first = add(document, boxAt({0, 0, 10, 10}));
    EXPECT_EQ(pick.rowAt({5, 5}), 0);
    const int second = add(document, boxAt({0, 0, 20, 10}));
    EXPECT_EQ(pick.rowAt({5, 5}), 1);
    EXPECT_EQ(pick.rowAt({15, 5}), 1);

    restack(document, 0, StackingCommand::Front); // rows: second, first
    EXPECT_EQ(pick.rowAt({15, 5}), 0);
    placeElement(document, first, {100, 100, 10, 10});
    EXPECT_EQ(pick.rowAt({5, 5}), 0);
    EXPECT_EQ(pick.rowAt({105, 105}), 1);

    lockRows(document, 0);
    EXPECT_EQ(pick.rowAt({5, 5}), -1);
    unlockRows(document);
    EXPECT_EQ(pick.rowAt({5, 5}), 0);

    deleteRow(document, 0);
    EXPECT_EQ(pick.rowAt({5, 5}), -1);
    EXPECT_EQ(pick.rowAt({105, 105}), 0);
    document.editElement(second, [](Element& element) { setPlace(element.elementControl, {}); });
    EXPECT_EQ(pick.rowAt({105, 105}), 0);
}

TEST(PickIndex, FollowsTheCurrentScreenAndOtherDocuments) {
    Indexed pick;
    SkinDocument& document = pick.document;
    add(document, boxAt({0, 0, 10, 10}));
    EXPECT_EQ(pick.rowAt({5, 5}), 0);
    document.setCurrentLayout(0);
    EXPECT_EQ(pick.rowAt({5, 5}), -1);
    const int title = add(document, lineAt({0, 0, 100, 100}));
    EXPECT_EQ(pick.rowAt({95, 95}), 0);
    document.setCurrentLayout(1);
    EXPECT_EQ(pick.rowAt({95, 95}), -1);
    placeElement(document, title, {0, 0, 300, 300}); // not on the screen shown
    EXPECT_EQ(pick.rowAt({5, 5}), 0);
    document = SkinDocument();
    EXPECT_EQ(pick.rowAt({5, 5}), -1);
}

TEST(PickIndex, FindsLinesByTheirEndsStrictly) {
    Indexed pick;
    add(pick.document, boxAt({0, 0, 639, 479}));
    add(pick.document, lineAt({100.5F, 100, 200, 300}));
    EXPECT_EQ(pick.rowAt({100.5F, 106}), 1);
    EXPECT_EQ(pick.rowAt({107.25F, 100}), 1);
    EXPECT_EQ(pick.rowAt({107.5F, 100}), 0);
    EXPECT_EQ(pick.rowAt({193, 300}), 0);
    EXPECT_EQ(pick.rowAt({194, 306}), 1);
    EXPECT_EQ(pick.rowAt({150, 200}), 0);
}

TEST(PickIndex, FindsElementsWithoutExtent) {
    Indexed pick;
    add(pick.document, boxAt({10, 10, 0, 0}));
    EXPECT_EQ(pick.rowAt({10, 10}), 0);
    EXPECT_EQ(pick.rowAt({10.5F, 10}), -1);
    placeElement(pick.document, 1, {10, 10, -5, 20});
    EXPECT_EQ(pick.rowAt({10, 10}), -1);
}

TEST(PickIndex, AgreesWithTheWalkOverTheRows) {
    std::mt19937 random(20'240'611); // NOLINT: the same numbers in every run
    const auto number = [&](int from, int to) {
        return static_cast<float>(std::uniform_int_distribution(from * 10, to * 10)(random)) / 10;
    };
    Indexed pick;
    SkinDocument& document = pick.document;
    constexpr int many = 300;
    for (int i = 0; i < many; ++i) {
        const Place place{number(-50, 650), number(-50, 500), number(-20, 60), number(-20, 60)};
        add(document, i % 4 == 1 ? lineAt({place[0], place[1], number(0, 640), number(0, 480)})
                                 : boxAt(place));
        test::setLocked(document, i + 1, i % 7 == 3);
    }
    int hits = 0;
    for (int i = 0; i < 3000; ++i) {
        const int id = static_cast<int>(number(1, many));
        placeElement(document, id, {number(0, 640), number(0, 480), number(0, 60), number(0, 60)});
        const SkinPoint point{number(-10, 650), number(-10, 490)};
        const int expected = rowAt(document, point);
        ASSERT_EQ(pick.rowAt(point), expected) << i;
        hits += expected >= 0 ? 1 : 0;
    }
    EXPECT_GT(hits, 1000);
    EXPECT_LT(hits, 2900);
}

TEST(PickIndex, HoldsManyChangesAndElements) {
    Indexed pick;
    SkinDocument& document = pick.document;
    constexpr int many = 10'000;
    for (int i = 0; i < many; ++i) {
        add(document, boxAt({static_cast<float>(i), 0, 0, 10}));
    }
    EXPECT_EQ(pick.rowAt({0, 5}), 0);
    EXPECT_EQ(pick.rowAt({9999, 5}), many - 1);
    for (int i = 0; i < 3 * many; ++i) { // more than it would look at one by one
        placeElement(document, 1, {-10, 0, 0, static_cast<float>(i + 11)});
    }
    EXPECT_EQ(pick.rowAt({0, 5}), -1);
    EXPECT_EQ(pick.rowAt({-10, 3 * many}), 0);
}

} // namespace
} // namespace tarvel
