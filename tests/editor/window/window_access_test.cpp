// The main window without a pointer: the way of the Tab key, spoken names, and work by keys.
#include "support/access_support.h"
#include "support/editor.h"
#include "support/focus_keys.h"
#include "support/ui_test.h"
#include "widgets/drop_down.h"

#include <QAccessible>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QWindow>

using namespace tarvel;
using namespace tarvel::test;

namespace {

const QStringList positionFieldNames = {"txtL", "txtT", "txtW", "txtH"};
const QStringList behaviourNames = {"cmdModifier(0)", "cmdModifier(1)", "cmdModifier(2)"};
const QStringList surfaceNames = {"Pic", "optBox", "optLine", "optImg", "optText", "optQor"};

Element elementOf(ElementKind kind) {
    Element element = boxAt(20, 30, 100, 80);
    element.elementKind = kind;
    ElementControl& control = element.elementControl;
    switch (kind) {
    case ElementKind::Box:
        break;
    case ElementKind::Line:
        control.kind = ControlKind::lin;
        break;
    case ElementKind::Image:
        control.kind = ControlKind::img;
        break;
    case ElementKind::Text:
        control.kind = ControlKind::txt;
        break;
    case ElementKind::Menu:
        control.kind = ControlKind::qor;
        break;
    }
    return element;
}

void addResource(Editor& editor) {
    editor.document().addcRes("<Image/>", "tile"); // a list without entries takes no keys
}

QString spokenName(QWidget* widget) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    return spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
}

/// The names of the controls that a key leads through, from the checked screen back to it.
QStringList wayOf(Editor& editor, Qt::Key key) {
    constexpr int farTooMany = 60;
    QWidget* start = editor.optScreen(editor.document().currentLayout());
    start->setFocus();
    QStringList way;
    do {
        way << focusName();
        press(key);
    } while (QApplication::focusWidget() != start && !focusName().isEmpty() &&
             way.size() < farTooMany);
    return way;
}

/// What the system makes of the menu key.
void pressMenuKey(Editor& editor) {
    const QPoint middle = editor.window.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, editor.window.mapToGlobal(middle));
    QApplication::sendEvent(editor.window.windowHandle(), &event);
}

/// Leads the focus from the checked screen to a control with the Tab key. Not the whole way round:
/// on the surface the key selects other elements.
void tabTo(Editor& editor, const char* name) {
    constexpr int farTooMany = 60;
    editor.optScreen(editor.document().currentLayout())->setFocus();
    for (int i = 0; i < farTooMany && focusName() != QLatin1String(name); ++i) {
        press(Qt::Key_Tab);
    }
    QCOMPARE(focusName(), QLatin1String(name));
}

/// What the Tab key could lead to: of the screen buttons only the checked one.
QList<QWidget*> focusable(Editor& editor) {
    QList<QWidget*> result;
    for (QWidget* widget : editor.window.findChildren<QWidget*>()) {
        const auto* radio = qobject_cast<QRadioButton*>(widget);
        if (widget->window() == &editor.window && widget->isVisible() && widget->isEnabled() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr &&
            (radio == nullptr || radio->isChecked())) {
            result << widget;
        }
    }
    return result;
}

} // namespace

class WindowAccessTest : public QObject {
    Q_OBJECT

  private slots:
    void tabOrder_data();
    void tabOrder();
    void tabOrderWithATool();
    void everythingFocusableHasAName_data() { tabOrder_data(); }
    void everythingFocusableHasAName();
    void panelsAndTextsHaveNames();
    void buttonsAreReadOutByTheirCaptions();
    void everyListLeavesTheWheelAlone();
    void rowsAreSpoken();
    void screensByArrowKeys();
    void elementsByArrowKeys();
    void toolsBySpace();
    void aBoxWithoutThePointer();
    void positionFieldsByTab();
    void colorsBySpaceAndEnter();
    void buttonsBySpace();
    void behavioursBySpace();
    void menuKeyOpensTheMenus();
    void menuBarByKeys();
};

void WindowAccessTest::tabOrder_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("frames");
    const auto row = [](const char* name, int kind, const QStringList& frames) {
        QTest::newRow(name) << kind << frames;
    };
    row("nothing", 0, {});
    row("box", 1, {"lColor", "cmdClearL", "fColor", "cmdClearF", "txtAlpha"});
    row("line", 2, {"lColor", "cmdClearL"});
    row("image", 3, {"lstR", "cmdAddRes"});
    row("text", 4, {"fColor", "txtAlpha", "txtText", "cmdFont"});
    row("item menu", 5,
        {"chkThumbVis", "chkSmoothScroll", "chkSelGlow", "chkShowDesc", "txtScrollFactor",
         "txtNumItems", "cmbTitleAlign", "colSelTitle", "colUnselTitle", "cmbDescAlign",
         "colSelDesc", "colUnselDesc"});
}

void WindowAccessTest::tabOrder() {
    QFETCH(int, kind);
    QFETCH(QStringList, frames);
    Editor editor;
    editor.show();
    addResource(editor);
    QStringList expected = {"optScreen(1)", "lst(1)"};
    if (kind != 0) {
        editor.add(elementOf(static_cast<ElementKind>(kind)));
        editor.selectRow(1, 0);
        frames << "cmdApply";
        expected << positionFieldNames << behaviourNames;
    }
    expected << frames << "cmdStop" << surfaceNames;
    QCOMPARE(wayOf(editor, Qt::Key_Tab), expected);
    QStringList back = wayOf(editor, Qt::Key_Backtab);
    std::reverse(back.begin() + 1, back.end());
    QCOMPARE(back, expected);
}

void WindowAccessTest::tabOrderWithATool() {
    Editor editor;
    editor.show();
    editor.chooseTool("optLine");
    QCOMPARE(wayOf(editor, Qt::Key_Tab),
             QStringList({"optScreen(1)", "lst(1)", "lColor", "cmdClearL", "cmdStop"}) +
                 surfaceNames);
}

void WindowAccessTest::everythingFocusableHasAName() {
    QFETCH(int, kind);
    Editor editor;
    editor.show();
    addResource(editor);
    if (kind != 0) {
        editor.add(elementOf(static_cast<ElementKind>(kind)));
        editor.selectRow(1, 0);
    }
    const QStringList way = wayOf(editor, Qt::Key_Tab);
    QStringList names;
    for (QWidget* widget : focusable(editor)) {
        QVERIFY2(way.contains(widget->objectName()), qPrintable(widget->objectName()));
        const QString name = spokenName(widget);
        QVERIFY2(!name.isEmpty(), qPrintable(widget->objectName()));
        QVERIFY2(name != widget->objectName(), qPrintable(name));
        QVERIFY2(!names.contains(name), qPrintable(name)); // one cannot be told from the other
        names << name;
    }
    QCOMPARE(names.size(), way.size());
}

void WindowAccessTest::panelsAndTextsHaveNames() {
    Editor editor;
    editor.show();
    const auto name = [&](const char* widget) { return spokenName(editor.find<QWidget>(widget)); };
    QCOMPARE(name("lblPos"), QStringLiteral("X: 0 Y: 0"));
    QCOMPARE(editor.find<QWidget>("lblPos")->accessibleDescription(),
             QStringLiteral("Position of the pointer"));
    QVERIFY(name("fraNote").startsWith(QStringLiteral("Note: Most TV's cut off edges")));
    QCOMPARE(name("fraLayout"), QStringLiteral("Current screen"));
    QCOMPARE(name("fraElements"), QStringLiteral("Elements in stacking order"));
    QCOMPARE(name("fraPos"), QStringLiteral("Position in skin pixels"));
    QCOMPARE(name("fraCreate"), QStringLiteral("Create elements"));
    QCOMPARE(name("Pic"), QStringLiteral("Drawing surface"));
    for (int screen = 0; screen < screenCount; ++screen) {
        const QRadioButton* button = editor.optScreen(screen);
        QCOMPARE(spokenName(editor.optScreen(screen)), button->text() + QStringLiteral(" screen"));
    }
}

void WindowAccessTest::buttonsAreReadOutByTheirCaptions() {
    Editor editor;
    QVERIFY(captionedButtons(editor.window).contains(editor.find<QAbstractButton>("cmdStop")));
    QCOMPARE(buttonsReadOutOtherwise(editor.window).join(QLatin1Char('\n')),
             QString()); // dialogs included
}

// While it has no focus.
void WindowAccessTest::everyListLeavesTheWheelAlone() {
    Editor editor;
    const auto lists = editor.window.findChildren<QComboBox*>();
    QVERIFY(lists.size() >= 6);
    for (const QComboBox* list : lists) {
        QVERIFY2(qobject_cast<const DropDown*>(list) != nullptr, qPrintable(list->objectName()));
    }
}

void WindowAccessTest::rowsAreSpoken() {
    Editor editor;
    editor.show();
    editor.add(boxAt(1, 2, 30, 40, 55));
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(editor.lst(1));
    QVERIFY(list != nullptr);
    QCOMPARE(list->childCount(), 1);
    QCOMPARE(list->child(0)->text(QAccessible::Name), QStringLiteral("Box: Alpha 55"));
}

void WindowAccessTest::screensByArrowKeys() {
    Editor editor;
    editor.show();
    editor.add(boxAt(0, 0, 10, 10), 2);
    editor.document().setCurrentLayout(1);
    editor.optScreen(1)->setFocus();
    press(Qt::Key_Down);
    QCOMPARE(focusName(), QStringLiteral("optScreen(2)"));
    QCOMPARE(editor.document().currentLayout(), 2);
    QVERIFY(editor.lst(2)->isVisible() && !editor.lst(1)->isVisible());
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    QCOMPARE(editor.document().currentLayout(), 0);
    press(Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("lst(0)"));
    press(Qt::Key_Backtab);
    QCOMPARE(focusName(), QStringLiteral("optScreen(0)"));
}

void WindowAccessTest::elementsByArrowKeys() {
    Editor editor;
    editor.show();
    for (const float left : {10.0F, 20.0F, 30.0F}) {
        editor.add(boxAt(left, 10, 50, 50));
    }
    tabTo(editor, "lst(1)");
    press(Qt::Key_End);
    QCOMPARE(editor.selectedRow(1), 2);
    press(Qt::Key_Up);
    QCOMPARE(editor.selectedRow(1), 1);
    QVERIFY(editor.find<QWidget>("fraSel")->isVisible());
    QCOMPARE(editor.find<QLineEdit>("txtL")->text(), QStringLiteral("20"));
    press(Qt::Key_Home);
    QCOMPARE(editor.find<QLineEdit>("txtL")->text(), QStringLiteral("10"));
    press(Qt::Key_Delete);
    QCOMPARE(editor.document().rowCount(1), 2);
}

void WindowAccessTest::toolsBySpace() {
    Editor editor;
    editor.show();
    for (const char* name : {"optBox", "optLine", "optImg", "optText", "optQor"}) {
        tabTo(editor, name);
        press(Qt::Key_Space);
        QVERIFY2(editor.find<QAbstractButton>(name)->isChecked(), name);
        QTRY_VERIFY(editor.find<QWidget>("picBox")->isHidden());
        QCOMPARE(focusName(), QLatin1String(name));
    }
    press(Qt::Key_Space);
    QVERIFY(!editor.find<QAbstractButton>("optQor")->isChecked());
}

void WindowAccessTest::aBoxWithoutThePointer() {
    Editor editor;
    editor.show();
    tabTo(editor, "optBox");
    press(Qt::Key_Space);
    QTRY_VERIFY(editor.find<QWidget>("picBox")->isHidden());
    press(Qt::Key_Backtab);
    QCOMPARE(focusName(), QStringLiteral("Pic"));
    press(Qt::Key_Return);
    QCOMPARE(editor.document().rowCount(1), 1);
    press(Qt::Key_Left);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(editor.control(1).left, 259.0F);
    QCOMPARE(editor.control(1).top, 209.0F);
    press(Qt::Key_Tab); // the surface does not keep the focus
    QCOMPARE(focusName(), QStringLiteral("optBox"));
}

void WindowAccessTest::positionFieldsByTab() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 0);
    tabTo(editor, "txtL");
    QCOMPARE(editor.find<QLineEdit>("txtL")->selectedText(), QStringLiteral("100"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
    press(Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("txtT"));
    QCOMPARE(editor.control(id).left, 7.0F);
}

void WindowAccessTest::colorsBySpaceAndEnter() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 0);
    editor.prompts.colors = {QColor(1, 2, 3), QColor(4, 5, 6)};
    tabTo(editor, "lColor");
    press(Qt::Key_Space);
    tabTo(editor, "fColor");
    press(Qt::Key_Return);
    tabTo(editor, "cmdApply");
    press(Qt::Key_Space);
    QCOMPARE(editor.control(1).borderColor, makeColor(1, 2, 3));
    QCOMPARE(editor.control(1).fillColor, makeColor(4, 5, 6));
    tabTo(editor, "cmdClearF");
    press(Qt::Key_Space);
    tabTo(editor, "cmdApply");
    press(Qt::Key_Space);
    QCOMPARE(editor.control(1).fillStyle, FillStyle::transparent);
}

void WindowAccessTest::buttonsBySpace() {
    Editor editor;
    editor.show();
    addResource(editor);
    editor.add(elementOf(ElementKind::Text));
    editor.add(elementOf(ElementKind::Image));
    editor.selectRow(1, 0);
    tabTo(editor, "cmdFont");
    press(Qt::Key_Space);
    QCOMPARE(editor.prompts.initialFonts.size(), 1);
    tabTo(editor, "txtText");
    press(Qt::Key_Down);
    QCOMPARE(editor.find<QComboBox>("txtText")->currentText(), QStringLiteral("DiscTitle"));
    editor.selectRow(1, 1);
    tabTo(editor, "cmdAddRes");
    QStringList dialogs;
    closeNextDialog(dialogs);
    press(Qt::Key_Space);
    QCOMPARE(dialogs, QStringList("frmResources"));
    editor.window.activateWindow(); // no window manager does it
    QVERIFY(QTest::qWaitForWindowActive(&editor.window));
    settle();
    tabTo(editor, "cmdStop");
    QSignalSpy stopped(editor.find<QPushButton>("cmdStop"), &QPushButton::clicked);
    press(Qt::Key_Space);
    QCOMPARE(stopped.size(), 1);
}

void WindowAccessTest::behavioursBySpace() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 0);
    const QStringList okNames = {"cmdModifierOK", "cmdTimersOK", "cmdConditionOK"};
    for (int index = 0; index < okNames.size(); ++index) {
        const QByteArray number = QByteArray::number(index);
        auto* panel = editor.find<QWidget>("fraModifier(" + number + ")");
        auto* ok = editor.find<QWidget>(okNames[index].toLatin1());
        QVERIFY(panel != nullptr && ok != nullptr);
        tabTo(editor, "cmdModifier(" + number + ")");
        press(Qt::Key_Space);
        QTRY_VERIFY(panel->isVisible());
        QVERIFY(panel->isAncestorOf(QApplication::focusWidget()));
        constexpr int mostControls = 30;
        for (int i = 0; i < mostControls && QApplication::focusWidget() != ok; ++i) {
            press(Qt::Key_Tab);
        }
        press(Qt::Key_Space);
        QTRY_VERIFY(!panel->isVisible());
    }
}

void WindowAccessTest::menuKeyOpensTheMenus() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    auto* right = editor.find<QMenu>("mnuRight");
    auto* right2 = editor.find<QMenu>("mnuRight2");
    for (const char* place : {"lst(1)", "Pic"}) {
        editor.selectRow(1, 0);
        tabTo(editor, place);
        pressMenuKey(editor);
        QVERIFY2(right->isVisible() && !right2->isVisible(), place);
        QCOMPARE(editor.selectedRow(1), 0);
        QTest::keyClick(right, Qt::Key_Escape);
        QVERIFY(!right->isVisible());
    }
    editor.entry("mnuDeSel")->trigger();
    tabTo(editor, "Pic");
    pressMenuKey(editor);
    QVERIFY(right2->isVisible() && !right->isVisible());
    QTest::keyClick(right2, Qt::Key_Escape);
}

void WindowAccessTest::menuBarByKeys() {
    Editor editor;
    editor.show();
    tabTo(editor, "Pic");
    QTest::keyClick(editor.window.windowHandle(), Qt::Key_Alt);
    QMenuBar* bar = editor.window.menuBar();
    QVERIFY(bar->hasFocus());
    QCOMPARE(captionOf(*bar->activeAction()), QStringLiteral("Skin"));
    QTest::keyClick(bar, Qt::Key_Right);
    QTest::keyClick(bar, Qt::Key_Down);
    QVERIFY(editor.find<QMenu>("mnuConfig")->isVisible());
    QTest::keyClick(editor.find<QMenu>("mnuConfig"), Qt::Key_Escape);
    QTest::keyClick(bar, Qt::Key_Escape);
    QCOMPARE(focusName(), QStringLiteral("Pic"));
}

TARVEL_UI_TEST(WindowAccessTest)
#include "window_access_test.moc"
