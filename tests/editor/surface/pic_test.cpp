// The drawing surface: what it repaints, where the pointer is, and the cover.
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/pic.h"
#include "surface/picture_cache.h"
#include "surface/surface_cover.h"

#include <QDir>
#include <QElapsedTimer>
#include <QMediaPlayer>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int patience = 20'000; // milliseconds

// Notes which part of a widget is painted.
class PaintWatcher : public QObject {
  public:
    explicit PaintWatcher(QWidget& widget) { widget.installEventFilter(this); }

    QRegion painted;
    int count = 0;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
            ++count;
        }
        return false;
    }
};

// A surface that shows a document of three boxes.
struct Surface {
    Surface() {
        document.addElement(boxOf({10, 10, 20, 20}, red));
        document.addElement(boxOf({100, 100, 20, 20}, green));
        document.addElement(boxOf({200, 200, 20, 20}, blue));
        pic.setDocument(&document);
        pic.show();
    }

    [[nodiscard]] bool isShown() { return QTest::qWaitForWindowExposed(&pic) && settle(); }
    // Lets everything that is due be painted.
    static bool settle() {
        for (int turn = 0; turn < 5; ++turn) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        return true;
    }
    // What is painted because of a change.
    template <class Change> QRegion paintedBy(Change&& change) {
        PaintWatcher watcher(pic);
        change();
        settle();
        return watcher.painted;
    }
    [[nodiscard]] QImage look() {
        return pic.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    // What a surface that has just been made shows of the document.
    [[nodiscard]] QImage afresh() const {
        PictureCache cache;
        SurfacePainter painter(cache);
        return ::painted(painter, document, document.currentLayout());
    }

    SkinDocument document;
    PictureCache pictures;
    Pic pic{pictures};
};

QRect around(const QRectF& rect) {
    return rect.toAlignedRect();
}

const QRegion whole(0, 0, skinWidth, skinHeight);

} // namespace

class PicTest : public QObject {
    Q_OBJECT

  private slots:
    void isAsLargeAsTheScreen();
    void showsTheCurrentScreen();
    void showsBlackWithoutADocument();
    void movedElementRepaintsItsOldAndNewPlace();
    void changesElsewhereRepaintNothing();
    void rowsRepaintTheirElements();
    void screenChangeRepaintsEverything();
    void backgroundRepaintsEverything();
    void otherSettingsRepaintNothing();
    void manyChangesArePaintedOnce();
    void flatGroundHidesTheRowsInIt();
    void flatPictureHasTheRowsBefore();
    void tellsWhereThePointerIs();
    void videoRepaintsItsElement();
    void videoGoesWhenItsElementShowsSomethingElse();
    void coverHidesTheSurfaceForAWhile();
    void coveringAgainStartsAnew();
    void uncoverShowsTheSurfaceAtOnce();
    void coverOutlivesNothing();
    void elementBoundsHoldTheElement();
};

void PicTest::isAsLargeAsTheScreen() {
    PictureCache pictures;
    const Pic pic(pictures);
    QCOMPARE(pic.objectName(), "Pic");
    QCOMPARE(pic.minimumSize(), QSize(640, 480));
    QCOMPARE(pic.maximumSize(), QSize(640, 480));
    QVERIFY(pic.hasMouseTracking());
    QVERIFY(pic.testAttribute(Qt::WA_OpaquePaintEvent));
    QVERIFY(!pic.accessibleName().isEmpty());
}

void PicTest::showsTheCurrentScreen() {
    Surface surface;
    QVERIFY(surface.isShown());
    QCOMPARE(surface.look(), surface.afresh());
    surface.document.setCurrentLayout(2);
    Surface::settle();
    QCOMPARE(surface.look(), blackSurface());
}

void PicTest::showsBlackWithoutADocument() {
    Surface surface;
    QVERIFY(surface.isShown());
    surface.pic.setDocument(nullptr);
    Surface::settle();
    QCOMPARE(surface.look(), blackSurface());
    surface.pic.stopAllVids();
    surface.document.addElement(boxOf({0, 0, 20, 20}, red)); // it is told of nothing any more
    surface.document.editElement(1, [](Element& element) { element.elementAlpha = 5; });
    QCOMPARE(surface.pic.flatPicture(1), blackSurface());
}

void PicTest::movedElementRepaintsItsOldAndNewPlace() {
    Surface surface;
    QVERIFY(surface.isShown());
    const QRect before = around(Pic::elementBounds(surface.document.element(1)));
    const QRegion painted = surface.paintedBy([&] {
        surface.document.editElement(1,
                                     [](Element& element) { element.elementControl.left = 400; });
    });
    const QRect after = around(Pic::elementBounds(surface.document.element(1)));
    QCOMPARE(painted, QRegion(before) + after);
    QCOMPARE(surface.look(), surface.afresh());
}

void PicTest::changesElsewhereRepaintNothing() {
    Surface surface;
    QVERIFY(surface.isShown());
    surface.document.setCurrentLayout(0);
    const int other = surface.document.addElement(boxOf({0, 0, 50, 50}, red));
    surface.document.setCurrentLayout(1);
    Surface::settle();
    QVERIFY(surface
                .paintedBy([&] {
                    surface.document.editElement(
                        other, [](Element& element) { element.elementControl.left = 77; });
                    surface.document.setRowText(1, 0, "another text");
                    surface.document.setScreenElementCount(1, 7);
                    surface.document.setLockCount(1, 0);
                })
                .isEmpty());
}

void PicTest::rowsRepaintTheirElements() {
    Surface surface;
    QVERIFY(surface.isShown());
    const QRect first = around(Pic::elementBounds(surface.document.element(1)));
    QCOMPARE(surface.paintedBy([&] { surface.document.delItem(0); }), QRegion(first));
    const Element added = boxOf({300, 300, 40, 40}, red);
    QCOMPARE(surface.paintedBy([&] { surface.document.addElement(Element(added)); }),
             QRegion(around(Pic::elementBounds(added))));
    const QRect moved = around(Pic::elementBounds(surface.document.element(2)));
    QCOMPARE(surface.paintedBy([&] { surface.document.moveRow(1, 0, 2); }), QRegion(moved));
    QCOMPARE(surface.look(), surface.afresh());
}

void PicTest::screenChangeRepaintsEverything() {
    Surface surface;
    QVERIFY(surface.isShown());
    QCOMPARE(surface.paintedBy([&] { surface.document.setCurrentLayout(3); }), whole);
    QCOMPARE(surface.paintedBy([&] { surface.document = SkinDocument(); }), whole);
}

void PicTest::backgroundRepaintsEverything() {
    const PictureFolder folder;
    const QString path = folder.save(plainPicture({10, 10}, Qt::cyan), "ground.bmp");
    Surface surface;
    QVERIFY(surface.isShown());
    const QRegion painted = surface.paintedBy([&] {
        surface.document.editSettings([&](SkinSettings& settings) {
            settings.background = {true, documentPath(path.toStdString())};
        });
    });
    QCOMPARE(painted, whole);
    QCOMPARE(surface.look().pixelColor(500, 400), QColor(Qt::cyan));
}

void PicTest::otherSettingsRepaintNothing() {
    Surface surface;
    QVERIFY(surface.isShown());
    QVERIFY(surface
                .paintedBy([&] {
                    surface.document.editSettings(
                        [](SkinSettings& settings) { settings.skinName = "name"; });
                })
                .isEmpty());
}

void PicTest::manyChangesArePaintedOnce() {
    Surface surface;
    QVERIFY(surface.isShown());
    PaintWatcher watcher(surface.pic);
    for (int number = 0; number < 200; ++number) {
        surface.document.addElement(boxOf({3.0 * number, 50, 2, 2}, red));
        surface.document.editElement(
            1, [&](Element& element) { element.elementControl.left = static_cast<float>(number); });
    }
    QCOMPARE(watcher.count, 0);
    Surface::settle();
    QVERIFY(watcher.count >= 1 && watcher.count <= 2);
    QCOMPARE(surface.look(), surface.afresh());
}

void PicTest::flatGroundHidesTheRowsInIt() {
    Surface surface;
    QVERIFY(surface.isShown());
    const QImage before = surface.look();
    const QImage flat = surface.pic.flatPicture(2);
    surface.pic.setFlatGround(flat, 2);
    QCOMPARE(surface.look(), before);
    // What is in the flat picture no longer follows its element.
    surface.document.editElement(1, [](Element& element) { element.elementControl.left = 400; });
    Surface::settle();
    QCOMPARE(surface.look(), before);
    surface.pic.clearFlatGround();
    QCOMPARE(surface.look(), surface.afresh());
}

void PicTest::flatPictureHasTheRowsBefore() {
    Surface surface;
    QVERIFY(surface.isShown());
    const QImage flat = surface.pic.flatPicture(1);
    QCOMPARE(flat.pixelColor(15, 15), QColor(Qt::red));
    QCOMPARE(flat.pixelColor(105, 105), QColor(Qt::black));
    QCOMPARE(flat.size(), QSize(640, 480) * surface.pic.devicePixelRatio());
}

void PicTest::tellsWhereThePointerIs() {
    Surface surface;
    QVERIFY(surface.isShown());
    QSignalSpy moved(&surface.pic, &Pic::pointerMoved);
    QTest::mouseMove(&surface.pic, QPoint(12, 34));
    QTRY_VERIFY(!moved.isEmpty());
    QCOMPARE(moved.last().first().toPointF(), QPointF(12, 34));
    QTest::mousePress(&surface.pic, Qt::LeftButton, {}, QPoint(12, 34));
    QTest::mouseMove(&surface.pic, QPoint(639, 479));
    QTRY_COMPARE(moved.last().first().toPointF(), QPointF(639, 479));
    QTest::mouseRelease(&surface.pic, Qt::LeftButton, {}, QPoint(639, 479));
}

void PicTest::videoRepaintsItsElement() {
    const QDir media(QStringLiteral(TARVEL_EXAMPLES_DIR "/aurora/Media"));
    const QStringList films = media.entryList({"*.wmv"});
    QVERIFY2(!films.isEmpty(), "no film among the examples");
    Surface surface;
    QVERIFY(surface.isShown());
    const Element video =
        imageOf(ControlKind::vid, {300, 300, 160, 120}, media.filePath(films.first()));
    const int id = surface.document.addElement(Element(video));
    QTRY_VERIFY_WITH_TIMEOUT(!surface.pic.videos().frame(id).isNull() ||
                                 !surface.pic.videos().problem(id).isEmpty(),
                             patience);
    if (!surface.pic.videos().problem(id).isEmpty()) {
        QSKIP("this machine cannot decode the film");
    }
    QVERIFY(surface.pic.videos().isPlaying(id));
    PaintWatcher watcher(surface.pic);
    QTRY_VERIFY_WITH_TIMEOUT(watcher.count > 2, patience);
    QVERIFY((watcher.painted - around(Pic::elementBounds(video))).isEmpty());
    surface.pic.stopAllVids();
    QVERIFY(!surface.pic.videos().isPlaying(id));
    // Choosing the same screen again lets it play again.
    surface.document.setCurrentLayout(1);
    QTRY_VERIFY_WITH_TIMEOUT(surface.pic.videos().isPlaying(id), patience);
    surface.pic.hide();
    QTRY_VERIFY_WITH_TIMEOUT(!surface.pic.videos().isPlaying(id), patience);
}

void PicTest::videoGoesWhenItsElementShowsSomethingElse() {
    const QDir media(QStringLiteral(TARVEL_EXAMPLES_DIR "/aurora/Media"));
    const QStringList films = media.entryList({"*.wmv"});
    QVERIFY2(!films.isEmpty(), "no film among the examples");
    Surface surface;
    QVERIFY(surface.isShown());
    const int id = surface.document.addElement(
        imageOf(ControlKind::vid, {300, 300, 160, 120}, media.filePath(films.first())));
    Surface::settle();
    const auto players = [&] { return surface.pic.videos().findChildren<QMediaPlayer*>().size(); };
    QCOMPARE(players(), 1);
    surface.document.editElement(id, [&](Element& element) {
        element.elementControl.kind = ControlKind::img;
        element.elementControl.file = documentPath(media.filePath("aurora.jpg").toStdString());
    });
    QTRY_COMPARE_WITH_TIMEOUT(players(), 0, patience);
}

void PicTest::coverHidesTheSurfaceForAWhile() {
    Surface surface;
    QVERIFY(surface.isShown());
    auto* box = surface.pic.findChild<QWidget*>("picBox");
    QCOMPARE(box, &surface.pic.picBox());
    QVERIFY(!box->isVisible());
    SurfaceCover cover(surface.pic);
    QSignalSpy about(&cover, &SurfaceCover::aboutToCover);
    QElapsedTimer time;
    time.start();
    qint64 over = -1;
    cover.cover([&] { over = time.elapsed(); });
    // Back at once, without waiting.
    QCOMPARE(over, -1);
    QCOMPARE(about.size(), 1);
    QVERIFY(box->isVisible());
    QCOMPARE(box->geometry(), QRect(0, 0, 640, 480));
    QCOMPARE(surface.pic.cursor().shape(), Qt::CrossCursor);
    QCOMPARE(surface.look(), blackSurface());
    QTRY_VERIFY(over >= 0);
    QVERIFY(over >= 190);
    QVERIFY(!box->isVisible());
    QCOMPARE(surface.look(), surface.afresh());
}

void PicTest::coveringAgainStartsAnew() {
    Surface surface;
    QVERIFY(surface.isShown());
    SurfaceCover cover(surface.pic);
    QStringList calls;
    cover.cover([&] { calls << "first"; });
    cover.cover([&] { calls << "second"; });
    QTRY_VERIFY(!surface.pic.picBox().isVisible());
    QCOMPARE(calls, QStringList{"second"});
    cover.cover();
    QVERIFY(surface.pic.picBox().isVisible());
    QTRY_VERIFY(!surface.pic.picBox().isVisible());
    QCOMPARE(calls, QStringList{"second"});
}

void PicTest::uncoverShowsTheSurfaceAtOnce() {
    Surface surface;
    QVERIFY(surface.isShown());
    SurfaceCover cover(surface.pic);
    bool called = false;
    cover.cover([&] { called = true; });
    cover.uncover();
    QVERIFY(!surface.pic.picBox().isVisible());
    QVERIFY(!called);
    QTRY_VERIFY(called);
}

void PicTest::coverOutlivesNothing() {
    QPointer<SurfaceCover> cover;
    {
        Surface surface;
        cover = new SurfaceCover(surface.pic); // NOLINT: owned by the surface
        cover->cover([] { QFAIL("nobody is left to be called"); });
    }
    QVERIFY(cover.isNull());
}

void PicTest::elementBoundsHoldTheElement() {
    QVERIFY(Pic::elementBounds(boxOf({10, 20, 30, 40}, red)).contains(QRectF(10, 20, 30, 40)));
    QVERIFY(Pic::elementBounds(boxOf({10, 20, 0, 40}, red)).isEmpty());
    QVERIFY(Pic::elementBounds(boxOf({10, 20, 30, -1}, red)).isEmpty());
    const QRectF line = Pic::elementBounds(lineOf({50, 60, 10, 20}, red));
    QVERIFY(line.contains(QRectF(9, 19, 43, 43)));
    QVERIFY(!line.contains(QPointF(5, 5)));
}

TARVEL_UI_TEST(PicTest)
#include "pic_test.moc"
