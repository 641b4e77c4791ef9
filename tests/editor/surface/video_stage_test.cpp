// Players come, play, pause, stop and go with their elements. Plays a film of the example skins.
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/video_stage.h"

#include <QDir>
#include <QMediaPlayer>
#include <QSignalSpy>
#include <QTest>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int menu = 1;
constexpr int title = 0;
constexpr int patience = 20'000; // milliseconds

QString film() {
    const QDir media(QStringLiteral(TARVEL_EXAMPLES_DIR "/aurora/Media"));
    const QStringList films = media.entryList({"*.wmv"});
    return films.isEmpty() ? QString() : media.filePath(films.first());
}

void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

Element videoOf(const QString& path) {
    return imageOf(ControlKind::vid, {10, 10, 160, 120}, path);
}

qsizetype playersOf(const VideoStage& stage) {
    return stage.findChildren<QMediaPlayer*>().size();
}

} // namespace

class VideoStageTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void playsTheVideosOfTheScreen();
    void playsSilentlyInALoop();
    void showingAgainChangesNothing();
    void pausesWhileAnotherScreenIsShown();
    void goesWithItsElement();
    void anotherDocumentTakesOver();
    void anotherFileIsPlayedInstead();
    void stopsAllVidsOfTheCurrentScreen();
    void stoppingLeavesOtherScreensAlone();
    void stoppingWithoutVideosDoesNothing();
    void stoppedVideoPlaysAnotherFile();
    void filesThatCannotBePlayed_data();
    void filesThatCannotBePlayed();
    void failedVideoIsTriedAgainWhenShownAnew();
    void barredFileIsNotOpened();
    void isSettledWhenEachVideoThatCanBeSeenIs();
    void isSettledWithoutVideosThatAreNotShown();
    void playersAreLimited();
    void screensShareTheLimit();

  private:
    // A document with `count` films on "Menu".
    static SkinDocument films(int count);
    static bool hasFrame(const VideoStage& stage, int id) { return !stage.frame(id).isNull(); }

    PictureFolder folder_;
};

SkinDocument VideoStageTest::films(int count) {
    SkinDocument document;
    for (int number = 0; number < count; ++number) {
        document.addElement(videoOf(film()));
    }
    return document;
}

void VideoStageTest::initTestCase() {
    QVERIFY2(!film().isEmpty(), "no film among the examples");
    VideoStage stage;
    const SkinDocument document = films(1);
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1) || !stage.problem(1).isEmpty(), patience);
    if (stage.problem(1) == "no codec") {
        QSKIP("this machine cannot decode the film");
    }
}

void VideoStageTest::playsTheVideosOfTheScreen() {
    VideoStage stage;
    QSignalSpy changed(&stage, &VideoStage::frameChanged);
    const SkinDocument document = films(2);
    QVERIFY(!stage.isPlaying(1));
    QVERIFY(stage.frame(1).isNull());
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1) && hasFrame(stage, 2), patience);
    QVERIFY(stage.isPlaying(1));
    QVERIFY(stage.isPlaying(2));
    QVERIFY(!stage.isPlaying(3));
    QVERIFY(stage.problem(1).isEmpty());
    QVERIFY(changed.contains(QList<QVariant>{1}));
    QVERIFY(changed.contains(QList<QVariant>{2}));
    const auto before = changed.size();
    QTRY_VERIFY_WITH_TIMEOUT(changed.size() > before + 4, patience);
}

void VideoStageTest::playsSilentlyInALoop() {
    VideoStage stage;
    const SkinDocument document = films(1);
    stage.show(document, menu);
    const auto* player = stage.findChild<QMediaPlayer*>();
    QVERIFY(player != nullptr);
    QCOMPARE(player->loops(), int{QMediaPlayer::Infinite});
    QVERIFY(player->audioOutput() == nullptr);
}

void VideoStageTest::showingAgainChangesNothing() {
    VideoStage stage;
    const SkinDocument document = films(1);
    stage.show(document, menu);
    const auto* player = stage.findChild<QMediaPlayer*>();
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1), patience);
    for (int time = 0; time < 5; ++time) {
        stage.show(document, menu);
    }
    QCOMPARE(stage.findChild<QMediaPlayer*>(), player);
    QCOMPARE(playersOf(stage), 1);
    QVERIFY(stage.isPlaying(1));
}

void VideoStageTest::pausesWhileAnotherScreenIsShown() {
    VideoStage stage;
    const SkinDocument document = films(1);
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1), patience);
    for (const int other : {title, VideoStage::noScreen}) {
        stage.show(document, other);
        QVERIFY(!stage.isPlaying(1));
        QVERIFY(hasFrame(stage, 1));
        QCOMPARE(playersOf(stage), 1);
        stage.show(document, menu);
        QVERIFY(stage.isPlaying(1));
    }
}

void VideoStageTest::goesWithItsElement() {
    VideoStage stage;
    SkinDocument document = films(2);
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1) && hasFrame(stage, 2), patience);
    document.delItem(0);
    stage.show(document, menu);
    QVERIFY(!stage.isPlaying(1));
    QVERIFY(stage.frame(1).isNull());
    QVERIFY(stage.isPlaying(2));
    QTRY_COMPARE_WITH_TIMEOUT(playersOf(stage), 1, patience);
}

void VideoStageTest::anotherDocumentTakesOver() {
    VideoStage stage;
    SkinDocument document = films(3);
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 3), patience);
    document = SkinDocument();
    stage.stopAllVids(document);
    stage.show(document, menu);
    QVERIFY(!stage.isPlaying(3));
    QTRY_COMPARE_WITH_TIMEOUT(playersOf(stage), 0, patience);
}

void VideoStageTest::anotherFileIsPlayedInstead() {
    VideoStage stage;
    SkinDocument document = films(1);
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1), patience);
    const QString copy = folder_.path("copy.wmv");
    QVERIFY(QFile::copy(film(), copy));
    document.editElement(1, [&](Element& element) { element = videoOf(copy); });
    stage.show(document, menu);
    QVERIFY(stage.frame(1).isNull());
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1), patience);
    QTRY_COMPARE_WITH_TIMEOUT(playersOf(stage), 1, patience);
    QVERIFY(stage.findChild<QMediaPlayer*>()->source().toLocalFile().endsWith("copy.wmv"));
}

void VideoStageTest::stopsAllVidsOfTheCurrentScreen() {
    VideoStage stage;
    const SkinDocument document = films(2);
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1) && hasFrame(stage, 2), patience);
    stage.stopAllVids(document);
    QVERIFY(!stage.isPlaying(1));
    QVERIFY(!stage.isPlaying(2));
    QVERIFY(hasFrame(stage, 1));
    stage.show(document, menu);
    QVERIFY(!stage.isPlaying(1));
    // Shown anew, by way of another screen or not.
    stage.show(document, title);
    stage.show(document, menu);
    QVERIFY(stage.isPlaying(1));
    stage.stopAllVids(document);
    stage.showAnew();
    stage.show(document, menu);
    QVERIFY(stage.isPlaying(1));
    QVERIFY(stage.isPlaying(2));
}

void VideoStageTest::stoppingLeavesOtherScreensAlone() {
    VideoStage stage;
    SkinDocument document = films(1);
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1), patience);
    document.setCurrentLayout(title);
    stage.stopAllVids(document);
    QVERIFY(stage.isPlaying(1));
}

void VideoStageTest::stoppingWithoutVideosDoesNothing() {
    VideoStage stage;
    SkinDocument document;
    stage.stopAllVids(document);
    document.addElement(boxOf({0, 0, 10, 10}, red));
    stage.show(document, menu);
    QSignalSpy changed(&stage, &VideoStage::frameChanged);
    stage.stopAllVids(document);
    QCOMPARE(playersOf(stage), 0);
    QVERIFY(changed.isEmpty());
}

void VideoStageTest::stoppedVideoPlaysAnotherFile() {
    VideoStage stage;
    SkinDocument document = films(1);
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1), patience);
    stage.stopAllVids(document);
    const QString copy = folder_.path("other.wmv");
    QVERIFY(QFile::copy(film(), copy));
    document.editElement(1, [&](Element& element) { element = videoOf(copy); });
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1), patience);
    QVERIFY(stage.isPlaying(1));
}

void VideoStageTest::filesThatCannotBePlayed_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("problem");
    QTest::newRow("missing") << folder_.path("none.wmv") << "not found";
    QVERIFY(QDir().mkpath(folder_.path("folder.wmv")));
    QTest::newRow("folder") << folder_.path("folder.wmv") << "not readable";
    writeBytes(folder_.path("text.wmv"), "not a film at all, only a few words");
    QTest::newRow("text") << folder_.path("text.wmv") << "not a video";
    writeBytes(folder_.path("empty.wmv"), "");
    QTest::newRow("empty") << folder_.path("empty.wmv") << "not a video";
    // The beginning of a film that no decoder makes anything of.
    writeBytes(folder_.path("head.wmv"),
               QByteArray::fromHex("3026b2758e66cf11a6d900aa0062ce6c") + QByteArray(2000, 'x'));
    QTest::newRow("nothing known in it") << folder_.path("head.wmv") << "no codec";
}

void VideoStageTest::filesThatCannotBePlayed() {
    QFETCH(QString, path);
    QFETCH(QString, problem);
    VideoStage stage;
    QSignalSpy changed(&stage, &VideoStage::frameChanged);
    SkinDocument document;
    document.addElement(videoOf(path));
    stage.show(document, menu);
    QTRY_COMPARE_WITH_TIMEOUT(stage.problem(1), problem, patience);
    QVERIFY(!stage.isPlaying(1));
    QVERIFY(stage.frame(1).isNull());
    QCOMPARE(changed.size(), 1);
    // It stays so, and nothing is tried again and again.
    stage.show(document, menu);
    QCOMPARE(stage.problem(1), problem);
    QTRY_COMPARE_WITH_TIMEOUT(playersOf(stage), 0, patience);
    QCOMPARE(changed.size(), 1);
}

void VideoStageTest::failedVideoIsTriedAgainWhenShownAnew() {
    VideoStage stage;
    const QString path = folder_.path("late.wmv");
    SkinDocument document;
    document.addElement(videoOf(path));
    stage.show(document, menu);
    QCOMPARE(stage.problem(1), "not found");
    QVERIFY(QFile::copy(film(), path));
    stage.showAnew();
    stage.show(document, menu);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1), patience);
    QVERIFY(stage.problem(1).isEmpty());
}

void VideoStageTest::barredFileIsNotOpened() {
    VideoStage stage;
    SkinDocument document;
    Element element = videoOf(film());
    element.elementControl.picture = PictureContent::barred;
    document.addElement(std::move(element));
    stage.show(document, menu);
    QCOMPARE(playersOf(stage), 0);
    QVERIFY(stage.problem(1).isEmpty());
}

void VideoStageTest::isSettledWhenEachVideoThatCanBeSeenIs() {
    VideoStage stage;
    SkinDocument document = films(1);
    document.addElement(videoOf(folder_.path("missing.wmv")));
    QVERIFY(stage.isSettled(document)); // nothing is shown yet
    stage.show(document, menu);
    QVERIFY(!stage.isSettled(document)); // the film has no frame yet
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, 1), patience);
    QVERIFY(stage.isSettled(document));
}

void VideoStageTest::isSettledWithoutVideosThatAreNotShown() {
    SkinDocument document;
    Element barred = videoOf(film());
    barred.elementControl.picture = PictureContent::barred;
    document.addElement(std::move(barred));
    for (const QRectF& place :
         {QRectF(700, 0, 10, 10), QRectF(0, -50, 10, 50), QRectF(9, 9, 0, 9)}) {
        document.addElement(imageOf(ControlKind::vid, place, film()));
    }
    VideoStage stage;
    stage.show(document, menu);
    QVERIFY(stage.isSettled(document));
    document.setCurrentLayout(title);
    document.addElement(videoOf(film()));
    QVERIFY(stage.isSettled(document)); // it is on another screen
    stage.show(document, title);
    QVERIFY(!stage.isSettled(document));
}

void VideoStageTest::playersAreLimited() {
    constexpr int limit = VideoStage::largestCount;
    VideoStage stage;
    SkinDocument document = films(limit + 2);
    stage.show(document, menu);
    QCOMPARE(playersOf(stage), limit);
    QVERIFY(stage.problem(limit).isEmpty());
    QCOMPARE(stage.problem(limit + 1), "too many videos");
    QCOMPARE(stage.problem(limit + 2), "too many videos");
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, limit), patience);
    // One less makes room for one more.
    document.delItem(0);
    stage.show(document, menu);
    QVERIFY(stage.problem(limit + 1).isEmpty());
    QCOMPARE(stage.problem(limit + 2), "too many videos");
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, limit + 1), patience);
}

void VideoStageTest::screensShareTheLimit() {
    constexpr int limit = VideoStage::largestCount;
    VideoStage stage;
    SkinDocument document = films(limit);
    document.setCurrentLayout(title);
    document.addElement(videoOf(film()));
    stage.show(document, menu);
    stage.show(document, title);
    QTRY_VERIFY_WITH_TIMEOUT(hasFrame(stage, limit + 1), patience);
    QVERIFY(stage.problem(limit + 1).isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(playersOf(stage), limit, patience);
}

TARVEL_UI_TEST(VideoStageTest)
#include "video_stage_test.moc"
