// Pictures whose files change, go or appear while the program runs, and what is decoded again.
#include "support/editor.h"
#include "support/jpeg_support.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/picture_cache.h"

#include <QDialog>
#include <QDir>
#include <QFile>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr QRect place(20, 30, 100, 60);

std::string asDocumentPath(const QString& path) {
    return documentPath(path.toStdString());
}

// Counts how often a widget is painted.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
    int count = 0;
};

// Tells the window that it became active, as after work in another program.
void activate(QWidget& window) {
    QEvent event(QEvent::WindowActivate);
    QApplication::sendEvent(&window, &event);
}

} // namespace

class PictureRefreshTest : public QObject {
    Q_OBJECT

  private slots:
    void changedFileIsSeen();
    void changedSizeIsSeen();
    void fileThatAppearsIsSeen_data();
    void fileThatAppearsIsSeen();
    void fileThatGoesIsSeen();
    void nothingIsForgottenWithoutAChange();
    void otherPicturesStay();
    void manyFilesAreLookedAtFast();
    void thumbnailsNeedNoPictureToBeDecodedAgain();
    void cutJpegIsShownAsFarAsItGoes();
    void surfaceShowsAChangedFile_data();
    void surfaceShowsAChangedFile();
    void surfaceIsPaintedAgainWhereAFileChanged();
    void openedDialogShowsAChangedFile();
    void lockedElementsShowAChangedFile();

  private:
    PictureFolder folder_;
};

void PictureRefreshTest::changedFileIsSeen() {
    PictureCache cache;
    const std::string file = asDocumentPath(folder_.save(plainPicture({10, 10}, Qt::red), "a.bmp"));
    (void)cache.stretched(file, {20, 20});
    (void)cache.unscaled(file);
    (void)folder_.save(plainPicture({12, 10}, Qt::blue), "a.bmp");
    QCOMPARE(cache.stretched(file, {20, 20}).image.pixelColor(0, 0), QColor(Qt::red));
    QVERIFY(cache.refresh());
    QCOMPARE(cache.stretched(file, {20, 20}).image.pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(cache.unscaled(file).image.pixelColor(0, 0), QColor(Qt::blue));
    QVERIFY(!cache.refresh());
}

void PictureRefreshTest::changedSizeIsSeen() {
    PictureCache cache;
    const std::string file = asDocumentPath(folder_.save(plainPicture({10, 10}, Qt::red), "b.bmp"));
    QCOMPARE(cache.pictureSize(file), QSize(10, 10));
    (void)folder_.save(plainPicture({30, 20}, Qt::red), "b.bmp");
    QVERIFY(cache.refresh());
    QCOMPARE(cache.pictureSize(file), QSize(30, 20));
}

void PictureRefreshTest::fileThatAppearsIsSeen_data() {
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("made");
    QTest::newRow("as spelt") << "late.bmp"
                              << "late.bmp";
    QTest::newRow("in other letters") << "Later.BMP"
                                      << "lATER.bmp";
    QTest::newRow("with its folder") << "media/latest.bmp"
                                     << "Media/latest.bmp";
}

void PictureRefreshTest::fileThatAppearsIsSeen() {
    QFETCH(QString, wanted);
    QFETCH(QString, made);
    PictureCache cache;
    const std::string file = asDocumentPath(folder_.path(wanted));
    QCOMPARE(cache.stretched(file, {20, 20}).problem, "not found");
    QCOMPARE(cache.unscaled(file).problem, "not found");
    QVERIFY(!cache.refresh());
    QVERIFY(waitForLaterFileTime());
    QDir().mkpath(QFileInfo(folder_.path(made)).path());
    (void)folder_.save(plainPicture({10, 10}, Qt::red), made);
    QVERIFY(cache.refresh());
    QVERIFY(cache.stretched(file, {20, 20}).state == Picture::State::ready);
    QVERIFY(cache.unscaled(file).state == Picture::State::ready);
    QVERIFY(!cache.refresh());
}

void PictureRefreshTest::fileThatGoesIsSeen() {
    PictureCache cache;
    const QString path = folder_.save(plainPicture({10, 10}, Qt::red), "gone.bmp");
    const std::string file = asDocumentPath(path);
    (void)cache.stretched(file, {20, 20});
    QVERIFY(QFile::remove(path));
    QVERIFY(cache.refresh());
    QCOMPARE(cache.stretched(file, {20, 20}).problem, "not found");
    QVERIFY(!cache.refresh());
}

void PictureRefreshTest::nothingIsForgottenWithoutAChange() {
    PictureCache cache;
    const std::string file = asDocumentPath(folder_.save(plainPicture({10, 10}, Qt::red), "c.bmp"));
    (void)cache.stretched(file, {20, 20});
    (void)cache.stretched("\\nowhere\\d.bmp", {20, 20});
    (void)cache.stretched("", {20, 20});
    (void)cache.stretched(":/tarvel/gamelist.png", {20, 20});
    const qsizetype before = cache.bytes();
    QVERIFY(!cache.refresh());
    QCOMPARE(cache.bytes(), before);
}

void PictureRefreshTest::otherPicturesStay() {
    PictureCache cache;
    const QString path = folder_.save(plainPicture({10, 10}, Qt::red), "stays.bmp");
    const std::string stays = asDocumentPath(path);
    const std::string file = asDocumentPath(folder_.save(plainPicture({10, 10}, Qt::red), "d.bmp"));
    (void)cache.stretched(stays, {20, 20});
    (void)cache.stretched(file, {20, 20});
    const qsizetype both = cache.bytes();
    (void)folder_.save(plainPicture({11, 10}, Qt::red), "d.bmp");
    QVERIFY(cache.refresh());
    QCOMPARE(cache.bytes(), both / 2);
}

void PictureRefreshTest::manyFilesAreLookedAtFast() {
    constexpr int count = 500;
    PictureCache cache;
    const QString picture = folder_.save(plainPicture({4, 4}, Qt::red), "many.bmp");
    QDir().mkpath(folder_.path("many"));
    for (int i = 0; i < count; ++i) {
        const QString path = folder_.path(QStringLiteral("many/%1.bmp").arg(i));
        QVERIFY(QFile::copy(picture, path));
        (void)cache.stretched(asDocumentPath(path), {4, 4});
        (void)cache.stretched(asDocumentPath(path + ".none"), {4, 4});
    }
    (void)cache.refresh(); // the folder grew while its missing files were looked for
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!cache.refresh());
    QVERIFY2(clock.elapsed() < 100, qPrintable(QString::number(clock.elapsed())));
}

void PictureRefreshTest::thumbnailsNeedNoPictureToBeDecodedAgain() {
    constexpr int count = 6;
    // Room for thumbnails and one of the pictures that they are made from.
    PictureCache cache(4 * (400 * 300 * 4 + 2'000));
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        paths << folder_.save(plainPicture({400, 300}, Qt::red), QStringLiteral("t%1.bmp").arg(i));
        QCOMPARE(cache.pictureSize(asDocumentPath(paths.back())), QSize(400, 300));
        (void)cache.stretched(asDocumentPath(paths.back()), {40, 30});
    }
    for (const QString& path : paths) {
        QVERIFY(QFile::remove(path)); // so that decoding would fail
        QCOMPARE(cache.pictureSize(asDocumentPath(path)), QSize(400, 300));
        QVERIFY(cache.stretched(asDocumentPath(path), {40, 30}).state == Picture::State::ready);
    }
}

void PictureRefreshTest::cutJpegIsShownAsFarAsItGoes() {
    for (const bool progressive : {false, true}) {
        const QImage image = halvesPicture({800, 600}, Qt::red, Qt::blue);
        const QByteArray whole =
            jpegBytes(image.convertToFormat(QImage::Format_RGB32), progressive);
        const QString path = folder_.path("cut.jpg");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(whole.left(whole.size() * 6 / 10)) > 0);
        file.close();
        PictureCache cache;
        SurfacePainter surface(cache);
        SkinDocument document;
        document.addElement(imageOf(ControlKind::img, place, path));
        // In part, or crossed: never black, and nothing beside it.
        QImage shown = painted(surface, document);
        QVERIFY(shown.pixelColor(place.topLeft()) != QColor(Qt::black));
        QPainter(&shown).fillRect(place, Qt::black);
        QCOMPARE(shown, blackSurface());
    }
}

void PictureRefreshTest::surfaceShowsAChangedFile_data() {
    QTest::addColumn<bool>("missing");
    QTest::newRow("changed") << false;
    QTest::newRow("appeared") << true;
}

void PictureRefreshTest::surfaceShowsAChangedFile() {
    QFETCH(bool, missing);
    Editor editor;
    const QString path = editor.path("surface.bmp");
    if (!missing) {
        QVERIFY(plainPicture({10, 10}, Qt::red).save(path));
    }
    editor.add(imageOf(ControlKind::img, place, path));
    editor.window.show();
    const auto shown = [&] {
        return editor.pic()->grab(place).toImage().pixelColor(place.width() / 3, 20);
    };
    QCOMPARE(shown() == QColor(Qt::red), !missing);
    QVERIFY(plainPicture({11, 10}, Qt::blue).save(path));
    QVERIFY(shown() != QColor(Qt::blue));
    activate(editor.window);
    QCOMPARE(shown(), QColor(Qt::blue));
}

void PictureRefreshTest::surfaceIsPaintedAgainWhereAFileChanged() {
    Editor editor;
    const QString path = editor.path("painted.bmp");
    QVERIFY(plainPicture({10, 10}, Qt::red).save(path));
    editor.add(imageOf(ControlKind::img, place, path));
    editor.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor.window));
    QTRY_VERIFY(editor.pic()->isVisible());
    editor.window.findChild<PanelSlide*>()->finish();
    settle();
    PaintCounter painted(*editor.pic());
    activate(editor.window);
    settle();
    QCOMPARE(painted.count, 0); // nothing changed
    QVERIFY(plainPicture({11, 10}, Qt::blue).save(path));
    activate(editor.window);
    QTRY_VERIFY(painted.count > 0);
}

void PictureRefreshTest::openedDialogShowsAChangedFile() {
    Editor editor;
    const QString path = editor.path("dialog.bmp");
    QVERIFY(plainPicture({10, 10}, Qt::red).save(path));
    editor.add(imageOf(ControlKind::img, place, path));
    editor.window.show();
    (void)editor.pic()->grab();
    QVERIFY(plainPicture({11, 10}, Qt::blue).save(path));
    auto* dialog = editor.find<QDialog>("frmResources");
    dialog->show();
    QCOMPARE(editor.pic()->grab(place).toImage().pixelColor(30, 20), QColor(Qt::blue));
    dialog->hide();
}

void PictureRefreshTest::lockedElementsShowAChangedFile() {
    Editor editor;
    const QString path = editor.path("locked.bmp");
    QVERIFY(plainPicture({10, 10}, Qt::red).save(path));
    Element element = imageOf(ControlKind::img, place, path);
    element.elementLocked = true;
    editor.add(std::move(element));
    editor.window.show();
    const auto shown = [&] {
        return editor.pic()->grab(place).toImage().pixelColor(place.width() / 3, 20);
    };
    QTRY_COMPARE(shown(), QColor(Qt::red));
    QVERIFY(plainPicture({11, 10}, Qt::blue).save(path));
    activate(editor.window);
    QTRY_COMPARE(shown(), QColor(Qt::blue));
}

TARVEL_UI_TEST(PictureRefreshTest)
#include "picture_refresh_test.moc"
