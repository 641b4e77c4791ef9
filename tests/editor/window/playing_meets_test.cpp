// Playing together with what else goes on: drawing, panels, fields, zoom, locks, videos, closing.
#include "support/play_editor.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/surface_room.h"
#include "widgets/style/palettes.h"
#include "window/check_window.h"
#include "window/guide_window.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTreeWidget>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int mainScreen = 1;
constexpr int patience = 20'000;

QString film() {
    const QDir media(QStringLiteral(TARVEL_EXAMPLES_DIR "/aurora/Media"));
    const QStringList films = media.entryList({"*.wmv"});
    return films.isEmpty() ? QString() : media.filePath(films.first());
}

// A film has a frame or a problem before long; without what decodes it the test has nothing to see.
#define AWAIT_FRAME(videos, id)                                                                    \
    QTRY_VERIFY_WITH_TIMEOUT(!(videos).frame(id).isNull() || !(videos).problem(id).isEmpty(),      \
                             patience);                                                            \
    if (!(videos).problem(id).isEmpty()) {                                                         \
        QSKIP("this machine cannot decode the film");                                              \
    }

} // namespace

class PlayingMeetsTest : public QObject {
    Q_OBJECT

  private slots:
    void aDragEndsWhereItStands();
    void drawingEndsWhereItStands();
    void aChosenToolStaysChosen();
    void theCoverGoesBeforeLong();
    void anOpenPanelKeepsScreensFromPlaying();
    void aTypedPositionIsEntered();
    void unappliedChangesStay();
    void aRunOfKeysIsOneStep();
    void undoComesAfterwards();
    void theZoomFollowsTheWindowMeanwhile();
    void lockedElementsPlay();
    void theZoomMayMakeTheLockedGroundAnew();
    void theShadeMayChangeMeanwhile();
    void aChangeOfTheDocumentEndsIt();
    void aFindingEndsIt();
    void closingEndsItFirst();
    void aWindowThatGoesWhileItPlays();
    void theGuideOpensAtItsChapter();
    void theTimeLineIsLetGoAtTheEnd();
    void stripsTakeTheKeysThatTabBringsThem();
    void theWindowOpensAndPlaysAtOnce();
    void smallWindowsShowEverything();
    void videosPlayHeldAndFromTheirStart();
    void videosHeldAtOnceShowTheirFirstFrame();
    void stoppedVideosStaySoAfterwards();
    void theSkinsVideosAreThoseOfTheScreen();
};

void PlayingMeetsTest::aDragEndsWhereItStands() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40, 100));
    editor.press({120, 120});
    editor.drag({150, 130});
    QVERIFY(editor.play());
    QCOMPARE(editor.control(1).left, 130.0F);
    const SkinDocument moved = editor.document();
    QVERIFY(!editor.shows(110, 105));
    QVERIFY(editor.shows(160, 140));
    editor.drag({300, 300}); // the button is still down
    editor.release({300, 300});
    QVERIFY(editor.document() == moved);
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.document() == moved);
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.control(1).left, 100.0F);
}

void PlayingMeetsTest::drawingEndsWhereItStands() {
    PlayEditor editor;
    editor.chooseTool("optBox");
    editor.press({100, 100});
    editor.drag({180, 160});
    QVERIFY(editor.play());
    QCOMPARE(editor.document().rowCount(mainScreen), 1);
    editor.release({300, 300});
    editor.playKey(Qt::Key_Escape);
    QCOMPARE(editor.control(1).width, 80.0F);
}

void PlayingMeetsTest::aChosenToolStaysChosen() {
    PlayEditor editor;
    editor.chooseTool("optBox");
    QVERIFY(editor.play());
    QTest::mouseClick(editor.window.windowHandle(), Qt::LeftButton, {},
                      editor.inWindow(*editor.pic()).center());
    QCOMPARE(editor.document().rowCount(mainScreen), 0);
    editor.playKey(Qt::Key_Escape); // ends the playing only
    QVERIFY(editor.find<QAbstractButton>("optBox")->isChecked());
    editor.pressDragRelease({100, 100}, {200, 200});
    QCOMPARE(editor.document().rowCount(mainScreen), 1);
}

void PlayingMeetsTest::theCoverGoesBeforeLong() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40, 100));
    QTest::mouseClick(editor.find<QWidget>("optLine"), Qt::LeftButton);
    QVERIFY(!editor.find<QWidget>("picBox")->isHidden());
    QVERIFY(editor.play());
    QTRY_VERIFY(editor.find<QWidget>("picBox")->isHidden());
    QVERIFY(editor.isPlaying());
    QVERIFY(editor.shows(120, 120));
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.find<QAbstractButton>("optLine")->isChecked());
}

void PlayingMeetsTest::anOpenPanelKeepsScreensFromPlaying() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40));
    editor.selectRow(mainScreen, 0);
    for (int index = 0; index < panelCount; ++index) {
        QVERIFY(editor.openPanel(index));
        QVERIFY(!editor.play());
        QVERIFY(!editor.play(Qt::ShiftModifier));
        QVERIFY(!editor.find<QWidget>("cmdPlayScreen")->isEnabled());
        QCOMPARE(editor.shown(), QList<int>({index}));
        editor.ok(index);
        QVERIFY(editor.play());
        QVERIFY(!editor.button(index).isEnabled());
        editor.playKey(Qt::Key_Escape);
    }
}

void PlayingMeetsTest::aTypedPositionIsEntered() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40, 100));
    editor.selectRow(mainScreen, 0);
    auto* txtPosL = editor.find<QWidget>("fraPos")->findChildren<QLineEdit*>().first();
    txtPosL->setFocus();
    txtPosL->selectAll();
    QTest::keyClicks(txtPosL, "300");
    QVERIFY(editor.play());
    QCOMPARE(editor.control(1).left, 300.0F);
    QVERIFY(editor.shows(320, 120));
    QVERIFY(!editor.shows(110, 120));
    editor.playKey(Qt::Key_Escape);
    QCOMPARE(editor.window.focusWidget(), txtPosL);
    QCOMPARE(editor.control(1).left, 300.0F);
}

void PlayingMeetsTest::unappliedChangesStay() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40, 80));
    editor.selectRow(mainScreen, 0);
    auto* txtAlpha = editor.find<QLineEdit>("txtAlpha");
    txtAlpha->setFocus();
    txtAlpha->selectAll();
    QTest::keyClicks(txtAlpha, "33");
    QVERIFY(editor.find<QPushButton>("cmdApply")->isEnabled());
    QVERIFY(editor.play());
    editor.playKey(Qt::Key_Escape);
    QCOMPARE(txtAlpha->text(), QString("33"));
    QCOMPARE(int{editor.document().element(1).elementAlpha}, 80);
    click(*editor.find<QPushButton>("cmdApply"));
    QCOMPARE(int{editor.document().element(1).elementAlpha}, 33);
}

void PlayingMeetsTest::aRunOfKeysIsOneStep() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40));
    editor.selectRow(mainScreen, 0);
    editor.pic()->setFocus();
    editor.key(Qt::Key_Right);
    editor.key(Qt::Key_Right);
    QVERIFY(editor.play());
    editor.playKey(Qt::Key_Right); // time, and not the box
    editor.playKey(Qt::Key_Escape);
    QCOMPARE(editor.control(1).left, 102.0F);
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.control(1).left, 100.0F);
}

void PlayingMeetsTest::undoComesAfterwards() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40));
    editor.selectRow(mainScreen, 0);
    editor.pic()->setFocus();
    editor.key(Qt::Key_Right);
    QVERIFY(editor.entry("mnuUndo")->isEnabled());
    QVERIFY(editor.play());
    editor.playKey(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.control(1).left, 101.0F);
    QVERIFY(editor.isPlaying());
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.entry("mnuUndo")->isEnabled());
    editor.playKey(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.control(1).left, 100.0F);
}

void PlayingMeetsTest::theZoomFollowsTheWindowMeanwhile() {
    PlayEditor editor;
    editor.add(timedBox({500, 0, 0, 0}));
    editor.selectRow(mainScreen, 0);
    auto& room = editor.at<SurfaceRoom>("surfaceRoom");
    room.fit();
    QVERIFY(editor.play());
    const int zoom = room.zoom();
    editor.window.resize(editor.window.size() + QSize(500, 400));
    settle();
    QVERIFY(room.zoom() > zoom);
    QVERIFY(!editor.shows(120, 120));
    QVERIFY(editor.pass(500));
    QVERIFY(editor.shows(120, 120));
    QVERIFY(!editor.find<QWidget>("fraSel")->isVisible());
    editor.playKey(Qt::Key_Plus, Qt::ControlModifier); // as with an open panel: nothing
    QVERIFY(room.isFit());
    QVERIFY(editor.isPlaying());
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.find<QWidget>("fraSel")->isVisible());
    QVERIFY(editor.find<QWidget>("fraSel")->geometry().contains(
        editor.at<Pic>("Pic").mapping().toWidget(QPointF(120, 120)).toPoint()));
}

void PlayingMeetsTest::lockedElementsPlay() {
    PlayEditor editor;
    editor.add(timedBox({500, 0, 0, 0}));
    editor.selectRow(mainScreen, 0);
    editor.entry("mnuLocked")->trigger();
    settle();
    QVERIFY(editor.at<Pic>("Pic").hasFlatGround());
    QVERIFY(editor.shows(120, 120));
    QVERIFY(editor.play());
    QVERIFY(!editor.shows(120, 120));
    QVERIFY(editor.pass(500));
    QVERIFY(editor.shows(120, 120));
    editor.playKey(Qt::Key_Left, Qt::ShiftModifier);
    QVERIFY(!editor.shows(120, 120));
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.shows(120, 120));
}

void PlayingMeetsTest::theZoomMayMakeTheLockedGroundAnew() {
    PlayEditor editor;
    editor.add(timedBox({500, 0, 0, 0}));
    editor.selectRow(mainScreen, 0);
    editor.entry("mnuLocked")->trigger();
    settle();
    editor.at<SurfaceRoom>("surfaceRoom").zoomTo(100);
    QVERIFY(editor.play());
    editor.at<SurfaceRoom>("surfaceRoom").zoomTo(150);
    QTRY_VERIFY(editor.at<Pic>("Pic").hasFlatGround());
    QVERIFY(!editor.shows(120, 120)); // the ground is for afterwards
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.shows(120, 120));
}

void PlayingMeetsTest::theShadeMayChangeMeanwhile() {
    PlayEditor editor;
    editor.add(timedBox({500, 0, 0, 0}));
    QVERIFY(editor.play());
    const QPalette before = QApplication::palette();
    QApplication::setPalette(paletteOf(Shade::dark));
    settle();
    QVERIFY(editor.isPlaying());
    QVERIFY(editor.pass(500));
    QVERIFY(editor.shows(120, 120));
    QApplication::setPalette(before);
    settle();
    QVERIFY(editor.isPlaying());
}

void PlayingMeetsTest::aChangeOfTheDocumentEndsIt() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40, 100));
    QVERIFY(editor.play());
    editor.document().delItem(0);
    QVERIFY(!editor.isPlaying());
    settle();
    QVERIFY(!editor.shows(120, 120));
    QVERIFY(editor.pic()->isEnabled());
}

void PlayingMeetsTest::aFindingEndsIt() {
    PlayEditor editor;
    Element image = boxAt(100, 100, 40, 40);
    image.elementKind = ElementKind::Image;
    image.elementControl.kind = ControlKind::img;
    image.imageSource = "missing";
    editor.add(image, 0);
    editor.document().setCurrentLayout(mainScreen);
    editor.entry("mnuCheck")->trigger();
    auto* window = editor.window.findChild<CheckWindow*>();
    QVERIFY(window != nullptr && window->isVisible());
    editor.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor.window));
    QVERIFY(editor.play());
    auto* list = window->findChild<QListWidget*>("lstFindings");
    const auto found = list->findItems("missing", Qt::MatchContains);
    QVERIFY(!found.isEmpty());
    emit list->itemActivated(found.first());
    settle();
    QVERIFY(!editor.isPlaying());
    QCOMPARE(editor.document().currentLayout(), 0);
    QCOMPARE(editor.window.curNum(), 1);
}

void PlayingMeetsTest::closingEndsItFirst() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40));
    QVERIFY(editor.play());
    editor.prompts.answers << Prompts::Answer::Cancel;
    editor.window.close();
    QVERIFY(editor.window.isVisible());
    QVERIFY(!editor.isPlaying());
    QVERIFY(editor.play());
    editor.prompts.answers << Prompts::Answer::No;
    editor.window.close();
    QVERIFY(!editor.window.isVisible());
}

void PlayingMeetsTest::aWindowThatGoesWhileItPlays() {
    PlayEditor editor;
    editor.add(boxAt(100, 100, 40, 40));
    editor.selectRow(mainScreen, 0);
    QVERIFY(editor.play()); // and the editor goes
}

void PlayingMeetsTest::theGuideOpensAtItsChapter() {
    PlayEditor editor;
    QVERIFY(editor.play());
    editor.playKey(Qt::Key_F1);
    GuideWindow* guide = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* each = qobject_cast<GuideWindow*>(window); each != nullptr && each->isVisible()) {
            guide = each;
        }
    }
    QVERIFY(guide != nullptr);
    const QTreeWidgetItem* chapter = guide->findChild<QTreeWidget*>("lstContents")->currentItem();
    QVERIFY(chapter != nullptr);
    QCOMPARE(chapter->text(0), QString("Playing"));
    QVERIFY(editor.isPlaying());
    QTest::keyClick(guide, Qt::Key_Escape); // the guide's
    QVERIFY(editor.isPlaying());
}

void PlayingMeetsTest::theTimeLineIsLetGoAtTheEnd() {
    PlayEditor editor;
    QVERIFY(editor.play());
    QWidget* line = editor.timeLine().viewport();
    QTest::mousePress(line, Qt::LeftButton, {}, line->rect().center());
    editor.playKey(Qt::Key_Escape);
    QTest::mouseRelease(line, Qt::LeftButton, {}, line->rect().center());
    QVERIFY(editor.play());
    QCOMPARE(editor.time(), 0);
    QVERIFY(editor.pass(500)); // nothing holds it
}

void PlayingMeetsTest::stripsTakeTheKeysThatTabBringsThem() {
    PlayEditor editor;
    QVERIFY(editor.play());
    QToolButton& condition = editor.condition(1);
    for (int i = 0; i < 20 && editor.window.focusWidget() != &condition; ++i) {
        editor.playKey(Qt::Key_Tab);
    }
    QCOMPARE(editor.window.focusWidget(), &condition);
    QVERIFY(!condition.isChecked());
    editor.playKey(Qt::Key_Space);
    QVERIFY(condition.isChecked());
    QVERIFY(!editor.find<QToolButton>("cmdHold")->isChecked());
    editor.playKey(Qt::Key_Escape);
    QVERIFY(!editor.isPlaying());
}

void PlayingMeetsTest::theWindowOpensAndPlaysAtOnce() {
    Editor editor;
    editor.window.show();
    editor.entry("mnuPlay")->trigger(); // while the panels slide in
    QVERIFY(editor.find<QWidget>("fraPlay")->isVisible());
    QVERIFY(editor.find<QWidget>("fraCreate")->isHidden());
    QTRY_VERIFY(editor.window.isActiveWindow());
    QTest::qWait(500);
    QVERIFY(editor.find<QWidget>("fraCreate")->isHidden());
    QTest::keyClick(editor.window.windowHandle(), Qt::Key_Escape);
    QVERIFY(editor.find<QWidget>("fraCreate")->isVisible());
}

void PlayingMeetsTest::smallWindowsShowEverything() {
    PlayEditor editor;
    for (int i = 0; i < 40; ++i) {
        editor.add(timedBox({100 * i, 0, 0, 0}));
    }
    editor.window.resize(1020, 608);
    QVERIFY(editor.play());
    settle();
    QVERIFY(editor.window.height() <= 608);
    const QRect whole = editor.window.rect();
    for (const char* name : {"cmdHold", "cmdEndPlay", "cboSpeed", "lblTime", "lblRun",
                             "cmdCondition(1)", "cmdCondition(6)", "timeLine"}) {
        QWidget* control = editor.find<QWidget>(name);
        QVERIFY2(whole.contains(editor.inWindow(*control)), name);
        QVERIFY2(control->visibleRegion().boundingRect() == control->rect(), name);
    }
    const TimeLine& line = editor.timeLine();
    QVERIFY(line.verticalScrollBar()->maximum() > 0);
    QVERIFY(line.viewport()->rect().contains(line.rowRect(11))); // at the first time, too
    QVERIFY(editor.at<SurfaceRoom>("surfaceRoom").zoom() >= 50);
}

void PlayingMeetsTest::videosPlayHeldAndFromTheirStart() {
    PlayEditor editor;
    const int id = editor.add(imageOf(ControlKind::vid, {100, 100, 160, 120}, film()), mainScreen);
    VideoStage& videos = editor.at<Pic>("Pic").videos();
    AWAIT_FRAME(videos, id);
    QVERIFY(editor.play());
    QTRY_VERIFY_WITH_TIMEOUT(videos.isPlaying(id), patience);
    editor.playKey(Qt::Key_Space);
    QTRY_VERIFY_WITH_TIMEOUT(!videos.isPlaying(id), patience);
    QVERIFY(editor.shows(180, 160)); // its frame stays
    editor.playKey(Qt::Key_Right);
    QVERIFY(!videos.isPlaying(id));
    editor.playKey(Qt::Key_Space);
    QTRY_VERIFY_WITH_TIMEOUT(videos.isPlaying(id), patience);
    QTest::mouseClick(editor.find<QWidget>("cmdStop"), Qt::LeftButton);
    QVERIFY(editor.isPlaying());
    QVERIFY(!videos.isPlaying(id));
    editor.playKey(Qt::Key_Space);
    editor.playKey(Qt::Key_Space);
    QVERIFY(!videos.isPlaying(id)); // stopped is stopped
    editor.playKey(Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(videos.isPlaying(id), patience); // as it was before
}

void PlayingMeetsTest::videosHeldAtOnceShowTheirFirstFrame() {
    PlayEditor editor;
    const int id = editor.add(imageOf(ControlKind::vid, {100, 100, 160, 120}, film()), 2);
    editor.document().setCurrentLayout(mainScreen);
    editor.document().editSettings([](SkinSettings& settings) { settings.delays[1] = 60'000; });
    VideoStage& videos = editor.at<Pic>("Pic").videos();
    QVERIFY(editor.play(Qt::ShiftModifier));
    editor.playKey(Qt::Key_Space);
    AWAIT_FRAME(videos, id);
    QTRY_VERIFY_WITH_TIMEOUT(!videos.isPlaying(id), patience);
}

void PlayingMeetsTest::stoppedVideosStaySoAfterwards() {
    PlayEditor editor;
    const int id = editor.add(imageOf(ControlKind::vid, {100, 100, 160, 120}, film()), mainScreen);
    VideoStage& videos = editor.at<Pic>("Pic").videos();
    AWAIT_FRAME(videos, id);
    QTest::mouseClick(editor.find<QWidget>("cmdStop"), Qt::LeftButton);
    QVERIFY(!videos.isPlaying(id));
    QVERIFY(editor.play());
    QTRY_VERIFY_WITH_TIMEOUT(videos.isPlaying(id), patience);
    editor.playKey(Qt::Key_Escape);
    settle();
    QVERIFY(!videos.isPlaying(id));
}

void PlayingMeetsTest::theSkinsVideosAreThoseOfTheScreen() {
    PlayEditor editor;
    const int first =
        editor.add(imageOf(ControlKind::vid, {100, 100, 160, 120}, film()), mainScreen);
    VideoStage& videos = editor.at<Pic>("Pic").videos();
    AWAIT_FRAME(videos, first);
    const int onLoad = editor.add(imageOf(ControlKind::vid, {0, 0, 160, 120}, film()), 2);
    editor.document().setCurrentLayout(mainScreen);
    editor.document().editSettings([](SkinSettings& settings) { settings.delays[1] = 60'000; });
    QTRY_VERIFY_WITH_TIMEOUT(videos.isPlaying(first), patience);
    QVERIFY(editor.play(Qt::ShiftModifier));
    QTRY_VERIFY_WITH_TIMEOUT(videos.isPlaying(onLoad) && !videos.isPlaying(first), patience);
    QTRY_VERIFY_WITH_TIMEOUT(!videos.frame(onLoad).isNull(), patience);
    QVERIFY(editor.shows(80, 60));
    editor.playKey(Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(videos.isPlaying(first) && !videos.isPlaying(onLoad), patience);
}

TARVEL_UI_TEST(PlayingMeetsTest)
#include "playing_meets_test.moc"
