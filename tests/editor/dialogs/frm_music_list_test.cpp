// The file list of the Music dialog, and listening to its files.
#include "dialogs/music_list.h"
#include "support/captions.h"
#include "support/music_support.h"
#include "support/ui_test.h"
#include "widgets/play_button.h"

#include <QAudioDevice>
#include <QLabel>
#include <QMediaDevices>
#include <QSignalSpy>

namespace tarvel {

using test::click;
using test::clickRow;
using test::control;

class FrmMusicListTest : public QObject, protected test::MusicFixture {
    Q_OBJECT

  private slots:
    void init() { startAfresh(); }
    void severalFilesAreAdded();
    void nothingIsAdded_data();
    void nothingIsAdded();
    void deleteRemovesTheEntryOnly();
    void rightClickRemovesTheEntryOnly();
    void rightClickBelowTheRowsRemovesNothing();
    void rightClickRemovesTheEntryUnderIt();
    void removingWithoutASelectionDoesNothing();
    void removalGoesOnWithTheNextEntry();
    void droppedMusicIsAdded();
    void otherDropsAreRefused();
    void filesThatASkinCannotHoldAreRefused();
    void missingFilesAreMarked();
    void selectedFileIsPlayed();
    void otherFileTakesThePlace();
    void playButtonNeedsAFile();
    void progressAndProblemsAreShown();
    void fallsSilentWhenClosed();
    void fallsSilentWhenTheEntryIsRemoved();
    void fallsSilentWhenTheListIsHidden_data();
    void fallsSilentWhenTheListIsHidden();
    void realPlayerTellsOfProblems();
    void realPlayerPlaysToTheEnd();
};

void FrmMusicListTest::severalFilesAreAdded() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    const QString first = QString::fromStdString(folder_.file("new/First Song.mp3", "x").string());
    const QString second = inFolder("gone.wma");
    prompts_->fileChoices = {{first, second}};
    click(control<QPushButton>(*dialog, "cmdAdd"));
    QCOMPARE(prompts_->severals, QList<bool>{true});
    QCOMPARE(prompts_->lastOwner, dialog.get());
    const auto& list = control<MusicList>(*dialog, "lstMusic");
    QCOMPARE(list.count(), 5);
    QCOMPARE(list.item(3)->text(), first);
    QCOMPARE(list.item(4)->text(), second);
    QCOMPARE(list.item(3)->data(Qt::UserRole).toInt(), 3);
    QCOMPARE(list.item(4)->data(Qt::UserRole).toInt(), 4);
    QVERIFY(list.item(4)->isSelected());
    QCOMPARE(music().musicFiles.size(), 5U);
    QCOMPARE(music().musicFiles[3], folder_.document("new\\First Song.mp3"));
    QCOMPARE(music().musicFiles[4], folder_.document("gone.wma"));
    QCOMPARE(music().rows, (std::vector<int>{0, 1, 2, 3, 4}));
}

void FrmMusicListTest::nothingIsAdded_data() {
    QTest::addColumn<QList<QStringList>>("choices");
    QTest::newRow("cancelled") << QList<QStringList>();
    QTest::newRow("no name") << QList<QStringList>{{""}};
}

void FrmMusicListTest::nothingIsAdded() {
    QFETCH(QList<QStringList>, choices);
    setThreeFiles();
    const MusicSettings before = music();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    prompts_->fileChoices = choices;
    click(control<QPushButton>(*dialog, "cmdAdd"));
    QCOMPARE(prompts_->filters.size(), 1);
    QCOMPARE(control<MusicList>(*dialog, "lstMusic").count(), 3);
    QCOMPARE(music(), before);
}

void FrmMusicListTest::deleteRemovesTheEntryOnly() {
    setThreeFiles();
    MusicSettings expected = music();
    expected.rows = {0, 2};
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    clickRow(list, 1);
    QTest::keyClick(&list, Qt::Key_Delete);
    QCOMPARE(test::rowTexts(list), (QStringList{inFolder("a.wma"), inFolder("c.wma")}));
    QCOMPARE(list.item(0)->data(Qt::UserRole).toInt(), 0);
    QCOMPARE(list.item(1)->data(Qt::UserRole).toInt(), 2);
    QCOMPARE(music(), expected);
    prompts_->fileChoices = {{inFolder("d.wma")}};
    click(control<QPushButton>(*dialog, "cmdAdd"));
    QCOMPARE(list.item(2)->data(Qt::UserRole).toInt(), 3);
}

void FrmMusicListTest::rightClickRemovesTheEntryOnly() {
    setThreeFiles();
    MusicSettings expected = music();
    expected.rows = {0, 1};
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    clickRow(list, 0);
    QCOMPARE(list.count(), 3); // not with the left button
    clickRow(list, 2, Qt::RightButton);
    QCOMPARE(music(), expected);
    QCOMPARE(list.count(), 2);
}

void FrmMusicListTest::rightClickBelowTheRowsRemovesNothing() {
    setThreeFiles();
    const MusicSettings before = music();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    clickRow(list, 0);
    const QPoint below = list.viewport()->rect().bottomRight() - QPoint(5, 5);
    QVERIFY(list.itemAt(below) == nullptr);
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, below);
    QCOMPARE(music(), before);
    QCOMPARE(list.count(), 3);
    QVERIFY(list.item(0)->isSelected());
}

// Whatever keys are held with it.
void FrmMusicListTest::rightClickRemovesTheEntryUnderIt() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    clickRow(list, 0);
    for (const auto key : {Qt::ControlModifier, Qt::ShiftModifier}) {
        QTest::mouseClick(list.viewport(), Qt::RightButton, key,
                          list.visualItemRect(list.item(1)).center());
    }
    QCOMPARE(music().rows, std::vector<int>{0});
}

void FrmMusicListTest::removingWithoutASelectionDoesNothing() {
    setThreeFiles();
    const MusicSettings before = music();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::mouseClick(list.viewport(), Qt::RightButton, {},
                      list.viewport()->rect().bottomRight() - QPoint(5, 5));
    QCOMPARE(music(), before);
}

void FrmMusicListTest::removalGoesOnWithTheNextEntry() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    clickRow(list, 1);
    QTest::keyClick(&list, Qt::Key_Delete);
    QVERIFY(list.item(1)->isSelected());
    QTest::keyClick(&list, Qt::Key_Delete);
    QVERIFY(list.item(0)->isSelected());
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::keyClick(&list, Qt::Key_Delete);
    QCOMPARE(list.count(), 0);
    QCOMPARE(music().musicFiles.size(), 3U);
}

void FrmMusicListTest::droppedMusicIsAdded() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    const QString song = QString::fromStdString(folder_.file("SONG.WMA", "x").string());
    const QString picture = QString::fromStdString(folder_.file("cover.png", "x").string());
    const QString other = QString::fromStdString(folder_.file("other.mp3", "x").string());
    QVERIFY(test::dropFiles(*list.viewport(), {song, picture, other}));
    QCOMPARE(list.count(), 5);
    QCOMPARE(list.item(3)->text(), song);
    QCOMPARE(list.item(4)->text(), other);
    QCOMPARE(music().musicFiles[3], folder_.document("SONG.WMA"));
    QCOMPARE(music().rows.back(), 4);
}

void FrmMusicListTest::filesThatASkinCannotHoldAreRefused() {
    setMusic(test::musicOptions(true, false, true, false));
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<QListWidget>(*dialog, "lstMusic");
    for (const char* name : {"a.wma", "b\\c.wma", "d\\e.wma"}) {
        folder_.file(name, "music");
    }
    const auto problem = [&](const char* name) {
        return "The path of a skin's file cannot hold a backslash: " + inFolder(name);
    };
    prompts_->fileChoices << QStringList(
        {inFolder("b\\c.wma"), inFolder("a.wma"), inFolder("d\\e.wma")});
    test::click(control<QPushButton>(*dialog, "cmdAdd"));
    const QString both = problem("b\\c.wma") + '\n' + problem("d\\e.wma");
    QTRY_COMPARE(prompts_->messages, QStringList(both));
    QCOMPARE(test::rowTexts(list), QStringList(inFolder("a.wma")));
    QVERIFY(test::dropFiles(*list.viewport(), {inFolder("b\\c.wma")}));
    QTRY_COMPARE(prompts_->messages, QStringList({both, problem("b\\c.wma")}));
    QCOMPARE(list.count(), 1);
    QCOMPARE(music().rows.size(), 1U);
}

void FrmMusicListTest::otherDropsAreRefused() {
    setThreeFiles();
    const MusicSettings before = music();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    const QString picture = QString::fromStdString(folder_.file("cover.png", "x").string());
    const QString folder = QString::fromStdString(folder_.folder("folder.wma").string());
    const QString gone = inFolder("gone.wma");
    QVERIFY(!test::dropFiles(*list.viewport(), {picture, folder, gone}));
    QVERIFY(!test::dropFiles(*list.viewport(), {}));
    QVERIFY(!test::dropFiles(control<QWidget>(*dialog, "chkGlobal"), {inFolder("a.wma")}));
    QCOMPARE(music(), before);
}

void FrmMusicListTest::missingFilesAreMarked() {
    setThreeFiles();
    std::filesystem::remove(folder_ / "b.wma");
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    const auto& list = control<MusicList>(*dialog, "lstMusic");
    QVERIFY(!list.item(0)->font().italic());
    QVERIFY(list.item(1)->font().italic());
    QVERIFY(list.item(1)->toolTip().contains("cannot be found"));
    QCOMPARE(list.item(0)->toolTip(), list.item(0)->text());
}

void FrmMusicListTest::selectedFileIsPlayed() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    auto& button = control<PlayButton>(*dialog, "cmdPlay");
    clickRow(list, 1);
    QCOMPARE(log_, QStringList());
    click(button);
    QCOMPARE(log_, QStringList{"play " + inFolder("b.wma")});
    QVERIFY(button.isPlaying());
    QCOMPARE(test::captionOf(button), "Stop");
    QCOMPARE(button.accessibleName(), "Stop listening");
    click(button);
    QCOMPARE(log_.last(), "stop");
    QVERIFY(!button.isPlaying());
    QCOMPARE(test::captionOf(button), "Play");
    QCOMPARE(button.accessibleName(), "Play the selected file");
    QTest::keyClick(&list, Qt::Key_Space);
    QVERIFY(button.isPlaying());
    QTest::keyClick(&list, Qt::Key_Space);
    QVERIFY(!button.isPlaying());
    clickRow(list, 2);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                       list.visualItemRect(list.item(2)).center());
    QCOMPARE(log_.last(), "play " + inFolder("c.wma"));
}

void FrmMusicListTest::otherFileTakesThePlace() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    auto& button = control<PlayButton>(*dialog, "cmdPlay");
    clickRow(list, 0);
    click(button);
    clickRow(list, 2);
    QVERIFY(!button.isPlaying()); // a press would play the other one
    click(button);
    QCOMPARE(log_, (QStringList{"play " + inFolder("a.wma"), "play " + inFolder("c.wma")}));
    QVERIFY(button.isPlaying());
}

void FrmMusicListTest::playButtonNeedsAFile() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& button = control<PlayButton>(*dialog, "cmdPlay");
    QVERIFY(!button.isEnabled());
    QTest::keyClick(&control<MusicList>(*dialog, "lstMusic"), Qt::Key_Space);
    QCOMPARE(log_, QStringList());
    clickRow(control<MusicList>(*dialog, "lstMusic"), 0);
    QVERIFY(button.isEnabled());
}

void FrmMusicListTest::progressAndProblemsAreShown() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& label = control<QLabel>(*dialog, "lblPlaying");
    clickRow(control<MusicList>(*dialog, "lstMusic"), 0);
    const QString file = inFolder("a.wma");
    player_->tell({.playing = true, .file = file, .position = 61'900, .duration = 205'000});
    QCOMPARE(label.text(), "1:01 of 3:25");
    player_->tell({.file = file, .problem = "cannot be played here"});
    QCOMPARE(label.text(), "cannot be played here");
    QCOMPARE(test::captionOf(control<PlayButton>(*dialog, "cmdPlay")), "Play");
    player_->tell({});
    QCOMPARE(label.text(), "");
}

void FrmMusicListTest::fallsSilentWhenClosed() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    clickRow(control<MusicList>(*dialog, "lstMusic"), 0);
    click(control<PlayButton>(*dialog, "cmdPlay"));
    click(control<QPushButton>(*dialog, "cmdOK"));
    QCOMPARE(log_.last(), "stop");
}

void FrmMusicListTest::fallsSilentWhenTheEntryIsRemoved() {
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    auto& list = control<MusicList>(*dialog, "lstMusic");
    clickRow(list, 0);
    click(control<PlayButton>(*dialog, "cmdPlay"));
    clickRow(list, 2);
    QTest::keyClick(&list, Qt::Key_Delete);
    QCOMPARE(log_.size(), 1); // the other one plays on
    clickRow(list, 0);
    QTest::keyClick(&list, Qt::Key_Delete);
    QCOMPARE(log_.last(), "stop");
}

void FrmMusicListTest::fallsSilentWhenTheListIsHidden_data() {
    QTest::addColumn<QString>("option");
    QTest::newRow("custom music off") << "chkCustom";
    QTest::newRow("no music") << "optNoMusic";
}

void FrmMusicListTest::fallsSilentWhenTheListIsHidden() {
    QFETCH(QString, option);
    setThreeFiles();
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    clickRow(control<MusicList>(*dialog, "lstMusic"), 0);
    click(control<PlayButton>(*dialog, "cmdPlay"));
    click(control<QWidget>(*dialog, "chkRandom")); // hides nothing
    QCOMPARE(log_, QStringList{"play " + inFolder("a.wma")});
    click(control<QWidget>(*dialog, option));
    QCOMPARE(log_, (QStringList{"play " + inFolder("a.wma"), "stop"}));
    QVERIFY(!control<PlayButton>(*dialog, "cmdPlay").isPlaying());
}

void FrmMusicListTest::realPlayerTellsOfProblems() {
    const auto player = makeTrackPlayer();
    const QSignalSpy changed(player.get(), &TrackPlayer::changed);
    const QString gone = inFolder("vanished.wma");
    player->play(gone);
    QVERIFY(changed.count() > 0);
    QVERIFY(!player->state().playing);
    QCOMPARE(player->state().file, gone);
    QCOMPARE(player->state().problem, "not found");
    player->play(QString::fromStdString(folder_.folder("a folder.wma").string()));
    QCOMPARE(player->state().problem, "not readable");
    // Either nothing can be heard here, or the player finds out what the file is.
    player->play(QString::fromStdString(folder_.file("empty.wma", "").string()));
    QTRY_VERIFY_WITH_TIMEOUT(!player->state().problem.isEmpty(), 10'000);
    QVERIFY(!player->state().playing);
    player->stop();
    QCOMPARE(player->state().problem, "");
    QCOMPARE(player->state().file, "");
}

void FrmMusicListTest::realPlayerPlaysToTheEnd() {
    // Half a second of silence.
    constexpr quint32 rate = 8000;
    QByteArray wave = QByteArray::fromHex("52494646c40f000057415645666d74201000000001000100401f0000"
                                          "401f00000100080064617461a00f0000");
    wave += QByteArray(rate / 2, char(0x80));
    const QString file =
        QString::fromStdString(folder_.file("half.wav", wave.toStdString()).string());
    const auto player = makeTrackPlayer();
    player->play(file);
    if (QMediaDevices::audioOutputs().isEmpty()) {
        QCOMPARE(player->state().problem, "no audio device");
        QVERIFY(!player->state().playing);
        return;
    }
    QVERIFY(player->state().playing);
    QTRY_VERIFY_WITH_TIMEOUT(player->state().duration > 0, 10'000);
    QTRY_VERIFY_WITH_TIMEOUT(!player->state().playing, 10'000);
    QCOMPARE(player->state().problem, "");
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmMusicListTest)
#include "frm_music_list_test.moc"
