// The start with folders of skins, also where a run before it was lost.
#include "files/host_files.h"
#include "skinfile/recovery_store.h"
#include "skinfile/skin_folder.h"
#include "support/editor.h"
#include "support/ui_test.h"

#include <QLabel>

#include <utility>

using namespace tarvel;
using namespace tarvel::test;
using Answer = Prompts::Answer;
namespace fs = std::filesystem;

namespace {

constexpr auto question = "The last run ended before your work was saved. Bring it back?";
constexpr auto noSkin = "The selected folder does not contain a QOR_Skin.xml file";

SkinDocument skinNamed(const std::string& name) {
    SkinDocument skin;
    skin.editSettings([&](SkinSettings& settings) { settings.skinName = name; });
    skin.addElement(boxAt(0, 0, 100, 50));
    return skin;
}

struct StartedEditor : Editor {
    fs::path kept = hostPathOf(path("kept"));
    QStringList runs; // what others were started with

    StartedEditor() {
        window.startRunsBy([this](const QString& opened) {
            runs << opened;
            return true;
        });
        window.keepWorkIn(kept);
        show();
    }
    QString skin(const QString& name) {
        SkinDocument document = skinNamed(name.toStdString());
        SkinWriter writer;
        saveSkin(document, writer, hostPathOf(newFolder(name)), {});
        return path(name);
    }
    /// What a run leaves that was killed.
    fs::path lose(const QString& name, const QString& skinFolder) const {
        RecoveryStore store(kept);
        store.keep({.document = skinNamed(name.toStdString()),
                    .selected = {},
                    .leading = 0,
                    .folder = skinFolder.toStdString()});
        return store.file();
    }
    QString skinName() { return qtText(document().settings().skinName); }
};

} // namespace

class StartTest : public QObject {
    Q_OBJECT

  private slots:
    void withoutFolders();
    void aFolderIsLoaded();
    void furtherFoldersAreOtherRuns();
    void aWrongFolderIsTold_data();
    void aWrongFolderIsTold();
    void lostWorkComesFirst();
    void lostWorkOfTheFolderItself();
    void lostWorkThatIsNotWantedStays();
    void aRunThatCannotBeStartedIsTold();
};

void StartTest::withoutFolders() {
    StartedEditor editor;
    editor.lose("lost", "/skins/lost");
    editor.prompts.answers << Answer::Yes;
    editor.window.begin({});
    QCOMPARE(editor.prompts.questions, QStringList(question));
    QCOMPARE(editor.skinName(), QString("lost"));
    QCOMPARE(editor.runs, QStringList());
}

void StartTest::aFolderIsLoaded() {
    StartedEditor editor;
    const QString folder = editor.skin("nova");
    editor.window.begin({folder});
    QCOMPARE(editor.skinName(), QString("nova"));
    QCOMPARE(editor.document().rowCount(1), 1);
    QCOMPARE(editor.find<QLabel>("lblSkin")->text(), "nova (" + folder + ")");
    QCOMPARE(editor.find<QLabel>("lblUnsaved")->text(), QString());
    QCOMPARE(editor.prompts.messages, QStringList()); // no advice
    QCOMPARE(editor.prompts.questions, QStringList());
    QCOMPARE(editor.prompts.folderTitles, QStringList());
    QCOMPARE(editor.remembered.recentFolders(), QStringList(folder));
    QCOMPARE(editor.runs, QStringList());
}

void StartTest::furtherFoldersAreOtherRuns() {
    StartedEditor editor;
    const QString first = editor.skin("first");
    editor.window.begin({first, "/skins/b", "/skins/a"});
    QCOMPARE(editor.skinName(), QString("first"));
    QCOMPARE(editor.document().lastElementId(), 1);
    QCOMPARE(editor.runs, QStringList({"/skins/b", "/skins/a"}));
}

void StartTest::aWrongFolderIsTold_data() {
    QTest::addColumn<QString>("folder");
    QTest::newRow("without a skin") << "empty";
    QTest::newRow("none") << "gone";
    QTest::newRow("a file") << "settings.ini";
}

void StartTest::aWrongFolderIsTold() {
    QFETCH(QString, folder);
    StartedEditor editor;
    editor.newFolder("empty");
    editor.remembered.rememberLastFolder("/skins");                      // makes the file
    editor.prompts.onMessage = [&] { QCOMPARE(editor.runs.size(), 1); }; // it waits for nobody
    editor.window.begin({editor.path(folder), "/skins/a"});
    QCOMPARE(editor.prompts.messages, QStringList(noSkin));
    QCOMPARE(editor.prompts.lastOwner, static_cast<QWidget*>(&editor.window));
    QVERIFY(editor.document() == SkinDocument());
    QCOMPARE(editor.find<QLabel>("lblSkin")->text(), QString("Untitled"));
    QCOMPARE(editor.runs, QStringList("/skins/a"));
    QCOMPARE(editor.remembered.recentFolders(), QStringList());
}

// What is back must not get the skin of the folder in addition.
void StartTest::lostWorkComesFirst() {
    StartedEditor editor;
    const QString folder = editor.skin("nova");
    editor.lose("lost", "/skins/lost");
    editor.prompts.answers << Answer::Yes;
    editor.window.begin({folder, "/skins/a"});
    QCOMPARE(editor.prompts.questions, QStringList(question));
    QVERIFY(editor.document().holdsTheSame(skinNamed("lost")));
    QCOMPARE(editor.find<QLabel>("lblSkin")->text(), QString("lost (/skins/lost)"));
    QCOMPARE(editor.find<QLabel>("lblUnsaved")->text(), QString("Unsaved changes"));
    QCOMPARE(editor.runs, QStringList({folder, "/skins/a"}));
}

// It is what the folder would hold: a second window with the older state would only be in the way.
void StartTest::lostWorkOfTheFolderItself() {
    StartedEditor editor;
    const QString folder = editor.skin("nova");
    editor.lose("nova, but newer", folder + '/');
    editor.prompts.answers << Answer::Yes;
    editor.window.begin({folder});
    QVERIFY(editor.document().holdsTheSame(skinNamed("nova, but newer")));
    QCOMPARE(editor.runs, QStringList());
}

void StartTest::lostWorkThatIsNotWantedStays() {
    StartedEditor editor;
    const QString folder = editor.skin("nova");
    const fs::path lost = editor.lose("lost", {});
    editor.prompts.answers << Answer::No;
    editor.window.begin({folder});
    QCOMPARE(editor.prompts.questions, QStringList(question));
    QCOMPARE(editor.skinName(), QString("nova"));
    QCOMPARE(editor.document().lastElementId(), 1);
    QVERIFY(fs::exists(lost));
}

void StartTest::aRunThatCannotBeStartedIsTold() {
    StartedEditor editor;
    const QString folder = editor.skin("nova");
    editor.window.startRunsBy([](const QString&) { return false; });
    editor.window.begin({folder, "/skins/a"});
    QCOMPARE(editor.prompts.messages, QStringList("A new window cannot be opened."));
    QCOMPARE(editor.skinName(), QString("nova"));
}

TARVEL_UI_TEST(StartTest)
#include "start_test.moc"
