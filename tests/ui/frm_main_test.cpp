// The main window: start, menus, screens, markers, loading, saving, closing.
#include "document/normalised.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "support/editor.h"

#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>

using namespace tarvel;
using namespace tarvel::test;
using Answer = Prompts::Answer;

namespace {

constexpr auto examples = TARVEL_EXAMPLES_DIR;

int addBox(Editor& editor, int screen) {
    return editor.add(boxAt(0, 0, 100, 50), screen);
}

} // namespace

class FrmMainTest : public QObject {
    Q_OBJECT

  private slots:
    void startsOnMenuWithAnEmptyDocument();
    void titleShowsTheVersionRecord();
    void hasEveryMenuEntry_data();
    void hasEveryMenuEntry();
    void separatorsOfTheElementMenu();
    void fixedTextsOfThePanels();
    void panelsSlideToTheirPlaces();
    void switchingShowsOnlyThatScreen();
    void setCurLayoutTakesTheCheckedButton();
    void screensWithElementsAreBold();
    void behaviourMarksFollowTheSelection();
    void readoutFollowsThePointer();
    void positionOfTheSelection();
    void loadsAnExample();
    void loadAdvisesWhenTheDocumentHoldsSomething();
    void loadWithoutAChosenFolderShowsMenu();
    void loadOfAFolderWithoutASkin();
    void loadOfABrokenSkinLeavesTheDocument();
    void loadNamesResourcesOutsideTheFolder();
    void saveAsksForANameFirst();
    void saveWritesTheFolderAndShowsInstructions();
    void saveCancelled();
    void saveReportsAnUnwritableSkinFile();
    void saveStopsWhenACopyFails();
    void viewXmlShowsTheText();
    void backgroundIsLoadedAndUnloaded();
    void inertEntries();
    void closeCancelled();
    void closeWithoutSaving();
    void closeSavingKeepsAGivenName();
    void closeSavingNamesTheSkin();
    void closeSavingWithCancelledFolder();
    void closeSavingWithAFailedSave();
    void stopVidsOnAScreenWithoutVideos();
};

void FrmMainTest::startsOnMenuWithAnEmptyDocument() {
    Editor editor;
    QCOMPARE(editor.window.document() == SkinDocument(), true);
    QVERIFY(editor.optScreen(1)->isChecked());
    QCOMPARE(editor.find<QLabel>("lblPos")->text(), QStringLiteral("X: 0 Y: 0"));
    for (const char* dialog : {"frmInfo", "frmColors", "frmResources", "frmDelays", "frmMusic"}) {
        QVERIFY(editor.find<QWidget>(dialog) != nullptr);
        QVERIFY(!editor.find<QWidget>(dialog)->isVisible());
    }
    auto* cmdSave = editor.find<QPushButton>("cmdSave");
    QVERIFY(!cmdSave->isVisible());
    cmdSave->click();
    QCOMPARE(editor.prompts.messages, QStringList());
}

void FrmMainTest::titleShowsTheVersionRecord() {
    Editor editor;
    QCOMPARE(editor.window.windowTitle(), QStringLiteral(":: TARVEL 5.0 :: by varnokelt "));
}

void FrmMainTest::hasEveryMenuEntry_data() {
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char* name, const char* menu, const char* caption) {
        QTest::newRow(name) << QString::fromLatin1(menu) << QString::fromLatin1(caption);
    };
    row("mnuSave", "mnuSkin", "Save");
    row("mnuLoad", "mnuSkin", "Load");
    row("mnuView", "mnuSkin", "View XML (for testing only)");
    row("mnuDelays", "mnuConfig", "Delays");
    row("mnuInfo", "mnuConfig", "Skin Info");
    row("mnuColors", "mnuConfig", "System Colors");
    row("mnuAudio", "mnuConfig", "Audio Settings");
    row("mnuResource", "mnuConfig", "Resource Manager");
    row("mnuLoadBg", "mnuBackground", "Load Background");
    row("mnuUnloadBg", "mnuBackground", "Unload Background");
    row("mnuUnlock", "mnuRight2", "Unlock all");
    row("mnuFront", "mnuRight", "Bring to Front");
    row("mnuBack", "mnuRight", "Send to Back");
    row("mnuForward", "mnuRight", "Bring Forward");
    row("mnuBackward", "mnuRight", "Send Backward");
    row("mnuDeSel", "mnuRight", "Unselect");
    row("mnuLocked", "mnuRight", "Lock");
    row("mnuModifier(0)", "mnuRight", "Modifiers");
    row("mnuModifier(1)", "mnuRight", "Timers");
    row("mnuModifier(2)", "mnuRight", "Condition");
    row("mnuDelete", "mnuRight", "Delete");
    row("mnuCover", "mnuOptions", "Cover objects while moving (to prevent blinking)");
    row("mnuBorders", "mnuOptions", "View safe borders (customize to your TV)");
}

void FrmMainTest::hasEveryMenuEntry() {
    QFETCH(QString, menu);
    QFETCH(QString, caption);
    Editor editor;
    auto* entry = editor.entry(QTest::currentDataTag());
    QVERIFY(entry != nullptr);
    QCOMPARE(entry->text(), caption);
    auto* owner = editor.window.findChild<QMenu*>(menu);
    QVERIFY(owner != nullptr);
    QVERIFY(owner->actions().contains(entry));
}

void FrmMainTest::separatorsOfTheElementMenu() {
    Editor editor;
    QStringList captions;
    for (const QAction* action : editor.find<QMenu>("mnuRight")->actions()) {
        // A separator with a text would be drawn as a heading.
        captions << (action->isSeparator() && action->text().isEmpty() ? QStringLiteral("-")
                                                                       : action->text());
    }
    QCOMPARE(captions, QStringList({"Bring to Front", "Send to Back", "Bring Forward",
                                    "Send Backward", "-", "Unselect", "Lock", "-", "Modifiers",
                                    "Timers", "Condition", "-", "Delete"}));
    QStringList bar;
    for (const QAction* action : editor.window.menuBar()->actions()) {
        bar << action->text();
    }
    QCOMPARE(bar, QStringList({"Skin", "Configuration", "Background", "Options"}));
    QCOMPARE(editor.find<QMenu>("mnuRight")->title(), QStringLiteral("Right"));
    QCOMPARE(editor.find<QMenu>("mnuRight2")->title(), QStringLiteral("Right"));
}

void FrmMainTest::fixedTextsOfThePanels() {
    Editor editor;
    QCOMPARE(editor.find<QLabel>("fraNote")->text(),
             QStringLiteral("Note: Most TV's cut off edges of the screen, so make sure you leave "
                            "some extra room around your layout."));
    const QList<QPair<const char*, QString>> groups = {{"fraCreate", "CREATE"},
                                                       {"fraLayout", "CURRENT SCREEN"},
                                                       {"fraElements", "ELEMENTS (Z-ORDER)"},
                                                       {"fraPos", "POSITION"}};
    for (const auto& [name, title] : groups) {
        QCOMPARE(editor.find<QGroupBox>(name)->title(), title);
    }
    const QList<QPair<const char*, QString>> buttons = {{"optBox", "Box"},
                                                        {"optLine", "Line"},
                                                        {"optImg", "Image/Video"},
                                                        {"optText", "Text"},
                                                        {"optQor", "Game List (QOR Menu)"}};
    for (const auto& [name, text] : buttons) {
        QCOMPARE(editor.find<QAbstractButton>(name)->text(), text);
    }
    const QStringList captions = {"Title", "Menu", "Load", "Saver", "JukeBox", "FileManager"};
    for (int screen = 0; screen < screenCount; ++screen) {
        QCOMPARE(editor.optScreen(screen)->text(), captions[screen]);
    }
    QStringList notes;
    for (const QLabel* label : editor.find<QWidget>("fraLayout")->findChildren<QLabel*>()) {
        notes << label->text();
    }
    QCOMPARE(notes, QStringList({" (not used yet)", " (not used yet)"}));
    QCOMPARE(editor.find<QPushButton>("cmdStop")->text(), QStringLiteral("Stop Vids"));
}

void FrmMainTest::panelsSlideToTheirPlaces() {
    Editor editor;
    editor.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor.window));
    const QList<const char*> names = {"fraCreate", "fraNote", "fraLayout", "fraElements", "fraPos"};
    const auto settled = [&] {
        const int width = editor.window.width();
        return std::all_of(names.begin(), names.end(), [&](const char* name) {
            auto* panel = editor.find<QWidget>(name);
            const int left = panel->mapTo(&editor.window, QPoint()).x();
            return panel->isVisible() && left >= 0 && left + panel->width() <= width;
        });
    };
    QTRY_VERIFY_WITH_TIMEOUT(settled(), 3000);
    QTest::qWait(100); // the slide has stopped, and its end agrees with the layout
    QList<int> places;
    for (const char* name : names) {
        places << editor.find<QWidget>(name)->x();
    }
    editor.window.centralWidget()->layout()->invalidate();
    editor.window.centralWidget()->layout()->activate();
    for (qsizetype i = 0; i < names.size(); ++i) {
        QCOMPARE(editor.find<QWidget>(names[i])->x(), places[i]);
    }
}

void FrmMainTest::switchingShowsOnlyThatScreen() {
    Editor editor;
    editor.show();
    addBox(editor, 0);
    addBox(editor, 1);
    editor.selectRow(1, 0);
    QVERIFY(editor.window.curNum() != 0);
    editor.clickScreen(0);
    QCOMPARE(editor.window.document().currentLayout(), 0);
    QCOMPARE(editor.window.curNum(), 0);
    QTRY_VERIFY(editor.lst(0)->isVisible());
    for (int screen = 1; screen < screenCount; ++screen) {
        QVERIFY(!editor.lst(screen)->isVisible());
    }
    editor.selectRow(0, 0);
    editor.clickScreen(1);
    editor.clickScreen(0);
    QCOMPARE(editor.window.curNum(), 0);
}

void FrmMainTest::setCurLayoutTakesTheCheckedButton() {
    Editor editor;
    editor.optScreen(3)->setChecked(true);
    QCOMPARE(editor.window.document().currentLayout(), 1);
    editor.window.SetCurLayout();
    QCOMPARE(editor.window.document().currentLayout(), 3);
}

void FrmMainTest::screensWithElementsAreBold() {
    Editor editor;
    for (int screen = 0; screen < screenCount; ++screen) {
        QVERIFY(!editor.optScreen(screen)->font().bold());
        addBox(editor, screen);
        QCOMPARE(editor.optScreen(screen)->font().bold(), screen != 5);
    }
    editor.window.document().setScreenElementCount(4, 0);
    QVERIFY(!editor.optScreen(4)->font().bold());
}

void FrmMainTest::behaviourMarksFollowTheSelection() {
    Editor editor;
    const int id = addBox(editor, 1);
    editor.window.document().editElement(id, [](Element& element) {
        element.elementTimers[2] = 500;
        element.elementCondition = "ItemEntry";
        element.elementModifiers.edit().addChild(XmlTree::top, "Modifier");
    });
    const auto isBold = [&](int index) {
        return editor.window.findChild<QPushButton*>(QStringLiteral("cmdModifier(%1)").arg(index))
            ->font()
            .bold();
    };
    const auto caption = [&](int index) {
        return editor.window.findChild<QAction*>(QStringLiteral("mnuModifier(%1)").arg(index))
            ->text();
    };
    const QStringList plain = {"Modifiers", "Timers", "Condition"};
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!isBold(i));
        QCOMPARE(caption(i), plain[i]);
    }
    editor.selectRow(1, 0);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(isBold(i));
        QCOMPARE(caption(i), plain[i] + "*");
    }
    editor.window.setBolds(); // a marked caption gets no second mark
    QCOMPARE(caption(1), QStringLiteral("Timers*"));
    editor.window.document().editElement(id, [](Element& element) {
        element.elementTimers = {};
        element.elementCondition = "NONE";
    });
    QVERIFY(isBold(0));
    QVERIFY(!isBold(1));
    QVERIFY(!isBold(2));
    QCOMPARE(caption(2), plain[2]);
}

void FrmMainTest::readoutFollowsThePointer() {
    Editor editor;
    editor.show();
    auto* pic = editor.find<QWidget>("Pic");
    QTest::mouseMove(pic, QPoint(10, 20));
    QTest::mouseMove(pic, QPoint(123, 45));
    QTRY_COMPARE(editor.find<QLabel>("lblPos")->text(), QStringLiteral("X: 123    Y: 45"));
}

void FrmMainTest::positionOfTheSelection() {
    Editor editor;
    const int id = addBox(editor, 1);
    Element line;
    line.elementKind = ElementKind::Line;
    line.elementControl.kind = ControlKind::lin;
    line.elementControl.X1 = 1.5F;
    line.elementControl.Y1 = 2;
    line.elementControl.X2 = 3;
    line.elementControl.Y2 = 4;
    editor.window.document().addElement(std::move(line));
    const auto texts = [&] {
        QStringList result;
        for (const char* name : {"txtL", "txtT", "txtW", "txtH"}) {
            result << editor.find<QLineEdit>(name)->text();
        }
        return result;
    };
    editor.selectRow(1, 0);
    QCOMPARE(texts(), QStringList({"0", "0", "100", "50"}));
    editor.window.document().editElement(
        id, [](Element& element) { element.elementControl.left = 12; });
    QCOMPARE(texts(), QStringList({"12", "0", "100", "50"}));
    editor.selectRow(1, 1);
    QCOMPARE(texts(), QStringList({"1.5", "2", "3", "4"}));
    editor.window.optScreen_Click(1);
    QCOMPARE(texts(), QStringList({"", "", "", ""}));
}

void FrmMainTest::loadsAnExample() {
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

void FrmMainTest::loadAdvisesWhenTheDocumentHoldsSomething() {
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

void FrmMainTest::loadWithoutAChosenFolderShowsMenu() {
    Editor editor;
    editor.window.optScreen_Click(3);
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.window.document().currentLayout(), 1);
    QVERIFY(editor.optScreen(1)->isChecked());
    QCOMPARE(editor.prompts.messages, QStringList());
}

void FrmMainTest::loadOfAFolderWithoutASkin() {
    Editor editor;
    editor.window.optScreen_Click(3);
    editor.prompts.folders << editor.newFolder("empty");
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.prompts.messages,
             QStringList("The selected folder does not contain a QOR_Skin.xml file"));
    QVERIFY(editor.window.document() == SkinDocument());
}

void FrmMainTest::loadOfABrokenSkinLeavesTheDocument() {
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

void FrmMainTest::loadNamesResourcesOutsideTheFolder() {
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

void FrmMainTest::saveAsksForANameFirst() {
    Editor editor;
    QStringList dialogs;
    closeNextDialog(dialogs);
    editor.entry("mnuSave")->trigger();
    QCOMPARE(editor.prompts.messages,
             QStringList("Enter a name for the skin, and then click save again"));
    QCOMPARE(dialogs, QStringList("frmInfo"));
    QCOMPARE(editor.prompts.folderTitles, QStringList());
}

void FrmMainTest::saveWritesTheFolderAndShowsInstructions() {
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

void FrmMainTest::saveCancelled() {
    Editor editor;
    editor.nameSkin("Nova");
    editor.entry("mnuSave")->trigger();
    QCOMPARE(editor.prompts.folderTitles.size(), 1);
    QCOMPARE(editor.prompts.messages, QStringList());
}

void FrmMainTest::saveReportsAnUnwritableSkinFile() {
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

void FrmMainTest::saveStopsWhenACopyFails() {
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

void FrmMainTest::viewXmlShowsTheText() {
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

void FrmMainTest::backgroundIsLoadedAndUnloaded() {
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

void FrmMainTest::inertEntries() {
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

void FrmMainTest::closeCancelled() {
    Editor editor;
    editor.window.show();
    editor.prompts.answers << Answer::Cancel;
    QVERIFY(!editor.window.close());
    QCOMPARE(editor.prompts.questions, QStringList("Save before exit?"));
    QVERIFY(editor.window.isVisible());
}

void FrmMainTest::closeWithoutSaving() {
    Editor editor;
    editor.window.show();
    editor.prompts.answers << Answer::No;
    QVERIFY(editor.window.close());
    QCOMPARE(editor.prompts.folderTitles, QStringList());
}

void FrmMainTest::closeSavingKeepsAGivenName() {
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

void FrmMainTest::closeSavingNamesTheSkin() {
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

void FrmMainTest::closeSavingWithCancelledFolder() {
    Editor editor;
    editor.window.show();
    addBox(editor, 1);
    const SkinDocument before = editor.window.document();
    editor.prompts.answers << Answer::Yes;
    QVERIFY(!editor.window.close());
    QVERIFY(editor.window.isVisible());
    QVERIFY(editor.window.document() == before); // the name is taken back too
}

void FrmMainTest::closeSavingWithAFailedSave() {
    Editor editor;
    editor.window.show();
    const QString out = editor.newFolder("out");
    QDir(out).mkpath("QOR_Skin.xml/in the way");
    editor.prompts.answers << Answer::Yes;
    editor.prompts.folders << out;
    QVERIFY(!editor.window.close());
    QCOMPARE(editor.window.document().settings().skinName, std::string());
}

void FrmMainTest::stopVidsOnAScreenWithoutVideos() {
    Editor editor;
    editor.show();
    addBox(editor, 1);
    const SkinDocument before = editor.window.document();
    QTest::mouseClick(editor.find<QPushButton>("cmdStop"), Qt::LeftButton);
    QVERIFY(editor.window.document() == before);
}

QTEST_MAIN(FrmMainTest)
#include "frm_main_test.moc"
