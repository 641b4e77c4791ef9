// Every menu, dialog and panel: a letter for each entry and each button, and none twice.
#include "dialogs/frm_instructions.h"
#include "support/behaviour_editor.h"
#include "support/play_editor.h"
#include "support/ui_test.h"
#include "widgets/copy_progress.h"
#include "widgets/mnemonics.h"
#include "widgets/qt_prompts.h"
#include "widgets/search_progress.h"
#include "window/guide_window.h"

#include <QMenuBar>

using namespace tarvel;
using namespace tarvel::test;

namespace {

/// What is wrong with the letters of captions that stand together, some with a letter of no use.
QStringList wrongLetters(const QStringList& captions) {
    QStringList wrong;
    QMap<QChar, QString> holders;
    for (const QString& caption : captions) {
        const QChar letter = mnemonicOf(caption);
        if (letter.isNull()) {
            wrong << caption + " has none";
        } else if (holders.contains(letter)) {
            wrong << caption + " has that of " + holders[letter];
        }
        holders[letter] = caption;
    }
    return wrong;
}

QStringList captionsOf(const QMenu& menu) {
    QStringList captions;
    for (const QAction* entry : menu.actions()) {
        if (!entry->isSeparator() && !entry->text().isEmpty()) {
            captions << entry->text();
        }
    }
    return captions;
}

/// Of what can be seen.
QStringList captionsOf(const QWidget& window) {
    QStringList captions;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (!button->text().isEmpty() && button->isVisibleTo(&window) &&
            button->window() == window.window()) {
            captions << button->text();
        }
    }
    return captions;
}

/// Of the window itself, but for the screens, which are a group, and the zoom, which is a number.
QStringList buttonsOf(const Editor& editor) {
    QStringList captions;
    for (const auto* button : editor.window.findChildren<QAbstractButton*>()) {
        const bool isOwn = button->window() == &editor.window && button->isVisible();
        if (isOwn && !button->text().isEmpty() && button->objectName() != "cmdZoom" &&
            !button->objectName().startsWith("optScreen")) {
            captions << button->text();
        }
    }
    return captions;
}

} // namespace

class MnemonicsWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void menus();
    void recentFolders();
    void mainWindow_data();
    void mainWindow();
    void panels();
    void playing();
    void dialogs_data();
    void dialogs();
    void furtherWindows();
    void questions();
    void lettersPressButtons();
};

void MnemonicsWindowTest::menus() {
    Editor editor;
    editor.show();
    QStringList bar;
    for (const QAction* menu : editor.window.menuBar()->actions()) {
        bar << menu->text();
    }
    QCOMPARE(wrongLetters(bar), QStringList());
    editor.chooseTool("optBox");
    editor.pressDragRelease({10, 10}, {60, 60}); // entries have other texts now
    int entries = 0;
    for (const QMenu* menu : editor.window.findChildren<QMenu*>()) {
        const QStringList captions = captionsOf(*menu);
        QVERIFY2(wrongLetters(captions).isEmpty(),
                 qPrintable(menu->objectName() + wrongLetters(captions).join('\n')));
        entries += static_cast<int>(captions.size());
    }
    QVERIFY(entries > 60);
    QVERIFY(editor.entry("mnuUndo")->text().startsWith("&Undo "));
}

void MnemonicsWindowTest::recentFolders() {
    Editor editor;
    editor.show();
    for (int i = 0; i < 10; ++i) {
        editor.remembered.rememberSkinFolder(editor.newFolder(QString("a%1").arg(i)));
    }
    QMenu* recent = editor.entry("mnuRecent")->menu();
    emit recent->aboutToShow();
    QCOMPARE(recent->actions().size(), 10);
    QCOMPARE(wrongLetters(captionsOf(*recent)), QStringList());
}

void MnemonicsWindowTest::mainWindow_data() {
    QTest::addColumn<QString>("tool");
    QTest::addColumn<int>("buttons"); // with those that are always there
    QTest::newRow("box") << "optBox" << 13;
    QTest::newRow("line") << "optLine" << 12;
    QTest::newRow("image") << "optImg" << 12;
    QTest::newRow("text") << "optText" << 12;
    QTest::newRow("menu") << "optQor" << 15;
}

void MnemonicsWindowTest::mainWindow() {
    QFETCH(QString, tool);
    QFETCH(int, buttons);
    Editor editor;
    editor.show();
    editor.chooseTool(tool.toLatin1());
    QStringList captions = buttonsOf(editor);
    QCOMPARE(captions.size(), buttons);
    for (const QAction* menu : editor.window.menuBar()->actions()) {
        captions << menu->text();
    }
    QCOMPARE(wrongLetters(captions).join(u'\n'), QString());
}

void MnemonicsWindowTest::panels() {
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    for (int index = 0; index < panelCount; ++index) {
        QVERIFY(editor.openPanel(index));
        QStringList captions = {editor.at<QPushButton>("cmdStop").text()};
        for (const auto* button : editor.panel(index).findChildren<QAbstractButton*>()) {
            captions << button->text(); // of all pages
        }
        QVERIFY(captions.size() > 1);
        QCOMPARE(wrongLetters(captions).join(u'\n'), QString());
        // Menus that are closed meanwhile have some of the letters, too.
        const QKeyCombination keys = editor.okOf(index).shortcut()[0];
        QTest::keyClick(editor.window.windowHandle(), keys.key(), keys.keyboardModifiers());
        QTRY_COMPARE(editor.shown(), QList<int>());
    }
}

void MnemonicsWindowTest::playing() {
    PlayEditor editor;
    QVERIFY(editor.play());
    QStringList captions = {editor.at<QPushButton>("cmdStop").text()};
    for (const auto* button : editor.strip().findChildren<QAbstractButton*>()) {
        if (!button->text().isEmpty()) { // those with an icon alone have their keys
            captions << button->text();
        }
    }
    QCOMPARE(captions.size(), 9);
    QCOMPARE(wrongLetters(captions).join(u'\n'), QString());
}

void MnemonicsWindowTest::dialogs_data() {
    QTest::addColumn<int>("buttons");
    QTest::newRow("mnuDelays frmDelays") << 1;
    QTest::newRow("mnuInfo frmInfo") << 2;
    QTest::newRow("mnuColors frmColors") << 2;
    QTest::newRow("mnuAudio frmMusic") << 2;
    QTest::newRow("mnuResource frmResources") << 9;
}

void MnemonicsWindowTest::dialogs() {
    QFETCH(int, buttons);
    const QStringList names = QString(QTest::currentDataTag()).split(' ');
    Editor editor;
    editor.show();
    QVERIFY(inDialog(editor, names[0].toLatin1(), names[1].toLatin1(), [&](QWidget& dialog) {
        QVERIFY(captionsOf(dialog).size() >= buttons);
        QStringList all;
        for (const auto* button : dialog.findChildren<QAbstractButton*>()) {
            if (!button->text().isEmpty()) {
                all << button->text();
            }
        }
        QCOMPARE(wrongLetters(all), QStringList());
    }));
}

void MnemonicsWindowTest::furtherWindows() {
    Editor editor;
    editor.show();
    CopyProgress copies(nullptr);
    SearchProgress search(nullptr);
    FrmInstructions instructions("/skins/Aurora/");
    GuideWindow guide([](const QUrl&) {});
    for (const char* entry : {"mnuCheck", "mnuKeys", "mnuAbout"}) {
        editor.entry(entry)->trigger();
    }
    QList<QDialog*> windows = {&copies, &search, &instructions, &guide};
    for (const char* name : {"frmCheck", "frmKeys", "frmAbout"}) {
        windows << editor.find<QDialog>(name);
    }
    for (QDialog* window : windows) {
        QVERIFY(window != nullptr);
        window->show();
        QVERIFY2(!captionsOf(*window).isEmpty(), qPrintable(window->objectName()));
        QCOMPARE(wrongLetters(captionsOf(*window)), QStringList());
        window->hide();
    }
}

void MnemonicsWindowTest::questions() {
    Editor editor;
    editor.show();
    QtPrompts prompts;
    QStringList captions;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            captions = captionsOf(*box);
            poll.stop();
            box->reject();
        }
    });
    poll.start(10);
    (void)prompts.question(&editor.window, "Save before exit?");
    QCOMPARE(captions.size(), 3);
    QCOMPARE(wrongLetters(captions).join(u'\n'), QString());
}

void MnemonicsWindowTest::lettersPressButtons() {
    Editor editor;
    editor.show();
    const auto press = [&](const char* name) {
        const QChar letter = mnemonicOf(editor.find<QAbstractButton>(name)->text());
        QTest::keyClick(editor.window.windowHandle(), letter.toLatin1(), Qt::AltModifier);
    };
    press("optText");
    QTRY_VERIFY(editor.find<QAbstractButton>("optText")->isChecked());
    press("optBox");
    QTRY_VERIFY(editor.find<QAbstractButton>("optBox")->isChecked());
    QTest::keyClick(editor.window.windowHandle(), 'e', Qt::AltModifier);
    QTRY_VERIFY(editor.find<QMenu>("mnuEdit")->isVisible());
    editor.find<QMenu>("mnuEdit")->close();
}

TARVEL_UI_TEST(MnemonicsWindowTest)
#include "mnemonics_window_test.moc"
