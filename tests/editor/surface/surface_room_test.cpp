// The room of the surface: fitting, zooming at a point, scrolling, rulers; and what the surface
// paints at a zoom.
#include "editing/snapping.h"
#include "editing/zoom.h"
#include "support/settle.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "support/wheel_support.h"
#include "surface/locked_ground.h"
#include "surface/pic.h"
#include "surface/picture_cache.h"
#include "surface/surface_room.h"
#include "surface/surface_ruler.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace tarvel;
using namespace tarvel::test;

namespace {

class PaintedRegion : public QObject {
  public:
    explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }

    QRegion painted;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
};

// A room of a size that shows a document.
struct Room {
    explicit Room(QSize size = {900, 700}) {
        pic.setDocument(&document);
        room.resize(size);
        room.show();
        (void)QTest::qWaitForWindowExposed(&room);
        settle();
    }

    // The point of the skin below a point of the room.
    [[nodiscard]] QPointF skinAt(QPoint at) const {
        return pic.mapping().toSkin(QPointF(pic.mapFrom(room.viewport(), at)));
    }
    // The wheel turned at a point of the room, by steps.
    void wheel(QPoint at, int steps, Qt::KeyboardModifiers keys = Qt::ControlModifier) {
        turnWheel(*room.viewport(), at, steps, keys);
        settle();
    }
    [[nodiscard]] QPoint placeOfScreen() const { return pic.mapTo(room.viewport(), QPoint(0, 0)); }
    [[nodiscard]] QSize viewport() const { return room.viewport()->size(); }
    [[nodiscard]] QImage look() {
        return pic.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    template <class Change> QRegion paintedBy(Change&& change) {
        PaintedRegion watcher(pic);
        change();
        settle();
        return watcher.painted;
    }

    SkinDocument document;
    PictureCache pictures;
    Pic& pic{*new Pic(pictures)}; // NOLINT: the room owns it
    SurfaceRoom room{pic};
};

constexpr double nearly = 0.75; // pixels of the window: places are whole ones

// The largest difference of a colour's part between two pictures of one size.
int difference(const QImage& a, const QImage& b) {
    int most = a.size() == b.size() ? 0 : 255;
    for (int y = 0; y < a.height() && most < 255; ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb first = a.pixel(x, y);
            const QRgb second = b.pixel(x, y);
            most = std::max({most, std::abs(qRed(first) - qRed(second)),
                             std::abs(qGreen(first) - qGreen(second)),
                             std::abs(qBlue(first) - qBlue(second))});
        }
    }
    return most;
}

// The smoothing of a slanted line depends a little on where it is cut off.
constexpr int unseen = 5;

} // namespace

class SurfaceRoomTest : public QObject {
    Q_OBJECT

  private slots:
    void fitsTheRoom_data();
    void fitsTheRoom();
    void asksForTheScreenAtItsOwnSize();
    void fitFollowsTheSize();
    void theScreenStandsInTheMiddle();
    void theFrameIsAroundTheScreen();
    void wheelKeepsThePointBelowThePointer_data();
    void wheelKeepsThePointBelowThePointer();
    void manyStepsLeadBack();
    void aFineWheelAddsUp();
    void scrollingGivesBackWhatAZoomTookBeyondTheEnd();
    void wheelScrolls();
    void nothingZoomsWhileBusy();
    void repaintsOnlyWhatChanges_data();
    void repaintsOnlyWhatChanges();
    void partsLookAsTheWhole_data() { repaintsOnlyWhatChanges_data(); }
    void partsLookAsTheWhole();
    void flatGroundLooksAsItsElements_data();
    void flatGroundLooksAsItsElements();
    void lockedElementsAreFlatInBoundedMemory();
    void picturesAreCrispFromTwoHundredOn();
    void enlargedPicturesTakeNoMemory();
    void thePixelGridShowsFromFourHundredOn();
    void theSafeAreaShows();
    void rulersFollow();
    void rulersMarkThePointer();
    void groundIsDarkerThanTheWindow();
};

void SurfaceRoomTest::fitsTheRoom_data() {
    QTest::addColumn<QSize>("room");
    QTest::addColumn<int>("zoom");
    // 6 pixels are for the frame and what is free around it.
    QTest::newRow("exactly") << QSize(646, 486) << 100;
    QTest::newRow("a little larger") << QSize(700, 520) << 100;
    QTest::newRow("smaller") << QSize(486, 700) << 75;
    QTest::newRow("large") << QSize(1300, 1000) << 202;
    QTest::newRow("wide") << QSize(3000, 486) << 100;
    QTest::newRow("tiny") << QSize(200, 150) << 30;
}

void SurfaceRoomTest::fitsTheRoom() {
    QFETCH(QSize, room);
    QFETCH(int, zoom);
    Room shown(room);
    QVERIFY(shown.room.isFit());
    QCOMPARE(shown.room.zoom(), zoom);
    QCOMPARE(shown.pic.size(), (QSizeF(640, 480) * zoom / 100).toSize());
    QCOMPARE(shown.pic.mapping().scale(), zoom / 100.0);
    QVERIFY(!shown.room.horizontalScrollBar()->isVisible());
    QVERIFY(!shown.room.verticalScrollBar()->isVisible());
}

void SurfaceRoomTest::asksForTheScreenAtItsOwnSize() {
    Room shown;
    QCOMPARE(fittingZoom(shown.room.sizeHint().width() - 6, shown.room.sizeHint().height() - 6),
             100);
    QVERIFY(shown.room.sizeHint().width() <= 652 && shown.room.sizeHint().height() <= 492);
    shown.room.zoomTo(400);
    QVERIFY(shown.room.sizeHint().width() <= 652); // whatever is shown now
    const QSize plain = shown.room.sizeHint();
    shown.room.showRulers(true);
    shown.room.resize(shown.room.sizeHint());
    shown.room.fit();
    QCOMPARE(shown.room.zoom(), 100);
    QVERIFY(shown.room.sizeHint().width() > plain.width());
}

void SurfaceRoomTest::fitFollowsTheSize() {
    Room shown({646, 486});
    QSignalSpy changed(&shown.room, &SurfaceRoom::zoomChanged);
    shown.room.resize(1286, 966);
    QTRY_COMPARE(shown.room.zoom(), 200);
    QCOMPARE(changed.size(), 1);
    shown.room.zoomTo(100);
    QVERIFY(!shown.room.isFit());
    shown.room.resize(646, 486);
    settle();
    QCOMPARE(shown.room.zoom(), 100);
    shown.room.fit();
    shown.room.resize(326, 246);
    QTRY_COMPARE(shown.room.zoom(), 50);
}

void SurfaceRoomTest::theScreenStandsInTheMiddle() {
    Room shown({900, 700});
    shown.room.zoomTo(50);
    settle();
    const QPoint middle = shown.placeOfScreen() + shown.pic.rect().center();
    QVERIFY((middle - shown.room.viewport()->rect().center()).manhattanLength() <= 2);
}

void SurfaceRoomTest::theFrameIsAroundTheScreen() {
    for (const int zoom : {100, 25, 400}) {
        Room shown;
        shown.room.zoomTo(zoom);
        settle();
        const QWidget* frame = shown.pic.parentWidget();
        QCOMPARE(frame->size(), shown.pic.size() + QSize(2, 2));
        QCOMPARE(shown.pic.pos(), QPoint(1, 1));
    }
}

void SurfaceRoomTest::wheelKeepsThePointBelowThePointer_data() {
    QTest::addColumn<QPoint>("at");
    QTest::newRow("middle") << QPoint(450, 350);
    QTest::newRow("left") << QPoint(140, 300);
    QTest::newRow("top right") << QPoint(760, 120);
    QTest::newRow("bottom") << QPoint(500, 580);
    QTest::newRow("beside the screen") << QPoint(20, 20);
}

void SurfaceRoomTest::wheelKeepsThePointBelowThePointer() {
    QFETCH(QPoint, at);
    Room shown;
    shown.room.zoomTo(200);
    settle();
    for (const int steps : {1, 1, 1, -1, 1, 1, 1, 1, -1, -1, -1, -1, -1}) {
        const QPointF before = shown.skinAt(at);
        shown.wheel(at, steps);
        const QPointF moved = (shown.skinAt(at) - before) * shown.pic.mapping().scale();
        QVERIFY2(qAbs(moved.x()) <= 2 * nearly && qAbs(moved.y()) <= 2 * nearly,
                 qPrintable(QStringLiteral("%1 %: %2, %3")
                                .arg(shown.room.zoom())
                                .arg(moved.x())
                                .arg(moved.y())));
    }
}

void SurfaceRoomTest::manyStepsLeadBack() {
    Room shown;
    const QPoint at(300, 300);
    const QPointF before = shown.skinAt(at);
    shown.wheel(at, 20);
    QCOMPARE(shown.room.zoom(), 1600);
    const QPointF moved = (shown.skinAt(at) - before) * shown.pic.mapping().scale();
    QVERIFY(qAbs(moved.x()) <= nearly && qAbs(moved.y()) <= nearly);
    shown.wheel(at, -20);
    QCOMPARE(shown.room.zoom(), 25);
    shown.wheel(at, 20);
    QVERIFY(qAbs((shown.skinAt(at) - before).x()) * 16 <= nearly);
}

void SurfaceRoomTest::aFineWheelAddsUp() {
    Room shown;
    shown.room.zoomTo(100);
    const QPoint global = shown.room.viewport()->mapToGlobal(QPoint(300, 300));
    const auto turn = [&](int angle) {
        QWheelEvent event(QPointF(300, 300), global, {}, {0, angle}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(shown.room.viewport(), &event);
    };
    turn(40);
    turn(40);
    QCOMPARE(shown.room.zoom(), 100);
    turn(40);
    QCOMPARE(shown.room.zoom(), 150);
}

void SurfaceRoomTest::scrollingGivesBackWhatAZoomTookBeyondTheEnd() {
    Room shown({700, 600});
    shown.room.zoomTo(100);
    settle();
    const QPoint at = shown.placeOfScreen() + QPoint(2, 2);
    shown.wheel(at, 1);
    QScrollBar* bar = shown.room.horizontalScrollBar();
    QVERIFY(bar->value() < 0);
    bar->setValue(30);
    settle();
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 962 - shown.viewport().width());
}

void SurfaceRoomTest::wheelScrolls() {
    Room shown;
    shown.room.zoomTo(400);
    settle();
    const QPoint before = shown.room.scrolled();
    shown.wheel({300, 300}, -1, {});
    QVERIFY(shown.room.scrolled().y() > before.y());
    QCOMPARE(shown.room.scrolled().x(), before.x());
    shown.wheel({300, 300}, -1, Qt::ShiftModifier);
    QVERIFY(shown.room.scrolled().x() > before.x());
    QCOMPARE(shown.room.zoom(), 400);
    shown.room.zoomTo(50);
    settle();
    shown.wheel({300, 300}, -1, {});
    QCOMPARE(shown.room.scrolled(), QPoint(0, 0));
}

void SurfaceRoomTest::nothingZoomsWhileBusy() {
    Room shown;
    shown.room.zoomTo(200);
    bool busy = true;
    shown.room.setBusyTest([&] { return busy; });
    shown.room.zoomIn();
    shown.room.fit();
    shown.wheel({300, 300}, 1);
    QCOMPARE(shown.room.zoom(), 200);
    QVERIFY(!shown.room.isFit());
    busy = false;
    shown.room.zoomIn();
    QCOMPARE(shown.room.zoom(), 300);
}

void SurfaceRoomTest::repaintsOnlyWhatChanges_data() {
    QTest::addColumn<int>("zoom");
    for (const int zoom : {25, 33, 67, 100, 137, 150, 200, 400, 1600}) {
        QTest::addRow("%d", zoom) << zoom;
    }
}

void SurfaceRoomTest::repaintsOnlyWhatChanges() {
    QFETCH(int, zoom);
    Room shown;
    shown.document.addElement(boxOf({300, 200, 8, 8}, red));
    shown.room.zoomTo(zoom);
    settle();
    shown.room.scrollTo(QPoint(300, 200) * zoom / 100 - QPoint(100, 100));
    settle();
    const double scale = zoom / 100.0;
    const QRegion painted = shown.paintedBy([&] {
        shown.document.editElement(1, [](Element& element) { element.elementControl.left = 320; });
    });
    const auto around = [&](double left) {
        return QRectF((left - 1) * scale, 199 * scale, 10 * scale, 10 * scale)
            .toAlignedRect()
            .adjusted(-1, -1, 1, 1);
    };
    QVERIFY(!painted.isEmpty());
    QVERIFY((painted - around(300) - around(320)).isEmpty());
}

// What one box leaves and another takes looks as if all was painted at once.
void SurfaceRoomTest::partsLookAsTheWhole() {
    QFETCH(int, zoom);
    Room shown;
    shown.document.addElement(boxOf({280, 180, 90, 77}, blue, 60));
    shown.document.addElement(boxOf({301, 203, 17, 9}, red));
    shown.document.addElement(frameOf({299, 190, 33, 31}, green));
    shown.document.addElement(lineOf({290, 190, 350, 240}, green));
    shown.document.addElement(textOf({290, 195, 80, 40}, "Words of a text", green));
    shown.room.zoomTo(zoom);
    settle();
    shown.room.scrollTo(QPoint(290, 190) * zoom / 100 - QPoint(10, 10));
    settle();
    for (const float left : {302.0F, 309.0F, 317.5F}) {
        shown.document.editElement(2,
                                   [&](Element& element) { element.elementControl.left = left; });
        settle();
    }
    QImage parts = shown.room.screen()->grabWindow(shown.room.winId()).toImage();
    shown.pic.update();
    settle();
    QImage whole = shown.room.screen()->grabWindow(shown.room.winId()).toImage();
    QVERIFY(!whole.isNull());
    QVERIFY(difference(parts, whole) <= unseen);
}

// To twice the zoom up to which there are flat grounds: one at 1600 % takes a gigabyte.
void SurfaceRoomTest::flatGroundLooksAsItsElements_data() {
    QTest::addColumn<int>("zoom");
    constexpr int flat = LockedGround::largestFlatZoom;
    for (const int zoom : {25, 33, 67, 100, 137, 150, flat, 2 * flat}) {
        QTest::addRow("%d", zoom) << zoom;
    }
}

void SurfaceRoomTest::flatGroundLooksAsItsElements() {
    QFETCH(int, zoom);
    const PictureFolder folder;
    Room shown;
    shown.document.addElement(boxOf({11, 13, 90, 77}, blue));
    shown.document.addElement(
        imageOf(ControlKind::img, {100, 50, 61, 47},
                folder.save(halvesPicture({20, 20}, Qt::red, Qt::yellow), "halves.bmp")));
    shown.document.addElement(textOf({290, 195, 80, 40}, "Words of a text", green));
    shown.room.zoomTo(zoom);
    settle();
    const QImage live = shown.look();
    shown.pic.setFlatGround(shown.pic.flatPicture(3), 3);
    QCOMPARE(shown.look(), live);
    shown.room.zoomTo(zoom == 100 ? 200 : 100); // it goes, being of another size
    settle();
    shown.room.zoomTo(zoom);
    settle();
    QCOMPARE(shown.look(), live);
}

void SurfaceRoomTest::lockedElementsAreFlatInBoundedMemory() {
    Room shown;
    Element locked = boxOf({10, 10, 50, 50}, red);
    locked.elementLocked = true;
    shown.document.addElement(std::move(locked));
    LockedGround ground(shown.document, shown.pic);
    shown.document.setLockCount(1, 1);
    settle();
    const auto isFlat = [&] { return shown.pic.hasFlatGround(); };
    QVERIFY(isFlat());
    for (const int zoom : {200, 400, 1600, 150}) {
        shown.room.zoomTo(zoom);
        settle();
        QCOMPARE(isFlat(), zoom <= 200);
        const int at = 30 * zoom / 100 + 1; // beside the lines of the grid
        const QImage part = shown.pic.grab(QRect(at, at, 1, 1)).toImage();
        QCOMPARE(part.pixelColor(0, 0), QColor(Qt::red));
    }
}

void SurfaceRoomTest::picturesAreCrispFromTwoHundredOn() {
    const PictureFolder folder;
    const QString halves =
        folder.save(halvesPicture({16, 16}, QColor(0, 0, 0), QColor(250, 250, 250)), "halves.png");
    for (const ControlKind kind : {ControlKind::img, ControlKind::png}) {
        Room shown;
        shown.document.addElement(imageOf(kind, {100, 100, 16, 16}, halves));
        for (const int zoom : {150, 200, 300}) {
            shown.room.zoomTo(zoom);
            settle();
            const QImage look =
                shown.pic
                    .grab(QRectF(100 * zoom / 100, 108 * zoom / 100, 16 * zoom / 100, 1).toRect())
                    .toImage();
            bool isBetween = false;
            for (int x = 0; x < look.width(); ++x) {
                const int grey = look.pixelColor(x, 0).green();
                isBetween = isBetween || (grey > 20 && grey < 230);
            }
            QCOMPARE(isBetween, zoom < 200);
        }
    }
}

void SurfaceRoomTest::enlargedPicturesTakeNoMemory() {
    const PictureFolder folder;
    const QString file = folder.save(plainPicture({200, 200}, Qt::red), "plain.bmp");
    Room shown;
    shown.document.addElement(imageOf(ControlKind::img, {0, 0, 640, 480}, file));
    shown.room.zoomTo(100);
    settle();
    (void)shown.look();
    const qsizetype before = shown.pictures.bytes();
    for (const int zoom : {200, 300, 400, 600, 800, 1200, 1600}) {
        shown.room.zoomTo(zoom);
        settle();
        const QImage part = shown.pic.grab(QRect(50, 50, 20, 20)).toImage();
        QCOMPARE(part.pixelColor(10, 10).green(), zoom < 400 ? 0 : part.pixelColor(10, 10).green());
    }
    QVERIFY(shown.pictures.bytes() <= before + 200 * 200 * 4 + 4096);
}

void SurfaceRoomTest::thePixelGridShowsFromFourHundredOn() {
    Room shown;
    for (const int zoom : {300, 1600, 400}) {
        shown.room.zoomTo(zoom);
        settle();
        const int side = zoom / 100;
        const QImage look = shown.pic.grab(QRect(10 * side, 10 * side, side, side)).toImage();
        QCOMPARE(look.pixelColor(0, 1) != QColor(Qt::black), zoom >= 400);
        QCOMPARE(look.pixelColor(1, 0) != QColor(Qt::black), zoom >= 400);
        QCOMPARE(look.pixelColor(look.rect().bottomRight()), QColor(Qt::black));
    }
    const QImage flat = shown.pic.flatPicture(0).copy(0, 0, 64, 64);
    QImage black(flat.size(), flat.format());
    black.setDevicePixelRatio(flat.devicePixelRatio());
    black.fill(Qt::black);
    QCOMPARE(flat, black); // a ground is without it
}

void SurfaceRoomTest::theSafeAreaShows() {
    Room shown;
    for (const int zoom : {100, 400}) {
        shown.room.zoomTo(zoom);
        shown.pic.showSafeArea(false);
        settle();
        const int x = static_cast<int>(safeArea.across.start) * zoom / 100;
        const int y = 240 * zoom / 100 + 1;
        const auto pixel = [&] {
            return shown.pic.grab(QRect(x, y, 1, 1)).toImage().pixelColor(0, 0);
        };
        const QColor without = pixel();
        shown.pic.showSafeArea(true);
        settle();
        QVERIFY(pixel() != without);
        QCOMPARE(pixel(), QColor(255, 200, 0));
    }
}

void SurfaceRoomTest::rulersFollow() {
    Room shown;
    auto* across = shown.room.findChild<SurfaceRuler*>("rulerAcross");
    auto* down = shown.room.findChild<SurfaceRuler*>("rulerDown");
    QVERIFY(!across->isVisible() && !down->isVisible());
    shown.room.showRulers(true);
    settle();
    QVERIFY(across->isVisible() && down->isVisible());
    const auto fits = [&] {
        const QPoint at = shown.pic.mapTo(&shown.room, QPoint(0, 0));
        const double scale = shown.pic.mapping().scale();
        return across->x() + across->placeOf(100) == at.x() + 100 * scale &&
               down->y() + down->placeOf(100) == at.y() + 100 * scale;
    };
    QVERIFY(fits());
    for (const int zoom : {50, 200, 400}) {
        shown.room.zoomTo(zoom);
        settle();
        QVERIFY2(fits(), qPrintable(QString::number(zoom)));
    }
    shown.room.horizontalScrollBar()->setValue(123);
    shown.room.verticalScrollBar()->setValue(77);
    QVERIFY(fits());
    shown.room.showRulers(false);
    settle();
    QVERIFY(!across->isVisible());
    QCOMPARE(shown.room.viewport()->pos(), QPoint(0, 0));
}

void SurfaceRoomTest::rulersMarkThePointer() {
    Room shown;
    shown.room.showRulers(true);
    shown.room.zoomTo(200);
    settle();
    auto* across = shown.room.findChild<SurfaceRuler*>("rulerAcross");
    auto* down = shown.room.findChild<SurfaceRuler*>("rulerDown");
    QVERIFY(!across->pointer());
    const QPoint at = shown.pic.mapFrom(shown.room.viewport(), QPoint(300, 200));
    QMouseEvent move(QEvent::MouseMove, at, shown.pic.mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     {});
    const auto mark = [&] {
        return across->grab(QRect(300, 1, 1, 1)).toImage().pixelColor(0, 0) ==
               across->palette().color(QPalette::Highlight);
    };
    QVERIFY(!mark());
    QApplication::sendEvent(&shown.pic, &move);
    QCOMPARE(across->pointer(), std::optional(at.x() / 2.0));
    QCOMPARE(down->pointer(), std::optional(at.y() / 2.0));
    QVERIFY(mark());
    // The skin moves below a pointer that stands.
    QSignalSpy moved(&shown.pic, &Pic::pointerMoved);
    shown.room.horizontalScrollBar()->setValue(shown.room.horizontalScrollBar()->value() + 20);
    QCOMPARE(across->pointer(), std::optional(at.x() / 2.0 + 10));
    QCOMPARE(moved.last().first().toPointF(), QPointF(at.x() / 2.0 + 10, at.y() / 2.0));
    shown.room.zoomTo(25); // the screen is not below it any more
    settle();
    QVERIFY(!across->pointer() && !down->pointer());
    QApplication::sendEvent(&shown.pic, &move);
    QVERIFY(across->pointer() && down->pointer());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&shown.pic, &leave);
    QVERIFY(!across->pointer() && !down->pointer());
}

void SurfaceRoomTest::groundIsDarkerThanTheWindow() {
    for (const QColor window : {QColor(240, 240, 240), QColor(50, 50, 50)}) {
        Room shown;
        QPalette palette = shown.room.palette();
        palette.setColor(QPalette::Window, window);
        shown.room.setPalette(palette);
        settle();
        const QColor ground = shown.room.grab().toImage().pixelColor(10, 10);
        QVERIFY(ground.lightness() < window.lightness());
        QVERIFY(window.lightness() - ground.lightness() < 60);
    }
}

TARVEL_UI_TEST(SurfaceRoomTest)

#include "surface_room_test.moc"
