// A whole skin from its start: from screen to screen by their delays, and what begins it.
#include "support/play_editor.h"
#include "support/ui_test.h"

using namespace tarvel;
using namespace tarvel::test;

class PlayingSkinTest : public QObject {
    Q_OBJECT

  private slots:
    void theSkinRunsFromItsStart();
    void keysPutTheSaverOffAndEndIt();
    void skinsWithoutDelaysAreAtTheirMenu();
    void theMenuTheButtonAndTheStripDoTheSame();
};

void PlayingSkinTest::theSkinRunsFromItsStart() {
    PlayEditor editor;
    for (int screen = 0; screen < 4; ++screen) {
        editor.add(boxAt(static_cast<float>(100 * screen), 100, 50, 50, 100), screen);
    }
    editor.document().setCurrentLayout(4);
    editor.document().editSettings([](SkinSettings& settings) {
        settings.delays = {2000, 1500, 10'000};
    });
    const SkinDocument before = editor.document();
    const auto shown = [&] {
        QString screens;
        for (int screen = 0; screen < 4; ++screen) {
            screens += editor.shows(100 * screen + 25, 125) ? QString::number(screen) : QString();
        }
        return screens;
    };
    QVERIFY(editor.play(Qt::ShiftModifier));
    QCOMPARE(shown(), QString("2"));
    QCOMPARE(editor.runText(), QString("Load: 1.5 s left"));
    QVERIFY(editor.pass(1400));
    QCOMPARE(editor.runText(), QString("Load: 0.1 s left"));
    editor.passUnseen(100);
    QCOMPARE(shown(), QString("0"));
    QCOMPARE(editor.runText(), QString("Title: 2.0 s left"));
    QCOMPARE(editor.time(), 0);
    editor.passUnseen(2000);
    QCOMPARE(shown(), QString("1"));
    QCOMPARE(editor.runText(), QString("Menu: saver in 10.0 s"));
    editor.passUnseen(10'000);
    QCOMPARE(shown(), QString("3"));
    QCOMPARE(editor.runText(), QString("Saver: until a key"));
    QCOMPARE(editor.document().currentLayout(), 4);
    editor.playKey(Qt::Key_Escape);
    QVERIFY(editor.document() == before);
    QCOMPARE(shown(), QString());
}

void PlayingSkinTest::keysPutTheSaverOffAndEndIt() {
    PlayEditor editor;
    editor.document().editSettings([](SkinSettings& settings) {
        settings.delays = {0, 0, 10'000};
    });
    QVERIFY(editor.play(Qt::ShiftModifier));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_X}) {
        QVERIFY(editor.pass(9000));
        QCOMPARE(editor.runText(), QString("Menu: saver in 1.0 s"));
        editor.playKey(key);
        QCOMPARE(editor.runText(), QString("Menu: saver in 10.0 s"));
    }
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_X}) {
        editor.passUnseen(10'000);
        QCOMPARE(editor.runText(), QString("Saver: until a key"));
        editor.playKey(Qt::Key_Right); // time goes on
        editor.playKey(Qt::Key_Space);
        editor.playKey(Qt::Key_Space);
        QCOMPARE(editor.runText(), QString("Saver: until a key"));
        editor.playKey(key);
        QCOMPARE(editor.runText(), QString("Menu: saver in 10.0 s"));
        QCOMPARE(editor.time(), 0);
    }
}

void PlayingSkinTest::skinsWithoutDelaysAreAtTheirMenu() {
    PlayEditor editor;
    editor.document().setCurrentLayout(0);
    QVERIFY(editor.play(Qt::ShiftModifier));
    QCOMPARE(editor.runText(), QString("Menu"));
    QVERIFY(editor.pass(1'000'000));
    QCOMPARE(editor.runText(), QString("Menu"));
    QCOMPARE(editor.timeText(), QString("16:40.0 min"));
    editor.playKey(Qt::Key_F5);
    QVERIFY(editor.play());
    QCOMPARE(editor.runText(), QString("Title"));
}

void PlayingSkinTest::theMenuTheButtonAndTheStripDoTheSame() {
    PlayEditor editor;
    editor.document().editSettings([](SkinSettings& settings) { settings.delays[1] = 5000; });
    editor.entry("mnuPlay")->trigger();
    QVERIFY(editor.isPlaying());
    QCOMPARE(editor.runText(), QString("Menu"));
    QTest::mouseClick(editor.find<QWidget>("cmdEndPlay"), Qt::LeftButton);
    QVERIFY(!editor.isPlaying());
    editor.entry("mnuPlaySkin")->trigger();
    QVERIFY(editor.isPlaying());
    QCOMPARE(editor.runText(), QString("Load: 5.0 s left"));
    editor.playKey(Qt::Key_Escape);
    QTest::mouseClick(editor.find<QWidget>("cmdPlayScreen"), Qt::LeftButton);
    QVERIFY(editor.isPlaying());
}

TARVEL_UI_TEST(PlayingSkinTest)
#include "playing_skin_test.moc"
