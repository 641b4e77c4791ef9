// The main window at every zoom: its entries and keys, panning, and work by hand that goes by skin
// pixels while marks and reaches go by those of the window.
#include "editing/hit_test.h"
#include "editing/zoom.h"
#include "support/behaviour_editor.h"
#include "support/menu_support.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "support/wheel_support.h"
#include "support/zoom_editor.h"
#include "surface/group_marks.h"
#include "surface/guide_marks.h"
#include "surface/pic.h"
#include "surface/surface_room.h"
#include "surface/surface_ruler.h"

#include <QLabel>
#include <QRubberBand>
#include <QScrollBar>
#include <QToolButton>

using namespace tarvel;
using namespace tarvel::test;

namespace {

const QList<int> zooms = {25, 33, 100, 200, 400, 1600};

} // namespace

class ZoomTest : public QObject {
    Q_OBJECT

  private slots:
    void startsAtAHundredInFit();
    void entriesStandInTheirGroups();
    void keysZoom();
    void theButtonShowsTheZoom();
    void choicesAreRemembered();
    void whatCannotBeReadFits_data();
    void whatCannotBeReadFits();
    void fitFollowsTheWindow();
    void wheelZoomsAtThePointer();
    void aDragMovesByWholePixels_data();
    void aDragMovesByWholePixels();
    void aDragKeepsPartsOfPixels();
    void handlesTakeAPressWhereTheyAreDrawn_data() { aDragMovesByWholePixels_data(); }
    void handlesTakeAPressWhereTheyAreDrawn();
    void lineEndsTakeAPressWhereTheyAreDrawn_data() { aDragMovesByWholePixels_data(); }
    void lineEndsTakeAPressWhereTheyAreDrawn();
    void marksFollowTheZoom();
    void groupFrameFollowsTheZoom();
    void snappingReachesSixPixelsOfTheWindow_data() { aDragMovesByWholePixels_data(); }
    void snappingReachesSixPixelsOfTheWindow();
    void aShakingPressDrawsNothing_data() { aDragMovesByWholePixels_data(); }
    void aShakingPressDrawsNothing();
    void arrowKeysMoveByPixelsOfTheSkin();
    void readoutTellsPixelsOfTheSkin();
    void rubberBandFollowsThePointer();
    void nothingZoomsDuringADrag();
    void middleButtonPans();
    void middleClickStillUnselects();
    void spacePans();
    void spaceNeedsTheFocus();
    void panningLeavesOtherWorkAlone();
    void escapeEndsThePan();
    void openPanelsCannotBePannedBehind();
    void rulersAndSafeAreaAreChosen();
};

void ZoomTest::startsAtAHundredInFit() {
    Editor editor;
    editor.show();
    auto* room = editor.find<SurfaceRoom>("surfaceRoom");
    QVERIFY(room->isFit());
    QCOMPARE(room->zoom(), 100);
    QCOMPARE(editor.pic()->size(), QSize(640, 480));
    QVERIFY(!room->horizontalScrollBar()->isVisible());
    const auto top = [&](const char* name) {
        return editor.find<QWidget>(name)->mapTo(&editor.window, QPoint(0, 0)).y();
    };
    QVERIFY(top("Pic") + 480 < top("lblPos"));
    QVERIFY(top("lblPos") < top("fraCreate") && top("fraCreate") < top("fraNote"));
}

void ZoomTest::entriesStandInTheirGroups() {
    Editor editor;
    QStringList names;
    for (const QAction* entry : editor.find<QMenu>("mnuOptions")->actions()) {
        names << (entry->isSeparator()       ? "-"
                  : entry->menu() != nullptr ? entry->menu()->objectName()
                                             : entry->objectName());
    }
    QCOMPARE(names, QStringList({"mnuCover", "mnuBorders", "-", "mnuSnapElements", "mnuSnapGrid",
                                 "mnuGrid", "-", "mnuZoom", "mnuRulers", "mnuSafeArea", "-",
                                 "mnuSystemStyle"}));
    QStringList captions;
    for (const QAction* entry : editor.find<QMenu>("mnuZoom")->actions()) {
        captions << entry->objectName() + "=" + entry->text().remove('&') + "=" +
                        entry->shortcut().toString();
    }
    QCOMPARE(captions, QStringList({"mnuZoomIn=Zoom In=Ctrl++", "mnuZoomOut=Zoom Out=Ctrl+-",
                                    "mnuZoomActual=100 %=Ctrl+0", "mnuZoomFit=Fit=Ctrl+9"}));
    QCOMPARE(editor.entry("mnuRulers")->text().remove('&'), "Rulers");
    QCOMPARE(editor.entry("mnuSafeArea")->text().remove('&'), "Safe Area");
    QVERIFY(!editor.entry("mnuRulers")->isChecked() && !editor.entry("mnuSafeArea")->isChecked());
}

void ZoomTest::keysZoom() {
    ZoomEditor editor;
    const auto zoomBy = [&](Qt::Key key) {
        editor.key(key, Qt::ControlModifier);
        settle();
        return editor.room().zoom();
    };
    QCOMPARE(zoomBy(Qt::Key_Plus), 150);
    QCOMPARE(zoomBy(Qt::Key_Equal), 200);
    QCOMPARE(zoomBy(Qt::Key_Minus), 150);
    QCOMPARE(zoomBy(Qt::Key_0), 100);
    QCOMPARE(zoomBy(Qt::Key_Minus), 75);
    QVERIFY(!editor.room().isFit());
    QCOMPARE(zoomBy(Qt::Key_9), 100);
    QVERIFY(editor.room().isFit());
    for (int press = 0; press < 20; ++press) {
        (void)zoomBy(Qt::Key_Minus);
    }
    QCOMPARE(editor.room().zoom(), 25);
    QVERIFY(!editor.entry("mnuZoomOut")->isEnabled());
    for (int press = 0; press < 20; ++press) {
        (void)zoomBy(Qt::Key_Plus);
    }
    QCOMPARE(editor.room().zoom(), 1600);
    QVERIFY(!editor.entry("mnuZoomIn")->isEnabled());
    QCOMPARE(editor.pic()->size(), QSize(10240, 7680));
}

void ZoomTest::theButtonShowsTheZoom() {
    ZoomEditor editor;
    auto* button = editor.find<QToolButton>("cmdZoom");
    QCOMPARE(button->text(), "100 %");
    QCOMPARE(button->menu(), editor.find<QMenu>("mnuZoom"));
    editor.zoomTo(300);
    QCOMPARE(button->text(), "300 %");
    QVERIFY(!editor.entry("mnuZoomFit")->isChecked());
    editor.entry("mnuZoomFit")->trigger();
    QVERIFY(editor.entry("mnuZoomFit")->isChecked());
    editor.entry("mnuZoomFit")->trigger();
    QVERIFY(editor.entry("mnuZoomFit")->isChecked());
    QCOMPARE(button->text(), "100 %");
}

void ZoomTest::choicesAreRemembered() {
    ZoomEditor editor(300);
    editor.entry("mnuRulers")->trigger();
    editor.entry("mnuSafeArea")->trigger();
    {
        FrmMain next(editor.prompts, hostPathOf(editor.folder.path()), editor.remembered);
        QCOMPARE(next.findChild<SurfaceRoom*>()->zoom(), 300);
        QVERIFY(!next.findChild<SurfaceRoom*>()->isFit());
        QVERIFY(next.findChild<QAction*>("mnuRulers")->isChecked());
        QVERIFY(next.findChild<QAction*>("mnuSafeArea")->isChecked());
        QVERIFY(!next.findChild<SurfaceRuler*>("rulerAcross")->isHidden());
    }
    editor.room().fit();
    FrmMain next(editor.prompts, hostPathOf(editor.folder.path()), editor.remembered);
    QVERIFY(next.findChild<SurfaceRoom*>()->isFit());
}

void ZoomTest::whatCannotBeReadFits_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "large", "7", "1601", "-100", "1e3"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void ZoomTest::whatCannotBeReadFits() {
    QFETCH(QString, text);
    QTemporaryDir folder;
    const QString file = folder.filePath("settings.ini");
    QSettings(file, QSettings::IniFormat).setValue("view/zoom", text);
    ScriptedPrompts prompts;
    Remembered remembered(file);
    const FrmMain window(prompts, hostPathOf(folder.path()), remembered);
    QVERIFY(window.findChild<SurfaceRoom*>()->isFit());
    QCOMPARE(window.findChild<SurfaceRoom*>()->zoom(), 100);
}

void ZoomTest::fitFollowsTheWindow() {
    Editor editor;
    editor.show();
    auto* room = editor.find<SurfaceRoom>("surfaceRoom");
    const QSize first = editor.window.size();
    editor.window.resize(first + QSize(640, 480));
    QTRY_COMPARE(room->zoom(), 200);
    QCOMPARE(editor.find<QToolButton>("cmdZoom")->text(), "200 %");
    editor.window.resize(first + QSize(40, 40)); // sharp rather than a little larger
    QTRY_COMPARE(room->zoom(), 100);
    editor.window.resize(first - QSize(160, 0));
    QTRY_VERIFY(room->zoom() < 100);
    QVERIFY(!room->horizontalScrollBar()->isVisible());
    editor.entry("mnuZoomActual")->trigger();
    QTRY_VERIFY(room->horizontalScrollBar()->isVisible());
}

void ZoomTest::wheelZoomsAtThePointer() {
    ZoomEditor editor;
    const QPoint at(200, 150);
    const QPointF before = editor.surface().mapping().toSkin(QPointF(editor.ofSurface(at)));
    turnWheel(*editor.room().viewport(), at, 3, Qt::ControlModifier);
    settle();
    QCOMPARE(editor.room().zoom(), 300);
    const QPointF after = editor.surface().mapping().toSkin(QPointF(editor.ofSurface(at)));
    QVERIFY((after - before).manhattanLength() * 3 < 1.5);
    // Without Ctrl it scrolls.
    const QPoint scrolled = editor.room().scrolled();
    turnWheel(*editor.room().viewport(), at, -1);
    QVERIFY(editor.room().scrolled().y() > scrolled.y());
    QCOMPARE(editor.room().zoom(), 300);
}

void ZoomTest::aDragMovesByWholePixels_data() {
    QTest::addColumn<int>("zoom");
    for (const int zoom : zooms) {
        QTest::addRow("%d", zoom) << zoom;
    }
}

void ZoomTest::aDragMovesByWholePixels() {
    QFETCH(int, zoom);
    ZoomEditor editor(zoom);
    for (const QPoint way : {QPoint(13, 7), QPoint(-5, 33), QPoint(1, 1)}) {
        const ElementControl before = editor.control(2);
        const QPoint from = editor.at({350.5, 225.5});
        editor.pressDragRelease(from, from + way);
        const ElementControl& after = editor.control(2);
        QCOMPARE(after.left, std::round(after.left));
        QCOMPARE(after.top, std::round(after.top));
        const auto whole = [&](QPoint at) { return editor.surface().mapping().pixelAt(at); };
        QCOMPARE(after.left - before.left, whole(from + way).x - whole(from).x);
        QCOMPARE(after.top - before.top, whole(from + way).y - whole(from).y);
        editor.entry("mnuUndo")->trigger();
        QCOMPARE(editor.control(2), before);
    }
}

void ZoomTest::aDragKeepsPartsOfPixels() {
    for (const int zoom : zooms) {
        ZoomEditor editor(zoom);
        const int id = editor.add(boxAt(200.5F, 300.25F, 40, 40));
        editor.dragSkin({220, 320}, QPoint(40 * zoom / 100, 8));
        const ElementControl& box = editor.control(id);
        QCOMPARE(box.left - std::floor(box.left), 0.5F);
        QCOMPARE(box.top - std::floor(box.top), 0.25F);
        QVERIFY(box.left > 200.5F);
    }
}

void ZoomTest::handlesTakeAPressWhereTheyAreDrawn() {
    QFETCH(int, zoom);
    ZoomEditor editor(zoom);
    editor.selectRow(1, 1);
    const QRect box = editor.mark("fraSel")->geometry();
    // The mark of a side or corner lies three pixels within the frame's widget.
    const QPoint corner = box.bottomRight() - QPoint(3, 3);
    editor.hover(corner);
    QCOMPARE(editor.cursor(), Qt::SizeFDiagCursor);
    editor.hover(corner + QPoint(3, 3));
    QCOMPARE(editor.cursor(), Qt::SizeFDiagCursor);
    editor.hover(corner + QPoint(9, 9));
    QCOMPARE(editor.cursor(), Qt::ArrowCursor);
    const int step = std::max(1, zoom / 100) * 8;
    editor.pressDragRelease(corner, corner + QPoint(step, step));
    const ElementControl& sized = editor.control(2);
    QCOMPARE(sized.left, 300.0F);
    QVERIFY(sized.width > 100);
    QCOMPARE(sized.width, std::round(sized.width));
    QCOMPARE(editor.mark("fraSel")->geometry().topLeft(), box.topLeft());
}

void ZoomTest::lineEndsTakeAPressWhereTheyAreDrawn() {
    QFETCH(int, zoom);
    ZoomEditor editor(zoom);
    const int line = editor.add(lineFrom(100, 300, 260, 400));
    editor.selectRow(1, 2);
    const QRect mark = editor.mark("fraResize2")->geometry();
    QCOMPARE(mark.size(), QSize(9, 9));
    const QPointF middle = editor.surface().mapping().toWidget(QPointF(260.5, 400.5));
    QVERIFY((QPointF(mark.center()) + QPointF(0.5, 0.5) - middle).manhattanLength() <= 1.1);
    for (const QPoint at : {mark.topLeft(), mark.bottomRight(), mark.center()}) {
        const int step = std::max(4, zoom / 50);
        editor.pressDragRelease(at, at + QPoint(step, 0));
        QVERIFY(editor.control(line).X2 > 260);
        QCOMPARE(editor.control(line).X2, std::round(editor.control(line).X2));
        QCOMPARE(editor.control(line).X1, 100.0F);
        editor.entry("mnuUndo")->trigger();
        editor.selectRow(1, 2);
    }
    editor.hover(mark.center() + QPoint(9, 0));
    QCOMPARE(editor.cursor(), Qt::ArrowCursor);
}

void ZoomTest::marksFollowTheZoom() {
    ZoomEditor editor;
    editor.selectRow(1, 1);
    for (const int zoom : zooms) {
        editor.zoomTo(zoom);
        const QRect box =
            editor.surface().mapping().toWidget(QRectF(300, 200, 100, 50)).toAlignedRect();
        QCOMPARE(editor.mark("fraSel")->geometry(), box.adjusted(-3, -3, 3, 3));
        QVERIFY(editor.mark("fraSel")->isVisible());
    }
}

void ZoomTest::groupFrameFollowsTheZoom() {
    ZoomEditor editor;
    editor.entry("mnuSelectAll")->trigger();
    for (const int zoom : zooms) {
        editor.zoomTo(zoom);
        auto* group = editor.find<GroupMarks>("groupMarks");
        QVERIFY(group->isVisible());
        QCOMPARE(group->size(), editor.pic()->size());
        editor.hover(editor.at({400, 250})); // the frame's corner
        QCOMPARE(editor.cursor(), Qt::SizeFDiagCursor);
        editor.hover(editor.at({400, 250}) + QPoint(6, 6));
        QVERIFY(editor.cursor() != Qt::SizeFDiagCursor);
    }
}

void ZoomTest::snappingReachesSixPixelsOfTheWindow() {
    QFETCH(int, zoom);
    ZoomEditor editor;
    editor.entry("mnuSnapElements")->trigger();
    editor.document().editElement(2, [](Element& element) { element.elementControl.left = 220; });
    editor.zoomTo(zoom);
    const double unit = 100.0 / zoom; // skin pixels
    const auto dragTo = [&](double left) {
        const QPoint from = editor.at({270, 225});
        const QPoint to = editor.at({270 + left - 220, 325});
        editor.press(from);
        editor.drag(to);
        const bool met =
            editor.find<GuideMarks>("guideMarks")->isVisible() && editor.control(2).left == 20.0F;
        editor.key(Qt::Key_Escape);
        editor.release(to);
        return met;
    };
    if (zoom <= 400) { // farther in, a skin pixel is more than six of the window
        QVERIFY(dragTo(20 + std::max(1.0, std::floor(4 * unit))));
    }
    QVERIFY(!dragTo(20 + std::ceil(10 * unit)));
}

void ZoomTest::aShakingPressDrawsNothing() {
    QFETCH(int, zoom);
    ZoomEditor editor(zoom);
    int id = 2;
    for (const QPoint way : {QPoint(0, 0), QPoint(3, 0), QPoint(-3, 3)}) {
        editor.chooseTool("optBox");
        const QPoint from = editor.at({200, 300});
        editor.pressDragRelease(from, from + way);
        ++id;
        QCOMPARE(editor.control(id).width, 120.0F); // the default size
        QCOMPARE(editor.control(id).height, 80.0F);
        QCOMPARE(editor.control(id).left, editor.surface().mapping().pixelAt(from).x);
    }
    editor.chooseTool("optBox");
    const QPoint from = editor.at({200, 300});
    const int drawn = std::max(4, zoom / 50);
    editor.pressDragRelease(from, from + QPoint(drawn, drawn));
    QVERIFY(editor.control(++id).width < 20);
}

void ZoomTest::arrowKeysMoveByPixelsOfTheSkin() {
    ZoomEditor editor(400);
    editor.selectRow(1, 1);
    editor.key(Qt::Key_Right);
    QCOMPARE(editor.control(2).left, 301.0F);
    editor.key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(editor.control(2).top, 209.0F);
}

void ZoomTest::readoutTellsPixelsOfTheSkin() {
    ZoomEditor editor(400);
    editor.hover(QPoint(403, 810));
    QCOMPARE(editor.text(), "X: 100    Y: 202");
    editor.hover(QPoint(404, 810));
    QCOMPARE(editor.text(), "X: 101    Y: 202");
    editor.zoomTo(25);
    editor.hover(QPoint(40, 30));
    QCOMPARE(editor.text(), "X: 160    Y: 120");
}

void ZoomTest::rubberBandFollowsThePointer() {
    for (const int zoom : zooms) {
        ZoomEditor editor(zoom);
        const QPoint from = editor.at({280, 180});
        const QPoint to = editor.at({310, 210});
        editor.press(from);
        editor.drag(to);
        auto* band = editor.find<QRubberBand>("selectBand");
        QVERIFY(band->isVisible());
        const int pixel = std::max(1, zoom / 100);
        const QPoint away = band->geometry().bottomRight() - to;
        QVERIFY(std::abs(away.x()) <= pixel && std::abs(away.y()) <= pixel);
        QCOMPARE(editor.window.curNum(), 2);
        editor.release(to);
    }
}

void ZoomTest::nothingZoomsDuringADrag() {
    ZoomEditor editor(200);
    const QPoint from = editor.at({350, 225});
    editor.press(from);
    editor.drag(from + QPoint(20, 20));
    editor.key(Qt::Key_Plus, Qt::ControlModifier);
    turnWheel(*editor.room().viewport(), editor.middle(), 1, Qt::ControlModifier);
    editor.entry("mnuZoomFit")->trigger();
    QCOMPARE(editor.room().zoom(), 200);
    QVERIFY(!editor.entry("mnuZoomFit")->isChecked());
    editor.release(from + QPoint(20, 20));
    QCOMPARE(editor.control(2).left, 310.0F);
    editor.key(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(editor.room().zoom(), 300);
}

void ZoomTest::middleButtonPans() {
    ZoomEditor editor(400);
    editor.selectRow(1, 1);
    const SkinDocument before = editor.document();
    const QPoint scrolled = editor.room().scrolled();
    editor.pan(Qt::MiddleButton, {-100, 60});
    QCOMPARE(editor.room().scrolled(), scrolled + QPoint(100, -60));
    QVERIFY(editor.document() == before);
    QCOMPARE(editor.window.curNum(), 2); // stays selected
    editor.button(QEvent::MouseButtonPress, Qt::MiddleButton, editor.middle());
    QCOMPARE(editor.cursor(), Qt::ClosedHandCursor);
    editor.button(QEvent::MouseButtonRelease, Qt::MiddleButton, editor.middle());
    QVERIFY(editor.cursor() != Qt::ClosedHandCursor);
}

void ZoomTest::middleClickStillUnselects() {
    ZoomEditor editor(400);
    editor.selectRow(1, 1);
    editor.button(QEvent::MouseButtonPress, Qt::MiddleButton, editor.middle());
    editor.button(QEvent::MouseButtonRelease, Qt::MiddleButton, editor.middle());
    QCOMPARE(editor.window.curNum(), 0);
}

void ZoomTest::spacePans() {
    ZoomEditor editor(400);
    editor.pic()->setFocus();
    editor.chooseTool("optBox");
    editor.pic()->setFocus();
    const SkinDocument before = editor.document();
    const QPoint scrolled = editor.room().scrolled();
    editor.space(QEvent::KeyPress);
    QCOMPARE(editor.cursor(), Qt::OpenHandCursor);
    editor.pan(Qt::LeftButton, {-100, 60});
    QCOMPARE(editor.room().scrolled(), scrolled + QPoint(100, -60));
    QVERIFY(editor.document() == before);
    QCOMPARE(editor.cursor(), Qt::OpenHandCursor);
    editor.space(QEvent::KeyRelease);
    QCOMPARE(editor.cursor(), Qt::CrossCursor);
    // The tool is still there, and draws.
    const QPoint from = editor.ofSurface(editor.middle());
    editor.pressDragRelease(from, from + QPoint(80, 80));
    QCOMPARE(editor.document().rowCount(1), before.rowCount(1) + 1);
}

void ZoomTest::spaceNeedsTheFocus() {
    ZoomEditor editor(400);
    editor.pic()->setFocus();
    editor.space(QEvent::KeyPress);
    QCOMPARE(editor.cursor(), Qt::OpenHandCursor);
    editor.find<QWidget>("optBox")->setFocus(); // the key is let go there
    QVERIFY(editor.cursor() != Qt::OpenHandCursor);
    const QPoint scrolled = editor.room().scrolled();
    editor.pan(Qt::LeftButton, {-100, 60});
    QCOMPARE(editor.room().scrolled(), scrolled);
}

void ZoomTest::panningLeavesOtherWorkAlone() {
    ZoomEditor editor(400);
    editor.room().scrollTo({1100, 700});
    const QPoint from = editor.at({350, 225});
    const QPoint scrolled = editor.room().scrolled();
    const auto disturb = [&] {
        editor.space(QEvent::KeyPress);
        editor.button(QEvent::MouseButtonPress, Qt::MiddleButton, {50, 50});
        editor.button(QEvent::MouseButtonRelease, Qt::MiddleButton, {50, 50});
        editor.space(QEvent::KeyRelease);
    };
    editor.press(from); // a drag
    editor.drag(from + QPoint(40, 40));
    disturb();
    editor.drag(from + QPoint(80, 40));
    editor.release(from + QPoint(80, 40));
    QCOMPARE(editor.control(2).left, 320.0F);
    QCOMPARE(editor.control(2).top, 210.0F);
    const QPoint empty = editor.at({290, 190}); // a rubber band
    editor.press(empty);
    editor.drag(empty + QPoint(300, 300));
    disturb();
    QVERIFY(editor.find<QRubberBand>("selectBand")->isVisible());
    editor.release(empty + QPoint(300, 300));
    QCOMPARE(editor.window.curNum(), 2);
    editor.chooseTool("optBox"); // a drawing
    editor.press(empty);
    editor.drag(empty + QPoint(40, 40));
    disturb();
    editor.drag(empty + QPoint(80, 80));
    editor.release(empty + QPoint(80, 80));
    QCOMPARE(editor.control(3).width, 20.0F);
    QCOMPARE(editor.room().scrolled(), scrolled);
}

void ZoomTest::escapeEndsThePan() {
    ZoomEditor editor(400);
    editor.chooseTool("optBox");
    editor.pic()->setFocus();
    const QPoint scrolled = editor.room().scrolled();
    editor.button(QEvent::MouseButtonPress, Qt::MiddleButton, editor.middle());
    editor.button(QEvent::MouseMove, Qt::MiddleButton, editor.middle() + QPoint(50, 50));
    QVERIFY(editor.room().scrolled() != scrolled);
    editor.key(Qt::Key_Escape);
    QCOMPARE(editor.room().scrolled(), scrolled);
    QCOMPARE(editor.cursor(), Qt::CrossCursor); // the tool is for the next Escape
    editor.button(QEvent::MouseMove, Qt::MiddleButton, editor.middle() + QPoint(80, 80));
    QCOMPARE(editor.room().scrolled(), scrolled);
    editor.button(QEvent::MouseButtonRelease, Qt::MiddleButton, editor.middle());
    QCOMPARE(editor.cursor(), Qt::CrossCursor);
}

void ZoomTest::openPanelsCannotBePannedBehind() {
    ZoomEditor editor(400);
    editor.selectRow(1, 1);
    editor.pic()->setFocus();
    editor.space(QEvent::KeyPress);
    QVERIFY(editor.openPanel(1));
    const QPoint scrolled = editor.room().scrolled();
    const int before = editor.room().zoom();
    editor.pan(Qt::MiddleButton, {-100, 60});
    editor.pan(Qt::LeftButton, {-100, 60});
    editor.keyInFocus(Qt::Key_Plus, Qt::ControlModifier);
    turnWheel(*editor.room().viewport(), editor.middle(), 1, Qt::ControlModifier);
    QCOMPARE(editor.room().scrolled(), scrolled);
    QCOMPARE(editor.room().zoom(), before);
    QVERIFY(editor.cursor() != Qt::OpenHandCursor);
    editor.ok(1);
    QCOMPARE(editor.window.curNum(), 2);
    editor.pan(Qt::LeftButton, {-100, 60}); // Space is not held any more
    QCOMPARE(editor.room().scrolled(), scrolled);
}

void ZoomTest::rulersAndSafeAreaAreChosen() {
    ZoomEditor editor;
    auto* ruler = editor.find<SurfaceRuler>("rulerAcross");
    editor.entry("mnuRulers")->trigger();
    settle();
    QVERIFY(ruler->isVisible());
    editor.hover(QPoint(40, 30));
    QCOMPARE(ruler->pointer(), std::optional(40 / editor.scale()));
    editor.zoomTo(100);
    const auto edge = [&] {
        return editor.pic()->grab(QRect(64, 300, 1, 1)).toImage().pixelColor(0, 0);
    };
    const QColor without = edge();
    editor.entry("mnuSafeArea")->trigger();
    QVERIFY(edge() != without);
    editor.entry("mnuSafeArea")->trigger();
    QCOMPARE(edge(), without);
}

TARVEL_UI_TEST(ZoomTest)

#include "zoom_test.moc"
