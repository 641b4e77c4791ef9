// The menu "Arrange": what stands in it, when it can be chosen, and what each entry does.
#include "support/behaviour_editor.h"
#include "support/clipboard_support.h"
#include "support/ui_test.h"

using namespace tarvel;
using namespace tarvel::test;

namespace {

// Three boxes and a line; the line is at the front.
void addFour(Editor& editor) {
    editor.add(boxAt(20, 30, 100, 50));
    editor.add(boxAt(60.4F, 100, 40, 80.6F));
    editor.add(boxAt(300, 220, 60, 20));
    editor.add(lineFrom(500, 400, 540, 450));
}

std::vector<Place> places(Editor& editor) {
    std::vector<Place> all;
    for (const int id : idsOn(editor, 1)) {
        all.push_back(placeOf(editor.control(id)));
    }
    return all;
}

// The names of the entries that can be chosen.
QStringList enabled(Editor& editor) {
    QStringList names;
    for (const QAction* action : editor.find<QMenu>("mnuArrange")->actions()) {
        if (!action->isSeparator() && action->isEnabled()) {
            names << action->objectName().mid(3);
        }
    }
    return names;
}

const QStringList forOne = {"AlignLeft",   "AlignCentre", "AlignRight",   "AlignTop",
                            "AlignMiddle", "AlignBottom", "CentreAcross", "CentreDown",
                            "FillScreen",  "WholePixels", "Front",        "Back",
                            "Forward",     "Backward",    "Locked"};

struct Case {
    const char* entry;
    std::vector<int> rows; ///< selected; the last leads
    const char* step;
    std::vector<Place> wanted;
};

const std::vector<Place> start = {
    {20, 30, 100, 50}, {60.4F, 100, 40, 80.6F}, {300, 220, 60, 20}, {500, 400, 540, 450}};

const std::vector<Case>& cases() {
    static const std::vector<Case> table = {
        {"mnuAlignLeft", {0}, "align left Box", {{0, 30, 100, 50}, start[1], start[2], start[3]}},
        {"mnuAlignLeft",
         {0, 2},
         "align left 2 elements",
         {{300, 30, 100, 50}, start[1], start[2], start[3]}},
        {"mnuAlignCentre",
         {2, 0},
         "align centre 2 elements",
         {start[0], start[1], {40, 220, 60, 20}, start[3]}},
        {"mnuAlignRight",
         {3, 0},
         "align right 2 elements",
         {start[0], start[1], start[2], {80, 400, 120, 450}}},
        {"mnuAlignTop",
         {0, 2},
         "align top 2 elements",
         {{20, 220, 100, 50}, start[1], start[2], start[3]}},
        {"mnuAlignMiddle",
         {2},
         "align middle Box",
         {start[0], start[1], {300, 230, 60, 20}, start[3]}},
        {"mnuAlignBottom",
         {2},
         "align bottom Box",
         {start[0], start[1], {300, 460, 60, 20}, start[3]}},
        {"mnuDistributeAcross",
         {0, 2, 3},
         "distribute across 3 elements",
         {start[0], start[1], {280, 220, 60, 20}, start[3]}},
        {"mnuDistributeDown",
         {0, 2, 3},
         "distribute down 3 elements",
         {start[0], start[1], {300, 230, 60, 20}, start[3]}},
        {"mnuSameWidth",
         {2, 0},
         "make same width 2 elements",
         {start[0], start[1], {300, 220, 100, 20}, start[3]}},
        {"mnuSameHeight",
         {2, 0},
         "make same height 2 elements",
         {start[0], start[1], {300, 220, 60, 50}, start[3]}},
        {"mnuSameSize",
         {2, 0},
         "make same size 2 elements",
         {start[0], start[1], {300, 220, 100, 50}, start[3]}},
        {"mnuCentreAcross",
         {0, 2},
         "centre across 2 elements",
         {{150, 30, 100, 50}, start[1], {430, 220, 60, 20}, start[3]}},
        {"mnuCentreDown",
         {0, 2},
         "centre down 2 elements",
         {{20, 135, 100, 50}, start[1], {300, 325, 60, 20}, start[3]}},
        {"mnuFillScreen", {2}, "fill screen Box", {start[0], start[1], {0, 0, 640, 480}, start[3]}},
        {"mnuWholePixels",
         {1},
         "bring to whole pixels Box",
         {start[0], {60, 100, 40, 81}, start[2], start[3]}},
        {"mnuFront", {0}, "bring to front Box", {start[1], start[2], start[3], start[0]}},
        {"mnuBack", {3}, "send to back Line", {start[3], start[0], start[1], start[2]}},
    };
    return table;
}

} // namespace

class ArrangeMenuTest : public QObject {
    Q_OBJECT

  private slots:
    void entriesStandInGroups();
    void everyEntry_data();
    void everyEntry();
    void enabledForWhatCanBeDone();
    void disabledMeanwhile();
    void lockIsCheckedForALockedElement();
    void nothingToChangeIsNoStep();
    void bringsWorkByMouseAndKeys();
};

void ArrangeMenuTest::entriesStandInGroups() {
    Editor editor;
    QStringList captions;
    for (const QAction* action : editor.find<QMenu>("mnuArrange")->actions()) {
        captions << (action->isSeparator() ? QStringLiteral("-") : captionOf(*action));
    }
    QCOMPARE(captions, QStringList({"Align Left",
                                    "Align Centre",
                                    "Align Right",
                                    "-",
                                    "Align Top",
                                    "Align Middle",
                                    "Align Bottom",
                                    "-",
                                    "Distribute Across",
                                    "Distribute Down",
                                    "-",
                                    "Same Width",
                                    "Same Height",
                                    "Same Size",
                                    "-",
                                    "Centre on the Screen Across",
                                    "Centre on the Screen Down",
                                    "Fill the Screen",
                                    "Whole Pixels",
                                    "-",
                                    "Bring to Front",
                                    "Send to Back",
                                    "Bring Forward",
                                    "Send Backward",
                                    "-",
                                    "Lock"}));
}

void ArrangeMenuTest::everyEntry_data() {
    QTest::addColumn<int>("which");
    int at = 0;
    for (const Case& each : cases()) {
        QTest::addRow("%s, %d selected", each.entry, static_cast<int>(each.rows.size())) << at++;
    }
}

void ArrangeMenuTest::everyEntry() {
    QFETCH(int, which);
    const Case& each = cases()[static_cast<std::size_t>(which)];
    Editor editor;
    addFour(editor);
    editor.show();
    selectRows(editor, 1, each.rows);
    const int leading = editor.window.curNum();
    const SkinDocument before = editor.document();
    QVERIFY(editor.entry(each.entry)->isEnabled());
    editor.entry(each.entry)->trigger();
    QCOMPARE(places(editor), each.wanted);
    QCOMPARE(editor.window.curNum(), leading);
    QCOMPARE(selectedRows(editor, 1).size(), static_cast<int>(each.rows.size()));
    QCOMPARE(editor.caption("mnuUndo"), QStringLiteral("Undo ") + each.step);
    editor.entry("mnuUndo")->trigger();
    QVERIFY(editor.document().holdsTheSame(before));
    editor.entry("mnuRedo")->trigger();
    QCOMPARE(places(editor), each.wanted);
}

void ArrangeMenuTest::enabledForWhatCanBeDone() {
    Editor editor;
    addFour(editor);
    editor.show();
    QCOMPARE(enabled(editor), QStringList());
    selectRows(editor, 1, {2});
    QCOMPARE(enabled(editor), forOne);
    selectRows(editor, 1, {2, 0});
    QStringList forTwo = forOne;
    for (const char* name : {"SameSize", "SameHeight", "SameWidth"}) {
        forTwo.insert(6, name);
    }
    QCOMPARE(enabled(editor), forTwo);
    selectRows(editor, 1, {2, 0, 1});
    QStringList forThree = forTwo;
    forThree.insert(6, "DistributeDown");
    forThree.insert(6, "DistributeAcross");
    QCOMPARE(enabled(editor), forThree);
    selectRows(editor, 1, {0});
    editor.entry("mnuLocked")->trigger();
    // What is locked is neither moved nor sized.
    QCOMPARE(enabled(editor), QStringList({"Front", "Back", "Forward", "Backward", "Locked"}));
}

void ArrangeMenuTest::disabledMeanwhile() {
    BehaviourEditor editor(3);
    selectRows(editor, 1, {0, 1, 2});
    const QStringList all = enabled(editor);
    QCOMPARE(all.size(), 20);
    QVERIFY(inDialog(editor, "mnuDelays", "frmDelays",
                     [&](QWidget&) { QCOMPARE(enabled(editor), QStringList()); }));
    QVERIFY(activate(editor.window));
    QCOMPARE(enabled(editor), all);
    editor.press({40, 40});
    editor.drag({45, 45});
    QCOMPARE(enabled(editor), QStringList());
    editor.release({45, 45});
    QCOMPARE(enabled(editor), all);
    QVERIFY(editor.openPanel(1));
    QCOMPARE(enabled(editor), QStringList());
    editor.ok(1);
    QCOMPARE(enabled(editor), all);
    editor.key(Qt::Key_Right); // a run of keys ends with the next command
    QCOMPARE(enabled(editor), all);
    editor.entry("mnuAlignLeft")->trigger();
    QVERIFY(!editor.document().isEditOpen());
}

void ArrangeMenuTest::lockIsCheckedForALockedElement() {
    BehaviourEditor editor(3);
    selectRows(editor, 1, {1});
    QVERIFY(!editor.entry("mnuLocked")->isChecked());
    editor.entry("mnuLocked")->trigger();
    QCOMPARE(editor.document().lockCount(1), 2);
    QVERIFY(editor.entry("mnuLocked")->isChecked());
    selectRows(editor, 1, {2});
    QVERIFY(!editor.entry("mnuLocked")->isChecked());
}

void ArrangeMenuTest::nothingToChangeIsNoStep() {
    BehaviourEditor editor(1);
    selectRows(editor, 1, {0});
    editor.entry("mnuWholePixels")->trigger();
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
}

void ArrangeMenuTest::bringsWorkByMouseAndKeys() {
    BehaviourEditor editor(3);
    selectRows(editor, 1, {0});
    QVERIFY(choose(editor, "mnuAlignRight"));
    QCOMPARE(editor.control(1).left, 540.0F);
    auto* menu = editor.find<QMenu>("mnuArrange");
    menu->popup({0, 0});
    QVERIFY(QTest::qWaitFor([&] { return menu->isVisible(); }));
    menu->setActiveAction(editor.entry("mnuAlignLeft"));
    QTest::keyClick(menu, Qt::Key_Return);
    QCOMPARE(editor.control(1).left, 0.0F);
}

TARVEL_UI_TEST(ArrangeMenuTest)
#include "arrange_menu_test.moc"
