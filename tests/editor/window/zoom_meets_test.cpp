// The zoom together with what else goes on: selecting elsewhere, open panels, steps back, the
// column, scrolling and the style.
#include "support/behaviour_editor.h"
#include "support/menu_support.h"
#include "support/ui_test.h"
#include "support/zoom_editor.h"
#include "surface/surface_room.h"
#include "widgets/style/palettes.h"
#include "window/window_columns.h"

#include <QScrollBar>
#include <QSplitterHandle>
#include <QWheelEvent>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// Whether something of an element is in the room.
bool isInSight(ZoomEditor& editor, int id) {
    const ElementControl& place = editor.control(id);
    const double scale = editor.room().zoom() / 100.0;
    const QRectF bounds(place.left * scale, place.top * scale, place.width * scale,
                        place.height * scale);
    return bounds.intersects(editor.pic()->visibleRegion().boundingRect());
}

} // namespace

class ZoomMeetsTest : public QObject {
    Q_OBJECT

  private slots:
    void whatIsSelectedElsewhereComesIntoSight();
    void theZoomStaysWithAnOpenPanel();
    void stepsBackAreShownAtAZoom();
    void fitFollowsTheColumn();
    void aBandGoesOnWhileTheSurfaceScrolls();
    void theStyleMayChangeAtAZoomWithAnOpenPanel();
    void theShadeMayChangeDuringADrag();
    void whatIsBehindADialogStaysAsItIs();
};

void ZoomMeetsTest::whatIsSelectedElsewhereComesIntoSight() {
    ZoomEditor editor(800);
    const int far = editor.add(boxAt(600, 440, 30, 30));
    const int last = editor.document().rowCount(1) - 1;
    editor.room().scrollTo({0, 0});
    QVERIFY(!isInSight(editor, far));
    editor.selectRow(1, last); // in the list
    QVERIFY(isInSight(editor, far));
    editor.room().scrollTo({0, 0});
    editor.key(Qt::Key_Escape);
    QVERIFY(!isInSight(editor, far)); // nothing is selected
    editor.pic()->setFocus();
    editor.key(Qt::Key_Backtab, Qt::ShiftModifier); // the last one
    QCOMPARE(editor.window.curNum(), far);
    QVERIFY(isInSight(editor, far));
    const QPoint before = editor.room().scrolled() - QPoint(10, 10);
    editor.room().scrollTo(before);
    QTest::mouseClick(editor.pic(), Qt::LeftButton, {}, QPoint(610, 450) * 8);
    QCOMPARE(editor.window.curNum(), far);
    QCOMPARE(editor.room().scrolled(), before); // it was in sight
}

void ZoomMeetsTest::theZoomStaysWithAnOpenPanel() {
    ZoomEditor editor(200);
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(1));
    QTest::keyClick(editor.window.focusWidget(), Qt::Key_Plus, Qt::ControlModifier);
    settle();
    QCOMPARE(editor.room().zoom(), 200);
    QVERIFY(editor.panel(1).isVisible());
    const QRect place = editor.panel(1).geometry();
    editor.ok(1);
    settle();
    QCOMPARE(editor.room().zoom(), 200);
    QCOMPARE(editor.panel(1).geometry(), place);
    QCOMPARE(editor.window.curNum(), 1);
    QTest::keyClick(editor.pic(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(editor.room().zoom(), 100);
}

void ZoomMeetsTest::stepsBackAreShownAtAZoom() {
    ZoomEditor editor(800);
    const int far = editor.add(boxAt(600, 440, 30, 30));
    editor.selectRow(1, editor.document().rowCount(1) - 1);
    editor.pic()->setFocus();
    editor.key(Qt::Key_Left);
    const float moved = editor.control(far).left;
    QVERIFY(moved < 600);
    editor.selectRow(1, -1);
    editor.lst(1)->clearSelection();
    editor.room().scrollTo({0, 0});
    QVERIFY(!isInSight(editor, far));
    editor.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.control(far).left, 600.F);
    QCOMPARE(editor.room().zoom(), 800);
    QCOMPARE(editor.window.curNum(), far);
    QVERIFY(isInSight(editor, far));
}

void ZoomMeetsTest::fitFollowsTheColumn() {
    ZoomEditor editor;
    editor.window.resize(1300, 900);
    editor.key(Qt::Key_9, Qt::ControlModifier);
    settle();
    const int before = editor.room().zoom();
    auto* columns = editor.window.findChild<WindowColumns*>();
    QWidget* handle = columns->handle(1);
    const QPoint at = handle->rect().center();
    QTest::mousePress(handle, Qt::LeftButton, {}, at);
    for (int step = 1; step <= 5; ++step) {
        const QPoint to = at - QPoint(20, 0); // the handle goes along
        QMouseEvent move(QEvent::MouseMove, to, handle->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(handle, &move);
        settle();
        QVERIFY(editor.room().isFit());
        QVERIFY(!editor.room().horizontalScrollBar()->isVisible());
        QVERIFY(editor.pic()->width() <= editor.room().viewport()->width());
    }
    QVERIFY2(editor.room().zoom() < before, qPrintable(QString::number(editor.room().zoom())));
    editor.key(Qt::Key_9, Qt::ControlModifier); // once more, with the handle held
    QTest::mouseRelease(handle, Qt::LeftButton, {}, at);
    settle();
    QVERIFY(editor.room().isFit());
    QVERIFY(editor.pic()->width() <= editor.room().viewport()->width());
}

void ZoomMeetsTest::aBandGoesOnWhileTheSurfaceScrolls() {
    ZoomEditor editor(400);
    editor.room().scrollTo({800, 600});
    settle();
    const QPoint from = QPoint(290, 190) * 4;
    const QPoint to = QPoint(330, 220) * 4;
    editor.press(from);
    editor.drag((from + to) / 2);
    QWheelEvent turn(QPointF(5, 5), editor.room().mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                     Qt::LeftButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(editor.room().viewport(), &turn);
    editor.drag(to);
    editor.release(to);
    QCOMPARE(editor.window.curNum(), 2); // the box at 300, 200
}

void ZoomMeetsTest::theStyleMayChangeAtAZoomWithAnOpenPanel() {
    ZoomEditor editor(200);
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(0));
    QAction* entry = editor.entry("mnuSystemStyle");
    for (const bool system : {true, false}) {
        entry->setChecked(system);
        settle();
        QVERIFY(editor.panel(0).isVisible());
        QVERIFY(editor.window.rect().contains(editor.inWindow(editor.panel(0))));
        QCOMPARE(editor.room().zoom(), 200);
    }
    editor.ok(0);
    QVERIFY(!editor.panel(0).isVisible());
}

void ZoomMeetsTest::theShadeMayChangeDuringADrag() {
    ZoomEditor editor(200);
    const QPalette before = QApplication::palette();
    const QPoint from = QPoint(350, 225) * 2;
    editor.room().scrollTo({300, 200});
    editor.press(from);
    editor.drag(from + QPoint(20, 0));
    for (const Shade shade : {Shade::dark, Shade::light}) {
        QApplication::setPalette(paletteOf(shade));
        settle();
        const QImage image = editor.window.grab().toImage();
        QCOMPARE(image.pixelColor(image.width() - 3, image.height() / 2),
                 paletteOf(shade).color(QPalette::Window));
    }
    QApplication::setPalette(before);
    editor.drag(from + QPoint(40, 20));
    editor.release(from + QPoint(40, 20));
    QCOMPARE(editor.control(2).left, 320.F);
    QCOMPARE(editor.control(2).top, 210.F);
}

void ZoomMeetsTest::whatIsBehindADialogStaysAsItIs() {
    ZoomEditor editor(400);
    editor.room().scrollTo({300, 200});
    const QPoint scrolled = editor.room().scrolled();
    bool isOpen = false;
    QVERIFY(inDialog(editor, "mnuDelays", "frmDelays", [&](QWidget& dialog) {
        isOpen = dialog.isVisible();
        QWindow* behind = editor.window.windowHandle();
        const QPoint at = editor.inWindow(*editor.room().viewport()).center();
        QTest::mousePress(behind, Qt::MiddleButton, {}, at);
        QTest::mouseMove(behind, at + QPoint(40, 40));
        QTest::mouseRelease(behind, Qt::MiddleButton, {}, at + QPoint(40, 40));
        QTest::keyClick(behind, Qt::Key_Plus, Qt::ControlModifier);
    }));
    QVERIFY(isOpen);
    QCOMPARE(editor.room().scrolled(), scrolled);
    QCOMPARE(editor.room().zoom(), 400);
}

TARVEL_UI_TEST(ZoomMeetsTest)
#include "zoom_meets_test.moc"
