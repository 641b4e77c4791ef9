// Dragging a copy with Alt held, and tools that are kept for several elements.
#include "support/behaviour_editor.h"
#include "support/clipboard_support.h"
#include "support/ui_test.h"

#include <QAbstractButton>

using namespace tarvel;
using namespace tarvel::test;

namespace {

void altPress(Editor& editor, QPoint at) {
    QTest::mousePress(editor.pic(), Qt::LeftButton, Qt::AltModifier, at);
}

void altDrag(Editor& editor, QPoint from, QPoint to) {
    altPress(editor, from);
    editor.drag((from + to) / 2, Qt::AltModifier);
    editor.drag(to, Qt::AltModifier);
    editor.release(to);
}

QAbstractButton& tool(Editor& editor, const char* name) {
    return *editor.find<QAbstractButton>(name);
}

// As the window system tells it: a click, and then a press that is told as a double click.
void doubleClick(Editor& editor, const char* name) {
    QTest::mouseClick(&tool(editor, name), Qt::LeftButton);
    QTest::mouseDClick(&tool(editor, name), Qt::LeftButton);
    QTRY_VERIFY(editor.find<QWidget>("picBox")->isHidden());
}

} // namespace

class CopyDragTest : public QObject {
    Q_OBJECT

  private slots:
    void altCopiesOne();
    void altCopiesSeveral();
    void altCopiesALine();
    void altSizesByHandles();
    void copiesSnapToTheirOriginals();
    void withoutADragNothingIsCopied();
    void escapeTakesAllBack();
    void lockedGroundIsNotCopied();
    void doubleClickKeepsATool();
    void shiftAndSpaceKeepATool();
    void aKeptToolIsLetGo_data();
    void aKeptToolIsLetGo();
    void aKeptToolKeepsThePanelsValues();
};

void CopyDragTest::altCopiesOne() {
    BehaviourEditor editor(2);
    const SkinDocument before = editor.document();
    altDrag(editor, {60, 40}, {110, 140});
    QCOMPARE(idsOn(editor, 1), (std::vector<int>{1, 2, 3}));
    QCOMPARE(placeOf(editor.control(1)), placeOf(before.element(1).elementControl));
    QCOMPARE(placeOf(editor.control(3)), (Place{70, 120, 100, 50}));
    QCOMPARE(selectedRows(editor, 1), QList<int>({2}));
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo copy Box"));
    const SkinDocument after = editor.document();
    editor.entry("mnuUndo")->trigger();
    QVERIFY(editor.document().holdsTheSame(before));
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
    editor.entry("mnuRedo")->trigger();
    QVERIFY(editor.document().holdsTheSame(after));
}

void CopyDragTest::altCopiesSeveral() {
    BehaviourEditor editor(3);
    selectRows(editor, 1, {0, 2});
    altDrag(editor, {60, 40}, {60, 240});
    QCOMPARE(idsOn(editor, 1), (std::vector<int>{1, 2, 3, 4, 5}));
    QCOMPARE(placeOf(editor.control(1)), (Place{20, 20, 100, 50}));
    QCOMPARE(placeOf(editor.control(4)), (Place{20, 220, 100, 50}));
    QCOMPARE(placeOf(editor.control(5)), (Place{260, 220, 100, 50}));
    QCOMPARE(selectedRows(editor, 1), QList<int>({3, 4}));
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo copy 2 elements"));
}

// A line is held by its ends, which is where its copy is drawn from it.
void CopyDragTest::altCopiesALine() {
    Editor editor;
    editor.add(lineFrom(100, 100, 200, 150));
    editor.show();
    for (int time = 1; time <= 2; ++time) { // not yet selected, and selected
        altDrag(editor, {100, 100}, {130, 140});
        QCOMPARE(placeOf(editor.control(1)), (Place{100, 100, 200, 150}));
        QCOMPARE(placeOf(editor.control(2)), (Place{130, 140, 230, 190}));
        editor.entry("mnuUndo")->trigger();
        QCOMPARE(editor.document().rowCount(1), 1);
        editor.selectRow(1, 0);
        if (time == 1) {
            editor.document() = SkinDocument();
            editor.add(lineFrom(100, 100, 200, 150));
            editor.selectRow(1, 0);
        }
    }
}

void CopyDragTest::altSizesByHandles() {
    BehaviourEditor editor(1);
    editor.selectRow(1, 0);
    altDrag(editor, {120, 70}, {150, 100});
    QCOMPARE(editor.document().rowCount(1), 1);
    QCOMPARE(placeOf(editor.control(1)), (Place{20, 20, 130, 80}));
}

void CopyDragTest::copiesSnapToTheirOriginals() {
    BehaviourEditor editor(1);
    editor.entry("mnuSnapElements")->trigger();
    altDrag(editor, {60, 40}, {64, 200});
    QCOMPARE(placeOf(editor.control(2)), (Place{20, 180, 100, 50}));
    editor.entry("mnuSnapElements")->trigger(); // which would be remembered
}

void CopyDragTest::withoutADragNothingIsCopied() {
    BehaviourEditor editor(2);
    const SkinDocument before = editor.document();
    altPress(editor, {60, 40});
    editor.drag({60, 40}, Qt::AltModifier);
    editor.release({60, 40});
    QVERIFY(editor.document() == before);
    QCOMPARE(selectedRows(editor, 1), QList<int>({0}));
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
}

void CopyDragTest::escapeTakesAllBack() {
    BehaviourEditor editor(3);
    selectRows(editor, 1, {0, 2});
    const SkinDocument before = editor.document();
    altPress(editor, {60, 40});
    editor.drag({90, 90}, Qt::AltModifier);
    QCOMPARE(editor.document().rowCount(1), 5);
    editor.key(Qt::Key_Escape);
    editor.release({90, 90});
    QVERIFY(editor.document().holdsTheSame(before));
    QCOMPARE(selectedRows(editor, 1), QList<int>({0, 2}));
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
}

void CopyDragTest::lockedGroundIsNotCopied() {
    BehaviourEditor editor(1);
    editor.selectRow(1, 0);
    editor.entry("mnuLocked")->trigger();
    editor.entry("mnuDeSel")->trigger();
    altDrag(editor, {60, 40}, {110, 140});
    QCOMPARE(editor.document().rowCount(1), 1);
}

void CopyDragTest::doubleClickKeepsATool() {
    BehaviourEditor editor(0);
    doubleClick(editor, "optBox");
    QVERIFY(tool(editor, "optBox").isChecked());
    QVERIFY(!tool(editor, "optBox").accessibleDescription().isEmpty());
    for (int time = 1; time <= 3; ++time) {
        const int left = 20 + 100 * time;
        editor.pressDragRelease({left, 300}, {left + 60, 350});
        QCOMPARE(editor.document().rowCount(1), time);
        QVERIFY(tool(editor, "optBox").isChecked());
        QCOMPARE(editor.window.curNum(), time);
    }
    editor.key(Qt::Key_Return); // placed in the middle
    QCOMPARE(editor.document().rowCount(1), 4);
    editor.entry("mnuUndo")->trigger();
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.document().rowCount(1), 2);
    editor.key(Qt::Key_Escape);
    QVERIFY(!tool(editor, "optBox").isChecked());
    QVERIFY(tool(editor, "optBox").accessibleDescription().isEmpty());
    // The next one is let go as ever.
    editor.chooseTool("optBox");
    editor.pressDragRelease({20, 20}, {80, 80});
    QVERIFY(!tool(editor, "optBox").isChecked());
}

void CopyDragTest::shiftAndSpaceKeepATool() {
    BehaviourEditor editor(0);
    tool(editor, "optBox").setFocus();
    QTest::keyClick(&tool(editor, "optBox"), Qt::Key_Space, Qt::ShiftModifier);
    QTRY_VERIFY(editor.find<QWidget>("picBox")->isHidden());
    editor.key(Qt::Key_Return);
    editor.key(Qt::Key_Return);
    QCOMPARE(editor.document().rowCount(1), 2);
    QVERIFY(tool(editor, "optBox").isChecked());
}

void CopyDragTest::aKeptToolIsLetGo_data() {
    QTest::addColumn<QString>("how");
    for (const char* how : {"Escape", "Escape after drawing", "Escape in the panel",
                            "Escape while drawing", "click", "another tool", "row"}) {
        QTest::newRow(how) << how;
    }
}

void CopyDragTest::aKeptToolIsLetGo() {
    QFETCH(QString, how);
    BehaviourEditor editor(1);
    doubleClick(editor, "optLine");
    if (how == "Escape") {
        editor.key(Qt::Key_Escape);
    } else if (how == "Escape after drawing" || how == "Escape in the panel") {
        editor.pressDragRelease({300, 300}, {350, 350}); // which stays selected
        QTest::keyClick(editor.find<QWidget>(how.endsWith("panel") ? "cmdApply" : "Pic"),
                        Qt::Key_Escape);
        QCOMPARE(selectedRows(editor, 1), QList<int>({1}));
    } else if (how == "Escape while drawing") {
        editor.press({300, 300});
        editor.drag({350, 350});
        editor.key(Qt::Key_Escape);
        editor.release({350, 350});
    } else if (how == "click") {
        QTest::mouseClick(&tool(editor, "optLine"), Qt::LeftButton);
    } else if (how == "another tool") {
        editor.chooseTool("optBox");
        editor.pressDragRelease({300, 300}, {350, 350});
        QVERIFY(!tool(editor, "optBox").isChecked());
        QCOMPARE(editor.document().rowCount(1), 2);
    } else {
        editor.selectRow(1, 0);
    }
    QVERIFY(!tool(editor, "optLine").isChecked());
    QVERIFY(tool(editor, "optLine").accessibleDescription().isEmpty());
}

// A text that is shown has a white font colour; the next one is to have the chosen one.
void CopyDragTest::aKeptToolKeepsThePanelsValues() {
    BehaviourEditor editor(0);
    doubleClick(editor, "optText");
    auto* text = editor.find<QWidget>("txtText");
    text->setFocus();
    QTest::keyClicks(text, "Hi");
    editor.prompts.colors << QColor(1, 2, 250);
    click(*editor.find<QWidget>("fColor"));
    for (int time = 1; time <= 2; ++time) {
        editor.pressDragRelease({20, 100 * time}, {200, 100 * time + 40});
        QCOMPARE(editor.control(time).textColor, makeColor(1, 2, 250));
        QCOMPARE(editor.control(time).caption, std::string("Hi"));
    }
}

TARVEL_UI_TEST(CopyDragTest)
#include "copy_drag_test.moc"
