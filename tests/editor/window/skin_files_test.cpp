// Load, Save, View XML, the backgrounds and closing, by the entries of the main window.
#include "document/normalised.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "support/editor.h"
#include "support/ui_test.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QStatusBar>

#include <utility>

using namespace tarvel;
using namespace tarvel::test;
using Answer = Prompts::Answer;

namespace {

constexpr auto examples = TARVEL_EXAMPLES_DIR;

int addBox(Editor& editor, int screen) {
    return editor.add(boxAt(0, 0, 100, 50), screen);
}

} // namespace

class SkinFilesTest : public QObject {
    Q_OBJECT

  private slots:
    void loadsAnExample();
    void loadAdvisesWhenTheDocumentHoldsSomething();
    void loadWithoutAChosenFolderShowsMenu();
    void loadOfAFolderWithoutASkin();
    void loadOfABrokenSkinLeavesTheDocument();
    void loadNamesResourcesOutsideTheFolder();
    void noSizeIsTakenFromAResourceOutside();
    void saveAsksForANameFirst();
    void saveWritesTheFolderAndShowsInstructions();
    void saveCancelled();
    void saveReportsAnUnwritableSkinFile();
    void saveStopsWhenACopyFails();
    void viewXmlShowsTheText();
    void backgroundIsLoadedAndUnloaded();
    void pathsThatASkinCannotHaveAreRefused();
    void aFileThatWouldReplaceAnotherOnesOriginalStopsTheSave();
    void inertEntries();
    void closeCancelled();
    void closeWithoutSaving();
    void closeSavingKeepsAGivenName();
    void closeSavingNamesTheSkin();
    void closeSavingWithCancelledFolder();
    void closeSavingWithAFailedSave();
};

void SkinFilesTest::loadsAnExample() {
    Editor editor;
    editor.prompts.folders << QStringLiteral("%1/aurora").arg(examples);
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.prompts.folderTitles, QStringList("Select skin folder to open"));
    QCOMPARE(editor.prompts.messages, QStringList());
    SkinDocument expected;
    readSkin(expected, hostPathOf(QStringLiteral("%1/aurora").arg(examples)));
    QVERIFY(editor.window.document() == expected);
    QCOMPARE(editor.window.document().currentLayout(), 1);
    for (int screen = 0; screen < screenCount; ++screen) {
        QCOMPARE(editor.lst(screen)->model()->rowCount(), expected.rowCount(screen));
        QCOMPARE(editor.optScreen(screen)->font().bold(),
                 screen != 5 && expected.screenElementCount(screen) > 0);
    }
    QCOMPARE(editor.lst(1)->model()->index(0, 0).data().toString(), qtText(expected.rowText(1, 0)));
}

void SkinFilesTest::loadAdvisesWhenTheDocumentHoldsSomething() {
    Editor editor;
    const QString folder = QStringLiteral("%1/handmade").arg(examples);
    editor.prompts.folders << folder << folder;
    editor.entry("mnuLoad")->trigger();
    const int before = editor.window.document().lastElementId();
    QVERIFY(before > 0);
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.prompts.messages,
             QStringList("Before loading, (save your work) and restart the program to clear all "
                         "memory"));
    QCOMPARE(editor.window.document().lastElementId(), 2 * before);
}

void SkinFilesTest::loadWithoutAChosenFolderShowsMenu() {
    Editor editor;
    editor.window.optScreen_Click(3);
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.window.document().currentLayout(), 1);
    QVERIFY(editor.optScreen(1)->isChecked());
    QCOMPARE(editor.prompts.messages, QStringList());
}

void SkinFilesTest::loadOfAFolderWithoutASkin() {
    Editor editor;
    editor.window.optScreen_Click(3);
    editor.prompts.folders << editor.newFolder("empty");
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.prompts.messages,
             QStringList("The selected folder does not contain a QOR_Skin.xml file"));
    QVERIFY(editor.window.document() == SkinDocument());
}

void SkinFilesTest::loadOfABrokenSkinLeavesTheDocument() {
    Editor editor;
    addBox(editor, 2);
    editor.window.optScreen_Click(1);
    const SkinDocument before = editor.window.document();
    const QString folder = editor.newFolder("broken");
    QFile file(folder + "/QOR_Skin.xml");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<Skin name=\"x\">\n<Layout Screen=\"Menu\">\n");
    file.close();
    editor.prompts.folders << folder;
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.prompts.messages.size(), 2); // the advice comes first
    QCOMPARE(editor.prompts.messages.back(),
             QStringLiteral("QOR_Skin.xml cannot be read: it ends before its elements are closed "
                            "(line 2)"));
    QVERIFY(editor.window.document() == before);
}

void SkinFilesTest::loadNamesResourcesOutsideTheFolder() {
    Editor editor;
    const QString folder = editor.newFolder("outside");
    QFile file(folder + "/QOR_Skin.xml");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<Skin name='x'><Resource Type='Image' Name='a'><File>..\\a.png</File></Resource>"
               "<Resource Type='Image' Name='b'><File>Media\\b.png</File></Resource></Skin>");
    file.close();
    editor.prompts.folders << folder;
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.prompts.messages,
             QStringList("These resources lie outside the skin folder and are left out: a"));
    QCOMPARE(editor.window.document().settings().resources.size(), std::size_t{2});
}

// The first lies outside, the second in the folder; both are the same picture.
void SkinFilesTest::noSizeIsTakenFromAResourceOutside() {
    Editor editor;
    editor.show();
    const QString folder = editor.newFolder("outside/Media");
    QImage picture(64, 32, QImage::Format_RGB32);
    picture.fill(Qt::cyan);
    QVERIFY(picture.save(folder + "/inside.png"));
    QVERIFY(picture.save(editor.path("away.png")));
    QFile file(editor.path("outside/QOR_Skin.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<Skin name='x'><Resource Type='Image' Name='a'><File>..\\away.png</File></Resource>"
               "<Resource Type='Image' Name='b'><File>Media\\inside.png</File></Resource></Skin>");
    file.close();
    editor.prompts.folders << editor.path("outside");
    editor.entry("mnuLoad")->trigger();
    for (const auto& [resource, size] :
         {std::pair(QStringLiteral("a"), QSizeF(160, 120)), {QStringLiteral("b"), {64, 32}}}) {
        editor.chooseTool("optImg");
        auto* list = editor.find<QComboBox>("lstR");
        list->setFocus(Qt::TabFocusReason);
        while (list->currentText() != resource && list->currentIndex() < list->count() - 1) {
            QTest::keyClick(list, Qt::Key_Down);
        }
        QCOMPARE(list->currentText(), resource);
        editor.click({100, 100});
        const ElementControl& made = editor.control(editor.document().lastElementId());
        QCOMPARE(QSizeF(made.width, made.height), size);
    }
}

void SkinFilesTest::saveAsksForANameFirst() {
    Editor editor;
    QStringList dialogs;
    closeNextDialog(dialogs);
    editor.entry("mnuSave")->trigger();
    QCOMPARE(editor.prompts.messages,
             QStringList("Enter a name for the skin, and then click save again"));
    QCOMPARE(dialogs, QStringList("frmInfo"));
    QCOMPARE(editor.prompts.folderTitles, QStringList());
}

void SkinFilesTest::saveWritesTheFolderAndShowsInstructions() {
    Editor editor;
    editor.prompts.folders << QStringLiteral("%1/handmade").arg(examples);
    editor.entry("mnuLoad")->trigger();
    const QString out = editor.newFolder("out");
    editor.prompts.folders << out;
    QStringList dialogs;
    closeNextDialog(dialogs);
    const SkinDocument before = editor.window.document();
    editor.entry("mnuSave")->trigger();
    QCOMPARE(editor.prompts.folderTitles.back(),
             QStringLiteral("Select an EMPTY folder to save your skin in"));
    QCOMPARE(dialogs, QStringList("frmInstructions"));
    QVERIFY(editor.window.document() == before);
    QCOMPARE(editor.prompts.messages, QStringList());
    SkinDocument again;
    readSkin(again, hostPathOf(out));
    QVERIFY(normalised(again) == normalised(before));
}

void SkinFilesTest::saveCancelled() {
    Editor editor;
    editor.nameSkin("Nova");
    editor.entry("mnuSave")->trigger();
    QCOMPARE(editor.prompts.folderTitles.size(), 1);
    QCOMPARE(editor.prompts.messages, QStringList());
}

void SkinFilesTest::saveReportsAnUnwritableSkinFile() {
    Editor editor;
    editor.nameSkin("Nova");
    const QString out = editor.newFolder("out");
    QDir(out).mkpath("QOR_Skin.xml/in the way");
    editor.prompts.folders << out;
    editor.entry("mnuSave")->trigger();
    QCOMPARE(editor.prompts.messages, QStringList());
    QVERIFY(editor.window.statusBar()->currentMessage().startsWith("The skin was not saved: "));
    QVERIFY(QDir(out).exists("Media") && QDir(out).exists("Music"));
}

void SkinFilesTest::saveStopsWhenACopyFails() {
    Editor editor;
    editor.nameSkin("Nova");
    editor.window.document().addRes("a", documentPath(hostPathOf(editor.path("missing.png"))));
    editor.prompts.folders << editor.newFolder("out");
    editor.entry("mnuSave")->trigger();
    QCOMPARE(editor.prompts.messages.size(), 1);
    QVERIFY(editor.prompts.messages.front().contains("missing.png"));
    QCOMPARE(editor.window.statusBar()->currentMessage(),
             QStringLiteral("The skin was not saved completely."));
}

void SkinFilesTest::viewXmlShowsTheText() {
    Editor editor;
    editor.nameSkin("Nova");
    addBox(editor, 2);
    editor.entry("mnuView")->trigger();
    auto* edit = editor.find<QPlainTextEdit>("txtXml");
    QVERIFY(edit != nullptr);
    QVERIFY(edit->isReadOnly());
    const QFontMetrics metrics(edit->font());
    QCOMPARE(metrics.horizontalAdvance("iiii"), metrics.horizontalAdvance("WWWW"));
    QVERIFY(edit->toPlainText().startsWith("<Skin name=\"Nova\">\n\t<Information>\n"));
    QVERIFY(edit->toPlainText().contains("\t<Layout Screen=\"Load\">\n"));
    QCOMPARE(editor.window.document().currentLayout(), 1);
}

void SkinFilesTest::backgroundIsLoadedAndUnloaded() {
    Editor editor;
    editor.entry("mnuLoadBg")->trigger(); // cancelled
    QCOMPARE(editor.prompts.filters, QStringList("JPG|*.jpg|BMP|*.bmp"));
    QVERIFY(!editor.window.document().settings().background.loaded);
    const QString picture = QStringLiteral("%1/aurora/Media/aurora.jpg").arg(examples);
    editor.prompts.fileChoices << QStringList(picture);
    editor.entry("mnuLoadBg")->trigger();
    const Background loaded = editor.window.document().settings().background;
    QVERIFY(loaded.loaded);
    QCOMPARE(loaded.path, documentPath(hostPathOf(picture)));
    editor.entry("mnuUnloadBg")->trigger();
    QVERIFY(!editor.window.document().settings().background.loaded);
    QCOMPARE(editor.window.document().settings().background.path, loaded.path);
}

void SkinFilesTest::pathsThatASkinCannotHaveAreRefused() {
    Editor editor;
    editor.nameSkin("Nova");
    const QString picture = editor.path("a\\b.jpg");
    QVERIFY(QFile::copy(QStringLiteral("%1/aurora/Media/aurora.jpg").arg(examples), picture));
    editor.prompts.fileChoices << QStringList(picture);
    editor.entry("mnuLoadBg")->trigger();
    const QString file = "The path of a skin's file cannot hold a backslash: " + picture;
    QTRY_COMPARE(editor.prompts.messages, QStringList(file));
    QVERIFY(!editor.window.document().settings().background.loaded);

    const QString refused = editor.path("c\\d");
    QVERIFY(QDir().mkpath(refused));
    const QString folder = "The path of a skin's folder cannot hold a backslash: " + refused;
    editor.prompts.messages.clear();
    editor.prompts.folders << refused;
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.prompts.messages, QStringList(folder));
    editor.prompts.folders << refused;
    editor.entry("mnuSave")->trigger();
    QCOMPARE(editor.prompts.messages, QStringList({folder, folder + '/'}));
    QVERIFY(QDir(refused).isEmpty());
}

void SkinFilesTest::aFileThatWouldReplaceAnotherOnesOriginalStopsTheSave() {
    Editor editor;
    editor.nameSkin("Nova");
    const QString out = editor.path("out");
    const QString kept = out + "/Media/x.jpg";
    const QString other = out + "/pics/x.jpg";
    for (const QString& file : {kept, other}) {
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QVERIFY(QFile::copy(QStringLiteral("%1/aurora/Media/aurora.jpg").arg(examples), file));
        editor.window.document().addRes("x", documentPath(hostPathOf(file)));
    }
    editor.prompts.folders << out;
    editor.entry("mnuSave")->trigger();
    const QString message = "Nothing was saved: two files have one name, " + kept + " and " +
                            other + ", and the second would take the place of the first";
    QCOMPARE(editor.prompts.messages, QStringList(message));
    QVERIFY(!QFile::exists(out + "/QOR_Skin.xml"));
    QVERIFY(editor.window.statusBar()->currentMessage().contains(message));
}

void SkinFilesTest::inertEntries() {
    Editor editor;
    addBox(editor, 1);
    const SkinDocument before = editor.window.document();
    auto* cover = editor.entry("mnuCover");
    QVERIFY(!cover->isChecked());
    cover->trigger();
    QVERIFY(cover->isChecked());
    cover->trigger();
    QVERIFY(!cover->isChecked());
    editor.entry("mnuBorders")->trigger();
    QVERIFY(editor.window.document() == before);
    QCOMPARE(editor.prompts.messages, QStringList());
}

void SkinFilesTest::closeCancelled() {
    Editor editor;
    editor.window.show();
    editor.prompts.answers << Answer::Cancel;
    QVERIFY(!editor.window.close());
    QCOMPARE(editor.prompts.questions, QStringList("Save before exit?"));
    QVERIFY(editor.window.isVisible());
}

void SkinFilesTest::closeWithoutSaving() {
    Editor editor;
    editor.window.show();
    editor.prompts.answers << Answer::No;
    QVERIFY(editor.window.close());
    QCOMPARE(editor.prompts.folderTitles, QStringList());
}

void SkinFilesTest::closeSavingKeepsAGivenName() {
    Editor editor;
    editor.window.show();
    editor.nameSkin("Nova");
    editor.prompts.answers << Answer::Yes;
    const QString out = editor.newFolder("out");
    editor.prompts.folders << out;
    QStringList dialogs;
    closeNextDialog(dialogs);
    QVERIFY(editor.window.close());
    QCOMPARE(editor.window.document().settings().skinName, std::string("Nova"));
    QVERIFY(QFile::exists(out + "/QOR_Skin.xml"));
}

void SkinFilesTest::closeSavingNamesTheSkin() {
    Editor editor;
    editor.window.show();
    editor.prompts.answers << Answer::Yes;
    editor.prompts.folders << editor.newFolder("out");
    QStringList dialogs;
    closeNextDialog(dialogs);
    QVERIFY(editor.window.close());
    static const QRegularExpression form("^myskin(\\d{1,3})$");
    const auto match = form.match(qtText(editor.window.document().settings().skinName));
    QVERIFY(match.hasMatch());
    QVERIFY(match.captured(1).toInt() < 350);
}

void SkinFilesTest::closeSavingWithCancelledFolder() {
    Editor editor;
    editor.window.show();
    addBox(editor, 1);
    const SkinDocument before = editor.window.document();
    editor.prompts.answers << Answer::Yes;
    QVERIFY(!editor.window.close());
    QVERIFY(editor.window.isVisible());
    QVERIFY(editor.window.document() == before); // the name is taken back too
}

void SkinFilesTest::closeSavingWithAFailedSave() {
    Editor editor;
    editor.window.show();
    const QString out = editor.newFolder("out");
    QDir(out).mkpath("QOR_Skin.xml/in the way");
    editor.prompts.answers << Answer::Yes;
    editor.prompts.folders << out;
    QVERIFY(!editor.window.close());
    QCOMPARE(editor.window.document().settings().skinName, std::string());
}

TARVEL_UI_TEST(SkinFilesTest)
#include "skin_files_test.moc"
