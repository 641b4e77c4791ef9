// The selected element in the whole window: what shows it, and what a hand does to it.
#include "support/behaviour_editor.h"
#include "support/ui_test.h"

#include <QAccessible>
#include <QStatusBar>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int mainScreen = 1;

// Boxes of 80 by 60 beside each other, with opacities of 10, 20, 30 percent.
void addThree(Editor& editor) {
    for (int i = 0; i < 3; ++i) {
        Element box = boxAt(20 + 120 * static_cast<float>(i), 20, 80, 60);
        box.elementAlpha = static_cast<std::int16_t>(10 * (i + 1));
        box.label = "Box " + std::to_string(i);
        editor.add(box);
    }
    editor.show();
}

void clickRow(Editor& editor, int row, Qt::KeyboardModifiers keys = {}) {
    QListView* list = editor.lst(mainScreen);
    const QModelIndex index = list->model()->index(row, 0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, keys, list->visualRect(index).center());
}

} // namespace

class SelectionWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void stackingKeepsThePanelWithTheElement_data();
    void stackingKeepsThePanelWithTheElement();
    void anotherRowThatGoesLeavesThePanelAlone();
    void clickOnTheSelectedRowShowsItsValuesAgain();
    void middleButtonSelectsNothing();
    void lockEndsWithoutAFrame();
    void frameLeavesTheBorderToBeSeen();
    void surfaceHasTheFocusAtTheStart();
    void surfaceHasTheFocusAfterADelete();
    void behaviourButtonsNeedAnElement();
    void applyShowsThatThePanelDiffers();
    void statusLineTellsTheLastChange();
    void tabComesToTheCheckedScreen();
    void surfaceTellsWhatIsSelected();
    void toolsAreRadioButtons();
    void pointerLabelReadsItsNumbers();
};

void SelectionWindowTest::stackingKeepsThePanelWithTheElement_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("rowAfter");
    QTest::newRow("front") << "mnuFront" << 0 << 2;
    QTest::newRow("forward") << "mnuForward" << 1 << 2;
    QTest::newRow("backward") << "mnuBackward" << 1 << 0;
    QTest::newRow("back") << "mnuBack" << 2 << 0;
    QTest::newRow("front of the last") << "mnuFront" << 2 << 2;
}

void SelectionWindowTest::stackingKeepsThePanelWithTheElement() {
    QFETCH(QString, entry);
    QFETCH(int, row);
    QFETCH(int, rowAfter);
    Editor editor;
    addThree(editor);
    clickRow(editor, row);
    const int id = row + 1;
    editor.window.findChild<QAction*>(entry)->trigger();
    QCOMPARE(editor.window.curNum(), id);
    QCOMPARE(editor.selectedRow(mainScreen), rowAfter);
    QCOMPARE(editor.find<QLineEdit>("txtAlpha")->text(), QString::number(10 * id));
    click(*editor.find<QPushButton>("cmdApply"));
    for (int each = 1; each <= 3; ++each) {
        QCOMPARE(int{editor.document().element(each).elementAlpha}, 10 * each);
    }
}

void SelectionWindowTest::anotherRowThatGoesLeavesThePanelAlone() {
    Editor editor;
    addThree(editor);
    clickRow(editor, 1);
    typeOver(*editor.find<QLineEdit>("txtAlpha"), "77");
    editor.document().delItem(0);
    QCOMPARE(editor.window.curNum(), 2);
    QCOMPARE(editor.selectedRow(mainScreen), 0);
    QCOMPARE(editor.find<QLineEdit>("txtAlpha")->text(), QString("77"));
}

void SelectionWindowTest::clickOnTheSelectedRowShowsItsValuesAgain() {
    Editor editor;
    addThree(editor);
    clickRow(editor, 1);
    auto* txtAlpha = editor.find<QLineEdit>("txtAlpha");
    typeOver(*txtAlpha, "77");
    clickRow(editor, 1);
    QCOMPARE(txtAlpha->text(), QString("20"));
    typeOver(*txtAlpha, "78");
    editor.click({150, 40}); // the element does the same
    QCOMPARE(txtAlpha->text(), QString("20"));
}

void SelectionWindowTest::middleButtonSelectsNothing() {
    Editor editor;
    addThree(editor);
    clickRow(editor, 1);
    QTest::mouseClick(editor.pic(), Qt::MiddleButton, {}, {150, 40});
    QCOMPARE(editor.window.curNum(), 0);
    QVERIFY(!editor.find<QWidget>("fraSel")->isVisible());
}

void SelectionWindowTest::lockEndsWithoutAFrame() {
    Editor editor;
    addThree(editor);
    clickRow(editor, 1);
    editor.entry("mnuLocked")->trigger();
    QCOMPARE(editor.selectedRow(mainScreen), 1);
    QCoreApplication::processEvents(); // the ground is made a turn later
    QVERIFY(!editor.find<QWidget>("fraSel")->isVisible());
    clickRow(editor, 1); // selected anew, it shows
    QVERIFY(editor.find<QWidget>("fraSel")->isVisible());
}

void SelectionWindowTest::frameLeavesTheBorderToBeSeen() {
    Editor editor;
    Element box = boxAt(100, 100, 81, 61);
    box.elementControl.borderStyle = BorderStyle::solid;
    box.elementControl.borderColor = makeColor(250, 5, 5);
    editor.add(box);
    editor.show();
    editor.click({140, 130});
    QVERIFY(editor.find<QWidget>("fraSel")->isVisible());
    const QImage seen = editor.pic()->grab().toImage();
    for (const QPoint edge :
         {QPoint(120, 100), QPoint(120, 160), QPoint(100, 115), QPoint(180, 115)}) {
        QCOMPARE(seen.pixelColor(edge), QColor(250, 5, 5));
    }
    for (const QPoint outside : {QPoint(99, 99), QPoint(181, 161)}) {
        QVERIFY(seen.pixelColor(outside) != QColor(Qt::black)); // the marks are there
    }
}

void SelectionWindowTest::surfaceHasTheFocusAtTheStart() {
    Editor editor;
    editor.show();
    QCOMPARE(editor.window.focusWidget(), editor.pic());
}

void SelectionWindowTest::surfaceHasTheFocusAfterADelete() {
    Editor editor;
    addThree(editor);
    clickRow(editor, 1);
    auto* txtAlpha = editor.find<QLineEdit>("txtAlpha");
    click(*txtAlpha);
    QTest::keyClick(txtAlpha, Qt::Key_Delete);
    QCOMPARE(editor.document().rowCount(mainScreen), 2);
    QCOMPARE(editor.window.focusWidget(), editor.pic());
}

void SelectionWindowTest::behaviourButtonsNeedAnElement() {
    BehaviourEditor editor;
    for (int i = 0; i < panelCount; ++i) {
        QVERIFY(!editor.button(i).isEnabled());
    }
    editor.click({40, 40});
    for (int i = 0; i < panelCount; ++i) {
        QVERIFY(editor.button(i).isEnabled());
    }
    QVERIFY(editor.openPanel(1));
    editor.ok(1);
    QVERIFY(editor.button(0).isEnabled());
    editor.key(Qt::Key_Delete);
    QVERIFY(!editor.button(0).isEnabled());
}

void SelectionWindowTest::applyShowsThatThePanelDiffers() {
    Editor editor;
    addThree(editor);
    auto* cmdApply = editor.find<QPushButton>("cmdApply");
    const auto differs = [&] {
        return cmdApply->font().bold() && !cmdApply->accessibleDescription().isEmpty();
    };
    clickRow(editor, 1);
    QVERIFY(!differs());
    auto* txtAlpha = editor.find<QLineEdit>("txtAlpha");
    typeOver(*txtAlpha, "77");
    QVERIFY(differs());
    typeOver(*txtAlpha, "20");
    QVERIFY(!differs());
    editor.prompts.colors << QColor(1, 2, 3);
    click(*editor.find<QWidget>("fColor"));
    QVERIFY(differs());
    click(*cmdApply);
    QVERIFY(!differs());
    typeOver(*txtAlpha, "78");
    clickRow(editor, 2); // another element is shown
    QVERIFY(!differs());
    typeOver(*txtAlpha, "78");
    editor.click({600, 400});
    QVERIFY(!differs());
}

void SelectionWindowTest::statusLineTellsTheLastChange() {
    Editor editor;
    addThree(editor);
    const auto status = [&] { return editor.window.statusBar()->currentMessage(); };
    editor.pressDragRelease({40, 40}, {60, 50});
    QCOMPARE(status(), QString("Move Box"));
    editor.entry("mnuFront")->trigger();
    QCOMPARE(status(), QString("Bring to front Box"));
    editor.press({60, 50});
    editor.drag({90, 90});
    editor.key(Qt::Key_Escape);
    QCOMPARE(status(), QString("Bring to front Box")); // taken back
    typeOver(*editor.find<QLineEdit>("txtAlpha"), "44");
    click(*editor.find<QPushButton>("cmdApply"));
    QCOMPARE(status(), QString("Apply changes to Box"));
    editor.clickScreen(2); // no change
    QCOMPARE(status(), QString("Apply changes to Box"));
    editor.clickScreen(mainScreen);
    clickRow(editor, 0);
    editor.key(Qt::Key_Delete);
    QCOMPARE(status(), QString("Delete Box"));
    editor.entry("mnuUnlock")->trigger(); // nothing is locked
    QCOMPARE(status(), QString("Delete Box"));
}

void SelectionWindowTest::tabComesToTheCheckedScreen() {
    Editor editor;
    editor.show();
    editor.clickScreen(3);
    editor.pic()->setFocus();
    QStringList visited;
    for (int i = 0; i < 60; ++i) {
        QWidget* focus = editor.window.focusWidget();
        visited << focus->objectName();
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    QVERIFY(visited.contains("optScreen(3)"));
    QCOMPARE(visited.filter("optScreen").count("optScreen(3)"), visited.filter("optScreen").size());
}

void SelectionWindowTest::surfaceTellsWhatIsSelected() {
    Editor editor;
    addThree(editor);
    QAccessibleInterface* surface = QAccessible::queryAccessibleInterface(editor.pic());
    QCOMPARE(surface->role(), QAccessible::Canvas);
    const auto words = [&] { return surface->text(QAccessible::Description); };
    editor.click({150, 40});
    QCOMPARE(words(), QString("Box, 140, 20, 80 by 60, selected"));
    editor.key(Qt::Key_Right);
    QCOMPARE(words(), QString("Box, 141, 20, 80 by 60, selected"));
    editor.click({400, 400});
    QCOMPARE(words(), QString("nothing selected"));
    editor.add(lineFrom(5, 6, 7.5, 8));
    clickRow(editor, 3);
    QCOMPARE(words(), QString("Line, 5, 6 to 7.5, 8, selected"));
    editor.entry("mnuLocked")->trigger();
    QCOMPARE(words(), QString("Line, 5, 6 to 7.5, 8, locked, selected"));
}

void SelectionWindowTest::toolsAreRadioButtons() {
    Editor editor;
    editor.show();
    for (const char* name : {"optBox", "optLine", "optImg", "optText", "optQor"}) {
        auto* tool = editor.find<QWidget>(name);
        QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(tool);
        QCOMPARE(heard->role(), QAccessible::RadioButton);
        QVERIFY(heard->state().checkable && !heard->state().checked);
        heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(heard->state().checked);
        QCOMPARE(heard->text(QAccessible::Name), captionOf(tool->property("text").toString()));
    }
}

void SelectionWindowTest::pointerLabelReadsItsNumbers() {
    Editor editor;
    editor.show();
    QTest::mouseMove(editor.pic(), {12, 34});
    QAccessibleInterface* heard =
        QAccessible::queryAccessibleInterface(editor.find<QWidget>("lblPos"));
    QTRY_COMPARE(heard->text(QAccessible::Name), QString("X: 12    Y: 34"));
}

TARVEL_UI_TEST(SelectionWindowTest)

#include "selection_window_test.moc"
