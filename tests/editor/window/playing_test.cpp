// What a screen does while it plays in the window: by the clock, by keys, and by the strip.
#include "playing/played_frame.h"
#include "support/play_editor.h"
#include "support/ui_test.h"
#include "surface/surface_painter.h"
#include "text/xml_parse.h"

#include <QMenuBar>
#include <QPainter>
#include <QStatusBar>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int mainScreen = 1;

Element withModifier(Element element, const std::string& modifier) {
    element.elementModifiers = SharedValue(parseXml(modifier));
    return element;
}

// One of each kind of thing that plays, of the starter catalogue.
void addOneOfEach(PlayEditor& editor) {
    editor.add(timedBox({300, 200, 100, 2500}));
    Element conditional = boxAt(200, 100, 40, 40, 100);
    conditional.elementCondition = "ItemPrev";
    editor.add(conditional);
    editor.add(fieldText("Time", 10));
    editor.add(fieldText("CGTitle", 50));
    editor.add(listOf(3));
    editor.add(withModifier(boxAt(20, 300, 60, 60, 100),
                            "<Modifier Type='Fade'><Range X='0' Y='100'/></Modifier>"));
    editor.add(withModifier(boxAt(120, 300, 60, 60, 100),
                            "<Modifier Type='Pulse'><Range X='50' Y='150'/></Modifier>"));
    editor.add(withModifier(boxAt(220, 300, 60, 60, 100),
                            "<Modifier Type='Slide'><Bounds L='200' T='280' R='420' B='420'/>"
                            "</Modifier>"));
    editor.add(withModifier(boxAt(320, 300, 60, 60, 100),
                            "<Modifier Type='Tint'><Alpha Enable='False'/>"
                            "<Red Enable='True' Min='0' Max='255' Period='900'/><Green "
                            "Enable='False'/><Blue Enable='False'/></Modifier>"));
    editor.add(boxAt(500, 300, 60, 60, 100));
}

} // namespace

class PlayingTest : public QObject {
    Q_OBJECT

  private slots:
    void timersShowAndHide();
    void framesAreThoseOfTheMoment();
    void framesRepaintOnlyWhatChanged();
    void endsByKeysAndPresses_data();
    void endsByKeysAndPresses();
    void goesOnMeanwhile();
    void theDocumentStaysAsItIs();
    void marksAndFocusComeBack();
    void upAndDownMoveTheList();
    void conditionsAreShownAndForced();
    void timeIsHeldAndStepped();
    void speedChanges();
    void theTimeLineGoesToATime();
    void theTimeLineShowsTheTimers();
    void whatStaysStillIsTold();
};

void PlayingTest::timersShowAndHide() {
    PlayEditor editor;
    editor.add(timedBox({500, 200, 100, 1000}));
    QVERIFY(editor.shows(120, 120)); // at rest
    QVERIFY(editor.play());
    struct Moment {
        PlayTime at;
        bool shown;
    };
    constexpr std::array moments = {Moment{0, false},    Moment{499, false},  Moment{500, true},
                                    Moment{699, true},   Moment{700, false},  Moment{799, false},
                                    Moment{800, true},   Moment{1000, false}, Moment{1100, true},
                                    Moment{1399, false}, Moment{1499, true},  Moment{1500, false},
                                    Moment{1700, false}};
    for (const Moment& moment : moments) {
        QVERIFY(editor.pass(moment.at - editor.time()));
        QCOMPARE(editor.time(), moment.at);
        QCOMPARE(editor.shows(120, 120), moment.shown);
    }
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.shows(120, 120));
}

// Against frames that the painter makes of the core's answer, with everything at once.
void PlayingTest::framesAreThoseOfTheMoment() {
    PlayEditor editor;
    addOneOfEach(editor);
    const SkinDocument& document = editor.document();
    const auto catalogue = ModifierCatalogue::read(TARVEL_ASSETS_DIR "/modifiers.xml");
    const PlayedScreen screen(document, mainScreen, catalogue);
    PlayChoices choices;
    choices.clock = {2026, 11, 21, 20, 15, 0};
    choices.itemsShown = 3;
    PictureCache pictures;
    SurfacePainter painter(pictures);
    const auto expected = [&](PlayTime time) {
        PlayedFrame frame(screen, choices);
        frame.show(time, choices, [](const auto*, const auto*) {});
        const double ratio = editor.pic()->devicePixelRatioF();
        QImage image(editor.pic()->size() * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::black);
        QPainter target(&image);
        target.setTransform(editor.at<Pic>("Pic").mapping().toWidget());
        painter.paint(target, document, mainScreen, QRectF(0, 0, skinWidth, skinHeight),
                      {.played = &frame});
        return image;
    };
    QVERIFY(editor.play());
    QCOMPARE(editor.picture(), expected(0));
    for (const PlayTime time : {16, 140, 300, 333, 500, 1000, 1999, 2500, 4321}) {
        QVERIFY(editor.pass(time - editor.time()));
        QCOMPARE(editor.picture(), expected(time));
        if (time == 500 || time == 1000 || time == 1999) {
            editor.playKey(Qt::Key_Down);
            moveList(choices, 1, screen.menu(), time);
            QCOMPARE(editor.picture(), expected(time));
        }
    }
    editor.playKey(Qt::Key_Left, Qt::ShiftModifier); // back
    QCOMPARE(editor.picture(), expected(3321));
}

void PlayingTest::framesRepaintOnlyWhatChanged() {
    PlayEditor editor;
    editor.add(boxAt(0, 0, 640, 480, 100));
    editor.add(timedBox({500, 0, 0, 0}));
    editor.add(timedBox({700, 0, 0, 0}, 500));
    QVERIFY(editor.play());
    struct Watch : QObject {
        QRegion painted;
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            if (event->type() == QEvent::Paint) {
                painted += static_cast<QPaintEvent*>(event)->region();
            }
            return false;
        }
    } watch;
    settle();
    QTest::qWait(50);
    editor.pic()->installEventFilter(&watch);
    const auto skin = [&](const QRect& rect) {
        return editor.at<Pic>("Pic").mapping().toWidget(QRectF(rect)).toAlignedRect();
    };
    QVERIFY(editor.pass(400));
    QVERIFY(watch.painted.isEmpty());
    QVERIFY(editor.pass(100));
    QTRY_VERIFY(watch.painted.contains(skin({110, 110, 20, 20})));
    QVERIFY((watch.painted - QRegion(skin({95, 95, 50, 50}))).isEmpty());
    watch.painted = {};
    QVERIFY(editor.pass(200));
    QTRY_VERIFY(watch.painted.contains(skin({510, 110, 20, 20})));
    QVERIFY((watch.painted - QRegion(skin({495, 95, 50, 50}))).isEmpty());
}

void PlayingTest::endsByKeysAndPresses_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("keys");
    QTest::addColumn<QString>("pressed"); // a control
    QTest::addColumn<int>("button");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << QString() << 0;
    QTest::newRow("F5") << int(Qt::Key_F5) << 0 << QString() << 0;
    QTest::newRow("Shift+F5") << int(Qt::Key_F5) << int(Qt::ShiftModifier) << QString() << 0;
    for (const char* control :
         {"lst(1)", "optScreen(0)", "cmdApply", "cmdZoom", "fraLayout", "cmdEndPlay"}) {
        QTest::newRow(control) << 0 << 0 << QString(control) << int(Qt::LeftButton);
    }
    QTest::newRow("right press") << 0 << 0 << QString("lst(1)") << int(Qt::RightButton);
    QTest::newRow("menu bar") << 0 << 0 << QString("menuBar") << int(Qt::LeftButton);
    QTest::newRow("status bar") << 0 << 0 << QString("statusBar") << int(Qt::LeftButton);
}

void PlayingTest::endsByKeysAndPresses() {
    QFETCH(int, key);
    QFETCH(int, keys);
    QFETCH(QString, pressed);
    QFETCH(int, button);
    PlayEditor editor;
    editor.add(boxAt(10, 10, 20, 20));
    editor.selectRow(mainScreen, 0);
    const SkinDocument before = editor.document();
    QVERIFY(editor.play());
    if (key != 0) {
        editor.playKey(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(keys));
    } else {
        QWidget* control = pressed == "menuBar"     ? editor.window.menuBar()
                           : pressed == "statusBar" ? editor.window.statusBar()
                                                    : editor.find<QWidget>(pressed.toLatin1());
        QTest::mouseClick(editor.window.windowHandle(), static_cast<Qt::MouseButton>(button), {},
                          editor.inWindow(*control).center());
        settle();
    }
    QVERIFY(!editor.isPlaying());
    QVERIFY(!editor.timePanel().isVisible());
    QVERIFY(editor.document() == before); // the press did nothing else
    QCOMPARE(editor.window.curNum(), 1);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QVERIFY(editor.pic()->isEnabled());
    QVERIFY(editor.entry("mnuPlay")->isEnabled());
    QVERIFY(editor.find<QWidget>("fraCreate")->isVisible());
    QVERIFY(editor.play()); // and again
}

void PlayingTest::goesOnMeanwhile() {
    PlayEditor editor;
    editor.add(boxAt(10, 10, 20, 20));
    QVERIFY(editor.play());
    for (QWidget* control :
         {editor.pic(), editor.find<QWidget>("fraPlay"), editor.find<QWidget>("cmdHold"),
          editor.find<QWidget>("timeLine"), editor.find<QWidget>("cmdStop"),
          editor.find<QWidget>("cmdCondition(1)")}) {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            QTest::mouseClick(editor.window.windowHandle(), button, {},
                              editor.inWindow(*control).center());
            QVERIFY2(editor.isPlaying(), qPrintable(control->objectName()));
            QVERIFY(QApplication::activePopupWidget() == nullptr);
        }
    }
    for (const Qt::Key key :
         {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_F6, Qt::Key_Shift}) {
        editor.playKey(key);
        QVERIFY(editor.isPlaying());
    }
    editor.window.resize(editor.window.size() + QSize(60, 40));
    settle();
    QVERIFY(editor.isPlaying());
    QCOMPARE(editor.inWindow(editor.timePanel()).right(),
             editor.inWindow(*editor.find<QWidget>("cmdStop")).right());
}

void PlayingTest::theDocumentStaysAsItIs() {
    PlayEditor editor;
    addOneOfEach(editor);
    editor.selectRow(mainScreen, 0);
    const SkinDocument before = editor.document();
    QVERIFY(editor.play());
    for (const char* panel :
         {"fraCreate", "fraLayout", "fraElements", "fraPos", "cmdModifier(0)", "cmdApply", "Pic"}) {
        QVERIFY2(!editor.find<QWidget>(panel)->isEnabled(), panel);
    }
    for (const QAction* menu : editor.window.menuBar()->actions()) {
        QVERIFY(!menu->isEnabled());
    }
    struct Press {
        Qt::Key key;
        Qt::KeyboardModifiers keys;
    };
    for (const auto& [key, keys] : std::initializer_list<Press>{{Qt::Key_Delete, {}},
                                                                {Qt::Key_Up, Qt::ControlModifier},
                                                                {Qt::Key_Return, {}},
                                                                {Qt::Key_A, {}},
                                                                {Qt::Key_A, Qt::ControlModifier},
                                                                {Qt::Key_V, Qt::ControlModifier},
                                                                {Qt::Key_D, Qt::ControlModifier},
                                                                {Qt::Key_Z, Qt::ControlModifier},
                                                                {Qt::Key_B, Qt::AltModifier},
                                                                {Qt::Key_Space, {}},
                                                                {Qt::Key_Right, {}}}) {
        editor.playKey(key, keys);
        QVERIFY(editor.document() == before);
        QVERIFY(editor.isPlaying());
    }
    editor.playKey(Qt::Key_Space);
    QVERIFY(editor.pass(500));
    editor.playKey(Qt::Key_F5);
    QVERIFY(editor.document() == before);
}

void PlayingTest::marksAndFocusComeBack() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 100, 100));
    editor.selectRow(mainScreen, 0);
    editor.pic()->setFocus();
    const QImage atRest = editor.picture();
    QVERIFY(editor.find<QWidget>("fraSel")->isVisible());
    QVERIFY(editor.play());
    QVERIFY(!editor.find<QWidget>("fraSel")->isVisible());
    QCOMPARE(editor.window.focusWidget(), &editor.timeLine());
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.find<QWidget>("fraSel")->isVisible());
    QCOMPARE(editor.window.focusWidget(), editor.pic());
    QCOMPARE(editor.window.curNum(), 1);
    QCOMPARE(editor.picture(), atRest);
}

void PlayingTest::upAndDownMoveTheList() {
    PlayEditor editor;
    Element submenu = boxAt(100, 100, 40, 40, 100);
    submenu.elementCondition = "ItemSubMenu";
    editor.add(submenu);
    editor.add(listOf(5));
    QVERIFY(editor.play());
    QVERIFY(!editor.shows(120, 120));
    QImage last = editor.picture();
    for (int i = 0; i < 5; ++i) {
        QVERIFY(!editor.shows(120, 120));
        editor.playKey(Qt::Key_Down);
        QVERIFY(editor.picture() != last);
        last = editor.picture();
    }
    QVERIFY(editor.shows(120, 120)); // the folder
    editor.playKey(Qt::Key_Up);
    QVERIFY(!editor.shows(120, 120));
    for (int i = 0; i < 30; ++i) {
        editor.playKey(Qt::Key_Down);
    }
    QVERIFY(editor.pass(5000)); // it glides
    last = editor.picture();
    editor.playKey(Qt::Key_Down); // the end stays
    QCOMPARE(editor.picture(), last);
}

void PlayingTest::conditionsAreShownAndForced() {
    PlayEditor editor;
    for (int row = 1; row < static_cast<int>(conditionRows.size()); ++row) {
        Element box = boxAt(static_cast<float>(50 * row), 100, 40, 40, 100);
        box.elementCondition = conditionRows.at(static_cast<std::size_t>(row)).text;
        editor.add(box);
    }
    const auto shown = [&] {
        QString marks;
        for (int row = 1; row < static_cast<int>(conditionRows.size()); ++row) {
            const bool told = editor.condition(row).accessibleDescription().startsWith("holds");
            const bool seen = editor.shows(50 * row + 20, 120);
            marks += told != seen ? '!' : seen ? 'x' : '.';
        }
        return marks;
    };
    QVERIFY(editor.play());
    // Previous, next, entry, sub menu, passcode, none.
    QCOMPARE(shown(), QString(".xx..x"));
    for (int i = 0; i < 5; ++i) {
        editor.playKey(Qt::Key_Down);
    }
    QCOMPARE(shown(), QString("xx.x.x")); // the folder
    editor.playKey(Qt::Key_Down);
    editor.playKey(Qt::Key_Down);
    QCOMPARE(shown(), QString("xxx.x.")); // the locked one
    const auto click = [&](int row) {
        QTest::mouseClick(&editor.condition(row), Qt::LeftButton);
        settle();
    };
    click(4);
    QCOMPARE(shown(), QString("xxxxx."));
    QVERIFY(editor.condition(4).isChecked());
    QCOMPARE(editor.condition(4).accessibleDescription(), QString("holds, forced"));
    click(4);
    QCOMPARE(shown(), QString("xxx.x."));
    QVERIFY(editor.condition(4).isChecked());
    click(1);
    click(1);
    QCOMPARE(shown(), QString(".xx.x."));
    editor.playKey(Qt::Key_Up);
    QCOMPARE(shown(), QString(".xx..x")); // what is forced stays
    click(1);
    QCOMPARE(shown(), QString("xxx..x"));
    QVERIFY(!editor.condition(1).isChecked());
    editor.playKey(Qt::Key_F5);
    QVERIFY(editor.play());
    QCOMPARE(shown(), QString(".xx..x")); // anew
}

void PlayingTest::timeIsHeldAndStepped() {
    PlayEditor editor;
    editor.add(timedBox({500, 0, 0, 0}));
    QVERIFY(editor.play());
    QVERIFY(editor.pass(300));
    QCOMPARE(editor.timeText(), QString("0.3 s"));
    editor.playKey(Qt::Key_Space);
    QVERIFY(editor.find<QToolButton>("cmdHold")->isChecked());
    editor.passUnseen(5000);
    QCOMPARE(editor.time(), 300);
    editor.playKey(Qt::Key_Right);
    QCOMPARE(editor.time(), 400);
    QVERIFY(!editor.shows(120, 120));
    QTest::mouseClick(editor.find<QWidget>("cmdStepOn"), Qt::LeftButton);
    QCOMPARE(editor.time(), 500);
    QVERIFY(editor.shows(120, 120));
    QTest::mouseClick(editor.find<QWidget>("cmdStepBack"), Qt::LeftButton);
    QCOMPARE(editor.time(), 400);
    QVERIFY(!editor.shows(120, 120));
    editor.playKey(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(editor.time(), 1400);
    editor.playKey(Qt::Key_Left, Qt::ShiftModifier);
    editor.playKey(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(editor.time(), 0);
    editor.playKey(Qt::Key_Space);
    QVERIFY(!editor.find<QToolButton>("cmdHold")->isChecked());
    QVERIFY(editor.pass(250)); // none of the time that was held comes back
    QCOMPARE(editor.time(), 250);
    QTest::mouseClick(editor.find<QWidget>("cmdHold"), Qt::LeftButton);
    QVERIFY(editor.find<QToolButton>("cmdHold")->isChecked());
    editor.passUnseen(400);
    QCOMPARE(editor.time(), 250);
}

void PlayingTest::speedChanges() {
    PlayEditor editor;
    QVERIFY(editor.play());
    auto* cboSpeed = editor.find<QComboBox>("cboSpeed");
    QCOMPARE(cboSpeed->currentText(), QString("1"));
    editor.playKey(Qt::Key_Plus);
    QCOMPARE(cboSpeed->currentText(), QString("2"));
    for (int i = 0; i < 3; ++i) {
        editor.playKey(Qt::Key_Plus);
    }
    QCOMPARE(cboSpeed->currentText(), QString("4"));
    QVERIFY(editor.pass(1000));
    QTRY_COMPARE(editor.time(), 4000);
    for (int i = 0; i < 9; ++i) {
        editor.playKey(Qt::Key_Minus);
    }
    QCOMPARE(cboSpeed->currentText(), QString("1/4"));
    editor.passUnseen(1000);
    QTRY_COMPARE(editor.time(), 4250);
    cboSpeed->setFocus();
    QTest::keyClick(cboSpeed, Qt::Key_Home); // its own keys
    QTest::keyClick(cboSpeed, Qt::Key_Down);
    settle();
    QCOMPARE(cboSpeed->currentText(), QString("1/2"));
    editor.timeLine().setFocus();
    editor.passUnseen(1000);
    QTRY_COMPARE(editor.time(), 4750);
}

void PlayingTest::theTimeLineGoesToATime() {
    PlayEditor editor;
    editor.add(timedBox({5000, 0, 0, 5000}));
    QVERIFY(editor.play());
    TimeLine& line = editor.timeLine();
    const auto at = [&](PlayTime time) { return QPoint(line.placeOf(time), 5); };
    QTest::mousePress(line.viewport(), Qt::LeftButton, {}, at(7000));
    QVERIFY(std::abs(editor.time() - 7000) < 100);
    QVERIFY(editor.shows(120, 120));
    const PlayTime chosen = editor.time();
    editor.passUnseen(3000); // it stands still under the hand
    QCOMPARE(editor.time(), chosen);
    QMouseEvent move(QEvent::MouseMove, at(12'000), line.viewport()->mapToGlobal(at(12'000)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(line.viewport(), &move);
    QVERIFY(std::abs(editor.time() - 12'000) < 100);
    QVERIFY(!editor.shows(120, 120));
    QTest::mouseRelease(line.viewport(), Qt::LeftButton, {}, at(12'000));
    QVERIFY(editor.pass(500)); // and goes on from there
    QTest::mouseClick(line.viewport(), Qt::LeftButton, {}, at(0) - QPoint(60, 0));
    QCOMPARE(editor.time(), 0);
    QTest::mouseClick(line.viewport(), Qt::LeftButton, {}, at(30'000) + QPoint(20, 0));
    QCOMPARE(editor.time(), 30'000);
    QVERIFY(editor.pass(1000));
    QCOMPARE(editor.timeText(), QString("31.0 s")); // beyond its end
}

void PlayingTest::theTimeLineShowsTheTimers() {
    PlayEditor editor;
    editor.add(timedBox({10'000, 0, 0, 0}));
    editor.add(timedBox({0, 5000, 5000, 0}));
    editor.add(timedBox({0, 0, 0, 10'000}));
    editor.add(boxAt(0, 0, 9, 9));
    QVERIFY(editor.play());
    editor.playKey(Qt::Key_Space);
    TimeLine& line = editor.timeLine();
    const QImage image = line.viewport()->grab().toImage();
    const auto bars = [&](int row) {
        QString marks; // in the middle of each five seconds
        for (PlayTime time = 2500; time < TimeLine::length; time += 5000) {
            const QPoint place(line.placeOf(time), line.rowRect(row).center().y());
            const QColor color =
                image.pixelColor((QPointF(place) * image.devicePixelRatio()).toPoint());
            marks += color == line.palette().color(QPalette::Highlight) ? 'x' : '.';
        }
        return marks;
    };
    QCOMPARE(bars(0), QString("..xxxx"));
    QCOMPARE(bars(1), QString("x.x.x."));
    QCOMPARE(bars(2), QString("xx...."));
    QCOMPARE(bars(3), QString("xxxxxx"));
}

void PlayingTest::whatStaysStillIsTold() {
    PlayEditor editor;
    QVERIFY(editor.play());
    auto* lblNotShown = editor.find<QLabel>("lblNotShown");
    QVERIFY(lblNotShown->text().isEmpty());
    const int height = editor.strip().height();
    editor.playKey(Qt::Key_F5);
    Element logo = withModifier(boxAt(10, 10, 20, 20), "<Modifier Type='Wobble'/>");
    logo.label = "Logo";
    editor.add(logo);
    QVERIFY(editor.play());
    QCOMPARE(editor.strip().height(), height);
    QCOMPARE(lblNotShown->text(), QString("not shown: Wobble (Logo)"));
    editor.playKey(Qt::Key_F5);
    for (int i = 2; i <= 60; ++i) {
        logo.label = "Logo " + std::to_string(i);
        editor.add(logo);
    }
    QVERIFY(editor.play());
    QCOMPARE(lblNotShown->text(),
             QString("not shown: Wobble (Logo), Wobble (Logo 2), Wobble (Logo 3), Wobble (Logo "
                     "4), Wobble (Logo 5), Wobble (Logo 6), and 54 more"));
    QVERIFY(lblNotShown->toolTip().endsWith("Wobble (Logo 40)\nand 20 more"));
}

TARVEL_UI_TEST(PlayingTest)
#include "playing_test.moc"
