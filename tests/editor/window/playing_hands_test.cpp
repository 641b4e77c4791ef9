// Playing under a restless hand: held keys, double clicks, wheels, drops, and presses that go on.
#include "skinfile/recovery_store.h"
#include "support/dialog_support.h"
#include "support/play_editor.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/surface_room.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSet>
#include <QWheelEvent>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int mainScreen = 1;

// Where the focus is; the first press is not repeated, the others are.
void hold(PlayEditor& editor, Qt::Key key, int repeats, Qt::KeyboardModifiers keys = {}) {
    for (int i = 0; i <= repeats; ++i) {
        QTest::simulateEvent(editor.window.focusWidget(), true, key, keys, {}, i > 0);
        settle();
    }
    QTest::simulateEvent(editor.window.focusWidget(), false, key, keys, {}, false);
    settle();
}

void wheel(QWidget& target) {
    const QPointF at = target.rect().center();
    QWheelEvent event(at, target.mapToGlobal(at), {}, {0, -240}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&target, &event);
    settle();
}

void sendLeft(QWidget& target, QEvent::Type type, QPointF at) {
    QMouseEvent event(type, at, target.mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
    QApplication::sendEvent(&target, &event);
}

} // namespace

class PlayingHandsTest : public QObject {
    Q_OBJECT

  private slots:
    void heldKeysAreOnePress();
    void theSecondPressOfADoubleClickDoesNothing();
    void aPressAfterwardsWorks();
    void wheelsChangeNothing();
    void droppedFilesAreRefused();
    void aRubberBandEnds();
    void panningEnds_data();
    void panningEnds();
    void tabNeverComesToWhatIsClosed();
    void theTimeLineIsASlider();
    void lettersWork();
    void whatComesTooLateDoesNothing();
    void theListOfSpeedsClosesAlone();
    void anOpenMenuOrDialogKeepsIt();
    void theNextStartIsANewOne();
    void theWorkIsKeptMeanwhile();
};

void PlayingHandsTest::heldKeysAreOnePress() {
    PlayEditor editor;
    editor.add(listOf(3));
    hold(editor, Qt::Key_F5, 3);
    QVERIFY(editor.isPlaying());
    hold(editor, Qt::Key_Space, 4);
    QVERIFY(editor.find<QToolButton>("cmdHold")->isChecked());
    hold(editor, Qt::Key_Right, 4);
    QCOMPARE(editor.time(), 500); // these go on while they are held
    hold(editor, Qt::Key_F5, 3);
    QVERIFY(!editor.isPlaying());
    hold(editor, Qt::Key_F5, 3, Qt::ShiftModifier);
    QVERIFY(editor.isPlaying());
    hold(editor, Qt::Key_F5, 3, Qt::ShiftModifier);
    QVERIFY(!editor.isPlaying());
    hold(editor, Qt::Key_F5, 1);
    QVERIFY(editor.isPlaying());
    hold(editor, Qt::Key_Escape, 3);
    QVERIFY(!editor.isPlaying());
}

void PlayingHandsTest::theSecondPressOfADoubleClickDoesNothing() {
    PlayEditor editor;
    editor.add(boxAt(10, 10, 20, 20));
    editor.add(boxAt(50, 10, 20, 20));
    editor.selectRow(mainScreen, 0);
    const SkinDocument before = editor.document();
    QVERIFY(editor.play());
    QListView& list = *editor.lst(mainScreen);
    const QPoint second = list.visualRect(list.model()->index(1, 0)).center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        sendLeft(*list.viewport(), type, second);
        settle();
        QVERIFY(!editor.isPlaying());
        QCOMPARE(editor.window.curNum(), 1);
    }
    QVERIFY(editor.document() == before);
    sendLeft(*list.viewport(), QEvent::MouseButtonPress, second);
    sendLeft(*list.viewport(), QEvent::MouseButtonRelease, second);
    QCOMPARE(editor.window.curNum(), 2); // a third one is for the list
}

void PlayingHandsTest::aPressAfterwardsWorks() {
    PlayEditor editor;
    editor.add(boxAt(10, 10, 20, 20));
    QVERIFY(editor.play());
    QWidget& outside = *editor.find<QWidget>("fraLayout");
    sendLeft(outside, QEvent::MouseButtonPress, {5, 5});
    QVERIFY(!editor.isPlaying());
    // Its release goes to another program, and the next click is one.
    QTest::mouseClick(editor.find<QWidget>("optBox"), Qt::LeftButton);
    QVERIFY(editor.find<QAbstractButton>("optBox")->isChecked());
    QVERIFY(editor.play());
    sendLeft(outside, QEvent::MouseButtonPress, {5, 5});
    sendLeft(outside, QEvent::MouseButtonRelease, {5, 5});
    settle();
    editor.clickScreen(0);
    QCOMPARE(editor.document().currentLayout(), 0);
}

void PlayingHandsTest::wheelsChangeNothing() {
    PlayEditor editor;
    for (int i = 0; i < 60; ++i) {
        editor.add(boxAt(10, 10, 20, 20));
    }
    editor.at<SurfaceRoom>("surfaceRoom").zoomTo(100);
    settle();
    QVERIFY(editor.play());
    const int zoom = editor.at<SurfaceRoom>("surfaceRoom").zoom();
    const int scrolled = editor.lst(mainScreen)->verticalScrollBar()->value();
    const QString speed = editor.find<QComboBox>("cboSpeed")->currentText();
    for (const char* name : {"Pic", "cboSpeed", "lst(1)", "fraPlay", "fraLayout"}) {
        wheel(*editor.find<QWidget>(name));
        QVERIFY2(editor.isPlaying(), name);
    }
    QCOMPARE(editor.at<SurfaceRoom>("surfaceRoom").zoom(), zoom);
    QCOMPARE(editor.lst(mainScreen)->verticalScrollBar()->value(), scrolled);
    QCOMPARE(editor.find<QComboBox>("cboSpeed")->currentText(), speed);
    wheel(*editor.timeLine().viewport()); // which goes through its rows, and leaves the time
    QVERIFY(editor.timeLine().verticalScrollBar()->value() > 0);
    QCOMPARE(editor.time(), 0);
}

void PlayingHandsTest::droppedFilesAreRefused() {
    PlayEditor editor;
    const PictureFolder pictures;
    const QUrl url = QUrl::fromLocalFile(
        pictures.save(plainPicture({8, 8}, Qt::red), QStringLiteral("red.png")));
    const SkinDocument before = editor.document();
    QVERIFY(editor.play());
    QVERIFY(!dropUrls(*editor.pic(), {url}));
    settle();
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(editor.isPlaying());
    QVERIFY(editor.document() == before);
}

void PlayingHandsTest::aRubberBandEnds() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40));
    editor.press({50, 50});
    editor.drag({300, 300});
    QVERIFY(editor.play());
    const QImage playing = editor.picture();
    editor.drag({30, 30});
    editor.release({30, 30});
    settle();
    QCOMPARE(editor.picture(), playing); // no band
    editor.playKey(Qt::Key_Escape);
    const QImage after = editor.picture();
    editor.drag({200, 300}); // nor one afterwards
    settle();
    QCOMPARE(editor.picture(), after);
}

void PlayingHandsTest::panningEnds_data() {
    QTest::addColumn<bool>("bySpace");
    QTest::newRow("Space") << true;
    QTest::newRow("middle button") << false;
}

void PlayingHandsTest::panningEnds() {
    QFETCH(bool, bySpace);
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40));
    auto& room = editor.at<SurfaceRoom>("surfaceRoom");
    room.zoomTo(400);
    settle();
    QWidget& pic = *editor.pic();
    pic.setFocus();
    const auto button = bySpace ? Qt::LeftButton : Qt::MiddleButton;
    const QPoint middle = pic.mapFrom(room.viewport(), room.viewport()->rect().center());
    if (bySpace) {
        QTest::keyPress(&pic, Qt::Key_Space);
    }
    QTest::mousePress(&pic, button, {}, middle);
    const auto drag = [&](QPoint way) {
        const QPoint at = middle + way;
        QMouseEvent event(QEvent::MouseMove, at, pic.mapToGlobal(at), Qt::NoButton, button, {});
        QApplication::sendEvent(&pic, &event);
    };
    const QPoint before = room.scrolled();
    drag({-50, -40});
    const QPoint scrolled = room.scrolled();
    QCOMPARE(scrolled, before + QPoint(50, 40));
    QVERIFY(editor.play());
    QCOMPARE(room.zoom(), 400);
    if (bySpace) {
        QTest::keyRelease(editor.window.focusWidget(), Qt::Key_Space);
    }
    QVERIFY(!editor.find<QToolButton>("cmdHold")->isChecked());
    drag({60, 60});
    QTest::mouseRelease(&pic, button, {}, middle);
    QCOMPARE(room.scrolled(), scrolled);
    editor.playKey(Qt::Key_Escape);
    drag({90, 90});
    QCOMPARE(room.scrolled(), scrolled);
    QVERIFY(pic.cursor().shape() != Qt::ClosedHandCursor);
    QVERIFY(pic.cursor().shape() != Qt::OpenHandCursor);
}

void PlayingHandsTest::tabNeverComesToWhatIsClosed() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40));
    editor.selectRow(mainScreen, 0);
    QVERIFY(editor.play());
    QSet<QString> seen;
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers keys) {
        editor.playKey(key, keys);
        QWidget* focus = editor.window.focusWidget();
        QVERIFY(focus != nullptr && focus->isEnabled() && focus->isVisible());
        QVERIFY2(focus->objectName() == "cmdStop" || editor.strip().isAncestorOf(focus) ||
                     editor.timePanel().isAncestorOf(focus),
                 qPrintable(focus->objectName()));
        seen << focus->objectName();
        QVERIFY(editor.isPlaying());
    };
    for (int i = 0; i < 15; ++i) {
        press(Qt::Key_Tab, {});
    }
    for (const char* name : {"cmdHold", "cmdStepBack", "cmdStepOn", "cboSpeed", "cmdEndPlay",
                             "cmdCondition(1)", "cmdCondition(6)", "timeLine", "cmdStop"}) {
        QVERIFY2(seen.contains(QLatin1String(name)), name);
    }
    for (int i = 0; i < 15; ++i) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
    }
    seen.clear();
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_F6, i < 2 ? Qt::NoModifier : Qt::ShiftModifier);
    }
    QVERIFY(seen.size() > 1);
    QVERIFY(seen.contains("timeLine"));
}

void PlayingHandsTest::theTimeLineIsASlider() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40));
    QVERIFY(editor.play());
    QAccessibleInterface* line = QAccessible::queryAccessibleInterface(&editor.timeLine());
    QVERIFY(line != nullptr);
    QCOMPARE(line->role(), QAccessible::Slider);
    QCOMPARE(line->text(QAccessible::Name), editor.timeLine().accessibleName());
    QVERIFY(!line->state().disabled);
    QAccessibleValueInterface* slider = line->valueInterface();
    QVERIFY(slider != nullptr);
    QVERIFY(editor.pass(1500));
    QCOMPARE(slider->currentValue().toDouble(), 1.5);
    slider->setCurrentValue(12.3);
    QCOMPARE(editor.time(), 12'300);
    slider->setCurrentValue(99);
    QCOMPARE(editor.time(), 30'000);
    slider->setCurrentValue(-1);
    QCOMPARE(editor.time(), 0);
    QVERIFY(editor.pass(31'000));
    QCOMPARE(slider->currentValue(), slider->maximumValue());
}

// Those of the strip are of menus, too, which are closed meanwhile.
void PlayingHandsTest::lettersWork() {
    PlayEditor editor;
    QVERIFY(editor.play());
    const auto press = [&](const QAbstractButton& button) {
        const QKeyCombination keys = button.shortcut()[0];
        editor.playKey(keys.key(), keys.keyboardModifiers());
    };
    auto& hold = *editor.find<QToolButton>("cmdHold");
    press(hold);
    QTRY_VERIFY(hold.isChecked());
    press(hold);
    QTRY_VERIFY(!hold.isChecked());
    for (int row = 1; row <= 6; ++row) {
        press(editor.condition(row));
        QTRY_VERIFY2(editor.condition(row).isChecked(), qPrintable(editor.condition(row).text()));
    }
    press(*editor.find<QToolButton>("cmdEndPlay"));
    QTRY_VERIFY(!editor.isPlaying());
    QTRY_VERIFY(editor.window.menuBar()->isEnabled());
}

// A button that a key has pressed is let go a moment later.
void PlayingHandsTest::whatComesTooLateDoesNothing() {
    PlayEditor editor;
    for (const char* name : {"cmdHold", "cmdStepOn", "cmdStepBack", "cmdCondition(1)"}) {
        QVERIFY(editor.play());
        auto& button = *editor.find<QToolButton>(name);
        QSignalSpy clicked(&button, &QToolButton::clicked);
        button.animateClick();
        editor.playKey(Qt::Key_Escape);
        QVERIFY(!editor.isPlaying());
        QTRY_COMPARE(clicked.size(), 1);
    }
    QAccessible::queryAccessibleInterface(&editor.timeLine())
        ->valueInterface()
        ->setCurrentValue(3.0);
    QVERIFY(!editor.isPlaying());
    QVERIFY(editor.play());
    QVERIFY(!editor.find<QToolButton>("cmdHold")->isChecked());
    QVERIFY(!editor.condition(1).isChecked());
    QCOMPARE(editor.time(), 0);
}

void PlayingHandsTest::theListOfSpeedsClosesAlone() {
    PlayEditor editor;
    QVERIFY(editor.play());
    auto& speeds = *editor.find<QComboBox>("cboSpeed");
    const auto open = [&] {
        QTest::mouseClick(&speeds, Qt::LeftButton);
        return QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; });
    };
    const auto isClosed = [] { return QApplication::activePopupWidget() == nullptr; };
    QVERIFY(open());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTRY_VERIFY(isClosed());
    QVERIFY(editor.isPlaying());
    editor.playKey(Qt::Key_Space); // and the keys are for the screen again
    QVERIFY(editor.find<QToolButton>("cmdHold")->isChecked());
    QVERIFY(open());
    QTest::keyClick(speeds.view(), Qt::Key_Down);
    QTest::keyClick(speeds.view(), Qt::Key_Return);
    QTRY_VERIFY(isClosed());
    QCOMPARE(speeds.currentText(), QString("2"));
    QVERIFY(open());
    editor.document().setCurrentLayout(0); // which ends the playing
    QVERIFY(!editor.isPlaying());
    QTRY_VERIFY(isClosed());
}

void PlayingHandsTest::anOpenMenuOrDialogKeepsIt() {
    PlayEditor editor;
    auto* menu = editor.find<QMenu>("mnuSkin");
    menu->popup(editor.window.mapToGlobal(QPoint(0, 0)));
    QTest::keyClick(menu, Qt::Key_F5);
    QVERIFY(!editor.isPlaying());
    menu->close();
    QVERIFY(inDialog([&] { editor.entry("mnuDelays")->trigger(); }, "frmDelays",
                     [&](QWidget& dialog) {
                         QTest::keyClick(&dialog, Qt::Key_F5);
                         QTest::keyClick(editor.window.windowHandle(), Qt::Key_F5);
                         QVERIFY(!editor.isPlaying());
                     }));
    QVERIFY(activate(editor.window));
    QVERIFY(editor.play());
}

void PlayingHandsTest::theNextStartIsANewOne() {
    PlayEditor editor;
    editor.add(listOf(3));
    editor.add(fieldText("CGTitle", 300));
    QVERIFY(editor.play());
    const QImage first = editor.picture();
    editor.playKey(Qt::Key_Plus);
    editor.playKey(Qt::Key_Down);
    editor.playKey(Qt::Key_Down);
    editor.condition(1).click();
    editor.playKey(Qt::Key_Right, Qt::ShiftModifier);
    editor.playKey(Qt::Key_Space);
    QVERIFY(editor.picture() != first);
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.play());
    QCOMPARE(editor.picture(), first);
    QCOMPARE(editor.time(), 0);
    QCOMPARE(editor.timeText(), QString("0.0 s"));
    QCOMPARE(editor.find<QComboBox>("cboSpeed")->currentText(), QString("1"));
    QVERIFY(!editor.find<QToolButton>("cmdHold")->isChecked());
    QVERIFY(!editor.condition(1).isChecked());
}

void PlayingHandsTest::theWorkIsKeptMeanwhile() {
    PlayEditor editor;
    const QDir kept(editor.path("kept"));
    editor.window.keepWorkIn(hostPathOf(kept.path()));
    editor.add(boxAt(100, 100, 40, 40));
    QVERIFY(editor.play());
    const auto files = [&] { return kept.entryInfoList({"*.recovery"}); };
    const auto holdsTheWork = [&] {
        return files().size() == 1 &&
               RecoveryStore::read(hostPathOf(files().first().filePath())).document ==
                   editor.document();
    };
    QTRY_VERIFY(!files().isEmpty());
    QVERIFY(holdsTheWork());
    QVERIFY(editor.isPlaying());
    editor.window.keepWorkNow(); // as for a signal
    QVERIFY(holdsTheWork());
    QVERIFY(editor.isPlaying());
}

TARVEL_UI_TEST(PlayingHandsTest)
#include "playing_hands_test.moc"
