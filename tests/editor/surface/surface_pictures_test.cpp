// Pictures, videos, menus and the background when a screen is painted.
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/picture_cache.h"
#include "surface/surface_painter.h"
#include "surface/video_frames.h"

#include <QTest>

#include <cstdlib>
#include <map>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr QRect place(20, 30, 100, 60);

// Frames and problems by element id.
class ScriptedFrames : public VideoFrames {
  public:
    [[nodiscard]] QImage frame(int elementId) const override {
        const auto found = frames.find(elementId);
        return found == frames.end() ? QImage() : found->second;
    }
    [[nodiscard]] QString problem(int elementId) const override {
        const auto found = problems.find(elementId);
        return found == problems.end() ? QString() : found->second;
    }

    std::map<int, QImage> frames;
    std::map<int, QString> problems;
};

SkinDocument documentOf(Element element) {
    SkinDocument document;
    document.addElement(std::move(element));
    return document;
}

QImage withPicture(const QRect& rect, const QImage& picture) {
    QImage image = blackSurface();
    QPainter(&image).drawImage(
        rect, picture.scaled(rect.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return image;
}

// Stretching mixes colours, and rounds them differently with and without transparency.
bool isNearly(const QImage& image, const QImage& expected) {
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const QRgb a = image.pixel(x, y);
            const QRgb b = expected.pixel(x, y);
            if (std::abs(qRed(a) - qRed(b)) > 2 || std::abs(qGreen(a) - qGreen(b)) > 2 ||
                std::abs(qBlue(a) - qBlue(b)) > 2) {
                return false;
            }
        }
    }
    return image.size() == expected.size();
}

int countOf(const QImage& image, const QRect& part, const QColor& color) {
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

// A frame all around, in the same colour, and lines that cross in the middle.
bool isCrossedFrame(const QImage& image, const QRect& rect) {
    const QColor edge = image.pixelColor(rect.topLeft());
    const QColor ground = image.pixelColor(rect.left() + 2, rect.center().y());
    return edge.lightness() > 120 && ground.lightness() < 60 &&
           countOf(image, {rect.left(), rect.top(), rect.width(), 1}, edge) == rect.width() &&
           countOf(image, {rect.left(), rect.bottom(), rect.width(), 1}, edge) == rect.width() &&
           countOf(image, {rect.left(), rect.top(), 1, rect.height()}, edge) == rect.height() &&
           countOf(image, {rect.right(), rect.top(), 1, rect.height()}, edge) == rect.height() &&
           image.pixelColor(rect.left() + 3, rect.top() + 2).lightness() > ground.lightness();
}

} // namespace

class SurfacePicturesTest : public QObject {
    Q_OBJECT

  private slots:
    void init() { pictures_.clear(); }
    void pictureIsStretched_data();
    void pictureIsStretched();
    void pictureIsSharpOnFinerDisplays();
    void pngIsNotStretched();
    void pngIsCutAtItsElement();
    void pngKeepsItsTransparency();
    void farReachingPicturesShowTheirRightPart();
    void menuShowsTheGameList();
    void programShowsTheIcon();
    void fileOutsideTheSkinIsNotOpened();
    void pictureThatCannotBeShown_data();
    void pictureThatCannotBeShown();
    void crossedFrameNamesFileAndReason();
    void smallCrossedFrameHasNoText();
    void videoShowsItsFrame();
    void videoWithoutFrameIsAnEmptyPlace();
    void videoWithProblemIsACrossedFrame();
    void backgroundIsBehindEveryScreen();
    void unloadedBackgroundIsNotShown();
    void missingBackgroundIsACrossedFrame();

  private:
    PictureFolder folder_;
    PictureCache pictures_;
    SurfacePainter surface_{pictures_};
};

void SurfacePicturesTest::pictureIsStretched_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("bmp") << "a.bmp";
    QTest::newRow("jpg") << "a.jpg";
    QTest::newRow("jpeg by another name") << "a.jpeg";
    QTest::newRow("png on an img control") << "a.png";
}

void SurfacePicturesTest::pictureIsStretched() {
    QFETCH(QString, name);
    const QString path = folder_.save(halvesPicture({40, 30}, Qt::red, Qt::blue), name);
    const SkinDocument document = documentOf(imageOf(ControlKind::img, place, path));
    QVERIFY(isNearly(painted(surface_, document), withPicture(place, QImage(path))));
}

void SurfacePicturesTest::pictureIsSharpOnFinerDisplays() {
    const QString path = folder_.save(halvesPicture({200, 120}, Qt::red, Qt::blue), "fine.bmp");
    const QImage image =
        painted(surface_, documentOf(imageOf(ControlKind::img, place, path)), 1, 2);
    // Twice the place is the picture's own size, so not a pixel is mixed.
    QCOMPARE(image.copy(40, 60, 200, 120), QImage(path).convertToFormat(QImage::Format_RGB32));
}

void SurfacePicturesTest::pngIsNotStretched() {
    const QString path = folder_.save(halvesPicture({40, 30}, Qt::red, Qt::blue), "small.png");
    const QImage image = painted(surface_, documentOf(imageOf(ControlKind::png, place, path)));
    QCOMPARE(image, withPicture({20, 30, 40, 30}, QImage(path)));
}

void SurfacePicturesTest::pngIsCutAtItsElement() {
    const QString path = folder_.save(halvesPicture({400, 300}, Qt::red, Qt::blue), "large.png");
    const QImage image = painted(surface_, documentOf(imageOf(ControlKind::png, place, path)));
    QImage expected = blackSurface();
    QPainter(&expected).fillRect(place, Qt::red);
    QCOMPARE(image, expected);
}

void SurfacePicturesTest::pngKeepsItsTransparency() {
    const QString path = folder_.save(
        halvesPicture({100, 60}, QColor(0, 255, 0, 128), Qt::transparent), "glass.png");
    SkinDocument document = documentOf(boxOf(place, red));
    document.addElement(imageOf(ControlKind::png, place, path));
    QImage expected = blackSurface();
    QPainter painter(&expected);
    painter.fillRect(place, Qt::red);
    painter.fillRect(QRect(20, 30, 50, 60), QColor(0, 255, 0, 128));
    painter.end();
    QCOMPARE(painted(surface_, document), expected);
}

void SurfacePicturesTest::farReachingPicturesShowTheirRightPart() {
    const QString path = folder_.save(halvesPicture({8'000, 3}, Qt::red, Qt::blue), "far.bmp");
    // The border between the colours lies at the middle of the element.
    const QImage image =
        painted(surface_,
                documentOf(imageOf(ControlKind::img, {-49'900, -50'000, 100'000, 100'000}, path)));
    QCOMPARE(image.pixelColor(30, 200), QColor(Qt::red));
    QCOMPARE(image.pixelColor(600, 200), QColor(Qt::blue));

    const QString wide = folder_.save(halvesPicture({10'000, 20}, Qt::red, Qt::blue), "wide.png");
    const QImage unscaled =
        painted(surface_, documentOf(imageOf(ControlKind::png, {-3'900, 0, 20'000, 480}, wide)));
    QCOMPARE(unscaled.pixelColor(100, 10), QColor(Qt::red));
}

void SurfacePicturesTest::menuShowsTheGameList() {
    const QImage list(":/tarvel/gamelist.png");
    QVERIFY(!list.isNull());
    const QRect rect(50, 60, 400, 240);
    QCOMPARE(painted(surface_, documentOf(menuOf(rect))), withPicture(rect, list));
}

void SurfacePicturesTest::programShowsTheIcon() {
    const QImage icon(":/tarvel/imgCustom.png");
    QVERIFY(!icon.isNull());
    Element element = imageOf(ControlKind::img, place, "/nowhere/default.xbe");
    element.elementControl.picture = PictureContent::programIcon;
    QCOMPARE(painted(surface_, documentOf(element)), withPicture(place, icon));
}

void SurfacePicturesTest::fileOutsideTheSkinIsNotOpened() {
    const QString path = folder_.save(plainPicture({40, 30}, Qt::red), "outside.bmp");
    Element element = imageOf(ControlKind::img, place, path);
    element.elementControl.picture = PictureContent::barred;
    const QImage image = painted(surface_, documentOf(element));
    QVERIFY(isCrossedFrame(image, place));
    QCOMPARE(pictures_.bytes(), 0);
}

void SurfacePicturesTest::pictureThatCannotBeShown_data() {
    QTest::addColumn<ControlKind>("control");
    QTest::addColumn<QString>("path");
    const QString text = folder_.path("text.jpg");
    QFile file(text);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no picture at all");
    QTest::newRow("missing picture") << ControlKind::img << folder_.path("none.jpg");
    QTest::newRow("missing png") << ControlKind::png << folder_.path("none.png");
    QTest::newRow("no picture") << ControlKind::img << text;
    QTest::newRow("folder") << ControlKind::img << folder_.path("");
    QTest::newRow("no name") << ControlKind::img << QString();
}

void SurfacePicturesTest::pictureThatCannotBeShown() {
    QFETCH(ControlKind, control);
    QFETCH(QString, path);
    const QImage image = painted(surface_, documentOf(imageOf(control, place, path)));
    QVERIFY(isCrossedFrame(image, place));
    QImage outside = image;
    QPainter(&outside).fillRect(place, Qt::black);
    QCOMPARE(outside, blackSurface());
}

void SurfacePicturesTest::crossedFrameNamesFileAndReason() {
    const auto shown = [&](const QString& path, PictureContent content) {
        Element element = imageOf(ControlKind::img, place, path);
        element.elementControl.picture = content;
        return painted(surface_, documentOf(element));
    };
    const QImage image = shown("/nowhere/one.jpg", PictureContent::file);
    QVERIFY(image != shown("/nowhere/other.jpg", PictureContent::file));
    QVERIFY(image != shown("/nowhere/one.jpg", PictureContent::barred));
    // The name without its folder.
    QCOMPARE(image, shown("/elsewhere/one.jpg", PictureContent::file));
    // A name too long for its element is shortened and stays inside, even where it is not drawn
    // over.
    const QImage longName = shown("/nowhere/" + QString(200, 'w') + ".jpg", PictureContent::file);
    QCOMPARE(longName.copy(121, 0, 519, 480), blackSurface().copy(121, 0, 519, 480));
    QVERIFY(isCrossedFrame(longName, place));
}

void SurfacePicturesTest::smallCrossedFrameHasNoText() {
    const auto shown = [&](const QString& path) {
        return painted(surface_, documentOf(imageOf(ControlKind::img, {20, 30, 18, 12}, path)));
    };
    QCOMPARE(shown("/nowhere/one.jpg"), shown("/nowhere/other.jpg"));
    QVERIFY(isCrossedFrame(shown("/nowhere/one.jpg"), {20, 30, 18, 12}));
}

void SurfacePicturesTest::videoShowsItsFrame() {
    ScriptedFrames frames;
    const QImage frame = halvesPicture({100, 60}, Qt::red, Qt::blue);
    frames.frames[1] = frame;
    surface_.setVideoFrames(&frames);
    const SkinDocument document = documentOf(imageOf(ControlKind::vid, place, "film.wmv"));
    QCOMPARE(painted(surface_, document), withPicture(place, frame));
    frames.frames[1] = halvesPicture({10, 6}, Qt::green, Qt::green);
    QCOMPARE(painted(surface_, document).pixelColor(119, 89), QColor(Qt::green));
    surface_.setVideoFrames(nullptr);
}

void SurfacePicturesTest::videoWithoutFrameIsAnEmptyPlace() {
    const SkinDocument document = documentOf(imageOf(ControlKind::vid, place, "film.wmv"));
    const QImage image = painted(surface_, document);
    QVERIFY(!isCrossedFrame(image, place));
    QVERIFY(image != blackSurface());
}

void SurfacePicturesTest::videoWithProblemIsACrossedFrame() {
    ScriptedFrames frames;
    frames.frames[1] = plainPicture({10, 10}, Qt::red);
    frames.problems[1] = "no codec";
    surface_.setVideoFrames(&frames);
    const SkinDocument document = documentOf(imageOf(ControlKind::vid, place, "film.wmv"));
    QVERIFY(isCrossedFrame(painted(surface_, document), place));
    surface_.setVideoFrames(nullptr);
}

void SurfacePicturesTest::backgroundIsBehindEveryScreen() {
    const QString path = folder_.save(halvesPicture({64, 48}, Qt::red, Qt::blue), "ground.bmp");
    SkinDocument document = documentOf(boxOf(place, green));
    document.editSettings([&](SkinSettings& settings) {
        settings.background = {true, documentPath(path.toStdString())};
    });
    QImage expected = withPicture({0, 0, 640, 480}, QImage(path));
    QCOMPARE(painted(surface_, document, 5), expected);
    QPainter(&expected).fillRect(place, Qt::green);
    QCOMPARE(painted(surface_, document, 1), expected);
}

void SurfacePicturesTest::unloadedBackgroundIsNotShown() {
    const QString path = folder_.save(plainPicture({64, 48}, Qt::red), "unloaded.bmp");
    SkinDocument document;
    document.editSettings([&](SkinSettings& settings) {
        settings.background = {false, documentPath(path.toStdString())};
    });
    QCOMPARE(painted(surface_, document), blackSurface());
}

void SurfacePicturesTest::missingBackgroundIsACrossedFrame() {
    SkinDocument document;
    document.editSettings([](SkinSettings& settings) {
        settings.background = {true, "\\nowhere\\ground.jpg"};
    });
    QVERIFY(isCrossedFrame(painted(surface_, document), {0, 0, 640, 480}));
}

TARVEL_UI_TEST(SurfacePicturesTest)
#include "surface_pictures_test.moc"
