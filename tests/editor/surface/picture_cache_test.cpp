// What the picture cache decodes, refuses, keeps and forgets.
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/picture_cache.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>

using namespace tarvel;
using namespace tarvel::test;

namespace {

std::string asDocumentPath(const QString& path) {
    return documentPath(path.toStdString());
}

void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

// A bitmap that claims to have so many pixels and holds none.
QByteArray bitmapHeader(qint32 width, qint32 height) {
    QByteArray bytes = QByteArray::fromHex("424d36000000000000003600000028000000");
    const auto number = [&](qint32 value) {
        for (int shift = 0; shift < 32; shift += 8) {
            bytes.append(static_cast<char>(value >> shift & 0xFF));
        }
    };
    number(width);
    number(height);
    bytes.append(QByteArray::fromHex("01001800"));
    bytes.append(QByteArray(24, '\0'));
    return bytes;
}

} // namespace

class PictureCacheTest : public QObject {
    Q_OBJECT

  private slots:
    void stretchesToTheSizeWanted();
    void leavesUnscaledPicturesAlone();
    void tellsThePicturesOwnSize();
    void findsFilesInAnyLetterCase();
    void readsPicturesByTheirContent();
    void readsPicturesOfTheProgram();
    void tellsWhyThereIsNoPicture_data();
    void tellsWhyThereIsNoPicture();
    void keepsWhatItDecoded();
    void forgetsWhenCleared();
    void staysWithinItsMemory();
    void worksWithoutAnyMemory();
    void shrinksLargeJpegPictures();
    void keepsTheCornerOfLargeUnscaledPictures();
    void vastSizesAreLeftToTheCaller();

  private:
    PictureFolder folder_;
};

void PictureCacheTest::stretchesToTheSizeWanted() {
    PictureCache cache;
    const QString path = folder_.save(plainPicture({10, 10}, Qt::red), "a.bmp");
    const Picture picture = cache.stretched(asDocumentPath(path), {200, 7});
    QVERIFY(picture.state == Picture::State::ready);
    QCOMPARE(picture.image.size(), QSize(200, 7));
    QCOMPARE(picture.image.format(), QImage::Format_RGB32);
    QCOMPARE(picture.image.pixelColor(199, 6), QColor(Qt::red));
    QVERIFY(picture.problem.isEmpty());
}

void PictureCacheTest::leavesUnscaledPicturesAlone() {
    PictureCache cache;
    QImage image = plainPicture({30, 20}, QColor(0, 0, 255, 100));
    image.setDotsPerMeterX(20'000);
    image.setDotsPerMeterY(20'000);
    const QString path = folder_.save(image, "b.png");
    const Picture picture = cache.unscaled(asDocumentPath(path));
    QCOMPARE(picture.image.size(), QSize(30, 20));
    QCOMPARE(picture.image.format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(picture.image.devicePixelRatio(), 1.0);
    QCOMPARE(picture.image.pixelColor(3, 3).alpha(), 100);
}

void PictureCacheTest::tellsThePicturesOwnSize() {
    PictureCache cache;
    const QString path = folder_.save(plainPicture({31, 21}, Qt::red), "c.png");
    QCOMPARE(cache.pictureSize(asDocumentPath(path)), QSize(31, 21));
    QVERIFY(cache.pictureSize("\\nowhere\\c.png").isEmpty());
}

void PictureCacheTest::findsFilesInAnyLetterCase() {
    PictureCache cache;
    (void)folder_.save(plainPicture({5, 5}, Qt::red), "Mixed Case.bmp");
    const QString path = folder_.path("mIXED cASE.BMP");
    QVERIFY(cache.unscaled(asDocumentPath(path)).state == Picture::State::ready);
}

void PictureCacheTest::readsPicturesByTheirContent() {
    PictureCache cache;
    const QString png = folder_.save(plainPicture({5, 5}, Qt::red), "real.png");
    const QString path = folder_.path("called.jpg");
    QVERIFY(QFile::copy(png, path));
    QVERIFY(cache.stretched(asDocumentPath(path), {5, 5}).state == Picture::State::ready);
}

void PictureCacheTest::readsPicturesOfTheProgram() {
    PictureCache cache;
    QVERIFY(cache.unscaled(":/tarvel/gamelist.png").state == Picture::State::ready);
    QCOMPARE(cache.unscaled(":/tarvel/no such.png").problem, "not found");
}

void PictureCacheTest::tellsWhyThereIsNoPicture_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("problem");
    QTest::newRow("missing") << folder_.path("none.bmp") << "not found";
    QTest::newRow("no name") << ""
                             << "not found";
    QTest::newRow("folder missing") << folder_.path("none/none.bmp") << "not found";
    QDir().mkpath(folder_.path("folder.bmp"));
    QTest::newRow("folder") << folder_.path("folder.bmp") << "not readable";
    QCOMPARE(::mkfifo(folder_.path("pipe.bmp").toLocal8Bit().constData(), 0600), 0);
    QTest::newRow("pipe") << folder_.path("pipe.bmp") << "not readable";
    writeBytes(folder_.path("text.bmp"), "nothing like a picture");
    QTest::newRow("text") << folder_.path("text.bmp") << "not a picture";
    writeBytes(folder_.path("empty.bmp"), "");
    QTest::newRow("empty") << folder_.path("empty.bmp") << "not a picture";
    QFile whole(folder_.save(halvesPicture({300, 300}, Qt::red, Qt::blue), "whole.png"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    writeBytes(folder_.path("half.png"), whole.read(whole.size() / 2));
    QTest::newRow("half a file") << folder_.path("half.png") << "damaged";
    writeBytes(folder_.path("vast.bmp"), bitmapHeader(16'000, 16'000));
    QTest::newRow("vast") << folder_.path("vast.bmp") << "too large";
}

void PictureCacheTest::tellsWhyThereIsNoPicture() {
    QFETCH(QString, path);
    QFETCH(QString, problem);
    PictureCache cache;
    const std::string file = path.isEmpty() ? std::string() : asDocumentPath(path);
    for (int time = 0; time < 2; ++time) {
        QCOMPARE(cache.stretched(file, {10, 10}).problem, problem);
        QCOMPARE(cache.unscaled(file).problem, problem);
        QVERIFY(cache.stretched(file, {10, 10}).state == Picture::State::failed);
        QVERIFY(cache.stretched(file, {10, 10}).image.isNull());
    }
}

void PictureCacheTest::keepsWhatItDecoded() {
    PictureCache cache;
    const QString path = folder_.save(plainPicture({10, 10}, Qt::red), "kept.bmp");
    const std::string file = asDocumentPath(path);
    (void)cache.stretched(file, {20, 20});
    (void)cache.unscaled(file);
    QVERIFY(QFile::remove(path));
    QVERIFY(cache.stretched(file, {20, 20}).state == Picture::State::ready);
    QVERIFY(cache.unscaled(file).state == Picture::State::ready);
    // Another size needs no file either, as while an element is being resized.
    QVERIFY(cache.stretched(file, {21, 20}).state == Picture::State::ready);
}

void PictureCacheTest::forgetsWhenCleared() {
    PictureCache cache;
    const QString path = folder_.save(plainPicture({10, 10}, Qt::red), "cleared.bmp");
    const std::string file = asDocumentPath(path);
    (void)cache.stretched(file, {20, 20});
    QVERIFY(cache.bytes() > 0);
    QVERIFY(QFile::remove(path));
    cache.clear();
    QCOMPARE(cache.bytes(), 0);
    QCOMPARE(cache.stretched(file, {20, 20}).problem, "not found");
    cache.clear();
    (void)folder_.save(plainPicture({10, 10}, Qt::blue), "cleared.bmp");
    QCOMPARE(cache.stretched(file, {20, 20}).image.pixelColor(0, 0), QColor(Qt::blue));
}

void PictureCacheTest::staysWithinItsMemory() {
    constexpr qsizetype bound = 1'000'000;
    PictureCache cache(bound);
    const QString path = folder_.save(plainPicture({10, 10}, Qt::red), "many.bmp");
    const std::string file = asDocumentPath(path);
    for (int width = 1; width <= 300; ++width) {
        QCOMPARE(cache.stretched(file, {width, 200}).image.size(), QSize(width, 200));
        QVERIFY(cache.bytes() <= bound);
    }
}

void PictureCacheTest::worksWithoutAnyMemory() {
    PictureCache cache(0);
    const QString path = folder_.save(plainPicture({10, 10}, Qt::red), "none kept.bmp");
    for (int time = 0; time < 2; ++time) {
        QCOMPARE(cache.stretched(asDocumentPath(path), {30, 40}).image.size(), QSize(30, 40));
        QCOMPARE(cache.unscaled(asDocumentPath(path)).image.size(), QSize(10, 10));
        QCOMPARE(cache.bytes(), 0);
    }
}

void PictureCacheTest::shrinksLargeJpegPictures() {
    PictureCache cache;
    QImage image(9'000, 8'000, QImage::Format_Grayscale8); // 72 million pixels
    image.fill(200);
    const QString path = folder_.save(image, "large.jpg");
    const Picture picture = cache.stretched(asDocumentPath(path), {64, 48});
    QVERIFY(picture.state == Picture::State::ready);
    QCOMPARE(picture.image.size(), QSize(64, 48));
    QVERIFY(cache.bytes() < 40'000'000);
    QCOMPARE(cache.pictureSize(asDocumentPath(path)), QSize(9'000, 8'000));
}

void PictureCacheTest::keepsTheCornerOfLargeUnscaledPictures() {
    PictureCache cache;
    QImage image(9'000, 50, QImage::Format_Grayscale8);
    image.fill(200);
    const QString path = folder_.save(image, "wide.png");
    QCOMPARE(cache.unscaled(asDocumentPath(path)).image.size(), QSize(4096, 50));
}

void PictureCacheTest::vastSizesAreLeftToTheCaller() {
    PictureCache cache;
    const QString path = folder_.save(plainPicture({10, 10}, Qt::red), "vast.bmp");
    const Picture picture = cache.stretched(asDocumentPath(path), {1'000'000, 1'000'000});
    QVERIFY(picture.state == Picture::State::ready);
    QCOMPARE(picture.image.size(), QSize(10, 10));
    // The largest that is kept, and one row more.
    QCOMPARE(cache.stretched(asDocumentPath(path), {4096, 2048}).image.size(), QSize(4096, 2048));
    const qsizetype before = cache.bytes();
    QCOMPARE(cache.stretched(asDocumentPath(path), {4096, 2049}).image.size(), QSize(10, 10));
    QCOMPARE(cache.bytes(), before);
}

TARVEL_UI_TEST(PictureCacheTest)
#include "picture_cache_test.moc"
