// The ways around the window by keys: F6 from part to part, Tab from element to element, F10.
#include "support/behaviour_editor.h"
#include "support/focus_keys.h"
#include "support/ui_test.h"

#include <QLineEdit>
#include <QMenuBar>

using namespace tarvel;
using namespace tarvel::test;

namespace {

QStringList pressed(Qt::Key key, Qt::KeyboardModifiers modifiers, int times) {
    QStringList way;
    for (int i = 0; i < times; ++i) {
        press(key, modifiers);
        way << focusName();
    }
    return way;
}

} // namespace

class KeyboardWaysTest : public QObject {
    Q_OBJECT

  private slots:
    void partsByF6();
    void partsRememberTheirFocus();
    void partsWithAnOpenPanel();
    void elementsByTab();
    void tabLeavesLockedElementsOut();
    void tabWhileDragging();
    void tabWithSeveralSelected();
    void partsWithTheGuideOpen();
    void escapeSelectsNothing();
    void rowsByKeys();
    void menuBarByF10();
};

void KeyboardWaysTest::partsByF6() {
    Editor editor;
    editor.show();
    editor.pic()->setFocus();
    // The panel has nothing to work with yet but the button of the videos.
    QCOMPARE(pressed(Qt::Key_F6, {}, 4), QStringList({"lst(1)", "cmdStop", "optBox", "Pic"}));
    QCOMPARE(pressed(Qt::Key_F6, Qt::ShiftModifier, 4),
             QStringList({"optBox", "cmdStop", "lst(1)", "Pic"}));
    editor.add(boxAt(10, 10, 50, 50));
    editor.selectRow(1, 0);
    QCOMPARE(pressed(Qt::Key_F6, {}, 1), QStringList({"lst(1)"}));
    editor.find<QWidget>("fraCreate")->setVisible(false);
    QCOMPARE(pressed(Qt::Key_F6, {}, 2), QStringList({"cmdStop", "Pic"}));
}

void KeyboardWaysTest::partsRememberTheirFocus() {
    Editor editor;
    editor.show();
    editor.add(boxAt(10, 10, 50, 50));
    editor.selectRow(1, 0);
    editor.pic()->setFocus();
    QCOMPARE(pressed(Qt::Key_F6, {}, 2), QStringList({"lst(1)", "txtL"}));
    press(Qt::Key_Tab); // to the next field
    QCOMPARE(pressed(Qt::Key_F6, {}, 4), QStringList({"optBox", "Pic", "lst(1)", "txtT"}));
    QCOMPARE(editor.find<QLineEdit>("txtT")->selectedText(), QString("10")); // to be typed over
    editor.document().setCurrentLayout(2); // another list; the field is out of use
    QCOMPARE(pressed(Qt::Key_F6, Qt::ShiftModifier, 1), QStringList({"lst(2)"}));
}

void KeyboardWaysTest::partsWithAnOpenPanel() {
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(1));
    for (int i = 0; i < 6; ++i) {
        press(Qt::Key_F6);
        QVERIFY(editor.panel(1).isAncestorOf(QApplication::focusWidget()));
    }
    press(Qt::Key_F10); // the menus are out of use
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    editor.ok(1);
}

void KeyboardWaysTest::elementsByTab() {
    Editor editor;
    editor.show();
    QList<int> ids;
    for (const float left : {10.0F, 20.0F, 30.0F}) {
        ids << editor.add(boxAt(left, 10, 50, 50));
    }
    editor.pic()->setFocus();
    QList<int> way;
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Tab);
        QCOMPARE(focusName(), QString("Pic"));
        way << editor.window.curNum();
    }
    QCOMPARE(way, ids);
    press(Qt::Key_Tab);
    QCOMPARE(focusName(), QString("optBox"));
    QCOMPARE(editor.window.curNum(), ids[2]);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(focusName(), QString("Pic"));
    for (const int id : {ids[1], ids[0]}) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(editor.window.curNum(), id);
    }
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(focusName() != QString("Pic"));
}

void KeyboardWaysTest::tabLeavesLockedElementsOut() {
    Editor editor;
    editor.show();
    editor.add(boxAt(10, 10, 50, 50));
    const int second = editor.add(boxAt(20, 10, 50, 50));
    editor.selectRow(1, 0);
    editor.entry("mnuLocked")->trigger();
    editor.entry("mnuDeSel")->trigger();
    editor.pic()->setFocus();
    press(Qt::Key_Tab);
    QCOMPARE(editor.window.curNum(), second);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(focusName() != QString("Pic"));
}

void KeyboardWaysTest::tabWhileDragging() {
    Editor editor;
    editor.show();
    const int first = editor.add(boxAt(10, 10, 50, 50));
    editor.add(boxAt(200, 10, 50, 50));
    editor.press({30, 30});
    editor.drag({60, 60});
    press(Qt::Key_Tab);
    QCOMPARE(focusName(), QString("Pic"));
    QCOMPARE(editor.window.curNum(), first);
    editor.release({60, 60});
    editor.chooseTool("optBox");
    editor.pic()->setFocus();
    press(Qt::Key_Tab); // with a tool the focus goes on
    QCOMPARE(focusName(), QString("optBox"));
    QVERIFY(editor.find<QAbstractButton>("optBox")->isChecked());
}

// Goes on from the one that leads, and selects it alone.
void KeyboardWaysTest::tabWithSeveralSelected() {
    Editor editor;
    editor.show();
    QList<int> ids;
    for (const float left : {10.0F, 80.0F, 150.0F, 220.0F}) {
        ids << editor.add(boxAt(left, 10, 50, 50));
    }
    editor.click({30, 30});
    QTest::mouseClick(editor.pic(), Qt::LeftButton, Qt::ControlModifier, {170, 30});
    QCOMPARE(editor.window.curNum(), ids[2]);
    press(Qt::Key_Tab);
    QCOMPARE(focusName(), QString("Pic"));
    QCOMPARE(editor.window.curNum(), ids[3]);
    QCOMPARE(editor.lst(1)->selectionModel()->selectedIndexes().size(), 1);
}

void KeyboardWaysTest::partsWithTheGuideOpen() {
    Editor editor;
    editor.show();
    editor.pic()->setFocus();
    press(Qt::Key_F1);
    QWidget* guide = nullptr;
    for (QWidget* each : QApplication::topLevelWidgets()) {
        guide = each->objectName() == "frmGuide" ? each : guide;
    }
    QVERIFY(guide != nullptr);
    QVERIFY(QTest::qWaitForWindowActive(guide));
    const QWidget* before = editor.window.focusWidget();
    press(Qt::Key_F6); // goes round the main window only
    QCOMPARE(editor.window.focusWidget(), before);
    QVERIFY(guide->isActiveWindow());
    press(Qt::Key_Escape);
    QVERIFY(!guide->isVisible());
    editor.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor.window));
    press(Qt::Key_F6);
    QVERIFY(focusName().startsWith("lst("));
}

void KeyboardWaysTest::escapeSelectsNothing() {
    Editor editor;
    editor.show();
    const int first = editor.add(boxAt(10, 10, 50, 50));
    editor.pic()->setFocus();
    press(Qt::Key_Tab);
    QCOMPARE(editor.window.curNum(), first);
    press(Qt::Key_Escape);
    QCOMPARE(editor.window.curNum(), 0);
    QCOMPARE(focusName(), QString("Pic"));
    press(Qt::Key_Tab);
    QCOMPARE(editor.window.curNum(), first); // from the beginning
}

void KeyboardWaysTest::rowsByKeys() {
    Editor editor;
    editor.show();
    QList<int> ids;
    for (int i = 0; i < 60; ++i) {
        ids << editor.add(boxAt(static_cast<float>(i), 10, 50, 50));
    }
    editor.lst(1)->setFocus();
    const auto after = [&](Qt::Key key) {
        press(key);
        return ids.indexOf(editor.window.curNum());
    };
    QCOMPARE(after(Qt::Key_Down), 0); // nothing was selected
    QCOMPARE(after(Qt::Key_Down), 1);
    editor.entry("mnuDeSel")->trigger();
    QCOMPARE(after(Qt::Key_Up), 59);
    QCOMPARE(after(Qt::Key_Home), 0);
    QCOMPARE(after(Qt::Key_Down), 1);
    const qsizetype page = after(Qt::Key_PageDown);
    QVERIFY(page > 2 && page < 59);
    QCOMPARE(after(Qt::Key_End), 59);
    QCOMPARE(after(Qt::Key_Up), 58);
    QVERIFY(after(Qt::Key_PageUp) < 57);
    QCOMPARE(after(Qt::Key_Home), 0);
}

void KeyboardWaysTest::menuBarByF10() {
    Editor editor;
    editor.show();
    editor.pic()->setFocus();
    press(Qt::Key_F10);
    auto* mnuSkin = editor.find<QMenu>("mnuSkin");
    QVERIFY(mnuSkin->isVisible());
    QTest::keyClick(mnuSkin, Qt::Key_Right);
    QTRY_VERIFY(editor.find<QMenu>("mnuConfig")->isVisible());
    QTest::keyClick(editor.find<QMenu>("mnuConfig"), Qt::Key_Escape);
    QTest::keyClick(editor.window.menuBar(), Qt::Key_Escape);
    QTRY_COMPARE(focusName(), QString("Pic"));
    QTest::keyClick(editor.pic(), Qt::Key_F10, Qt::ShiftModifier); // another key
    QVERIFY(editor.find<QMenu>("mnuRight2")->isVisible());
    editor.find<QMenu>("mnuRight2")->close();
}

TARVEL_UI_TEST(KeyboardWaysTest)
#include "keyboard_ways_test.moc"
