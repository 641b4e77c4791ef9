// The document as a value: copies, moves, and the observer that belongs to the object.
#include "document/skin_document.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarvel {
namespace {

using test::addBox;
using test::fourBoxes;
using test::RecordingObserver;
using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

TEST(Observer, IsToldOfEveryChange) {
    struct Case {
        const char* what;
        std::function<void(SkinDocument&)> change;
        Texts notes;
    };
    const Case cases[] = {
        {"screen", [](SkinDocument& d) { d.setCurrentLayout(3); }, {"currentLayout 3 -1"}},
        {"count", [](SkinDocument& d) { d.setScreenElementCount(2, 4); }, {"counts 2 -1"}},
        {"lock count", [](SkinDocument& d) { d.setLockCount(2, 4); }, {"counts 2 -1"}},
        {"edit",
         [](SkinDocument& d) { d.editElement(2, [](Element& e) { e.elementAlpha = 5; }); },
         {"element 1 2"}},
        {"add", [](SkinDocument& d) { addBox(d, "E"); }, {"rows 1 5", "counts 1 -1"}},
        {"row text", [](SkinDocument& d) { d.setRowText(1, 3, "x"); }, {"rowText 1 4"}},
        {"move", [](SkinDocument& d) { d.moveRow(1, 0, 3); }, {"rows 1 -1"}},
        {"delete", [](SkinDocument& d) { d.delItem(0); }, {"rows 1 -1"}},
        {"settings",
         [](SkinDocument& d) { d.editSettings([](SkinSettings& s) { s.skinName = "x"; }); },
         {"settings -1 -1"}},
        {"file resource", [](SkinDocument& d) { d.addRes("n", "p"); }, {"settings -1 -1"}},
        {"fragment", [](SkinDocument& d) { d.addcRes("<a/>", "n"); }, {"settings -1 -1"}},
        {"copy assignment",
         [](SkinDocument& d) {
             const SkinDocument other;
             d = other;
         },
         {"everything -1 -1"}},
        {"move assignment", [](SkinDocument& d) { d = SkinDocument(); }, {"everything -1 -1"}},
        {"assignment to itself",
         [](SkinDocument& d) {
             SkinDocument& same = d;
             d = same;
             d = std::move(same);
         },
         {}},
    };
    for (const auto& c : cases) {
        SkinDocument document = fourBoxes();
        RecordingObserver observer;
        auto watch = document.watch(observer);
        c.change(document);
        EXPECT_EQ(observer.notes, c.notes) << c.what;

        watch.end();
        document.setCurrentLayout(0);
        EXPECT_EQ(observer.notes, c.notes) << c.what;
    }
}

TEST(Observer, SeesTheDocumentAfterTheChange) {
    struct Reader : DocumentObserver {
        explicit Reader(const SkinDocument& observed)
            : document(observed) {}
        void documentChanged(const DocumentChange& change) override {
            rows.push_back(document.rowCount(1));
            if (change.elementId > 0) {
                labels.push_back(document.element(change.elementId).label);
            }
        }
        const SkinDocument& document;
        Ids rows;
        Texts labels;
    };
    SkinDocument document;
    Reader reader(document);
    auto watch = document.watch(reader);
    addBox(document, "A");
    document.editElement(1, [](Element& e) { e.label = "B"; });
    document.delItem(0);
    EXPECT_EQ(reader.rows, (Ids{1, 1, 1, 0}));
    EXPECT_EQ(reader.labels, (Texts{"A", "B"}));
}

TEST(Observer, BelongsToTheObjectAndNotToTheValue) {
    RecordingObserver observer;
    SkinDocument observed = fourBoxes();
    auto watch = observed.watch(observer);

    SkinDocument copy = observed;
    copy.setCurrentLayout(0);
    SkinDocument assigned;
    assigned = observed;
    assigned.setCurrentLayout(0);
    EXPECT_EQ(observer.notes, Texts{});
    EXPECT_EQ(observed, fourBoxes()); // an observer makes no difference

    SkinDocument moved = std::move(observed);
    moved.setCurrentLayout(0);
    EXPECT_EQ(observer.notes, Texts{});

    observed = moved; // NOLINT: the object keeps its observer
    observed.setCurrentLayout(2);
    EXPECT_EQ(observer.notes, (Texts{"everything -1 -1", "currentLayout 2 -1"}));
}

TEST(Documents, AreIndependentCopies) {
    SkinDocument original;
    for (int i = 0; i < 100; ++i) {
        addBox(original, "row " + std::to_string(i));
    }
    original.addRes("logo", "logo.png");
    const SkinDocument before = original;

    const std::function<void(SkinDocument&)> changes[] = {
        [](SkinDocument& d) { d.editElement(1, [](Element& e) { e.elementAlpha = 1; }); },
        [](SkinDocument& d) { d.editElement(100, [](Element& e) { e.elementLocked = true; }); },
        [](SkinDocument& d) {
            d.editElement(40, [](Element& e) { e.menuSettings.edit().itemsShown = 9; });
        },
        [](SkinDocument& d) {
            d.editElement(40, [](Element& e) {
                e.elementModifiers.edit().addChild(XmlTree::top, "Modifier");
            });
        },
        [](SkinDocument& d) {
            d.editElement(40, [](Element& e) { e.elementControl.font.edit().bold = true; });
        },
        [](SkinDocument& d) { d.setRowText(1, 50, "other"); },
        [](SkinDocument& d) { d.moveRow(1, 0, 99); },
        [](SkinDocument& d) { d.delItem(98); },
        [](SkinDocument& d) { addBox(d, "new"); },
        [](SkinDocument& d) { d.setCurrentLayout(2); },
        [](SkinDocument& d) { d.setScreenElementCount(1, 7); },
        [](SkinDocument& d) { d.setLockCount(1, 7); },
        [](SkinDocument& d) { d.editSettings([](SkinSettings& s) { s.delays[2] = 1; }); },
        [](SkinDocument& d) { d.addRes("second", "second.png"); },
    };
    int number = 0;
    for (const auto& change : changes) {
        SCOPED_TRACE(number++);
        SkinDocument copy = original;
        EXPECT_TRUE(copy == original);
        change(copy);
        EXPECT_TRUE(original == before);
        EXPECT_FALSE(copy == original);
        // And the other way round: the one that was copied from changes.
        const SkinDocument kept = original;
        SkinDocument changed = original;
        change(original);
        EXPECT_TRUE(kept == before);
        EXPECT_TRUE(original == copy);
        original = std::move(changed);
    }
}

TEST(Documents, ShareUnchangedElements) {
    SkinDocument original;
    for (int i = 0; i < 100; ++i) {
        addBox(original, "A");
    }
    SkinDocument copy = original;
    EXPECT_EQ(&copy.element(1), &original.element(1));
    copy.editElement(1, [](Element& e) { e.elementAlpha = 1; });
    EXPECT_NE(&copy.element(1), &original.element(1));
    EXPECT_EQ(&copy.element(100), &original.element(100));
    EXPECT_EQ(&copy.settings(), &original.settings());
}

TEST(Documents, AreNewOnesAfterTheyWereMovedFrom) {
    SkinDocument source = fourBoxes();
    source.setCurrentLayout(3);
    const SkinDocument before = source;

    SkinDocument constructed = std::move(source);
    EXPECT_EQ(constructed, before);
    EXPECT_EQ(source, SkinDocument()); // NOLINT: that is what is tested
    EXPECT_EQ(addBox(source, "again"), 1);

    SkinDocument assigned;
    addBox(assigned, "old");
    assigned = std::move(constructed);
    EXPECT_EQ(assigned, before);
    EXPECT_EQ(constructed, SkinDocument()); // NOLINT
    EXPECT_EQ(addBox(constructed, "again"), 1);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<SkinDocument>);
}

} // namespace
} // namespace tarvel
