// The frames of a playing screen: what they repaint of many changes, and how they follow each
// other.
#include "support/play_editor.h"
#include "support/ui_test.h"
#include "text/xml_parse.h"

#include <QElapsedTimer>
#include <QPaintEvent>
#include <QThread>

#include <algorithm>
#include <utility>
#include <vector>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int mainScreen = 1;

// What of a widget is painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }
    QRegion take() { return std::exchange(painted_, {}); }
    [[nodiscard]] const QRegion& painted() const { return painted_; }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            painted_ += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

  private:
    QRegion painted_;
};

constexpr PlayTime half = 500;

Element blinkingBox(const QRect& place) {
    Element box = boxAt(static_cast<float>(place.x()), static_cast<float>(place.y()),
                        static_cast<float>(place.width()), static_cast<float>(place.height()), 100);
    box.elementTimers = {0, half, half, 0};
    return box;
}

QRegion onWidget(PlayEditor& editor, const std::vector<QRect>& places, int margin) {
    QRegion region;
    for (const QRect& place : places) {
        const QRect grown = place.adjusted(-margin, -margin, margin, margin);
        region += editor.at<Pic>("Pic").mapping().toWidget(QRectF(grown)).toAlignedRect();
    }
    return region;
}

} // namespace

class PlayingFramesTest : public QObject {
    Q_OBJECT

  private slots:
    void everyChangeIsPainted_data();
    void everyChangeIsPainted();
    void fewPlacesStayApart();
    void theTimeLineIsPaintedWhenItsLineMoves();
    void aFrameComesInTimeAfterALongOne();
};

void PlayingFramesTest::everyChangeIsPainted_data() {
    QTest::addColumn<int>("count");
    for (const int count : {1, 7, 8, 9, 10, 17, 60, 300}) {
        QTest::newRow(qPrintable(QString::number(count))) << count;
    }
}

void PlayingFramesTest::everyChangeIsPainted() {
    QFETCH(int, count);
    PlayEditor editor;
    std::vector<QRect> places;
    for (int number = 0; number < count; ++number) {
        places.emplace_back(number * 97 % 620, number * 61 % 460, 12, 12);
        editor.add(blinkingBox(places.back()));
    }
    QVERIFY(editor.play());
    QTest::qWait(50);
    PaintWatch watch(editor.at<Pic>("Pic"));
    // As often as a frame could take an earlier one's repaint for its own.
    for (int change = 0; change < 4; ++change) {
        QVERIFY(editor.pass(half));
        const QRegion missing = onWidget(editor, places, 0);
        QTRY_VERIFY((missing - watch.painted()).isEmpty());
        (void)watch.take();
    }
}

void PlayingFramesTest::fewPlacesStayApart() {
    PlayEditor editor;
    const std::vector<QRect> places = {
        {10, 10, 20, 20}, {600, 10, 20, 20}, {10, 440, 20, 20}, {600, 440, 20, 20}};
    for (const QRect& place : places) {
        editor.add(blinkingBox(place));
        editor.add(blinkingBox(place.adjusted(2, 2, -2, -2))); // what holds it is repainted anyway
        editor.add(blinkingBox(place.adjusted(4, 4, -4, -4)));
    }
    QVERIFY(editor.play());
    QTest::qWait(50);
    PaintWatch watch(editor.at<Pic>("Pic"));
    QVERIFY(editor.pass(half));
    QTRY_VERIFY((onWidget(editor, places, 0) - watch.painted()).isEmpty());
    QVERIFY((watch.painted() - onWidget(editor, places, 3)).isEmpty());
}

void PlayingFramesTest::theTimeLineIsPaintedWhenItsLineMoves() {
    PlayEditor editor;
    editor.add(blinkingBox({10, 10, 20, 20}));
    QVERIFY(editor.play());
    TimeLine& line = editor.timeLine();
    QVERIFY(editor.pass(line.length - 1000));
    QTest::qWait(50);
    PaintWatch watch(*line.viewport());
    const int before = line.placeOf(line.time());
    PlayTime within = 0;
    while (line.placeOf(line.time() + within + 1) == before) {
        ++within;
    }
    QVERIFY(within > 0);
    QVERIFY(editor.pass(within));
    QTest::qWait(50);
    QVERIFY(watch.take().isEmpty());

    QVERIFY(editor.pass(1));
    const int now = line.placeOf(line.time());
    QVERIFY(now != before);
    const QRegion both = QRegion(before, 30, 1, 10) | QRegion(now, 30, 1, 10);
    QTRY_VERIFY((both - watch.painted()).isEmpty());

    QVERIFY(editor.pass(line.length - line.time()));
    QTRY_VERIFY(watch.painted().contains(QPoint(line.placeOf(line.length), 30)));
    (void)watch.take();
    QVERIFY(editor.pass(1)); // an arrow now, at the same place
    QTRY_VERIFY(watch.painted().contains(QPoint(line.placeOf(line.length), 30)));
}

// What a frame takes is a part of the pause before the next one.
void PlayingFramesTest::aFrameComesInTimeAfterALongOne() {
    constexpr int frameTakes = 8;
    constexpr std::size_t frames = 40;
    SkinDocument document;
    document.setCurrentLayout(mainScreen);
    Element box = boxAt(10, 10, 20, 20);
    box.elementModifiers = SharedValue(
        parseXml("<Modifier Type='Tint'><Alpha Enable='True' Min='0' Max='255' Period='30000'/>"
                 "</Modifier>"));
    document.addElement(std::move(box));
    PlaySession session(document, machineClock());
    QElapsedTimer timer;
    timer.start();
    std::vector<qint64> pauses;
    connect(&session, &PlaySession::changed, this, [&] {
        pauses.push_back(timer.restart());
        QThread::msleep(frameTakes);
    });
    session.start(SkinRun::ofScreen(mainScreen),
                  ModifierCatalogue(parseXml("<m><types><Tint>Color</Tint></types></m>")));
    QTRY_VERIFY(pauses.size() >= frames);
    session.end();
    // Other work on the machine may delay some, but not all.
    std::sort(pauses.begin(), pauses.end());
    QVERIFY(pauses.at(frames / 4) < PlaySession::framePause + frameTakes - 2);
}

TARVEL_UI_TEST(PlayingFramesTest)

#include "playing_frames_test.moc"
