// The memory that the whole program takes for pictures which are small files and large in memory.
#include "dialogs/frm_resources.h"
#include "dialogs/resource_thumbnails.h"
#include "support/editor.h"
#include "support/jpeg_support.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/picture_cache.h"

#include <QFile>
#include <QProcess>

#include <cstdio>
#include <ctime>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr qint64 megabyte = 1'000'000;
constexpr qint64 largestPeak = 500 * megabyte;
constexpr int patience = 60'000; // milliseconds
constexpr auto childOption = "--show";

void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

// The most memory that this process ever had, in bytes.
qint64 peakOfThisProcess() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        const auto lines = status.readAll().split('\n');
        for (const QByteArray& line : lines) {
            if (line.startsWith("VmHWM:")) {
                return line.simplified().split(' ').at(1).toLongLong() * 1024;
            }
        }
    }
    return -1;
}

// A screen of pictures that are stretched far beyond it, which fills the cache.
void fillCache(Editor& editor, const QString& file) {
    constexpr int vast = 2'890;
    constexpr int screen = 2;
    for (int i = 0; i < 7; ++i) {
        editor.add(imageOf(ControlKind::img, QRectF(0, 0, vast - i, vast), file), screen);
    }
    (void)editor.pic()->grab();
}

// The editor with the pictures on its surface, the last one unscaled as well, and then in the
// resources dialog.
int showAndMeasure(const QStringList& files) {
    Editor editor;
    editor.window.show();
    fillCache(editor, files.front());
    for (const QString& file : files) {
        editor.add(imageOf(ControlKind::img, {10, 10, 200, 150}, file));
        editor.document().addRes(file.toStdString(), documentPath(file.toStdString()));
    }
    editor.add(imageOf(ControlKind::png, {0, 0, 640, 480}, files.back()));
    for (int i = 0; i <= files.size(); ++i) {
        (void)editor.pic()->grab(); // a slice each
    }
    auto* dialog = editor.window.findChild<FrmResources*>();
    dialog->show();
    const bool done = QTest::qWaitFor(
        [&] { return dialog->findChild<ResourceThumbnails*>()->isDone(); }, patience);
    dialog->hide();
    std::printf("%lld\n", done ? peakOfThisProcess() : -1);
    return 0;
}

// The peak of a process of its own, since one that has grown never tells of less again.
qint64 peakOfShowing(const QStringList& files) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                QStringList{QStringLiteral("picture_memory_test"), QLatin1String(childOption)} +
                    files);
    if (!child.waitForFinished(patience)) {
        return -1;
    }
    return child.readAllStandardOutput().trimmed().toLongLong();
}

QImage greyPicture(QSize size) {
    QImage image(size, QImage::Format_Grayscale8);
    image.fill(90);
    return image;
}

QImage coloredPicture(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

} // namespace

class PictureMemoryTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void peakStaysLow_data();
    void peakStaysLow();
    void jpegsAreRefusedByTheirPixels_data();
    void jpegsAreRefusedByTheirPixels();
    void largestClaimIsRefusedAtOnce();
    void largeDecodingsMakeTheirRoom();

  private:
    PictureFolder folder_;
    QString small_;
};

void PictureMemoryTest::initTestCase() {
    small_ = folder_.save(coloredPicture({64, 64}), "small.png");
}

void PictureMemoryTest::peakStaysLow_data() {
    QTest::addColumn<QString>("name");
    const QByteArray grey = jpegBytes(greyPicture({64, 64}), true);
    const QByteArray colored = jpegBytes(coloredPicture({64, 64}), true);
    writeBytes(folder_.path("grey.jpg"), claimingSize(grey, 20'000, 20'000));
    writeBytes(folder_.path("colored.jpg"), claimingSize(colored, 14'000, 14'000));
    writeBytes(folder_.path("allowed.jpg"), claimingSize(colored, 6'144, 6'144));
    writeBytes(folder_.path("fourcolors.jpg"),
               claimingSize(withFourWholeColors(colored), 6'144, 6'144));
    writeBytes(folder_.path("allowedgrey.jpg"), claimingSize(grey, 12'288, 12'288));
    const QByteArray rows = jpegBytes(coloredPicture({64, 64}), false);
    writeBytes(folder_.path("widest.jpg"), claimingSize(rows, 65'000, 65'000));
    QFile nothing(folder_.path("nothing.png"));
    QVERIFY(nothing.open(QIODevice::WriteOnly));
    QVERIFY(nothing.resize(250 * megabyte));
    QVERIFY(QFile::copy(folder_.save(coloredPicture({8'192, 8'192}), "vast.png"),
                        folder_.path("vast2.png")));
    (void)folder_.save(greyPicture({8'192, 8'192}), "vastgrey.png");
    QTest::newRow("refused") << "grey.jpg colored.jpg nothing.png";
    QTest::newRow("JPEG in passes that is shown") << "allowed.jpg";
    QTest::newRow("JPEG in passes with four colours that is shown") << "fourcolors.jpg";
    QTest::newRow("grey JPEG in passes that is shown") << "allowedgrey.jpg";
    QTest::newRow("JPEG by rows") << "widest.jpg";
    QTest::newRow("no picture") << "nothing.png";
    QTest::newRow("two large PNG") << "vast.png vast2.png";
    QTest::newRow("large grey PNG") << "vastgrey.png";
}

void PictureMemoryTest::peakStaysLow() {
#ifdef TARVEL_SANITIZED
    QSKIP("the sanitizer keeps what is freed, and its own figures");
#endif
    QFETCH(QString, name);
    QStringList files{small_};
    const auto names = name.split(' ');
    for (const QString& file : names) {
        files << folder_.path(file);
    }
    const qint64 peak = peakOfShowing(files);
    QVERIFY(peak > 0);
    QVERIFY2(peak < largestPeak, qPrintable(QStringLiteral("%1 MB").arg(peak / megabyte)));
}

void PictureMemoryTest::jpegsAreRefusedByTheirPixels_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("passes");
    QTest::addColumn<bool>("grey");
    QTest::addColumn<bool>("refused");
    constexpr int side = 6'144;
    static_assert(qint64{side} * side == largestJpeg);
    const auto row = [](const char* name, QSize size, bool passes, bool grey, bool refused) {
        QTest::newRow(name) << size << passes << grey << refused;
    };
    row("in passes", {5'000, 5'000}, true, false, false);
    row("the most in passes", {side, side}, true, false, false);
    row("the most by rows", {side, side}, false, false, false);
    row("a column more in passes", {side + 1, side}, true, false, true);
    row("a row more by rows", {side, side + 1}, false, false, true);
    row("far too large in passes", {14'000, 14'000}, true, false, true);
    row("as large by rows", {14'000, 14'000}, false, false, true);
    row("the most grey in passes", {2 * side, 2 * side}, true, true, false);
    row("a column more, grey", {2 * side + 1, 2 * side}, true, true, true);
}

void PictureMemoryTest::jpegsAreRefusedByTheirPixels() {
    QFETCH(QSize, size);
    QFETCH(bool, passes);
    QFETCH(bool, grey);
    QFETCH(bool, refused);
    const QString path = folder_.path("pixels.jpg");
    const QImage image = grey ? greyPicture({640, 640}) : coloredPicture({640, 640});
    writeBytes(path, claimingSize(jpegBytes(image, passes), size.width(), size.height()));
    PictureCache cache;
    const std::string file = documentPath(path.toStdString());
    const QString problem = refused ? "too large" : "";
    QCOMPARE(cache.stretched(file, {20, 20}).problem, problem);
    QCOMPARE(cache.unscaled(file).problem, problem);
    QCOMPARE(cache.pictureSize(file), size);
}

void PictureMemoryTest::largestClaimIsRefusedAtOnce() {
    const QString path = folder_.path("claim.jpg");
    writeBytes(path, claimingSize(jpegBytes(coloredPicture({64, 64}), false), 65'500, 65'500));
    const std::string file = documentPath(path.toStdString());
    PictureCache cache;
    const std::clock_t start = std::clock(); // other work on the machine does not count
    QCOMPARE(cache.stretched(file, {20, 20}).problem, "too large");
    QCOMPARE(cache.unscaled(file).problem, "too large");
    QVERIFY(std::clock() - start < CLOCKS_PER_SEC / 10);
}

void PictureMemoryTest::largeDecodingsMakeTheirRoom() {
    PictureCache cache;
    const std::string small = documentPath(small_.toStdString());
    for (int i = 0; i < 7; ++i) {
        (void)cache.stretched(small, {2'800 + i, 2'800});
    }
    (void)cache.stretched(small, {40, 30}); // used last, and small
    const qsizetype before = cache.bytes();
    QVERIFY(before > 150 * megabyte);
    const std::string vast = documentPath(folder_.path("vast.png").toStdString());
    QVERIFY(cache.stretched(vast, {100, 100}).state == Picture::State::ready);
    QVERIFY(cache.bytes() < before);
    QVERIFY(QFile::rename(small_, small_ + ".away"));
    QVERIFY(cache.stretched(small, {40, 30}).state == Picture::State::ready);
    QVERIFY(QFile::rename(small_ + ".away", small_));
}

// The child takes the option in the place of options of the test.
static const tarvel::test::UiTestEntry registered(__FILE__, [](const QStringList& arguments) {
    if (arguments.value(1) == QLatin1String(childOption)) {
        return showAndMeasure(arguments.mid(2));
    }
    PictureMemoryTest test;
    return QTest::qExec(&test, arguments);
});

#include "picture_memory_test.moc"
