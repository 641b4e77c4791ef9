// The memory that the whole program takes for pictures which are small files and large in memory.
#include "dialogs/frm_resources.h"
#include "dialogs/resource_thumbnails.h"
#include "support/editor.h"
#include "support/jpeg_support.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/jpeg_passes.h"
#include "surface/picture_cache.h"

#include <QFile>
#include <QProcess>

#include <cstdio>

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
    void picturesInPassesAreRefusedByTheirMemory_data();
    void picturesInPassesAreRefusedByTheirMemory();
    void largeDecodingsMakeTheirRoom();
    void passesAreCounted();
    void partOfTheColoursMeansPasses();

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
    writeBytes(folder_.path("allowed.jpg"), claimingSize(colored, 9'000, 8'000));
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
    QTest::newRow("JPEG by rows") << "widest.jpg";
    QTest::newRow("no picture") << "nothing.png";
    QTest::newRow("two large PNG") << "vast.png vast2.png";
    QTest::newRow("large grey PNG") << "vastgrey.png";
}

void PictureMemoryTest::peakStaysLow() {
#ifdef __SANITIZE_ADDRESS__
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

void PictureMemoryTest::picturesInPassesAreRefusedByTheirMemory_data() {
    QTest::addColumn<int>("side");
    QTest::addColumn<bool>("passes");
    QTest::addColumn<QString>("problem");
    QTest::newRow("in passes") << 5'000 << true << "";
    QTest::newRow("far too large in passes") << 14'000 << true << "too large";
    QTest::newRow("as large by rows") << 14'000 << false << "";
}

void PictureMemoryTest::picturesInPassesAreRefusedByTheirMemory() {
    QFETCH(int, side);
    QFETCH(bool, passes);
    QFETCH(QString, problem);
    const QString path = folder_.path("passes.jpg");
    writeBytes(path, claimingSize(jpegBytes(coloredPicture({640, 640}), passes), side, side));
    PictureCache cache;
    const std::string file = documentPath(path.toStdString());
    QCOMPARE(cache.stretched(file, {20, 20}).problem, problem);
    QCOMPARE(cache.pictureSize(file), QSize(side, side));
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

void PictureMemoryTest::passesAreCounted() {
    const auto counted = [](const QByteArray& bytes) {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        const qint64 result = jpegPassesBytes(buffer);
        return buffer.pos() == 0 ? result : -1;
    };
    QCOMPARE(counted(jpegBytes(greyPicture({640, 480}), false)), 0);
    QCOMPARE(counted(jpegBytes(greyPicture({640, 480}), true)), 640 * 480 * 2);
    QCOMPARE(counted(jpegBytes(greyPicture({641, 481}), true)), 648 * 488 * 2);
    const qint64 colored = counted(jpegBytes(coloredPicture({640, 480}), true));
    QVERIFY(colored >= 640 * 480 * 3 && colored <= 640 * 480 * 6);
    QCOMPARE(counted("nothing like a picture"), 0);
    QCOMPARE(counted({}), 0);
    const QByteArray whole = jpegBytes(coloredPicture({640, 480}), true);
    for (int size = 0; size < 700; ++size) {
        QVERIFY(counted(whole.left(size)) >= 0);
    }
}

void PictureMemoryTest::partOfTheColoursMeansPasses() {
    // Three colours in the frame, of 16 by 8 pixels; one of them in the first pass.
    QBuffer buffer;
    buffer.setData(QByteArray::fromHex("ffd8 ffc0 0011 08 0008 0010 03 011100 021101 031101"
                                       "ffda 0008 01 0100 003f00"));
    buffer.open(QIODevice::ReadOnly);
    QCOMPARE(jpegPassesBytes(buffer), 16 * 8 * 3 * 2);
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
