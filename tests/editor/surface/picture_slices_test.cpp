// Decoding in slices: pictures appear one after the other while the window stays alive.
#include "document/element_factory.h"
#include "files/host_files.h"
#include "support/ui_test.h"
#include "surface/pic.h"
#include "surface/picture_cache.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace tarvel;

namespace {

constexpr int pictures = 40;

std::string pictureAt(const QTemporaryDir& folder, int number) {
    const QString file = folder.filePath(QStringLiteral("%1.bmp").arg(number));
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(number * 8, 255, 255));
    image.save(file);
    return documentPath(file.toStdString());
}

} // namespace

class PictureSlicesTest : public QObject {
    Q_OBJECT

  private slots:
    void withoutASliceNothingWaits();
    void aSliceDecodesOneAtLeast();
    void aFileDecodedBeforeNeverWaits();
    void aFileThatChangedWaitsAgain();
    void theSurfaceShowsAllInTheEnd();
};

void PictureSlicesTest::withoutASliceNothingWaits() {
    const QTemporaryDir folder;
    PictureCache cache;
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(cache.stretched(pictureAt(folder, i), {10, 10}).state, Picture::State::ready);
    }
    QVERIFY(!cache.endSlice());
}

void PictureSlicesTest::aSliceDecodesOneAtLeast() {
    const QTemporaryDir folder;
    PictureCache cache;
    const std::string first = pictureAt(folder, 1);
    const std::string second = pictureAt(folder, 2);
    const std::string missing = documentPath("/nowhere/at/all.png");
    cache.beginSlice(0);
    QCOMPARE(cache.stretched(first, {10, 10}).state, Picture::State::ready);
    QCOMPARE(cache.stretched(second, {10, 10}).state, Picture::State::pending);
    QCOMPARE(cache.unscaled(second).state, Picture::State::pending);
    QCOMPARE(cache.unscaled(missing).state, Picture::State::pending);
    QVERIFY(cache.endSlice());
    cache.beginSlice(0);
    QCOMPARE(cache.stretched(first, {10, 10}).state, Picture::State::ready); // is known
    QCOMPARE(cache.stretched(second, {10, 10}).state, Picture::State::ready);
    QVERIFY(!cache.endSlice());
}

void PictureSlicesTest::aFileDecodedBeforeNeverWaits() {
    const QTemporaryDir folder;
    PictureCache cache(300 * 300 * 4); // too small to keep two sources
    const std::string first = pictureAt(folder, 1);
    const std::string second = pictureAt(folder, 2);
    for (int round = 0; round < 3; ++round) {
        cache.beginSlice(0);
        QCOMPARE(cache.stretched(first, {200, 200}).state, Picture::State::ready);
        const bool waits = cache.stretched(second, {200, 200}).state == Picture::State::pending;
        QCOMPARE(waits, round == 0);
        QCOMPARE(cache.endSlice(), waits);
    }
}

void PictureSlicesTest::aFileThatChangedWaitsAgain() {
    const QTemporaryDir folder;
    PictureCache cache;
    const std::string changing = pictureAt(folder, 1);
    (void)cache.stretched(changing, {10, 10}); // decoded outside of any slice
    cache.beginSlice(0);
    QCOMPARE(cache.stretched(changing, {20, 20}).state, Picture::State::ready);
    (void)cache.endSlice();
    QImage(10, 10, QImage::Format_RGB32).save(folder.filePath("1.bmp"));
    QVERIFY(cache.refresh());
    cache.beginSlice(0);
    QCOMPARE(cache.stretched(pictureAt(folder, 2), {10, 10}).state, Picture::State::ready);
    QCOMPARE(cache.stretched(changing, {20, 20}).state, Picture::State::pending);
    QVERIFY(cache.endSlice());
}

void PictureSlicesTest::theSurfaceShowsAllInTheEnd() {
    const QTemporaryDir folder;
    SkinDocument document;
    for (int i = 0; i < pictures; ++i) {
        Element element;
        element.elementKind = ElementKind::Image;
        element.elementControl.kind = ControlKind::img;
        element.elementControl.file = pictureAt(folder, i);
        element.elementControl.left = static_cast<float>(i % 8 * 80);
        element.elementControl.top = static_cast<float>(i / 8 * 90);
        element.elementControl.width = 70;
        element.elementControl.height = 80;
        document.addElement(std::move(element));
    }
    PictureCache cache;
    Pic pic(cache);
    pic.setDocument(&document);
    pic.show();
    const auto shown = [&] {
        const QImage image = pic.grab().toImage();
        int count = 0;
        for (int i = 0; i < pictures; ++i) {
            const QColor color = image.pixelColor(i % 8 * 80 + 35, i / 8 * 90 + 40);
            count += color == QColor::fromHsv(i * 8, 255, 255).toRgb() ? 1 : 0;
        }
        return count;
    };
    QTRY_COMPARE(shown(), pictures);
    pic.setDocument(nullptr);
}

TARVEL_UI_TEST(PictureSlicesTest)
#include "picture_slices_test.moc"
