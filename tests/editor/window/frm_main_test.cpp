// The main window: start, menus, screens, markers, loading, saving, closing.
#include "support/editor.h"
#include "support/program_version.h"
#include "support/ui_test.h"

#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

using namespace tarvel;
using namespace tarvel::test;

namespace {

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
    QCOMPARE(editor.window.windowTitle(), QStringLiteral(":: TARVEL %1 :: by varnokelt ")
                                              .arg(QString::fromStdString(test::programVersion())));
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
    row("mnuNewWindow", "mnuSkin", "New Window");
    row("mnuSaveAgain", "mnuSkin", "Save Again");
    row("mnuRecent", "mnuSkin", "Open Recent");
    row("mnuCheck", "mnuSkin", "Check");
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
    row("mnuSnapElements", "mnuOptions", "Snap to elements");
    row("mnuSnapGrid", "mnuOptions", "Snap to grid");
    row("mnuUndo", "mnuEdit", "Undo");
    row("mnuRedo", "mnuEdit", "Redo");
    row("mnuCut", "mnuEdit", "Cut");
    row("mnuCopy", "mnuEdit", "Copy");
    row("mnuPaste", "mnuEdit", "Paste");
    row("mnuDuplicate", "mnuEdit", "Duplicate");
    row("mnuDeleteSelected", "mnuEdit", "Delete\tDel");
    row("mnuSelectAll", "mnuEdit", "Select All");
    row("mnuGuide", "mnuHelp", "User Guide");
    row("mnuKeys", "mnuHelp", "Keys");
    row("mnuAbout", "mnuHelp", "About Tarvel");
}

void FrmMainTest::hasEveryMenuEntry() {
    QFETCH(QString, menu);
    QFETCH(QString, caption);
    Editor editor;
    auto* entry = editor.entry(QTest::currentDataTag());
    QVERIFY(entry != nullptr);
    QCOMPARE(captionOf(*entry), caption);
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
                                                                       : captionOf(*action));
    }
    QCOMPARE(captions, QStringList({"Bring to Front", "Send to Back", "Bring Forward",
                                    "Send Backward", "-", "Unselect", "Lock", "-", "Modifiers",
                                    "Timers", "Condition", "-", "Delete"}));
    QStringList bar;
    for (const QAction* action : editor.window.menuBar()->actions()) {
        bar << captionOf(*action);
    }
    QCOMPARE(bar, QStringList({"Skin", "Configuration", "Background", "Options", "Edit", "Arrange",
                               "Help"}));
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
        QCOMPARE(captionOf(*editor.find<QAbstractButton>(name)), text);
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
    QCOMPARE(captionOf(*editor.find<QPushButton>("cmdStop")), QStringLiteral("Stop Vids"));
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
    // The slide has stopped, and its end agrees with the layout.
    QVERIFY(waitForGliding(editor.window));
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
        return captionOf(
            *editor.window.findChild<QAction*>(QStringLiteral("mnuModifier(%1)").arg(index)));
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

void FrmMainTest::stopVidsOnAScreenWithoutVideos() {
    Editor editor;
    editor.show();
    addBox(editor, 1);
    const SkinDocument before = editor.window.document();
    QTest::mouseClick(editor.find<QPushButton>("cmdStop"), Qt::LeftButton);
    QVERIFY(editor.window.document() == before);
}

TARVEL_UI_TEST(FrmMainTest)
#include "frm_main_test.moc"
