// The PNG view control and the picture window.
#include "dialogs/frm_pic.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "widgets/png_view.h"

#include <QFile>
#include <QTest>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// What a decoder was asked for.
struct Record {
    QStringList loaded;
    QList<QPoint> drawn;
};

class RecordingDecoder : public PngDecoder {
  public:
    explicit RecordingDecoder(Record& record)
        : record_(record) {}

    void load(const QString& path) override { record_.loaded << path; }
    void draw(QPainter& /*painter*/, int x, int y) override { record_.drawn << QPoint(x, y); }

  private:
    Record& record_;
};

// A view on a white window, as it looks.
class ViewOnWindow {
  public:
    explicit ViewOnWindow(QSize size) {
        window_.setFixedSize(120, 100);
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        window_.setPalette(palette);
        view.setGeometry(QRect(QPoint(10, 10), size));
    }
    QImage look() { return window_.grab().toImage().convertToFormat(QImage::Format_RGB32); }

  private:
    QWidget window_;

  public:
    PngView view{&window_};
};

QImage whiteWindow() {
    QImage image(120, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

} // namespace

class PngViewTest : public QObject {
    Q_OBJECT

  private slots:
    void newControlHasNoFile();
    void fileIsLoadedOnceForEachNewPath();
    void paintingDoesNotLoadAgain();
    void resizingDoesNothingOfItsOwn();
    void emptyPathDrawsNothing();
    void pictureIsDrawnWithItsTransparency();
    void largePictureIsCutAtTheControlsEdges();
    void picturesOfOtherFormatsShowNothing();
    void unreadableFileShowsNothing();
    void windowHoldsTheControl();
    void clickPaintsThePictureAgain();

  private:
    PictureFolder folder_;
};

void PngViewTest::newControlHasNoFile() {
    Record record;
    PngView view(nullptr, std::make_unique<RecordingDecoder>(record));
    QCOMPARE(view.getfile(), QString());
    view.grab();
    QVERIFY(record.loaded.isEmpty());
    QVERIFY(record.drawn.isEmpty());
}

void PngViewTest::fileIsLoadedOnceForEachNewPath() {
    Record record;
    PngView view(nullptr, std::make_unique<RecordingDecoder>(record));
    view.setFile("a.png");
    view.setFile("a.png");
    QCOMPARE(record.loaded, QStringList{"a.png"});
    QCOMPARE(view.getfile(), "a.png");
    view.setFile("b.png");
    view.setFile("a.png");
    QCOMPARE(record.loaded, (QStringList{"a.png", "b.png", "a.png"}));
    QCOMPARE(view.getfile(), "a.png");
}

void PngViewTest::paintingDoesNotLoadAgain() {
    Record record;
    PngView view(nullptr, std::make_unique<RecordingDecoder>(record));
    view.setFile("a.png");
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTRY_VERIFY(!record.drawn.isEmpty());
    const auto before = record.drawn.size();
    view.repaint();
    QCOMPARE(record.drawn.size(), before + 1);
    QCOMPARE(record.drawn.count(QPoint(0, 0)), record.drawn.size());
    QCOMPARE(record.loaded.size(), 1);
    // The same file again is not even drawn again.
    view.setFile("a.png");
    QCoreApplication::processEvents();
    QCOMPARE(record.drawn.size(), before + 1);
    view.setFile("b.png");
    QTRY_COMPARE(record.drawn.size(), before + 2);
}

void PngViewTest::resizingDoesNothingOfItsOwn() {
    ViewOnWindow small({30, 20});
    const QString path = folder_.save(plainPicture({40, 40}, Qt::red), "resized.png");
    small.view.setFile(path);
    small.view.resize(25, 15);
    QImage expected = whiteWindow();
    QPainter(&expected).fillRect(10, 10, 25, 15, Qt::red);
    QCOMPARE(small.look(), expected);
}

void PngViewTest::emptyPathDrawsNothing() {
    ViewOnWindow window({50, 50});
    window.view.setFile(folder_.save(plainPicture({40, 40}, Qt::red), "shown.png"));
    QVERIFY(window.look() != whiteWindow());
    window.view.setFile("");
    QCOMPARE(window.view.getfile(), QString());
    QCOMPARE(window.look(), whiteWindow());
}

void PngViewTest::pictureIsDrawnWithItsTransparency() {
    ViewOnWindow window({50, 50});
    window.view.setFile(folder_.save(
        halvesPicture({40, 20}, QColor(255, 0, 0, 128), Qt::transparent), "glass.png"));
    QImage expected = whiteWindow();
    QPainter(&expected).fillRect(10, 10, 20, 20, QColor(255, 0, 0, 128));
    QCOMPARE(window.look(), expected);
}

void PngViewTest::largePictureIsCutAtTheControlsEdges() {
    ViewOnWindow window({50, 40});
    window.view.setFile(folder_.save(halvesPicture({400, 300}, Qt::red, Qt::blue), "large.png"));
    QImage expected = whiteWindow();
    QPainter(&expected).fillRect(10, 10, 50, 40, Qt::red);
    QCOMPARE(window.look(), expected);
}

void PngViewTest::picturesOfOtherFormatsShowNothing() {
    ViewOnWindow window({50, 40});
    const QString bitmap = folder_.save(plainPicture({40, 40}, Qt::red), "bitmap.bmp");
    const QString path = folder_.path("named.png");
    QVERIFY(QFile::copy(bitmap, path));
    window.view.setFile(path);
    QCOMPARE(window.look(), whiteWindow());
    QCOMPARE(window.view.getfile(), path);
}

void PngViewTest::unreadableFileShowsNothing() {
    ViewOnWindow window({50, 40});
    window.view.setFile(folder_.save(plainPicture({40, 40}, Qt::red), "good.png"));
    window.view.setFile(folder_.path("missing.png"));
    QCOMPARE(window.look(), whiteWindow());
    QFile file(folder_.path("text.png"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    window.view.setFile(file.fileName());
    QCOMPARE(window.look(), whiteWindow());
}

void PngViewTest::windowHoldsTheControl() {
    FrmPic window;
    QCOMPARE(window.objectName(), "frmPic");
    auto* picture = window.findChild<PngView*>("UserControl11");
    QVERIFY(picture != nullptr);
    QCOMPARE(picture, &window.picture());
    QVERIFY(!window.accessibleName().isEmpty());
    QVERIFY(!picture->accessibleName().isEmpty());
    window.show();
    window.resize(400, 300);
    QTRY_COMPARE(picture->size(), QSize(400, 300));
}

void PngViewTest::clickPaintsThePictureAgain() {
    // Counts what reaches the control.
    class Watcher : public QObject {
      public:
        int moves = 0;
        int paints = 0;
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            moves += event->type() == QEvent::Move ? 1 : 0;
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    };
    FrmPic window;
    window.picture().setFile(folder_.save(plainPicture({40, 40}, Qt::red), "clicked.png"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    Watcher watcher;
    window.picture().installEventFilter(&watcher);
    const QRect before = window.picture().geometry();
    QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(200, 200));
    QTRY_VERIFY(watcher.paints > 0);
    QCOMPARE(watcher.moves, 2);
    QCOMPARE(window.picture().geometry(), before);
    // On the picture itself, too.
    QTest::mouseClick(&window.picture(), Qt::LeftButton, {}, QPoint(5, 5));
    QTRY_COMPARE(watcher.moves, 4);
}

TARVEL_UI_TEST(PngViewTest)
#include "png_view_test.moc"
