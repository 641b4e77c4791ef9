// The panels for modifiers, timers and condition over the real window: opening, closing, and what
// is out of use meanwhile.
#include "panels/behaviour_panel.h"
#include "panels/video_preview.h"
#include "support/behaviour_editor.h"
#include "support/ui_test.h"
#include "surface/pic.h"

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr auto film = TARVEL_EXAMPLES_DIR "/aurora/Media/lights.wmv";
constexpr int patience = 20'000; // milliseconds

// What a user can work with: controls, not what holds them.
bool isControl(const QWidget& widget) {
    return widget.focusPolicy() != Qt::NoFocus || qobject_cast<const Pic*>(&widget) != nullptr;
}

// The controls of the window outside a panel that can be worked with.
QStringList usableOutside(Editor& editor, const QWidget& panel) {
    QStringList names;
    for (const QWidget* widget : editor.window.centralWidget()->findChildren<QWidget*>()) {
        if (isControl(*widget) && widget->isEnabled() && !panel.isAncestorOf(widget) &&
            qobject_cast<const BehaviourPanel*>(widget->parentWidget()) == nullptr) {
            names << widget->objectName();
        }
    }
    return names;
}

// Every widget of the window by its place in it, with a "-" when it is disabled.
QStringList enabledStates(Editor& editor) {
    QStringList states;
    for (const QWidget* widget : editor.window.centralWidget()->findChildren<QWidget*>()) {
        QString name = widget->objectName();
        for (const QWidget* up = widget; name.isEmpty(); up = up->parentWidget()) {
            name = up->objectName().isEmpty() ? QString() : "in " + up->objectName();
        }
        states << (widget->isEnabled() ? "" : "-") + name;
    }
    states.sort(); // raising a panel changes the order
    return states;
}

} // namespace

class BehaviourWindowTest : public QObject {
    Q_OBJECT

  private slots:
    void buttonsOpenThePanels_data();
    void buttonsOpenThePanels();
    void contextMenuOpensThePanels_data();
    void contextMenuOpensThePanels();
    void nothingOpensWithoutASelection();
    void restIsOutOfUse_data();
    void restIsOutOfUse();
    void pressesOutsideDoNothing();
    void menusAndShortcutsAreOutOfUse();
    void stopVidsWorks();
    void deleteDoesNothingWhileAPanelIsOpen();
    void escapeDoesNotClose_data();
    void escapeDoesNotClose();
    void okGivesEverythingBack_data();
    void okGivesEverythingBack();
    void panelsKeepTheirPlace_data();
    void panelsKeepTheirPlace();
    void openPanelFollowsTheWindow();
    void closingTheWindowSavesWhatAPanelShows();
    void cancelledClosingLeavesThePanelOpen();

  private:
    static void eachPanel();
    static void checkPlace(BehaviourEditor& editor, int index);
};

void BehaviourWindowTest::eachPanel() {
    QTest::addColumn<int>("index");
    QTest::newRow("modifier") << 0;
    QTest::newRow("timers") << 1;
    QTest::newRow("condition") << 2;
}

void BehaviourWindowTest::buttonsOpenThePanels_data() {
    eachPanel();
}

void BehaviourWindowTest::buttonsOpenThePanels() {
    QFETCH(int, index);
    BehaviourEditor editor(2);
    editor.selectRow(1, 1);
    QCOMPARE(editor.shown(), QList<int>());
    editor.clickAt(editor.button(index));
    QCOMPARE(editor.shown(), QList<int>({index}));
    QVERIFY(editor.panel(index).isAncestorOf(editor.window.focusWidget()));
    const SkinDocument before = editor.document();
    editor.clickAt(editor.okOf(index));
    QCOMPARE(editor.shown(), QList<int>());
    QCOMPARE(editor.document().element(1), before.element(1)); // the other one stays as it was
    QCOMPARE(editor.selectedRow(1), 1);
}

void BehaviourWindowTest::contextMenuOpensThePanels_data() {
    eachPanel();
}

void BehaviourWindowTest::contextMenuOpensThePanels() {
    QFETCH(int, index);
    BehaviourEditor editor;
    QTest::mouseClick(editor.pic(), Qt::RightButton, {}, {50, 40});
    auto& menu = editor.at<QMenu>("mnuRight");
    QVERIFY(menu.isVisible());
    QCOMPARE(editor.selectedRow(1), 0);
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      menu.actionGeometry(&editor.mnuModifier(index)).center());
    QVERIFY(!menu.isVisible());
    QCOMPARE(editor.shown(), QList<int>({index}));
    editor.ok(index);
    QCOMPARE(editor.shown(), QList<int>());
    QCOMPARE(editor.window.focusWidget(), editor.pic()); // the arrow keys go on working
}

void BehaviourWindowTest::nothingOpensWithoutASelection() {
    BehaviourEditor editor;
    const auto before = enabledStates(editor);
    for (int index = 0; index < panelCount; ++index) {
        click(editor.button(index));
        editor.mnuModifier(index).trigger();
        QCOMPARE(editor.shown(), QList<int>());
    }
    QCOMPARE(enabledStates(editor), before);
    editor.selectRow(1, 0);
    editor.mnuModifier(1).trigger();
    QCOMPARE(editor.shown(), QList<int>({1}));
}

void BehaviourWindowTest::restIsOutOfUse_data() {
    eachPanel();
}

void BehaviourWindowTest::restIsOutOfUse() {
    QFETCH(int, index);
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    QVERIFY(usableOutside(editor, editor.panel(index)).contains("Pic"));
    QVERIFY(editor.openPanel(index));
    QCOMPARE(usableOutside(editor, editor.panel(index)), QStringList("cmdStop"));
    int inside = 0;
    for (const QWidget* widget : editor.panel(index).findChildren<QWidget*>()) {
        QVERIFY2(widget->isEnabled(), qPrintable(widget->objectName()));
        ++inside;
    }
    QVERIFY(inside > 5);
    for (const QAction* menu : editor.window.menuBar()->actions()) {
        QVERIFY2(!menu->isEnabled(), qPrintable(menu->text()));
    }
    // No second panel opens over the first.
    for (int other = 0; other < panelCount; ++other) {
        editor.mnuModifier(other).trigger();
    }
    QCOMPARE(editor.shown(), QList<int>({index}));
}

void BehaviourWindowTest::pressesOutsideDoNothing() {
    BehaviourEditor editor(2);
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(1));
    const SkinDocument before = editor.document();
    const QPoint second = editor.inWindow(*editor.pic()).topLeft() + QPoint(190, 45);
    QTest::mouseClick(editor.window.windowHandle(), Qt::LeftButton, {}, second);
    QTest::mouseClick(editor.window.windowHandle(), Qt::RightButton, {}, second);
    QVERIFY(!editor.at<QMenu>("mnuRight").isVisible());
    editor.clickAt(editor.at<QWidget>("optLine"));
    QVERIFY(!editor.at<QAbstractButton>("optLine").isChecked());
    editor.clickAt(*editor.optScreen(0));
    editor.clickAt(editor.button(2));
    QCOMPARE(editor.selectedRow(1), 0);
    QVERIFY(editor.document() == before);
    QVERIFY(!dropFiles(*editor.pic(), {film}));
    QCOMPARE(editor.shown(), QList<int>({1}));
    editor.ok(1);
    QTest::mouseClick(editor.window.windowHandle(), Qt::LeftButton, {}, second);
    QCOMPARE(editor.selectedRow(1), 1);
}

void BehaviourWindowTest::menusAndShortcutsAreOutOfUse() {
    BehaviourEditor editor;
    editor.nameSkin("Nova");
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(1));
    for (int time = 0; time < 2; ++time) {
        editor.keyInFocus(Qt::Key_S, Qt::ControlModifier);
        editor.keyInFocus(Qt::Key_O, Qt::ControlModifier);
        editor.at<QPushButton>("cmdStop").setFocus(); // and from outside the panel
    }
    for (const QMenu* menu : editor.window.menuBar()->findChildren<QMenu*>()) {
        const auto place = editor.window.menuBar()->actionGeometry(menu->menuAction());
        QTest::mouseClick(editor.window.menuBar(), Qt::LeftButton, {}, place.center());
        QVERIFY2(!menu->isVisible(), qPrintable(menu->objectName()));
    }
    QCOMPARE(editor.prompts.messages, QStringList());
    QCOMPARE(editor.prompts.folderTitles, QStringList());
    editor.ok(1);
    editor.keyInFocus(Qt::Key_S, Qt::ControlModifier);
    editor.keyInFocus(Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(
        editor.prompts.folderTitles,
        QStringList({"Select an EMPTY folder to save your skin in", "Select skin folder to open"}));
    QVERIFY(choose(editor, "mnuUnloadBg"));
}

void BehaviourWindowTest::stopVidsWorks() {
    BehaviourEditor editor;
    Element video;
    video.elementKind = ElementKind::Image;
    video.elementControl.kind = ControlKind::vid;
    video.elementControl.left = 300;
    video.elementControl.width = 160;
    video.elementControl.height = 120;
    video.elementControl.file = documentPath(hostPathOf(QLatin1String(film)));
    const int id = editor.add(std::move(video));
    const VideoStage& videos = editor.at<Pic>("Pic").videos();
    QTRY_VERIFY_WITH_TIMEOUT(!videos.frame(id).isNull() || !videos.problem(id).isEmpty(), patience);
    if (videos.problem(id) == "no codec") {
        QSKIP("this machine cannot decode the film");
    }
    editor.selectRow(1, 0);
    auto& preview = editor.at<VideoPreview>("vidPreview");
    preview.play(editor.control(id).file);
    QTRY_VERIFY_WITH_TIMEOUT(preview.isPlaying(), patience);
    QVERIFY(editor.openPanel(0));
    QVERIFY(videos.isPlaying(id));
    editor.clickAt(editor.at<QWidget>("cmdStop"));
    QVERIFY(!videos.isPlaying(id));
    QVERIFY(!preview.isPlaying());
    QCOMPARE(editor.shown(), QList<int>({0}));
}

void BehaviourWindowTest::deleteDoesNothingWhileAPanelIsOpen() {
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    for (int index = 0; index < panelCount; ++index) {
        QVERIFY(editor.openPanel(index));
        editor.keyInFocus(Qt::Key_Delete);
        for (QWidget* target : {static_cast<QWidget*>(&editor.window), editor.pic(),
                                static_cast<QWidget*>(editor.lst(1)), &editor.panel(index),
                                static_cast<QWidget*>(&editor.at<QPushButton>("cmdStop"))}) {
            QTest::keyClick(target, Qt::Key_Delete);
        }
        QCOMPARE(editor.document().rowCount(1), 1);
        QCOMPARE(editor.document().screenElementCount(1), 1);
        QCOMPARE(editor.shown(), QList<int>({index}));
        editor.ok(index);
    }
    QVERIFY(editor.openPanel(1));
    auto& delay = editor.at<QLineEdit>("txtTimer(0)");
    QTest::keyClicks(&delay, "45");
    QTest::keyClick(&delay, Qt::Key_Home);
    QTest::keyClick(&delay, Qt::Key_Delete);
    QCOMPARE(delay.text(), QStringLiteral("5")); // in a text box it is an ordinary key
    editor.ok(1);
    editor.keyInFocus(Qt::Key_Delete);
    QCOMPARE(editor.document().rowCount(1), 0);
}

void BehaviourWindowTest::escapeDoesNotClose_data() {
    eachPanel();
}

void BehaviourWindowTest::escapeDoesNotClose() {
    QFETCH(int, index);
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    const SkinDocument before = editor.document();
    QVERIFY(editor.openPanel(index));
    editor.keyInFocus(Qt::Key_Escape);
    QTest::keyClick(&editor.window, Qt::Key_Escape);
    editor.at<QPushButton>("cmdStop").setFocus();
    editor.keyInFocus(Qt::Key_Escape);
    QCOMPARE(editor.shown(), QList<int>({index}));
    QCOMPARE(usableOutside(editor, editor.panel(index)), QStringList("cmdStop"));
    QVERIFY(editor.document() == before);
    QCOMPARE(editor.selectedRow(1), 0);
}

void BehaviourWindowTest::okGivesEverythingBack_data() {
    eachPanel();
}

void BehaviourWindowTest::okGivesEverythingBack() {
    QFETCH(int, index);
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    const auto before = enabledStates(editor);
    // Without resources there is nothing to choose from; that is not the panel's doing.
    QVERIFY(!editor.at<QWidget>("lstR").isEnabled());
    QVERIFY(editor.at<QWidget>("txtL").isEnabled());
    QVERIFY(editor.openPanel(index));
    QVERIFY(enabledStates(editor) != before);
    editor.keyInFocus(Qt::Key_Return); // as the OK button does
    QCOMPARE(editor.shown(), QList<int>());
    QCOMPARE(enabledStates(editor), before);
    for (const QAction* menu : editor.window.menuBar()->actions()) {
        QVERIFY2(menu->isEnabled(), qPrintable(menu->text()));
    }
    QCOMPARE(editor.window.focusWidget(), &editor.button(index)); // where it was before
}

void BehaviourWindowTest::panelsKeepTheirPlace_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("as it starts") << QSize();
    QTest::newRow("smallest") << QSize(1, 1);
    QTest::newRow("large") << QSize(1500, 1000);
}

void BehaviourWindowTest::checkPlace(BehaviourEditor& editor, int index) {
    const QWidget& panel = editor.panel(index);
    const QRect place = editor.inWindow(panel);
    QVERIFY(editor.window.rect().contains(place));
    const QRect surface = editor.inWindow(*editor.pic());
    QVERIFY(!place.contains(surface.center()));
    QVERIFY(!place.intersects(editor.inWindow(editor.at<QWidget>("cmdStop"))));
    QVERIFY(place.contains(editor.inWindow(editor.okOf(index))));
    // It has room for all that it shows, and nothing lies over it.
    QVERIFY(panel.width() >= panel.minimumSizeHint().width());
    QVERIFY(panel.height() >= panel.minimumSizeHint().height());
    for (const QPoint at :
         {place.topLeft() + QPoint(5, 5), place.center(), place.bottomRight() - QPoint(5, 5)}) {
        const QWidget* hit = editor.window.childAt(at);
        QVERIFY(hit == &panel || panel.isAncestorOf(hit));
    }
}

void BehaviourWindowTest::panelsKeepTheirPlace() {
    QFETCH(QSize, size);
    BehaviourEditor editor;
    if (size.isValid()) {
        editor.window.resize(size);
        QCoreApplication::processEvents();
    }
    editor.selectRow(1, 0);
    for (int index = 0; index < panelCount; ++index) {
        if (index == 0) {
            editor.attachModifier("Tint", 0); // the largest of the frames
        } else {
            QVERIFY(editor.openPanel(index));
        }
        QCoreApplication::processEvents();
        checkPlace(editor, index);
        editor.ok(index);
    }
}

void BehaviourWindowTest::openPanelFollowsTheWindow() {
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(2));
    const QRect before = editor.inWindow(editor.panel(2));
    editor.window.resize(editor.window.size() + QSize(300, 200));
    QTRY_COMPARE(editor.inWindow(editor.panel(2)).right(), before.right() + 300);
    checkPlace(editor, 2);
    editor.window.resize(editor.window.minimumSizeHint());
    QTRY_VERIFY(editor.window.rect().contains(editor.inWindow(editor.panel(2))));
    checkPlace(editor, 2);
}

void BehaviourWindowTest::closingTheWindowSavesWhatAPanelShows() {
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(1));
    typeOver(editor.at<QLineEdit>("txtTimer(3)"), "5000");
    const QString out = editor.newFolder("out");
    editor.prompts.answers << Prompts::Answer::Yes;
    editor.prompts.folders << out;
    QStringList dialogs;
    closeNextDialog(dialogs);
    QVERIFY(editor.window.close());
    QFile saved(out + "/QOR_Skin.xml");
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QVERIFY(saved.readAll().contains("5000"));
}

void BehaviourWindowTest::cancelledClosingLeavesThePanelOpen() {
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(1));
    const SkinDocument before = editor.document();
    typeOver(editor.at<QLineEdit>("txtTimer(3)"), "5000");
    editor.prompts.answers << Prompts::Answer::Cancel;
    QVERIFY(!editor.window.close());
    QCOMPARE(editor.shown(), QList<int>({1}));
    QVERIFY(editor.document() == before);
}

TARVEL_UI_TEST(BehaviourWindowTest)
#include "behaviour_window_test.moc"
