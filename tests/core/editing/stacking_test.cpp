// Stacking commands, deletion and locking, by the rows they leave.
#include "document/layout_screens.h"
#include "editing/stacking.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvel {
namespace {

using test::addBox;
using test::RecordingObserver;
using test::rowIds;
using test::rowTexts;
using enum StackingCommand;
using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

constexpr int menu = 1;

// Rows A, B, C, ... on "Menu", the first of them locked.
SkinDocument boxes(int count, int locked = 0) {
    SkinDocument document;
    for (int i = 0; i < count; ++i) {
        addBox(document, std::string(1, static_cast<char>('A' + i)));
    }
    lockRows(document, locked - 1);
    return document;
}

TEST(Stacking, BringsRowsBeforeAnotherButNeverIntoTheLocked) {
    struct Case {
        int locked;
        std::vector<int> rows;
        int before;
        Ids ids;
    };
    const Case cases[] = {
        {0, {0}, 2, {2, 1, 3, 4, 5}},       {0, {0}, 0, {1, 2, 3, 4, 5}},
        {0, {0}, 1, {1, 2, 3, 4, 5}},       {0, {0}, 5, {2, 3, 4, 5, 1}},
        {0, {4}, 0, {5, 1, 2, 3, 4}},       {0, {0, 2, 4}, 2, {2, 1, 3, 5, 4}},
        {0, {0, 2, 4}, 0, {1, 3, 5, 2, 4}}, {0, {0, 1, 2, 3, 4}, 3, {1, 2, 3, 4, 5}},
        {2, {4}, 0, {1, 2, 5, 3, 4}},       {2, {4}, 2, {1, 2, 5, 3, 4}},
        {2, {0, 4}, 3, {1, 2, 3, 5, 4}},    {2, {0, 1}, 5, {1, 2, 3, 4, 5}},
        {5, {0}, 5, {1, 2, 3, 4, 5}},       {0, {}, 3, {1, 2, 3, 4, 5}},
        {0, {1}, 99, {1, 3, 4, 5, 2}},      {0, {1}, -1, {2, 1, 3, 4, 5}},
    };
    for (const Case& each : cases) {
        SkinDocument document = boxes(5, each.locked);
        const SkinDocument before = document;
        EXPECT_EQ(moveRows(document, each.rows, each.before), each.ids != Ids({1, 2, 3, 4, 5}));
        EXPECT_EQ(rowIds(document, menu), each.ids) << each.before;
        EXPECT_EQ(document.lockCount(menu), before.lockCount(menu));
    }
}

TEST(Stacking, MovesRowsAndGivesTheRowToSelect) {
    struct Case {
        int rows;
        int locked;
        int row;
        StackingCommand command;
        int selected;
        Ids ids;
    };
    const Case cases[] = {
        {5, 0, 1, Front, 4, {1, 3, 4, 5, 2}},
        {5, 0, 0, Front, 4, {2, 3, 4, 5, 1}},
        {5, 0, 4, Front, 4, {1, 2, 3, 4, 5}},
        {1, 0, 0, Front, 0, {1}},
        {5, 2, 2, Front, 4, {1, 2, 4, 5, 3}},
        {5, 0, 3, Back, 0, {4, 1, 2, 3, 5}},
        {5, 0, 4, Back, 0, {5, 1, 2, 3, 4}},
        {5, 0, 0, Back, 0, {1, 2, 3, 4, 5}},
        {1, 0, 0, Back, 0, {1}},
        {5, 2, 4, Back, 2, {1, 2, 5, 3, 4}},
        {5, 2, 2, Back, 2, {1, 2, 3, 4, 5}},
        {3, 2, 2, Back, 2, {1, 2, 3}},
        {5, 0, 2, Forward, 3, {1, 2, 4, 3, 5}},
        {5, 0, 4, Forward, 4, {1, 2, 3, 4, 5}},
        {1, 0, 0, Forward, 0, {1}},
        {2, 0, 0, Forward, 1, {2, 1}},
        {5, 0, 2, Backward, 1, {1, 3, 2, 4, 5}},
        {5, 0, 0, Backward, 0, {1, 2, 3, 4, 5}},
        {5, 2, 2, Backward, 2, {1, 2, 3, 4, 5}},
        {5, 2, 3, Backward, 2, {1, 2, 4, 3, 5}},
        {2, 0, 1, Backward, 0, {2, 1}},
        // Locked rows stay where they are.
        {5, 2, 1, Front, 1, {1, 2, 3, 4, 5}},
        {5, 2, 1, Back, 1, {1, 2, 3, 4, 5}},
        {5, 2, 1, Forward, 1, {1, 2, 3, 4, 5}},
        {5, 2, 0, Forward, 0, {1, 2, 3, 4, 5}},
        {5, 2, 1, Backward, 1, {1, 2, 3, 4, 5}},
        {5, 5, 4, Back, 4, {1, 2, 3, 4, 5}},
        // Nothing is selected.
        {5, 0, -1, Front, -1, {1, 2, 3, 4, 5}},
        {5, 0, -1, Back, -1, {1, 2, 3, 4, 5}},
        {5, 0, -1, Forward, -1, {1, 2, 3, 4, 5}},
        {5, 0, -1, Backward, -1, {1, 2, 3, 4, 5}},
        {0, 0, -1, Front, -1, {}},
    };
    for (const auto& c : cases) {
        SkinDocument document = boxes(c.rows, c.locked);
        const auto context = testing::Message()
                             << "rows " << c.rows << " locked " << c.locked << " row " << c.row
                             << " command " << static_cast<int>(c.command);
        EXPECT_EQ(stackingTarget(document, c.row, c.command), c.selected) << context;
        EXPECT_EQ(restack(document, c.row, c.command), c.selected) << context;
        EXPECT_EQ(rowIds(document, menu), c.ids) << context;
    }
}

TEST(Stacking, KeepsTheRowsTextAndTheElementWithIt) {
    SkinDocument document = boxes(3);
    const Element before = document.element(1);
    restack(document, 0, Front);
    EXPECT_EQ(rowTexts(document, menu), (Texts{"B", "C", "A"}));
    EXPECT_EQ(document.element(1), before);
    EXPECT_EQ(document.screenElementCount(menu), 3);
}

TEST(Stacking, ActsOnTheCurrentScreen) {
    SkinDocument document = boxes(3);
    document.setCurrentLayout(0);
    addBox(document, "D");
    addBox(document, "E");
    EXPECT_EQ(restack(document, 0, Front), 1);
    EXPECT_EQ(rowIds(document, 0), (Ids{5, 4}));
    EXPECT_EQ(rowIds(document, menu), (Ids{1, 2, 3}));
}

TEST(Stacking, TellsNothingWhereNothingMoves) {
    SkinDocument document = boxes(3);
    RecordingObserver observer;
    const auto watch = document.watch(observer);
    restack(document, 2, Front);
    restack(document, 0, Back);
    EXPECT_EQ(observer.notes, Texts{});
    restack(document, 0, Forward);
    EXPECT_EQ(observer.notes, (Texts{"rows 1 -1"}));
}

TEST(Deletion, TakesTheRowAndLowersTheCount) {
    SkinDocument document = boxes(3);
    const Element before = document.element(2);
    EXPECT_FALSE(deleteRow(document, 1));
    EXPECT_EQ(rowIds(document, menu), (Ids{1, 3}));
    EXPECT_EQ(document.screenElementCount(menu), 2);
    EXPECT_EQ(document.lastElementId(), 3);
    EXPECT_EQ(document.element(2), before);
    EXPECT_EQ(addBox(document, "D"), 4);
}

TEST(Deletion, DoesNothingWithoutASelection) {
    SkinDocument document = boxes(2);
    const SkinDocument before = document;
    EXPECT_FALSE(deleteRow(document, -1));
    EXPECT_EQ(document, before);
}

TEST(Deletion, OfTheLastElementTakesTheScreensMarkAway) {
    SkinDocument document = boxes(1);
    EXPECT_TRUE(isLayoutBold(document, menu));
    deleteRow(document, 0);
    EXPECT_FALSE(isLayoutBold(document, menu));
}

TEST(Deletion, ActsOnTheCurrentScreen) {
    SkinDocument document = boxes(2);
    document.setCurrentLayout(3);
    addBox(document, "C");
    deleteRow(document, 0);
    EXPECT_EQ(document.screenElementCount(3), 0);
    EXPECT_EQ(document.screenElementCount(menu), 2);
    EXPECT_EQ(rowIds(document, menu), (Ids{1, 2}));
}

TEST(Deletion, OfALockedRowLowersTheLockCount) {
    SkinDocument document = boxes(4, 2);
    EXPECT_TRUE(deleteRow(document, 0));
    EXPECT_EQ(document.lockCount(menu), 1);
    EXPECT_EQ(rowTexts(document, menu), (Texts{"(L) B", "C", "D"}));
    EXPECT_FALSE(deleteRow(document, 2));
    EXPECT_EQ(document.lockCount(menu), 1);
    EXPECT_TRUE(deleteRow(document, 0));
    EXPECT_EQ(document.lockCount(menu), 0);
    EXPECT_EQ(restack(document, 0, Backward), 0);
    EXPECT_EQ(document.screenElementCount(menu), 1);
}

TEST(Locking, TakesEverythingUpToTheRow) {
    struct Case {
        int rows;
        std::vector<int> locks; // rows on which Lock is chosen, one after the other
        Texts texts;
        int lockCount;
    };
    const Case cases[] = {
        {4, {0}, {"(L) A", "B", "C", "D"}, 1},
        {4, {2}, {"(L) A", "(L) B", "(L) C", "D"}, 3},
        {4, {3}, {"(L) A", "(L) B", "(L) C", "(L) D"}, 4},
        {4, {0, 2}, {"(L) A", "(L) B", "(L) C", "D"}, 3},
        {4, {1, 1}, {"(L) A", "(L) B", "C", "D"}, 2},
        {4, {2, 0}, {"(L) A", "(L) B", "(L) C", "D"}, 3}, // it is locked already
        {4, {-1}, {"A", "B", "C", "D"}, 0},
    };
    for (const auto& c : cases) {
        SkinDocument document = boxes(c.rows);
        for (const int row : c.locks) {
            lockRows(document, row);
        }
        EXPECT_EQ(rowTexts(document, menu), c.texts);
        EXPECT_EQ(document.lockCount(menu), c.lockCount);
        for (int row = 0; row < c.rows; ++row) {
            EXPECT_EQ(document.element(document.itemData(menu, row)).elementLocked,
                      row < c.lockCount)
                << row;
        }
    }
}

TEST(Locking, SaysWhetherAnythingChanged) {
    SkinDocument document = boxes(3);
    EXPECT_FALSE(lockRows(document, -1));
    EXPECT_TRUE(lockRows(document, 1));
    EXPECT_FALSE(lockRows(document, 0));
    EXPECT_FALSE(lockRows(document, 1));
    EXPECT_TRUE(lockRows(document, 2));
    EXPECT_TRUE(unlockRows(document));
    EXPECT_FALSE(unlockRows(document));
}

TEST(Locking, TellsOfTheTextsTheElementsAndTheCount) {
    SkinDocument document = boxes(2);
    RecordingObserver observer;
    const auto watch = document.watch(observer);
    lockRows(document, 0);
    EXPECT_EQ(observer.notes, (Texts{"element 1 1", "rowText 1 1", "counts 1 -1"}));
    observer.notes.clear();
    unlockRows(document);
    EXPECT_EQ(observer.notes, (Texts{"element 1 1", "rowText 1 1", "counts 1 -1"}));
}

TEST(Locking, IsPerScreen) {
    SkinDocument document = boxes(2, 1);
    document.setCurrentLayout(0);
    addBox(document, "C");
    addBox(document, "D");
    lockRows(document, 1);
    EXPECT_EQ(document.lockCount(0), 2);
    EXPECT_EQ(document.lockCount(menu), 1);
    unlockRows(document);
    EXPECT_EQ(document.lockCount(0), 0);
    EXPECT_EQ(rowTexts(document, 0), (Texts{"C", "D"}));
    EXPECT_EQ(document.lockCount(menu), 1);
    EXPECT_EQ(rowTexts(document, menu), (Texts{"(L) A", "B"}));
}

TEST(Unlocking, BringsBackTheDocumentBeforeTheLock) {
    const SkinDocument before = boxes(5);
    SkinDocument document = before;
    lockRows(document, 1);
    lockRows(document, 3);
    EXPECT_NE(document, before);
    unlockRows(document);
    EXPECT_EQ(document, before);
}

TEST(Unlocking, DropsOneOfTwoPrefixes) {
    SkinDocument document;
    addBox(document, "(L) A");
    lockRows(document, 0);
    EXPECT_EQ(rowTexts(document, menu), (Texts{"(L) (L) A"}));
    unlockRows(document);
    EXPECT_EQ(rowTexts(document, menu), (Texts{"(L) A"}));
}

} // namespace
} // namespace tarvel
