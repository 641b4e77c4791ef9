// Working on the surface by mouse and keys: drawing, picking, moving, sizing, what the pointer
// tells.
#include "editing/hit_test.h"
#include "support/editor.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QLineEdit>

#include <functional>
#include <utility>

using namespace tarvel;
using namespace tarvel::test;

namespace {

QVector<float> placeOf(Editor& editor, int id) {
    const ElementControl& control = editor.control(id);
    if (control.kind == ControlKind::lin) {
        return {control.X1, control.Y1, control.X2, control.Y2};
    }
    return {control.left, control.top, control.width, control.height};
}

using Place4 = QVector<float>;

} // namespace

class EditingTest : public QObject {
    Q_OBJECT

  private slots:
    void toolsAreChosenAndLetGo();
    void coverHidesTheSurfaceForAMoment();
    void drawsBoxesEveryWay();
    void aClickWithAToolLeavesADefaultElement();
    void drawsALine();
    void enterPlacesInTheMiddle();
    void escapeTakesADrawingBack();
    void invalidPanelDrawsNothing();
    void picksTheTopmost();
    void edgesAndLineEnds();
    void dragMovesByDifferences();
    void dragOutOfTheWindowAndBack();
    void escapeTakesADragBack();
    void aDragEndsWithItsScreen();
    void handlesResize();
    void lineEndsAreHeldOnTheScreen();
    void arrowKeysStep_data();
    void arrowKeysStep();
    void arrowKeysWithoutASelection();
    void deleteWorksWhereverTheFocusIs();
    void deleteWithoutASelection();
    void pointerTellsWhatAPressDoes();
    void pointerKeepsItsShapeDuringADrag();
    void positionFieldsMoveTheElement();
    void escapeTakesBackWhatWasTypedAsAPosition();
    void aTypedPositionGoesWithTheWindow();
    void anotherButtonDuringADragIsIgnored();
    void marksFollowTheSelection();
    void aLockedLineHasNoMarks();
    void rowsThatStayKeepTheirSelection();
};

void EditingTest::toolsAreChosenAndLetGo() {
    Editor editor;
    editor.show();
    auto* box = editor.find<QAbstractButton>("optBox");
    auto* text = editor.find<QAbstractButton>("optText");
    editor.chooseTool("optBox");
    QVERIFY(box->isChecked());
    editor.chooseTool("optText");
    QVERIFY(!box->isChecked() && text->isChecked());
    QTest::mouseClick(text, Qt::LeftButton); // a click on the chosen tool lets it go
    QVERIFY(!text->isChecked());
    editor.chooseTool("optLine");
    editor.key(Qt::Key_Escape);
    QVERIFY(!editor.find<QAbstractButton>("optLine")->isChecked());
}

void EditingTest::coverHidesTheSurfaceForAMoment() {
    Editor editor;
    editor.show();
    editor.add(boxAt(10, 10, 50, 50));
    editor.selectRow(1, 0);
    QVERIFY(editor.find<QWidget>("fraSel")->isVisible());
    QTest::mouseClick(editor.find<QWidget>("optBox"), Qt::LeftButton);
    QVERIFY(editor.find<QWidget>("picBox")->isVisible());
    QCOMPARE(editor.find<QWidget>("picBox")->geometry(), editor.pic()->rect());
    QVERIFY(!editor.find<QWidget>("fraSel")->isVisible());
    QCOMPARE(editor.pic()->cursor().shape(), Qt::CrossCursor);
    QTRY_VERIFY(editor.find<QWidget>("picBox")->isHidden());
}

void EditingTest::drawsBoxesEveryWay() {
    struct Case {
        QPoint from;
        QPoint to;
        Place4 place;
    };
    const QList<Case> cases = {{{100, 50}, {160, 90}, {100, 50, 60, 40}},
                               {{160, 90}, {100, 50}, {100, 50, 60, 40}},
                               {{100, 90}, {160, 50}, {100, 50, 60, 40}},
                               {{600, 400}, {660, 500}, {600, 400, 60, 100}}};
    for (const auto& [from, to, place] : cases) {
        Editor editor;
        editor.show();
        editor.chooseTool("optBox");
        editor.pressDragRelease(from, to);
        QCOMPARE(editor.document().lastElementId(), 1);
        QCOMPARE(placeOf(editor, 1), place);
        QCOMPARE(editor.document().element(1).elementKind, ElementKind::Box);
        QCOMPARE(editor.document().rowText(1, 0), std::string("Box: Alpha 100"));
        QCOMPARE(editor.selectedRow(1), 0); // and the tool is let go
        QVERIFY(!editor.find<QAbstractButton>("optBox")->isChecked());
        QVERIFY(editor.optScreen(1)->font().bold());
    }
}

void EditingTest::aClickWithAToolLeavesADefaultElement() {
    struct Case {
        const char* tool;
        Place4 place;
    };
    const QList<Case> cases = {{"optBox", {30, 40, 120, 80}},
                               {"optLine", {30, 40, 150, 40}},
                               {"optQor", {30, 40, 400, 240}}};
    for (const auto& [tool, place] : cases) {
        Editor editor;
        editor.show();
        editor.chooseTool(tool);
        editor.press({30, 40});
        editor.drag({33, 43});
        editor.release({33, 43});
        QCOMPARE(placeOf(editor, 1), place);
    }
}

void EditingTest::drawsALine() {
    Editor editor;
    editor.show();
    editor.chooseTool("optLine");
    editor.press({200, 100});
    editor.drag({150, 180});
    QCOMPARE(editor.find<QLineEdit>("txtW")->text(), QStringLiteral("150"));
    editor.release({150, 180});
    QCOMPARE(placeOf(editor, 1), Place4({200, 100, 150, 180}));
    QCOMPARE(editor.document().rowText(1, 0), std::string("Line"));
    QVERIFY(editor.find<QWidget>("fraResize1")->isVisible());
    QVERIFY(editor.find<QWidget>("fraResize2")->isVisible());
    QVERIFY(!editor.find<QWidget>("fraSel")->isVisible());
}

void EditingTest::enterPlacesInTheMiddle() {
    Editor editor;
    editor.show();
    editor.chooseTool("optBox");
    editor.key(Qt::Key_Return);
    QCOMPARE(placeOf(editor, 1), Place4({260, 200, 120, 80}));
    QCOMPARE(editor.selectedRow(1), 0);
    editor.key(Qt::Key_Return); // without a tool it does nothing
    QCOMPARE(editor.document().lastElementId(), 1);
}

void EditingTest::escapeTakesADrawingBack() {
    Editor editor;
    editor.show();
    editor.chooseTool("optBox");
    editor.press({10, 10});
    editor.drag({100, 100});
    QCOMPARE(editor.document().rowCount(1), 1);
    editor.key(Qt::Key_Escape);
    QCOMPARE(editor.document().rowCount(1), 0);
    QCOMPARE(editor.document().screenElementCount(1), 0);
    editor.drag({120, 120});
    editor.release({120, 120});
    QCOMPARE(editor.document().rowCount(1), 0);
    QVERIFY(!editor.optScreen(1)->font().bold());
}

void EditingTest::invalidPanelDrawsNothing() {
    Editor editor;
    editor.show();
    editor.chooseTool("optBox");
    QTest::mouseClick(editor.find<QWidget>("cmdClearL"), Qt::LeftButton);
    QTest::mouseClick(editor.find<QWidget>("cmdClearF"), Qt::LeftButton);
    auto* txtAlpha = editor.find<QLineEdit>("txtAlpha");
    txtAlpha->selectAll();
    QTest::keyClicks(txtAlpha, "abc");
    editor.pressDragRelease({10, 10}, {90, 90});
    QCOMPARE(editor.prompts.messages,
             QStringList({"Choose a color for either the border or the fill",
                          "Select an opacity from 1-100"}));
    QCOMPARE(editor.document().lastElementId(), 0);
    editor.prompts.messages.clear();
    editor.chooseTool("optImg");
    editor.click({50, 50});
    QCOMPARE(editor.prompts.messages, QStringList("Select a resource"));
    editor.prompts.messages.clear();
    editor.chooseTool("optText");
    editor.click({50, 50});
    QCOMPARE(editor.prompts.messages, QStringList("Enter some text"));
    QCOMPARE(editor.document().lastElementId(), 0);
}

void EditingTest::picksTheTopmost() {
    Editor editor;
    editor.show();
    editor.add(boxAt(10, 10, 100, 100));
    editor.add(boxAt(50, 50, 100, 100));
    editor.click({80, 80});
    QCOMPARE(editor.selectedRow(1), 1);
    editor.click({20, 20});
    QCOMPARE(editor.selectedRow(1), 0);
    editor.click({400, 400});
    QCOMPARE(editor.selectedRow(1), -1);
    QVERIFY(!editor.find<QWidget>("fraSel")->isVisible());
}

void EditingTest::edgesAndLineEnds() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    editor.add(lineFrom(300, 100, 400, 100));
    const auto picked = [&](QPoint at) {
        editor.click({600, 400});
        editor.click(at);
        return editor.selectedRow(1);
    };
    QCOMPARE(picked({150, 150}), 0);
    QCOMPARE(picked({151, 120}), -1);
    QCOMPARE(picked({120, 151}), -1);
    QCOMPARE(picked({306, 106}), 1);
    QCOMPARE(picked({394, 94}), 1);
    QCOMPARE(picked({307, 100}), -1);
    QCOMPARE(picked({350, 100}), -1);
}

void EditingTest::dragMovesByDifferences() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.press({120, 130});
    editor.drag({125, 128});
    QCOMPARE(placeOf(editor, id), Place4({105, 98, 50, 50}));
    QCOMPARE(editor.find<QLineEdit>("txtL")->text(), QStringLiteral("105"));
    QCOMPARE(editor.find<QLabel>("lblPos")->text(), QStringLiteral("X: 125    Y: 128"));
    editor.drag({20, 30});
    editor.release({20, 30});
    QCOMPARE(placeOf(editor, id), Place4({0, 0, 50, 50}));
    editor.drag({300, 300}); // after the release nothing follows
    QCOMPARE(placeOf(editor, id), Place4({0, 0, 50, 50}));
}

void EditingTest::dragOutOfTheWindowAndBack() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.press({120, 120});
    editor.drag({-500, 2000});
    QCOMPARE(placeOf(editor, id), Place4({-520, 1980, 50, 50})); // not held on the screen
    editor.drag({130, 125});
    editor.release({130, 125});
    QCOMPARE(placeOf(editor, id), Place4({110, 105, 50, 50}));
    editor.press({120, 120});
    editor.drag({-100, 120});
    editor.release({-100, 120}); // released outside
    QCOMPARE(placeOf(editor, id), Place4({-110, 105, 50, 50}));
}

void EditingTest::escapeTakesADragBack() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.press({120, 120});
    editor.drag({200, 200});
    editor.key(Qt::Key_Escape);
    QCOMPARE(placeOf(editor, id), Place4({100, 100, 50, 50}));
    editor.drag({220, 220});
    editor.release({220, 220});
    QCOMPARE(placeOf(editor, id), Place4({100, 100, 50, 50}));
    QCOMPARE(editor.selectedRow(1), 0);
}

void EditingTest::aDragEndsWithItsScreen() {
    const QList<std::function<void(Editor&)>> ways = {
        [](Editor& editor) { editor.document().setCurrentLayout(2); },
        [](Editor& editor) {
            const SkinDocument same = editor.document();
            editor.document() = same; // as loading does
        }};
    for (const auto& leave : ways) {
        Editor editor;
        editor.show();
        const int id = editor.add(boxAt(100, 100, 50, 50));
        editor.press({120, 120});
        editor.drag({130, 130});
        QCOMPARE(placeOf(editor, id), Place4({110, 110, 50, 50}));
        leave(editor);
        editor.drag({200, 200});
        editor.release({200, 200});
        QCOMPARE(placeOf(editor, id), Place4({110, 110, 50, 50}));
    }
}

void EditingTest::handlesResize() {
    struct Case {
        QPoint handle;
        Place4 place;
    };
    const QList<Case> cases = {{{100, 100}, {110, 105, 90, 45}},  {{150, 100}, {100, 105, 100, 45}},
                               {{200, 100}, {100, 105, 110, 45}}, {{200, 125}, {100, 100, 110, 50}},
                               {{200, 150}, {100, 100, 110, 55}}, {{150, 150}, {100, 100, 100, 55}},
                               {{100, 150}, {110, 100, 90, 55}},  {{100, 125}, {110, 100, 90, 50}}};
    for (const auto& [handle, place] : cases) {
        Editor editor;
        editor.show();
        const int id = editor.add(boxAt(100, 100, 100, 50));
        editor.selectRow(1, 0);
        editor.press(handle);
        editor.drag(handle + QPoint(10, 5));
        editor.release(handle + QPoint(10, 5));
        QCOMPARE(placeOf(editor, id), place);
    }
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 100, 50));
    editor.selectRow(1, 0);
    editor.press({200, 150});
    editor.drag({300, 150}, Qt::ShiftModifier);
    QCOMPARE(placeOf(editor, id), Place4({100, 100, 200, 100}));
    editor.key(Qt::Key_Escape);
    QCOMPARE(placeOf(editor, id), Place4({100, 100, 100, 50}));
}

void EditingTest::lineEndsAreHeldOnTheScreen() {
    Editor editor;
    editor.show();
    const int id = editor.add(lineFrom(100, 100, 300, 200));
    editor.press({103, 98}); // the grab point is kept
    editor.drag({53, 48});
    QCOMPARE(placeOf(editor, id), Place4({50, 50, 300, 200}));
    editor.drag({-900, -900});
    QCOMPARE(placeOf(editor, id), Place4({0, 0, 300, 200}));
    editor.release({-900, -900});
    editor.press({300, 200});
    editor.drag({900, 900});
    editor.release({900, 900});
    QCOMPARE(placeOf(editor, id), Place4({0, 0, 640, 480}));
    editor.press({640, 480});
    editor.drag({600, 400});
    editor.key(Qt::Key_Escape);
    QCOMPARE(placeOf(editor, id), Place4({0, 0, 640, 480}));
}

void EditingTest::arrowKeysStep_data() {
    QTest::addColumn<Qt::KeyboardModifiers>("keys");
    QTest::addColumn<int>("step");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    QTest::newRow("plain") << none << 1;
    QTest::newRow("shift") << (none | Qt::ShiftModifier) << 9;
    QTest::newRow("ctrl") << (none | Qt::ControlModifier) << 17;
    QTest::newRow("shift ctrl") << (Qt::ShiftModifier | Qt::ControlModifier) << 25;
    QTest::newRow("alt") << (none | Qt::AltModifier) << 33;
}

void EditingTest::arrowKeysStep() {
    QFETCH(Qt::KeyboardModifiers, keys);
    QFETCH(int, step);
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.click({120, 120});
    const auto s = static_cast<float>(step);
    editor.key(Qt::Key_Left, keys);
    QCOMPARE(placeOf(editor, id), Place4({100 - s, 100, 50, 50}));
    editor.key(Qt::Key_Up, keys);
    QCOMPARE(placeOf(editor, id), Place4({100 - s, 100 - s, 50, 50}));
    editor.key(Qt::Key_Right, keys);
    editor.key(Qt::Key_Right, keys);
    editor.key(Qt::Key_Down, keys);
    editor.key(Qt::Key_Down, keys);
    QCOMPARE(placeOf(editor, id), Place4({100 + s, 100 + s, 50, 50}));
    QVERIFY(editor.pic()->hasFocus());
}

void EditingTest::arrowKeysWithoutASelection() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    editor.pic()->setFocus();
    const SkinDocument before = editor.document();
    editor.key(Qt::Key_Left);
    QVERIFY(editor.document() == before);
}

void EditingTest::deleteWorksWhereverTheFocusIs() {
    Editor editor;
    editor.show();
    for (const char* place : {"Pic", "txtL", "optBox", "cmdStop", "lst(1)", "optScreen(1)"}) {
        const int id = editor.add(boxAt(100, 100, 50, 50));
        editor.selectRow(1, 0);
        auto* widget = editor.find<QWidget>(place);
        widget->setFocus();
        QVERIFY2(widget->hasFocus(), place);
        QTest::keyClick(widget, Qt::Key_Delete);
        QCOMPARE(editor.document().rowCount(1), 0);
        QCOMPARE(editor.document().screenElementCount(1), 0);
        QCOMPARE(editor.document().lastElementId(), id);
        QCOMPARE(editor.document().element(id).elementControl.width, 50.0F);
        QVERIFY(!editor.optScreen(1)->font().bold());
        QVERIFY(!editor.find<QWidget>("fraSel")->isVisible());
    }
}

void EditingTest::deleteWithoutASelection() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    const SkinDocument before = editor.document();
    editor.key(Qt::Key_Delete);
    QVERIFY(editor.document() == before);
}

void EditingTest::pointerTellsWhatAPressDoes() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 100, 50));
    const auto shapeAt = [&](QPoint at) {
        QMouseEvent move(QEvent::MouseMove, at, editor.pic()->mapToGlobal(at), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(editor.pic(), &move);
        return editor.pic()->cursor().shape();
    };
    QCOMPARE(shapeAt({400, 400}), Qt::ArrowCursor);
    QCOMPARE(shapeAt({150, 120}), Qt::SizeAllCursor);
    editor.selectRow(1, 0);
    QCOMPARE(shapeAt({100, 100}), Qt::SizeFDiagCursor);
    QCOMPARE(shapeAt({200, 100}), Qt::SizeBDiagCursor);
    QCOMPARE(shapeAt({200, 125}), Qt::SizeHorCursor);
    QCOMPARE(shapeAt({150, 150}), Qt::SizeVerCursor);
    editor.chooseTool("optText");
    QCOMPARE(shapeAt({150, 120}), Qt::CrossCursor);
}

void EditingTest::pointerKeepsItsShapeDuringADrag() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 100, 50));
    editor.selectRow(1, 0);
    const auto shape = [&] {
        settle();
        return editor.pic()->cursor().shape();
    };
    const auto hover = [&](QPoint at) {
        QMouseEvent move(QEvent::MouseMove, at, editor.pic()->mapToGlobal(at), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(editor.pic(), &move);
    };
    hover({200, 150});
    QCOMPARE(shape(), Qt::SizeFDiagCursor);
    editor.press({200, 150});
    // The corner keeps the proportions, and so the pointer comes to the middle of the side.
    editor.drag({300, 150}, Qt::ShiftModifier);
    QCOMPARE(shape(), Qt::SizeFDiagCursor);
    editor.release({300, 150});
    hover({300, 150});
    QCOMPARE(shape(), Qt::SizeHorCursor);
}

void EditingTest::positionFieldsMoveTheElement() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 0);
    const auto type = [&](const char* field, const QString& text, Qt::Key end) {
        auto* edit = editor.find<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, end);
    };
    type("txtL", "12.5", Qt::Key_Return);
    type("txtT", "-7abc", Qt::Key_Tab);
    type("txtW", "nothing", Qt::Key_Return);
    type("txtH", "-5", Qt::Key_Return);
    QCOMPARE(placeOf(editor, id), Place4({12.5F, -7, 0, 0}));
    QCOMPARE(editor.find<QLineEdit>("txtT")->text(), QStringLiteral("-7"));
    QCOMPARE(editor.find<QLineEdit>("txtW")->text(), QStringLiteral("0"));
    QCOMPARE(editor.prompts.messages, QStringList());
    editor.document().setCurrentLayout(1);
    QVERIFY(!editor.find<QLineEdit>("txtL")->isEnabled());
}

void EditingTest::escapeTakesBackWhatWasTypedAsAPosition() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 90, 50, 50));
    editor.selectRow(1, 0);
    for (const auto& [name, text] : {std::pair("txtL", "100"), std::pair("txtT", "90")}) {
        auto* edit = editor.find<QLineEdit>(name);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("7"));
        QCOMPARE(edit->text(), QStringLiteral("7"));
        QTest::keyClick(edit, Qt::Key_Escape);
        QCOMPARE(edit->text(), QLatin1String(text));
        QCOMPARE(edit->selectedText(), QLatin1String(text));
        QTest::keyClick(edit, Qt::Key_Return);
    }
    QCOMPARE(placeOf(editor, id), Place4({100, 90, 50, 50}));
    QCOMPARE(editor.selectedRow(1), 0);
}

// As when the program is told to end: the window goes without being closed first.
void EditingTest::aTypedPositionGoesWithTheWindow() {
    Editor editor;
    editor.add(boxAt(10, 10, 50, 50));
    editor.show();
    editor.selectRow(1, 0);
    auto* field = editor.find<QLineEdit>("txtL");
    field->setFocus();
    QTest::keyClicks(field, "77");
    QVERIFY(field->hasFocus());
    QCOMPARE(editor.control(1).left, 10.0F); // not entered yet
}

void EditingTest::anotherButtonDuringADragIsIgnored() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.press({120, 120});
    editor.drag({130, 130});
    QTest::mousePress(editor.pic(), Qt::RightButton, {}, {130, 130});
    QVERIFY(!editor.find<QMenu>("mnuRight")->isVisible());
    QTest::mouseRelease(editor.pic(), Qt::RightButton, {}, {130, 130});
    editor.drag({140, 140});
    editor.release({140, 140});
    QCOMPARE(placeOf(editor, id), Place4({120, 120, 50, 50}));
}

void EditingTest::marksFollowTheSelection() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 40));
    editor.add(lineFrom(300, 50, 400, 60));
    auto* box = editor.find<QWidget>("fraSel");
    editor.selectRow(1, 0);
    QVERIFY(box->isVisible());
    QVERIFY(box->geometry().contains(QRect(100, 100, 50, 40)));
    editor.selectRow(1, 1);
    QVERIFY(!box->isVisible());
    QCOMPARE(editor.find<QWidget>("fraResize1")->geometry().center(), QPoint(300, 50));
    QCOMPARE(editor.find<QWidget>("fraResize2")->geometry().center(), QPoint(400, 60));
    editor.entry("mnuDeSel")->trigger();
    QVERIFY(!editor.find<QWidget>("fraResize1")->isVisible());
}

void EditingTest::aLockedLineHasNoMarks() {
    Editor editor;
    editor.show();
    editor.add(lineFrom(300, 50, 400, 60));
    editor.selectRow(1, 0);
    QVERIFY(editor.find<QWidget>("fraResize1")->isVisible());
    editor.entry("mnuLocked")->trigger();
    editor.selectRow(1, 0);
    QCOMPARE(editor.selectedRow(1), 0);
    for (const char* mark : {"fraSel", "fraResize1", "fraResize2"}) {
        QVERIFY2(!editor.find<QWidget>(mark)->isVisible(), mark);
    }
}

void EditingTest::rowsThatStayKeepTheirSelection() {
    Editor editor;
    editor.show();
    for (const float left : {0.0F, 100.0F, 200.0F, 300.0F}) {
        editor.add(boxAt(left, 10, 50, 50));
    }
    editor.selectRow(1, 2);
    editor.document().delItem(0);
    QCOMPARE(editor.selectedRow(1), 1);
    editor.document().delItem(2);
    QCOMPARE(editor.selectedRow(1), 1);
    editor.document().addElement(boxAt(400, 10, 50, 50));
    QCOMPARE(editor.selectedRow(1), 1);
    QCOMPARE(editor.lst(1)->currentIndex().data(Qt::UserRole).toInt(), 3);
}

TARVEL_UI_TEST(EditingTest)
#include "editing_test.moc"
