// Skin > Check: the findings for what is open, and the way from a finding to its element.
#include "document/open_edit.h"
#include "skinfile/document_check.h"
#include "skinfile/skin_folder.h"
#include "support/access_support.h"
#include "support/behaviour_editor.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QListWidget>
#include <QStatusBar>
#include <QWindow>

#include <utility>

using namespace tarvel;
using namespace tarvel::test;

namespace {

struct CheckedEditor : BehaviourEditor {
    CheckedEditor()
        : BehaviourEditor(1) {
        nameSkin("Nova");
    }
    /// Opens the window with the findings by the menu.
    bool check() {
        return choose(*this, "mnuCheck") && frmCheck() != nullptr && activate(*frmCheck());
    }
    QWidget* frmCheck() { return find<QWidget>("frmCheck"); }
    QListWidget& list() { return at<QListWidget>("lstFindings"); }
    QStringList findings() { return rowTexts(list()); }
    QString result() { return at<QLabel>("lblResult").text(); }
    bool isStale() { return at<QLabel>("lblStale").isVisible(); }
    void again() { tarvel::test::click(at<QPushButton>("cmdCheckAgain")); }
    /// An element that lies off its screen, which is found.
    int addOff(int screen) {
        const OpenEdit edit(document(), "draw Box");
        return add(boxAt(700, 0, 100, 50), screen);
    }
    [[nodiscard]] QString status() const { return window.statusBar()->currentMessage(); }
};

QString off(const char* screen, int row) {
    return QStringLiteral("%1, element %2 (Box: Alpha 80): lies wholly off the 640 by 480 screen")
        .arg(QLatin1String(screen))
        .arg(row);
}

} // namespace

class CheckWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void nothingFound();
    void listsTheFindings();
    void checksWhatIsOpenAndNotWhatIsSaved();
    void tellsOfSavingOverTheFolder();
    void saysThatTheSkinHasChanged();
    void aClickLeadsToTheElement();
    void returnLeadsToTheElement();
    void aFindingOfTheWholeSkinLeadsNowhere();
    void anElementThatIsGone();
    void anotherDocument();
    void whileDrawing();
    void whileMoving();
    void afterAPressAlone();
    void withAnOpenPanel();
    void belowAModalDialog();
    void oneWindow();
    void lockedElements();
    void readsOutWhatCanBeSeen();
};

void CheckWindowTest::nothingFound() {
    CheckedEditor editor;
    const SkinDocument before = editor.document();
    QVERIFY(editor.check());
    QVERIFY(!qobject_cast<QDialog*>(editor.frmCheck())->isModal());
    QCOMPARE(editor.findings(), QStringList());
    QCOMPARE(editor.result(), QString("Nothing found."));
    QVERIFY(!editor.isStale());
    QVERIFY(editor.document() == before);
    QTest::keyClick(editor.frmCheck(), Qt::Key_Escape);
    QVERIFY(!editor.frmCheck()->isVisible());
}

void CheckWindowTest::listsTheFindings() {
    CheckedEditor editor;
    editor.addOff(3);
    editor.addOff(1);
    editor.document().addRes("<b>gone</b>", documentPath(hostPathOf(editor.path("gone.png"))));
    QVERIFY(editor.check());
    std::vector<Finding> expected = checkDocument(editor.document(), {});
    QCOMPARE(editor.findings().size(), static_cast<qsizetype>(expected.size()));
    for (std::size_t i = 0; i < expected.size(); ++i) {
        QCOMPARE(editor.findings()[static_cast<int>(i)], qtText(expected[i].text));
    }
    QVERIFY(editor.findings().contains(off("Menu", 2)));
    QVERIFY(editor.findings().contains(off("Saver", 1)));
    QVERIFY(editor.findings().front().contains("\"<b>gone</b>\""));
    QVERIFY(editor.list().item(0)->toolTip().contains("&lt;b&gt;"));
    QVERIFY(editor.result() != QString("Nothing found."));
}

void CheckWindowTest::checksWhatIsOpenAndNotWhatIsSaved() {
    CheckedEditor editor;
    editor.addOff(1);
    editor.prompts.folders << editor.newFolder("out");
    QStringList dialogs;
    closeNextDialog(dialogs);
    editor.entry("mnuSave")->trigger();
    editor.entry("mnuUndo")->trigger();
    QVERIFY(editor.check());
    QCOMPARE(editor.findings(), QStringList());
}

void CheckWindowTest::tellsOfSavingOverTheFolder() {
    CheckedEditor editor;
    const QString folder = editor.newFolder("out");
    for (const char* name : {"out/Media/x.jpg", "out/pics/x.jpg"}) {
        QVERIFY(QDir().mkpath(QFileInfo(editor.path(name)).path()));
        QFile file(editor.path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        editor.document().addRes("x", documentPath(hostPathOf(editor.path(name))));
    }
    SkinDocument empty;
    SkinWriter writer;
    saveSkin(empty, writer, hostPathOf(folder), {});
    const auto refused = [&] {
        return !editor.findings().filter("A save over this folder is refused: ").isEmpty();
    };
    QVERIFY(editor.check());
    QVERIFY(!refused()); // there is no folder
    editor.prompts.folders << folder;
    editor.entry("mnuLoad")->trigger();
    editor.again();
    QVERIFY(refused());
}

void CheckWindowTest::saysThatTheSkinHasChanged() {
    CheckedEditor editor;
    QVERIFY(editor.check());
    QCOMPARE(editor.at<QLabel>("lblStale").text(),
             QString("The skin has changed since this check."));
    editor.clickScreen(2); // is no change
    QVERIFY(!editor.isStale());
    editor.addOff(2);
    QVERIFY(editor.isStale());
    QCOMPARE(editor.findings(), QStringList());
    editor.again();
    QVERIFY(!editor.isStale());
    QCOMPARE(editor.findings(), QStringList(off("Load", 1)));
    editor.entry("mnuUndo")->trigger();
    QVERIFY(editor.isStale());
    editor.again();
    QCOMPARE(editor.result(), QString("Nothing found."));
}

void CheckWindowTest::aClickLeadsToTheElement() {
    CheckedEditor editor;
    const int first = editor.addOff(3);
    const int second = editor.addOff(4);
    editor.clickScreen(1);
    QVERIFY(editor.check());
    const SkinDocument before = editor.document();
    for (const auto& [row, screen, id] : {std::tuple(0, 3, first), {1, 4, second}, {0, 3, first}}) {
        clickRow(editor.list(), row);
        QCOMPARE(editor.document().currentLayout(), screen);
        QVERIFY(editor.optScreen(screen)->isChecked());
        QCOMPARE(editor.window.curNum(), id);
        QCOMPARE(editor.selectedRow(screen), 0);
        QVERIFY(editor.frmCheck()->isVisible());
        QVERIFY(!editor.isStale());
    }
    QVERIFY(editor.document().holdsTheSame(before));
}

void CheckWindowTest::returnLeadsToTheElement() {
    CheckedEditor editor;
    editor.addOff(3);
    const int second = editor.addOff(3);
    editor.clickScreen(1);
    QVERIFY(editor.check());
    editor.list().setFocus();
    QTest::keyClick(&editor.list(), Qt::Key_End);
    QCOMPARE(editor.document().currentLayout(), 1); // looking through them leads nowhere yet
    QTest::keyClick(&editor.list(), Qt::Key_Return);
    QCOMPARE(editor.document().currentLayout(), 3);
    QCOMPARE(editor.window.curNum(), second);
    QVERIFY(editor.frmCheck()->isVisible());
    QVERIFY(editor.list().hasFocus());
    QCOMPARE(editor.list().currentRow(), 1); // the list is the same: nothing was checked again
}

void CheckWindowTest::aFindingOfTheWholeSkinLeadsNowhere() {
    CheckedEditor editor;
    editor.nameSkin("");
    editor.selectRow(1, 0);
    QVERIFY(editor.check());
    QCOMPARE(editor.findings().size(), 1);
    clickRow(editor.list(), 0);
    QCOMPARE(editor.selectedRow(1), 0);
    QCOMPARE(editor.document().currentLayout(), 1);
}

void CheckWindowTest::anElementThatIsGone() {
    CheckedEditor editor;
    editor.addOff(3);
    editor.clickScreen(1);
    editor.selectRow(1, 0);
    QVERIFY(editor.check());
    editor.entry("mnuUndo")->trigger();
    editor.clickScreen(1);
    clickRow(editor.list(), 0);
    QCOMPARE(editor.status(), QString("The element is no longer there."));
    QCOMPARE(editor.document().currentLayout(), 1);
}

// Its elements may have the ids of those that were found.
void CheckWindowTest::anotherDocument() {
    CheckedEditor editor;
    editor.addOff(3);
    QVERIFY(editor.check());
    QCOMPARE(editor.findings().size(), 1);
    editor.document() = SkinDocument();
    QCOMPARE(editor.findings(), QStringList());
    QVERIFY(editor.isStale());
    QVERIFY(editor.result().isEmpty());
}

void CheckWindowTest::whileDrawing() {
    CheckedEditor editor;
    const int found = editor.addOff(3);
    editor.clickScreen(1);
    QVERIFY(editor.check());
    editor.chooseTool("optBox");
    editor.press({300, 300});
    editor.drag({400, 360});
    editor.again(); // looks and changes nothing
    QCOMPARE(editor.document().rowCount(1), 2);
    clickRow(editor.list(), 0);
    QCOMPARE(editor.window.curNum(), found);
    QCOMPARE(editor.document().rowCount(1), 2); // ended where it stood
    const SkinDocument before = editor.document();
    editor.drag({500, 460});
    editor.release({500, 460});
    QVERIFY(editor.document() == before);
    QVERIFY(!editor.document().isEditOpen());
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.document().rowCount(1), 1);
}

void CheckWindowTest::whileMoving() {
    CheckedEditor editor;
    const int found = editor.addOff(1);
    editor.selectRow(1, 0);
    const int moved = editor.window.curNum();
    const float left = editor.control(moved).left;
    QVERIFY(editor.check());
    editor.list().setCurrentRow(0);
    editor.press({60, 40});
    editor.drag({100, 40});
    QTest::keyClick(&editor.list(), Qt::Key_Return); // the pointer is busy
    QCOMPARE(editor.window.curNum(), found);
    const SkinDocument before = editor.document();
    QVERIFY(editor.control(moved).left > left); // ended where it stood
    editor.drag({200, 40});
    editor.release({200, 40});
    QVERIFY(editor.document() == before);
    QVERIFY(!editor.document().isEditOpen());
}

// What is begun by the press becomes what a click would have made.
void CheckWindowTest::afterAPressAlone() {
    CheckedEditor editor;
    editor.addOff(3);
    editor.clickScreen(1);
    QVERIFY(editor.check());
    editor.list().setCurrentRow(0);
    editor.chooseTool("optBox");
    editor.press({300, 300});
    QTest::keyClick(&editor.list(), Qt::Key_Return);
    QCOMPARE(editor.document().currentLayout(), 3);
    const ElementControl& made = editor.control(editor.document().lastElementId());
    QCOMPARE(QSizeF(made.width, made.height), QSizeF(120, 80));
}

void CheckWindowTest::withAnOpenPanel() {
    CheckedEditor editor;
    editor.addOff(3);
    editor.clickScreen(1);
    editor.selectRow(1, 0);
    QVERIFY(editor.check());
    QVERIFY(editor.openPanel(1));
    const SkinDocument before = editor.document();
    clickRow(editor.list(), 0);
    QCOMPARE(editor.status(), QString("Close the open panel first."));
    QVERIFY(editor.document() == before);
    QCOMPARE(editor.selectedRow(1), 0);
    QCOMPARE(editor.shown(), QList<int>({1}));
    editor.ok(1);
    clickRow(editor.list(), 0);
    QCOMPARE(editor.document().currentLayout(), 3);
}

void CheckWindowTest::belowAModalDialog() {
    CheckedEditor editor;
    editor.addOff(3);
    editor.clickScreen(1);
    QVERIFY(editor.check());
    QVERIFY(inDialog([&] { editor.entry("mnuInfo")->trigger(); }, "frmInfo",
                     [&](QWidget&) {
                         const QPoint row =
                             editor.list().visualItemRect(editor.list().item(0)).center();
                         QWindow* window = editor.frmCheck()->windowHandle();
                         QTest::mouseClick(window, Qt::LeftButton, {},
                                           editor.list().viewport()->mapTo(editor.frmCheck(), row));
                         QCOMPARE(editor.document().currentLayout(), 1);
                     }));
}

void CheckWindowTest::oneWindow() {
    CheckedEditor editor;
    QVERIFY(editor.check());
    editor.addOff(2);
    QVERIFY(editor.check());
    QCOMPARE(editor.window.findChildren<QWidget*>("frmCheck").size(), 1);
    QCOMPARE(editor.findings().size(), 1);
    QVERIFY(!editor.isStale());
    QVERIFY(editor.frmCheck()->close());
    QVERIFY(editor.check());
    QVERIFY(editor.frmCheck()->isVisible());
}

void CheckWindowTest::lockedElements() {
    CheckedEditor editor;
    const int id = editor.addOff(3);
    editor.selectRow(3, 0);
    editor.entry("mnuLocked")->trigger();
    editor.clickScreen(1);
    QVERIFY(editor.check());
    clickRow(editor.list(), 0);
    QCOMPARE(editor.window.curNum(), id);
    QVERIFY(editor.document().element(id).elementLocked);
}

void CheckWindowTest::readsOutWhatCanBeSeen() {
    CheckedEditor editor;
    editor.addOff(3);
    QVERIFY(editor.check());
    QCOMPARE(buttonsReadOutOtherwise(*editor.frmCheck()).join('\n'), QString());
    QCOMPARE(unheardLabels(*editor.frmCheck()).join('\n'), QString());
    QCOMPARE(saidTwice(*editor.frmCheck()).join('\n'), QString());
    QCOMPARE(withoutAccessibleName(*editor.frmCheck()), QStringList());
}

TARVEL_UI_TEST(CheckWindowTest)
#include "check_window_test.moc"
