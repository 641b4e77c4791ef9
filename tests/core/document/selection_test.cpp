// What is selected while rows come, go and change places, and what is told of it.
#include "document/selection.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace tarvel {
namespace {

// Three elements with the ids 1 to 3 on "Menu", and one on the first screen.
struct Selected {
    Selected() {
        for (const char* label : {"a", "b", "c"}) {
            Element element;
            element.label = label;
            document.addElement(std::move(element));
        }
        document.setCurrentLayout(0);
        document.addElement(Element());
        document.setCurrentLayout(1);
    }
    SkinDocument document;
    Selection selection{document};
};

class Counter : public SelectionObserver {
  public:
    explicit Counter(Selection& selection)
        : selection_(selection)
        , watch_(selection.watch(*this)) {}
    void selectionChanged() override { told.push_back(selection_.curNum()); }

    std::vector<int> told;

  private:
    Selection& selection_;
    SelectionWatch watch_;
};

TEST(Selection, IsEmptyAtFirst) {
    const Selected at;
    EXPECT_TRUE(at.selection.isEmpty());
    EXPECT_EQ(at.selection.curNum(), 0);
    EXPECT_EQ(at.selection.leadingRow(), -1);
    EXPECT_TRUE(at.selection.rows().empty());
}

TEST(Selection, FollowsTheDocument) {
    struct Case {
        const char* what;
        std::function<void(SkinDocument&)> change;
        int curNum;
        int row;
        std::vector<int> told;
    };
    const Case cases[] = {
        {"nothing", [](SkinDocument&) {}, 2, 1, {}},
        {"its row moves", [](SkinDocument& d) { d.moveRow(1, 1, 2); }, 2, 2, {}},
        {"another row moves past it", [](SkinDocument& d) { d.moveRow(1, 0, 2); }, 2, 0, {}},
        {"its row goes", [](SkinDocument& d) { d.delItem(1); }, 0, -1, {0}},
        {"a row behind it goes", [](SkinDocument& d) { d.delItem(0); }, 2, 0, {}},
        {"a row comes", [](SkinDocument& d) { d.addElement(Element()); }, 2, 1, {}},
        {"its values change",
         [](SkinDocument& d) { d.editElement(2, [](Element& e) { e.elementAlpha = 7; }); },
         2,
         1,
         {}},
        {"its text changes", [](SkinDocument& d) { d.setRowText(1, 1, "x"); }, 2, 1, {}},
        {"another screen", [](SkinDocument& d) { d.setCurrentLayout(0); }, 0, -1, {0}},
        {"the same screen again", [](SkinDocument& d) { d.setCurrentLayout(1); }, 0, -1, {0}},
        {"another document", [](SkinDocument& d) { d = SkinDocument(); }, 0, -1, {0}},
    };
    for (const auto& c : cases) {
        Selected at;
        at.selection.select(1);
        const Counter counter(at.selection);
        c.change(at.document);
        EXPECT_EQ(at.selection.curNum(), c.curNum) << c.what;
        EXPECT_EQ(at.selection.leadingRow(), c.row) << c.what;
        EXPECT_EQ(at.selection.rows(), c.row < 0 ? std::vector<int>() : std::vector<int>{c.row})
            << c.what;
        EXPECT_EQ(counter.told, c.told) << c.what;
    }
}

TEST(Selection, TellsOfWhatIsSelectedOnceMore) {
    Selected at;
    const Counter counter(at.selection);
    at.selection.select(0);
    at.selection.select(0);
    at.selection.clear();
    at.selection.clear();
    EXPECT_EQ(counter.told, (std::vector<int>{1, 1, 0, 0}));
}

using Ids = std::vector<int>;

TEST(Selection, HasTheOnePickedLastLead) {
    Selected at;
    Selection& selection = at.selection;
    selection.select(2);
    selection.toggle(0);
    selection.toggle(1);
    EXPECT_EQ(selection.ids(), (Ids{3, 1, 2}));
    EXPECT_EQ(selection.rows(), (Ids{0, 1, 2}));
    EXPECT_EQ(selection.curNum(), 2);
    EXPECT_EQ(selection.leadingRow(), 1);
    selection.toggle(1); // the one before it leads again
    EXPECT_EQ(selection.ids(), (Ids{3, 1}));
    EXPECT_EQ(selection.leadingRow(), 0);
    EXPECT_FALSE(selection.contains(2));
    EXPECT_TRUE(selection.contains(3));
    selection.lead(3);
    EXPECT_EQ(selection.ids(), (Ids{1, 3}));
    selection.lead(2); // not selected
    selection.toggle(-1);
    EXPECT_EQ(selection.ids(), (Ids{1, 3}));
    selection.select(1);
    EXPECT_EQ(selection.ids(), Ids{2});
    EXPECT_FALSE(selection.contains(1));
}

TEST(Selection, TakesIdsThatTheScreenHolds) {
    Selected at;
    const Counter counter(at.selection);
    at.selection.selectIds({3, 4, 1, 99, 3}); // 4 is on another screen
    EXPECT_EQ(at.selection.ids(), (Ids{3, 1}));
    at.selection.selectIds({});
    EXPECT_TRUE(at.selection.isEmpty());
    EXPECT_EQ(counter.told, (Ids{1, 0})); // once each time
}

TEST(Selection, KeepsThoseWhoseRowsStay) {
    Selected at;
    at.selection.selectIds({1, 2, 3});
    const Counter counter(at.selection);
    at.document.moveRow(1, 0, 2);
    EXPECT_EQ(at.selection.ids(), (Ids{1, 2, 3}));
    EXPECT_EQ(counter.told, Ids());
    at.document.delItems({0, 1}); // 2 and 3
    EXPECT_EQ(at.selection.ids(), Ids{1});
    EXPECT_EQ(at.selection.leadingRow(), 0);
    EXPECT_EQ(counter.told, Ids{1});
    at.document.addElement(Element());
    at.selection.toggle(1); // an id that came later
    EXPECT_EQ(at.selection.ids(), (Ids{1, 5}));
    at.document.delItems({0, 1});
    EXPECT_TRUE(at.selection.isEmpty());
}

TEST(Selection, EndsARunWhenItChanges) {
    Selected at;
    at.selection.select(0);
    at.document.continueRun("move Box");
    at.selection.select(0);
    EXPECT_TRUE(at.document.isRunOpen());
    at.selection.toggle(1);
    EXPECT_FALSE(at.document.isRunOpen());
}

TEST(Selection, IsRightBeforeLaterObserversAreTold) {
    struct Asking : DocumentObserver {
        explicit Asking(Selection& asked)
            : selection(asked) {}
        void documentChanged(const DocumentChange& /*change*/) override {
            rows.push_back(selection.leadingRow());
        }
        Selection& selection;
        std::vector<int> rows;
    };
    Selected at;
    Asking asking(at.selection);
    const auto watch = at.document.watch(asking);
    at.selection.select(0);
    at.document.moveRow(1, 0, 2);
    at.document.delItem(2);
    EXPECT_EQ(asking.rows, (std::vector<int>{2, -1}));
}

} // namespace
} // namespace tarvel
