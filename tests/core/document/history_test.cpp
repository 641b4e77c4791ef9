// Steps back and forth: the document, the place of work, and what counts as a step at all.
#include "document/history.h"
#include "document/open_edit.h"
#include "support/document_support.h"
#include "support/full_document.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace tarvel {
namespace {

using test::addBox;
using test::fourBoxes;

class FakePlaces : public WorkPlaces {
  public:
    [[nodiscard]] WorkPlace place() const override { return now; }
    void goTo(const WorkPlace& place) override { now = place; }
    WorkPlace now{.screen = 1, .selected = {}, .leading = 0, .panel = {}};
};

class Notes : public HistoryObserver {
  public:
    explicit Notes(History& history)
        : watch_(history.watch(*this)) {}
    void historyChanged() override { ++count; }
    int count = 0;

  private:
    HistoryWatch watch_;
};

struct Work {
    SkinDocument document = fourBoxes();
    FakePlaces places;
    History history{document, places};

    /// One step that leaves the place in which it ends.
    void step(const std::string& name, const std::function<void(SkinDocument&)>& change) {
        const OpenEdit edit(document, name);
        change(document);
    }
    void move(int id, float left) {
        step("move Box", [&](SkinDocument&) { moveNow(id, left); });
    }
    void moveNow(int id, float left) {
        document.editElement(id, [&](Element& element) { element.elementControl.left = left; });
    }
};

TEST(History, GoesBackAndForthByNamedSteps) {
    Work work;
    const SkinDocument first = work.document;
    work.move(2, 7);
    const SkinDocument second = work.document;
    work.step("delete Box", [](SkinDocument& document) { document.delItem(0); });
    const SkinDocument third = work.document;
    History& history = work.history;
    EXPECT_EQ(history.undoName(), "delete Box");
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.redoName(), "");

    history.undo();
    EXPECT_EQ(work.document, second);
    EXPECT_EQ(history.undoName(), "move Box");
    EXPECT_EQ(history.redoName(), "delete Box");
    history.undo();
    EXPECT_EQ(work.document, first);
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(history.undoName(), "");
    history.undo(); // nothing happens
    EXPECT_EQ(work.document, first);

    history.redo();
    EXPECT_EQ(work.document, second);
    history.redo();
    EXPECT_EQ(work.document, third);
    history.redo();
    EXPECT_EQ(work.document, third);
    EXPECT_FALSE(history.canRedo());
}

TEST(History, BringsBackEverythingThatADocumentHolds) {
    Work work;
    const SkinDocument first = work.document;
    work.step("load skin", [](SkinDocument& document) {
        SkinDocument full = test::fullDocument();
        for (int screen = 0; screen < screenCount; ++screen) {
            document.setCurrentLayout(screen);
            for (int row = 0; row < full.rowCount(screen); ++row) {
                document.addElement(Element(full.element(full.itemData(screen, row))));
            }
            document.setLockCount(screen, 1);
            document.setScreenElementCount(screen, 1000 + screen);
        }
        document.editSettings([](SkinSettings& settings) { settings = test::fullSettings(); });
    });
    const SkinDocument loaded = work.document;
    work.places.now.screen = 5;
    work.history.undo();
    EXPECT_TRUE(work.document.holdsTheSame(first));
    EXPECT_EQ(work.document.currentLayout(), 1); // of the place in which the step began
    work.history.redo();
    EXPECT_TRUE(work.document.holdsTheSame(loaded));
    EXPECT_EQ(work.document.lastElementId(), loaded.lastElementId());
}

TEST(History, LeadsToThePlaceOfTheStep) {
    Work work;
    const auto at = [](int screen, int leading) {
        WorkPlace place{.screen = screen, .selected = {leading}, .leading = leading, .panel = {}};
        place.panel.text = "text " + std::to_string(leading);
        return place;
    };
    work.places.now = at(1, 2);
    work.step("move Box", [&](SkinDocument&) {
        work.moveNow(2, 7);
        work.places.now = at(1, 3);
    });
    work.document.setCurrentLayout(4); // looked at since
    work.places.now = at(4, 0);

    work.history.undo();
    EXPECT_EQ(work.document.currentLayout(), 1);
    EXPECT_EQ(work.places.now.leading, 2);
    EXPECT_EQ(work.places.now.selected, std::vector<int>{2});
    EXPECT_EQ(work.places.now.panel.text, "text 2");
    work.document.setCurrentLayout(4);
    work.history.redo();
    EXPECT_EQ(work.document.currentLayout(), 1);
    EXPECT_EQ(work.places.now.leading, 3);
    EXPECT_EQ(work.places.now.panel.text, "text 3");
}

TEST(History, HandsNoIdOutTwice) {
    Work work;
    const auto add = [](SkinDocument& document) { addBox(document, "new"); };
    work.step("draw Box", add);
    EXPECT_EQ(work.document.lastElementId(), 5);
    work.history.undo();
    EXPECT_EQ(test::rowIds(work.document, 1), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(work.document.lastElementId(), 5);
    work.step("draw Box", add);
    EXPECT_EQ(test::rowIds(work.document, 1), (std::vector<int>{1, 2, 3, 4, 6}));
    work.history.undo();
    work.history.undo(); // there is no more
    work.history.redo();
    EXPECT_EQ(test::rowIds(work.document, 1), (std::vector<int>{1, 2, 3, 4, 6}));
    EXPECT_EQ(work.document.rowText(1, 4), "new");
}

struct NoStep {
    const char* what;
    std::function<void(Work&)> act;
};

class HistoryNoStep : public testing::TestWithParam<NoStep> {};

TEST_P(HistoryNoStep, IsNone) {
    Work work;
    GetParam().act(work);
    EXPECT_FALSE(work.history.canUndo()) << GetParam().what;
    EXPECT_FALSE(work.history.isChanged()) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(Edits, HistoryNoStep,
                         testing::Values(NoStep{"nothing",
                                                [](Work& work) {
                                                    work.history.startOver(true);
                                                    work.step("dialog", [](SkinDocument&) {});
                                                }},
                                         NoStep{"the same once more",
                                                [](Work& work) {
                                                    work.history.startOver(true);
                                                    work.move(1, 0);
                                                }},
                                         NoStep{"there and back",
                                                [](Work& work) {
                                                    work.history.startOver(true);
                                                    work.step("move Box", [&](SkinDocument&) {
                                                        work.moveNow(1, 9);
                                                        work.moveNow(1, 0);
                                                    });
                                                }},
                                         NoStep{"another screen",
                                                [](Work& work) {
                                                    work.history.startOver(true);
                                                    work.step("dialog", [](SkinDocument& document) {
                                                        document.setCurrentLayout(3);
                                                    });
                                                }},
                                         NoStep{
                                             "an edit that was taken back, with an id handed out",
                                             [](Work& work) {
                                                 work.history.startOver(true);
                                                 OpenEdit edit(work.document, "draw Box");
                                                 addBox(work.document, "new");
                                                 work.document.delItem(4);
                                                 work.document.setScreenElementCount(1, 4);
                                                 edit.takeBack();
                                             }}),
                         [](const auto& each) { return "Case" + std::to_string(each.index); });

TEST(History, DropsWhatWasUndoneWithTheNextStep) {
    Work work;
    work.move(1, 1);
    work.move(1, 2);
    work.history.undo();
    work.move(1, 3);
    EXPECT_FALSE(work.history.canRedo());
    work.history.undo();
    EXPECT_EQ(work.document.element(1).elementControl.left, 1);
    work.history.undo();
    EXPECT_EQ(work.document.element(1).elementControl.left, 0);
}

TEST(History, WaitsForTheEndOfAnEdit) {
    Work work;
    work.move(1, 1);
    work.document.beginEdit("dialog");
    EXPECT_FALSE(work.history.canUndo());
    work.moveNow(2, 5);
    work.history.undo();
    EXPECT_EQ(work.document.element(2).elementControl.left, 5);
    EXPECT_EQ(work.history.undoName(), "");
    work.document.endEdit();
    EXPECT_EQ(work.history.undoName(), "dialog");
}

TEST(History, EndsARunByUndoingIt) {
    Work work;
    work.document.continueRun("move Box");
    EXPECT_FALSE(work.history.canUndo()); // nothing moved yet
    work.moveNow(1, 1);
    EXPECT_EQ(work.history.undoName(), "move Box");
    work.document.continueRun("move Box");
    work.moveNow(1, 2);
    work.history.undo();
    EXPECT_FALSE(work.document.isEditOpen());
    EXPECT_EQ(work.document.element(1).elementControl.left, 0);
    EXPECT_FALSE(work.history.canUndo());
    work.history.redo();
    EXPECT_EQ(work.document.element(1).elementControl.left, 2);
}

TEST(History, EndsARunWithTheScreen) {
    Work work;
    work.places.now.screen = 1;
    work.document.continueRun("move Box");
    work.moveNow(1, 1);
    work.document.setCurrentLayout(1); // the same
    EXPECT_TRUE(work.document.isRunOpen());
    work.document.setCurrentLayout(2);
    EXPECT_FALSE(work.document.isRunOpen());
    work.history.undo();
    work.history.redo();
    EXPECT_EQ(work.document.currentLayout(), 1);
}

TEST(History, LeavesWhatChangedWithoutAnEditWhereItIs) {
    Work work;
    work.move(1, 1);
    work.moveNow(2, 8);
    work.move(1, 2);
    work.history.undo();
    EXPECT_EQ(work.document.element(1).elementControl.left, 1);
    EXPECT_EQ(work.document.element(2).elementControl.left, 8);
}

TEST(History, KnowsWhatWasSavedLast) {
    Work work;
    History& history = work.history;
    history.startOver(true);
    EXPECT_FALSE(history.isChanged());
    work.move(1, 1);
    EXPECT_TRUE(history.isChanged());
    history.undo();
    EXPECT_FALSE(history.isChanged());
    history.redo();
    history.markSaved();
    EXPECT_FALSE(history.isChanged());
    history.undo();
    EXPECT_TRUE(history.isChanged());
    work.move(1, 1); // by another way to what was saved
    EXPECT_FALSE(history.isChanged());
    work.document.setCurrentLayout(5);
    EXPECT_FALSE(history.isChanged());
    history.startOver(false);
    EXPECT_TRUE(history.isChanged());
    EXPECT_FALSE(history.canUndo());
}

TEST(History, HasNothingUnsavedAtTheStart) {
    SkinDocument document;
    FakePlaces places;
    History history(document, places);
    EXPECT_FALSE(history.isChanged());
    {
        const OpenEdit edit(document, "draw Box");
        addBox(document, "A");
    }
    EXPECT_TRUE(history.isChanged());
    history.undo();
    EXPECT_FALSE(history.isChanged()); // the id that was handed out does not matter
}

TEST(History, KeepsAThousandSteps) {
    Work work;
    constexpr int steps = 1100;
    for (int i = 1; i <= steps; ++i) {
        work.move(1, static_cast<float>(i));
    }
    int undone = 0;
    while (work.history.canUndo()) {
        work.history.undo();
        ++undone;
    }
    EXPECT_EQ(undone, 1000);
    EXPECT_EQ(work.document.element(1).elementControl.left, 100);
    while (work.history.canRedo()) {
        work.history.redo();
    }
    EXPECT_EQ(work.document.element(1).elementControl.left, steps);
}

TEST(History, TellsWhenItMayBeAnother) {
    Work work;
    const Notes notes(work.history);
    work.move(1, 1);
    EXPECT_GT(notes.count, 0);
    for (const auto& act : std::vector<std::function<void()>>{
             [&] { work.history.undo(); }, [&] { work.history.redo(); },
             [&] { work.history.markSaved(); }, [&] { work.history.startOver(true); }}) {
        const int before = notes.count;
        act();
        EXPECT_GT(notes.count, before);
    }
}

TEST(ShowVersion, TellsOfEachThingThatDiffersOnce) {
    Work work;
    const SkinDocument before = work.document;
    work.document.editElement(2, [](Element& element) { element.elementAlpha = 9; });
    work.document.moveRow(1, 0, 3);
    work.document.setLockCount(4, 1);
    work.document.editSettings([](SkinSettings& settings) { settings.skinName = "x"; });
    test::RecordingObserver observer;
    const DocumentWatch watch = work.document.watch(observer);
    work.document.showVersion(before, 2);
    EXPECT_EQ(observer.notes,
              (std::vector<std::string>{"currentLayout 2 -1", "rows 1 -1", "counts 4 -1",
                                        "settings -1 -1", "element 1 2", "rowText 1 2"}));
    observer.notes.clear();
    work.document.showVersion(before, 2);
    EXPECT_TRUE(observer.notes.empty());
}

TEST(ShowVersion, TellsOfManyElementsAtOnce) {
    SkinDocument document;
    constexpr int many = 300;
    for (int i = 0; i < many; ++i) {
        addBox(document, "A");
    }
    const SkinDocument before = document;
    for (int id = 1; id <= many; ++id) {
        document.editElement(id, [](Element& element) { element.label = "B"; });
    }
    test::RecordingObserver observer;
    const DocumentWatch watch = document.watch(observer);
    document.showVersion(before, 1);
    EXPECT_EQ(observer.notes, (std::vector<std::string>{"elements -1 -1", "rowTexts -1 -1"}));
    EXPECT_EQ(document, before);
}

// After any walk of steps, each version is the one that was there, ids apart.
TEST(History, IsTrueToAnyWalk) {
    Work work;
    std::mt19937 random(7);
    const auto below = [&](int limit) { return static_cast<int>(random() % unsigned(limit)); };
    const auto change = [&](SkinDocument& document) {
        const int screen = document.currentLayout();
        const int rows = document.rowCount(screen);
        switch (below(rows == 0 ? 2 : 6)) {
        case 0:
            addBox(document, std::to_string(below(1000)));
            return;
        case 1:
            document.editSettings(
                [&](SkinSettings& settings) { settings.skinName = std::to_string(below(1000)); });
            return;
        case 2:
            document.delItem(below(rows));
            return;
        case 3:
            document.moveRow(screen, below(rows), below(rows));
            return;
        case 4:
            document.setRowText(screen, below(rows), std::to_string(below(1000)));
            return;
        default:
            document.editElement(document.itemData(screen, below(rows)), [&](Element& element) {
                element.elementAlpha = static_cast<std::int16_t>(below(1000));
            });
        }
    };
    std::vector<SkinDocument> versions{work.document};
    std::size_t at = 0;
    for (int round = 0; round < 3000; ++round) {
        const int act = below(4);
        if (act == 0 && work.history.canUndo()) {
            work.history.undo();
            --at;
        } else if (act == 1 && work.history.canRedo()) {
            work.history.redo();
            ++at;
        } else {
            if (below(3) == 0) {
                work.document.setCurrentLayout(below(screenCount));
                work.places.now.screen = work.document.currentLayout();
            }
            const SkinDocument before = work.document;
            work.step("step", change);
            if (!work.document.holdsTheSame(before)) {
                versions.resize(++at);
                versions.push_back(work.document);
            }
        }
        ASSERT_TRUE(work.document.holdsTheSame(versions[at])) << round;
        work.places.now.screen = work.document.currentLayout();
    }
}

} // namespace
} // namespace tarvel
