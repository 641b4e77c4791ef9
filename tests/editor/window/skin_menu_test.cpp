// What the menu "Skin" offers besides saving and loading: saving again, recent folders, further
// windows; and what the status line says of the skin.
#include "document/open_edit.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "support/menu_support.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QStatusBar>

#include <utility>

using namespace tarvel;
using namespace tarvel::test;
using Answer = Prompts::Answer;

namespace {

constexpr auto advice =
    "Before loading, (save your work) and restart the program to clear all memory";

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

// A skin with one box in a folder of its own.
QString makeSkin(Editor& editor, const QString& folder, const std::string& name) {
    SkinDocument skin;
    skin.editSettings([&](SkinSettings& settings) { settings.skinName = name; });
    skin.addElement(boxAt(0, 0, 100, 50));
    SkinWriter writer;
    saveSkin(skin, writer, hostPathOf(editor.newFolder(folder)), {});
    return editor.path(folder);
}

std::string nameIn(const QString& folder) {
    SkinDocument skin;
    readSkin(skin, hostPathOf(folder));
    return skin.settings().skinName;
}

struct SkinEditor : Editor {
    void load(const QString& skin) {
        prompts.folders << skin;
        entry("mnuLoad")->trigger();
    }
    /// Adds a box as a step of its own.
    int addBox(float left, int screen = 1) {
        const OpenEdit edit(document(), "draw Box");
        return add(boxAt(left, 10, 100, 50), screen);
    }
    void saveAgain() { key(Qt::Key_S, Qt::ControlModifier); }
    [[nodiscard]] QString status() const { return window.statusBar()->currentMessage(); }
    QString skinLabel() { return find<QLabel>("lblSkin")->text(); }
    QString unsaved() { return find<QLabel>("lblUnsaved")->text(); }
    QMenu* recent() { return entry("mnuRecent")->menu(); }
    /// Opens the menu of recent folders with the mouse.
    bool openRecent() {
        return choose(*this, "mnuRecent") && QTest::qWaitFor([&] { return recent()->isVisible(); });
    }
    static void closeMenus() {
        while (QWidget* menu = QApplication::activePopupWidget()) {
            menu->close();
        }
    }
    QStringList recentFolders() {
        QStringList texts;
        for (const QAction* each : recent()->actions()) {
            texts << each->toolTip() + (each->isEnabled() ? "" : " gone");
        }
        return texts;
    }
};

} // namespace

class SkinMenuTest : public QObject {
    Q_OBJECT

  private slots:
    void entriesInTheirOrder();
    void saveAgainSavesToTheFolderOfTheLastSave();
    void saveAgainSavesToTheFolderOfTheLastLoad();
    void saveAgainLeavesScreenAndSelection();
    void saveAgainEndsWhatIsBeingDrawn();
    void saveAgainAfterAnUndoneLoad();
    void saveAgainWithoutAFolderIsSave();
    void saveAgainWithoutANameIsSave();
    void saveAgainIntoAFolderThatIsGoneIsSave();
    void saveAgainThatFailsLosesNothing();
    void saveStaysAsItIs();
    void aFailedSaveIsNoFolderToSaveAgainTo();
    void closingStillAsks();
    void newWindowStartsAnotherRun();
    void newWindowThatCannotBeStartedIsTold();
    void recentFoldersAreListed();
    void recentFoldersThatAreGoneAreGreyed();
    void aRecentFolderIsLoadedAsLoadDoes();
    void noRecentFolders();
    void captionsOfRecentFoldersShowThePath();
    void theStatusLineNamesTheSkin();
    void theStatusLineFollowsUndo();
    void theStatusLineHasRoomForOtherThings();
};

void SkinMenuTest::entriesInTheirOrder() {
    Editor editor;
    QStringList entries;
    for (const QAction* each : editor.find<QMenu>("mnuSkin")->actions()) {
        entries << captionOf(*each) + '\t' + each->shortcut().toString();
    }
    QCOMPARE(entries,
             QStringList({"Save\tCtrl+Shift+S", "Load\tCtrl+O", "View XML (for testing only)\t",
                          "New Window\tCtrl+N", "Save Again\tCtrl+S", "Open Recent\t", "Check\t",
                          "Play\tF5", "Play Skin\tShift+F5"}));
}

void SkinMenuTest::saveAgainSavesToTheFolderOfTheLastSave() {
    SkinEditor editor;
    editor.show();
    editor.nameSkin("Nova");
    editor.prompts.folders << editor.newFolder("out");
    QStringList dialogs;
    closeNextDialog(dialogs);
    editor.key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(dialogs, QStringList("frmInstructions"));
    QVERIFY(activate(editor.window));
    const int id = editor.addBox(10);
    QCOMPARE(editor.unsaved(), QString("Unsaved changes"));
    editor.saveAgain();
    QCOMPARE(editor.prompts.folderTitles.size(), 1);
    QCOMPARE(editor.prompts.messages, QStringList());
    QVERIFY(QApplication::activeModalWidget() == nullptr); // no instructions
    QCOMPARE(editor.status(), "Saved to " + editor.path("out/"));
    QCOMPARE(editor.unsaved(), QString());
    SkinDocument again;
    readSkin(again, hostPathOf(editor.path("out")));
    QCOMPARE(again.rowCount(1), 1);
    QCOMPARE(again.element(1).elementControl.left, editor.control(id).left);
}

void SkinMenuTest::saveAgainSavesToTheFolderOfTheLastLoad() {
    SkinEditor editor;
    editor.show();
    const QString folder = makeSkin(editor, "skin", "Nova");
    editor.load(folder);
    editor.nameSkin("Supernova");
    QVERIFY(choose(editor, "mnuSaveAgain"));
    QCOMPARE(editor.prompts.folderTitles.size(), 1); // of the load
    QCOMPARE(nameIn(folder), std::string("Supernova"));
    QCOMPARE(editor.unsaved(), QString());
}

void SkinMenuTest::saveAgainLeavesScreenAndSelection() {
    SkinEditor editor;
    editor.show();
    editor.load(makeSkin(editor, "skin", "Nova"));
    editor.addBox(10, 3);
    editor.addBox(200, 3);
    editor.selectRow(3, 1);
    const int selected = editor.window.curNum();
    const SkinDocument before = editor.document();
    editor.saveAgain();
    QCOMPARE(editor.unsaved(), QString());
    QVERIFY(editor.document() == before);
    QCOMPARE(editor.document().currentLayout(), 3);
    QCOMPARE(editor.window.curNum(), selected);
    QCOMPARE(editor.selectedRow(3), 1);
}

void SkinMenuTest::saveAgainEndsWhatIsBeingDrawn() {
    SkinEditor editor;
    editor.show();
    const QString folder = makeSkin(editor, "skin", "Nova");
    editor.load(folder);
    editor.chooseTool("optBox");
    editor.press({300, 300});
    editor.drag({400, 360});
    editor.saveAgain();
    QCOMPARE(editor.document().rowCount(1), 2);
    SkinDocument saved;
    readSkin(saved, hostPathOf(folder));
    QCOMPARE(saved.element(2).elementControl.width, editor.control(2).width);
    editor.drag({500, 460}); // goes nowhere
    editor.release({500, 460});
    QCOMPARE(saved.element(2).elementControl.width, editor.control(2).width);
    QCOMPARE(editor.unsaved(), QString());
}

// The folder of what was taken back must not get the skin that was open before.
void SkinMenuTest::saveAgainAfterAnUndoneLoad() {
    SkinEditor editor;
    editor.show();
    const QString first = makeSkin(editor, "first", "First");
    const QString second = makeSkin(editor, "second", "Second");
    editor.load(first);
    editor.load(second);
    const QByteArray untouched = bytesOf(second + "/QOR_Skin.xml");
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.skinLabel(), "First (" + first + ")");
    editor.nameSkin("First again");
    editor.saveAgain();
    QCOMPARE(nameIn(first), std::string("First again"));
    QCOMPARE(bytesOf(second + "/QOR_Skin.xml"), untouched);

    editor.load(second);
    editor.entry("mnuUndo")->trigger();
    editor.entry("mnuRedo")->trigger();
    QCOMPARE(editor.skinLabel(), "Second (" + second + ")");
    editor.entry("mnuUndo")->trigger();
    editor.entry("mnuUndo")->trigger(); // the first load: nothing is known of a folder
    QCOMPARE(editor.skinLabel(), QString("Untitled"));
}

void SkinMenuTest::saveAgainWithoutAFolderIsSave() {
    SkinEditor editor;
    editor.show();
    editor.nameSkin("Nova");
    const QString out = editor.newFolder("out");
    editor.prompts.folders << out;
    QStringList dialogs;
    closeNextDialog(dialogs);
    editor.saveAgain();
    QCOMPARE(editor.prompts.folderTitles,
             QStringList("Select an EMPTY folder to save your skin in"));
    QCOMPARE(dialogs, QStringList("frmInstructions"));
    QVERIFY(QFile::exists(out + "/QOR_Skin.xml"));
}

void SkinMenuTest::saveAgainWithoutANameIsSave() {
    SkinEditor editor;
    editor.show();
    editor.load(makeSkin(editor, "skin", "Nova"));
    editor.nameSkin("");
    const QByteArray before = bytesOf(editor.path("skin/QOR_Skin.xml"));
    QStringList dialogs;
    closeNextDialog(dialogs);
    editor.saveAgain();
    QCOMPARE(editor.prompts.messages,
             QStringList("Enter a name for the skin, and then click save again"));
    QCOMPARE(dialogs, QStringList("frmInfo"));
    QCOMPARE(bytesOf(editor.path("skin/QOR_Skin.xml")), before);
}

void SkinMenuTest::saveAgainIntoAFolderThatIsGoneIsSave() {
    SkinEditor editor;
    editor.show();
    editor.load(makeSkin(editor, "skin", "Nova"));
    QVERIFY(QDir(editor.path("skin")).removeRecursively());
    editor.saveAgain();
    QCOMPARE(editor.prompts.folderTitles.back(),
             QString("Select an EMPTY folder to save your skin in"));
    QCOMPARE(editor.prompts.messages, QStringList());
}

void SkinMenuTest::saveAgainThatFailsLosesNothing() {
    SkinEditor editor;
    editor.show();
    const QString folder = makeSkin(editor, "skin", "Nova");
    editor.load(folder);
    editor.addBox(10, 3);
    QVERIFY(QFile::remove(folder + "/QOR_Skin.xml"));
    QVERIFY(QDir(folder).mkpath("QOR_Skin.xml/in the way"));
    editor.saveAgain();
    QVERIFY2(editor.status().startsWith("The skin was not saved: "), qPrintable(editor.status()));
    QCOMPARE(editor.unsaved(), QString("Unsaved changes"));
    QCOMPARE(editor.document().currentLayout(), 3);
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(QDir().mkpath(folder));
    editor.saveAgain(); // what was in the way is gone
    QCOMPARE(editor.unsaved(), QString());
    QCOMPARE(editor.prompts.folderTitles.size(), 1);
}

void SkinMenuTest::saveStaysAsItIs() {
    SkinEditor editor;
    editor.show();
    editor.load(makeSkin(editor, "skin", "Nova"));
    editor.clickScreen(3);
    editor.prompts.folders << editor.newFolder("out");
    QStringList dialogs;
    closeNextDialog(dialogs);
    editor.key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(editor.prompts.folderTitles.back(),
             QString("Select an EMPTY folder to save your skin in"));
    QCOMPARE(dialogs, QStringList("frmInstructions"));
    QCOMPARE(editor.document().currentLayout(), 1);
    QCOMPARE(editor.skinLabel(), "Nova (" + editor.path("out") + ")");
}

void SkinMenuTest::aFailedSaveIsNoFolderToSaveAgainTo() {
    SkinEditor editor;
    editor.show();
    const QString folder = makeSkin(editor, "skin", "Nova");
    editor.load(folder);
    QDir(editor.newFolder("out")).mkpath("QOR_Skin.xml/in the way");
    editor.prompts.folders << editor.path("out");
    editor.entry("mnuSave")->trigger();
    editor.entry("mnuSave")->trigger(); // cancelled
    QCOMPARE(editor.remembered.recentFolders(), QStringList(folder));
    editor.nameSkin("Supernova");
    editor.saveAgain();
    QCOMPARE(nameIn(folder), std::string("Supernova"));
}

void SkinMenuTest::closingStillAsks() {
    SkinEditor editor;
    editor.show();
    editor.load(makeSkin(editor, "skin", "Nova"));
    QCOMPARE(editor.unsaved(), QString());
    QVERIFY(!editor.window.close());
    QCOMPARE(editor.prompts.questions, QStringList("Save before exit?"));
    editor.prompts.answers << Answer::Yes; // by the same save as ever
    QVERIFY(!editor.window.close());
    QCOMPARE(editor.prompts.folderTitles.back(),
             QString("Select an EMPTY folder to save your skin in"));
}

void SkinMenuTest::newWindowStartsAnotherRun() {
    SkinEditor editor;
    editor.show();
    QStringList started;
    editor.window.startRunsBy([&](const QString& folder) {
        started << "run " + folder;
        return true;
    });
    editor.key(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(started, QStringList("run "));
    QVERIFY(choose(editor, "mnuNewWindow"));
    QCOMPARE(started.size(), 2);
    QVERIFY(editor.document() == SkinDocument());
    QCOMPARE(editor.prompts.messages, QStringList());
}

void SkinMenuTest::newWindowThatCannotBeStartedIsTold() {
    SkinEditor editor;
    editor.show();
    editor.window.startRunsBy([](const QString&) { return false; });
    editor.key(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(editor.prompts.messages, QStringList("A new window cannot be opened."));
}

void SkinMenuTest::recentFoldersAreListed() {
    SkinEditor editor;
    editor.show();
    const QString loaded = makeSkin(editor, "loaded", "Nova");
    const QString out = editor.newFolder("out");
    editor.load(loaded);
    editor.prompts.folders << out;
    QStringList dialogs;
    closeNextDialog(dialogs);
    editor.entry("mnuSave")->trigger();
    QVERIFY(editor.openRecent());
    QCOMPARE(editor.recentFolders(), QStringList({out, loaded}));
    SkinEditor::closeMenus();
    editor.load(loaded);
    editor.load(editor.newFolder("empty")); // that has no skin is no skin's folder
    QVERIFY(editor.openRecent());
    QCOMPARE(editor.recentFolders(), QStringList({loaded, out}));
}

void SkinMenuTest::recentFoldersThatAreGoneAreGreyed() {
    SkinEditor editor;
    editor.show();
    editor.load(makeSkin(editor, "gone", "Gone"));
    editor.load(makeSkin(editor, "there", "There"));
    const SkinDocument before = editor.document();
    QVERIFY(QDir(editor.path("gone")).removeRecursively());
    QVERIFY(editor.openRecent());
    QCOMPARE(editor.recentFolders(),
             QStringList({editor.path("there"), editor.path("gone") + " gone"}));
    QMenu* menu = editor.recent();
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[1]).center());
    QVERIFY(editor.document() == before);
    SkinEditor::closeMenus();
    QVERIFY(QDir().mkpath(editor.path("gone"))); // and once it is back
    QVERIFY(editor.openRecent());
    QCOMPARE(editor.recentFolders(), QStringList({editor.path("there"), editor.path("gone")}));
}

void SkinMenuTest::aRecentFolderIsLoadedAsLoadDoes() {
    SkinEditor editor;
    editor.show();
    const QString folder = makeSkin(editor, "skin", "Nova");
    editor.remembered.rememberSkinFolder(folder);
    for (int time = 1; time <= 2; ++time) {
        editor.clickScreen(3);
        QVERIFY(editor.openRecent());
        QMenu* menu = editor.recent();
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions().front()).center());
        QCOMPARE(editor.document().rowCount(1), time);
        QCOMPARE(editor.document().currentLayout(), 1);
        QCOMPARE(editor.status(), "Loaded from " + folder);
    }
    QCOMPARE(editor.prompts.messages, QStringList(advice)); // before the second one
    QCOMPARE(editor.prompts.folderTitles, QStringList());
    QCOMPARE(editor.remembered.lastFolder(), folder);
    QVERIFY(QFile::remove(folder + "/QOR_Skin.xml"));
    editor.clickScreen(3);
    QVERIFY(editor.openRecent());
    QTest::keyClick(editor.recent(), Qt::Key_Down);
    QTest::keyClick(editor.recent(), Qt::Key_Return);
    QCOMPARE(editor.prompts.messages.back(),
             QString("The selected folder does not contain a QOR_Skin.xml file"));
    QCOMPARE(editor.document().currentLayout(), 1);
}

void SkinMenuTest::noRecentFolders() {
    SkinEditor editor;
    editor.show();
    QVERIFY(editor.openRecent());
    QCOMPARE(editor.recent()->actions().size(), 1);
    QCOMPARE(captionOf(*editor.recent()->actions().front()), QString("No recent folders"));
    QVERIFY(!editor.recent()->actions().front()->isEnabled());
}

void SkinMenuTest::captionsOfRecentFoldersShowThePath() {
    SkinEditor editor;
    editor.show();
    const QString folder = editor.newFolder("R&B <b>");
    editor.remembered.rememberSkinFolder("/" + QString("long/").repeated(60));
    editor.remembered.rememberSkinFolder(folder);
    QVERIFY(editor.openRecent());
    const auto entries = editor.recent()->actions();
    QVERIFY(captionOf(*entries.front()).endsWith("/R&B <b>"));
    QVERIFY(entries.back()->text().contains(QChar(0x2026)));
    QVERIFY(editor.recent()->width() < 700);
}

void SkinMenuTest::theStatusLineNamesTheSkin() {
    SkinEditor editor;
    editor.show();
    auto* label = editor.find<QLabel>("lblSkin");
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), QString("Untitled"));
    QCOMPARE(editor.unsaved(), QString());
    editor.addBox(10);
    QCOMPARE(editor.unsaved(), QString("Unsaved changes"));
    editor.entry("mnuUndo")->trigger();
    const QString folder = makeSkin(editor, "skin", "Nova & <b>Co</b>");
    editor.load(folder);
    QCOMPARE(label->text(), "Nova & <b>Co</b> (" + folder + ")");
    QCOMPARE(label->toolTip(),
             "<span>Nova &amp; &lt;b&gt;Co&lt;/b&gt; (" + folder + ")</span>"); // as it stands
    {
        const OpenEdit edit(editor.document(), "name skin");
        editor.nameSkin("Nova");
    }
    QCOMPARE(label->text(), "Nova (" + folder + ")");
    QCOMPARE(label->toolTip(), label->text());
    QCOMPARE(editor.unsaved(), QString("Unsaved changes"));
    editor.nameSkin("");
    QCOMPARE(label->text(), "Untitled (" + folder + ")");
}

void SkinMenuTest::theStatusLineFollowsUndo() {
    SkinEditor editor;
    editor.show();
    const QString folder = makeSkin(editor, "skin", "Nova");
    editor.load(folder);
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.skinLabel(), QString("Untitled"));
    editor.entry("mnuRedo")->trigger();
    QCOMPARE(editor.skinLabel(), "Nova (" + folder + ")");
}

void SkinMenuTest::theStatusLineHasRoomForOtherThings() {
    SkinEditor editor;
    editor.show();
    auto* label = editor.find<QLabel>("lblSkin");
    const int narrow = editor.window.minimumSizeHint().width();
    editor.nameSkin(std::string(300, 'W'));
    settle();
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) > label->width());
    QVERIFY(label->width() <= editor.window.width() / 2);
    QVERIFY(label->width() > editor.window.width() / 3);
    QCOMPARE(editor.window.minimumSizeHint().width(), narrow);
    QCOMPARE(label->toolTip(), QString(300, 'W'));
    editor.nameSkin("W");
    settle();
    QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance("W"));
    QVERIFY(label->width() < 120);
    const auto* beside = editor.find<QLabel>("lblUnsaved"); // both texts stand on one line
    QCOMPARE(label->y(), beside->y());
    QCOMPARE(label->height(), beside->height());
}

TARVEL_UI_TEST(SkinMenuTest)
#include "skin_menu_test.moc"
