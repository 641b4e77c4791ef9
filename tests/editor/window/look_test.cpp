// The look of the windows: the style that is chosen, tool tips and keys, icons, and what empty
// lists say.
#include "support/editor.h"
#include "support/ui_test.h"
#include "widgets/color_button.h"
#include "widgets/empty_hint.h"
#include "widgets/style/palettes.h"
#include "widgets/style/tarvel_style.h"
#include "widgets/tool_tips.h"
#include "window/check_window.h"

#include <QComboBox>
#include <QDialog>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QToolTip>

using namespace tarvel;
using namespace tarvel::test;

namespace {

bool isOwnStyle() {
    return qobject_cast<TarvelStyle*>(QApplication::style()) != nullptr;
}

bool wantsTip(const QWidget& widget) {
    if (qobject_cast<const QSpinBox*>(widget.parentWidget()) != nullptr ||
        qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr ||
        widget.objectName().startsWith(QStringLiteral("qt_")) ||
        widget.objectName() == QStringLiteral("cmdSave")) { // which is never shown
        return false;
    }
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr;
}

QString plainCaption(const QWidget& widget) {
    QString caption = widget.property("text").toString();
    return caption.remove(QLatin1Char('&'));
}

QList<QWidget*> controlsOf(Editor& editor) {
    editor.entry("mnuCheck")->trigger(); // makes its window
    QList<QWidget*> controls;
    const auto all = editor.window.findChildren<QWidget*>();
    for (QWidget* each : all) {
        if (wantsTip(*each)) {
            controls << each;
        }
    }
    return controls;
}

QString hintOf(const QAbstractItemView& list) {
    const auto* hint = list.findChild<EmptyHint*>();
    return hint != nullptr && hint->isVisibleTo(&list) ? hint->text() : QString();
}

} // namespace

class LookTest : public QObject {
    Q_OBJECT

  private slots:
    void theSystemsStyleCanBeChosen();
    void theSystemsStyleIsRemembered();
    void everyControlTellsWhatItIsFor();
    void tipsGiveTheKey();
    void menusShowTheirIconsAndKeys();
    void windowsFollowTheShade();
    void emptyListsSayWhatToDo_data();
    void emptyListsSayWhatToDo();
    void findingsHaveIcons();
    void cleanup() { QApplication::setPalette({}); }
};

void LookTest::theSystemsStyleCanBeChosen() {
    Editor editor;
    editor.show();
    QVERIFY(isOwnStyle());
    QAction* entry = editor.entry("mnuSystemStyle");
    QCOMPARE(entry->text().remove('&'), "System Style");
    QVERIFY(entry->isCheckable());
    QVERIFY(!entry->isChecked());
    entry->trigger();
    QVERIFY(!isOwnStyle());
    QVERIFY(editor.find<QWidget>("optBox")->style() == QApplication::style());
    entry->trigger();
    QVERIFY(isOwnStyle());
    QCOMPARE(QApplication::palette().color(QPalette::Highlight),
             paletteOf(Shade::light).color(QPalette::Highlight));
}

void LookTest::theSystemsStyleIsRemembered() {
    QTemporaryDir folder;
    ScriptedPrompts prompts;
    Remembered remembered(folder.filePath("settings.ini"));
    {
        FrmMain window(prompts, hostPathOf(folder.path()), remembered);
        window.findChild<QAction*>("mnuSystemStyle")->trigger();
    }
    {
        const FrmMain window(prompts, hostPathOf(folder.path()), remembered);
        QVERIFY(window.findChild<QAction*>("mnuSystemStyle")->isChecked());
        QVERIFY(!isOwnStyle());
        window.findChild<QAction*>("mnuSystemStyle")->trigger();
    }
    const FrmMain window(prompts, hostPathOf(folder.path()), remembered);
    QVERIFY(!window.findChild<QAction*>("mnuSystemStyle")->isChecked());
    QVERIFY(isOwnStyle());
}

void LookTest::everyControlTellsWhatItIsFor() {
    Editor editor;
    editor.show();
    const QList<QWidget*> controls = controlsOf(editor);
    constexpr int many = 80;
    QVERIFY(controls.size() > many);
    QStringList silent;
    for (QWidget* control : controls) {
        const QString tip = control->toolTip();
        if (tip.size() <= plainCaption(*control).size() || tip == control->accessibleName()) {
            silent << control->window()->objectName() + '/' + control->objectName() + " \"" + tip +
                          '"';
        }
    }
    QVERIFY2(silent.isEmpty(), qPrintable(silent.join('\n')));
}

// Whatever the caption of a button or of a field's label underlines is told.
void LookTest::tipsGiveTheKey() {
    Editor editor;
    editor.show();
    const QList<QWidget*> controls = controlsOf(editor);
    for (QWidget* control : controls) {
        if (const auto* button = qobject_cast<QAbstractButton*>(control);
            button != nullptr && !button->shortcut().isEmpty()) {
            QVERIFY(toolTipOf(*button).contains(button->shortcut().toString()));
        }
    }
    auto* stop = editor.find<QPushButton>("cmdStop");
    stop->setShortcut(QKeySequence(Qt::ALT | Qt::Key_V));
    QCOMPARE(toolTipOf(*stop), stop->toolTip() + " (Alt+V)");
    QHelpEvent asked(QEvent::ToolTip, {3, 3}, stop->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(stop, &asked);
    QTRY_COMPARE(QToolTip::text(), stop->toolTip() + " (Alt+V)");
    QToolTip::hideText();
    for (const char* tool : {"optBox", "optLine", "optImg", "optText", "optQor"}) {
        QVERIFY(editor.find<QWidget>(tool)->toolTip().contains("Shift+Space"));
    }
}

void LookTest::menusShowTheirIconsAndKeys() {
    Editor editor;
    for (const char* name : {"mnuSave",
                             "mnuLoad",
                             "mnuCheck",
                             "mnuUndo",
                             "mnuRedo",
                             "mnuCut",
                             "mnuCopy",
                             "mnuPaste",
                             "mnuDuplicate",
                             "mnuDeleteSelected",
                             "mnuAlignLeft",
                             "mnuAlignCentre",
                             "mnuAlignRight",
                             "mnuAlignTop",
                             "mnuAlignMiddle",
                             "mnuAlignBottom",
                             "mnuDistributeAcross",
                             "mnuDistributeDown",
                             "mnuFront",
                             "mnuBack",
                             "mnuForward",
                             "mnuBackward"}) {
        QVERIFY2(!editor.entry(name)->icon().isNull(), name);
    }
    for (const char* name : {"mnuSave", "mnuSaveAgain", "mnuLoad", "mnuNewWindow", "mnuUndo",
                             "mnuRedo", "mnuCut", "mnuCopy", "mnuPaste", "mnuDuplicate"}) {
        QVERIFY2(!editor.entry(name)->shortcut().isEmpty(), name);
    }
    for (const QObject* tool :
         {editor.find<QToolButton>("optBox"), editor.find<QToolButton>("optQor")}) {
        QVERIFY(!tool->property("icon").value<QIcon>().isNull());
    }
}

// Within exec(): Qt tells windows of another palette only while the program runs.
void LookTest::windowsFollowTheShade() {
    Editor editor;
    editor.show();
    const auto look = [&](Shade shade) {
        QApplication::setPalette(paletteOf(shade));
        QCoreApplication::processEvents();
        const QImage image = editor.window.grab().toImage();
        return std::pair(image.pixelColor(image.width() - 3, image.height() / 2),
                         editor.lst(1)->viewport()->grab().toImage().pixelColor(2, 2));
    };
    std::vector<std::pair<QColor, QColor>> seen;
    QTimer::singleShot(0, &editor.window, [&] {
        for (const Shade shade : {Shade::dark, Shade::light}) {
            seen.push_back(look(shade));
        }
        QApplication::exit(); // which asks nobody, as quit() would
    });
    QApplication::exec();
    QCOMPARE(seen.size(), std::size_t{2});
    for (const Shade shade : {Shade::dark, Shade::light}) {
        const QPalette& palette = paletteOf(shade);
        QCOMPARE(seen[shade == Shade::dark ? 0 : 1],
                 std::pair(palette.color(QPalette::Window), palette.color(QPalette::Base)));
    }
}

void LookTest::emptyListsSayWhatToDo_data() {
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("deed");
    QTest::newRow("elements") << "lst(1)"
                              << "draw";
    QTest::newRow("resources") << "lstRes"
                               << "drop";
    QTest::newRow("music") << "lstMusic"
                           << "Add files";
    QTest::newRow("fields") << "lstFields"
                            << "Add Field";
}

void LookTest::emptyListsSayWhatToDo() {
    QFETCH(QString, list);
    QFETCH(QString, deed);
    Editor editor;
    editor.show();
    QAbstractItemView* view = nullptr;
    const auto all = editor.window.findChildren<QAbstractItemView*>(list);
    for (QAbstractItemView* each : all) {
        view = each->window()->objectName() == QStringLiteral("frmDelays") ? view : each;
    }
    QVERIFY(view != nullptr);
    if (auto* widget = qobject_cast<QListWidget*>(view)) {
        widget->clear();
    }
    QVERIFY2(hintOf(*view).contains(deed), qPrintable(hintOf(*view)));
    QVERIFY(view->accessibleDescription().contains(deed));
    if (auto* widget = qobject_cast<QListWidget*>(view)) {
        widget->addItem("something");
    } else {
        editor.add(boxAt(10, 10, 50, 50));
    }
    QCOMPARE(hintOf(*view), QString());
    QCOMPARE(view->accessibleDescription(), QString());
}

void LookTest::findingsHaveIcons() {
    Editor editor;
    editor.nameSkin("Skin");
    editor.show();
    editor.entry("mnuCheck")->trigger();
    auto* list = editor.find<QListWidget>("lstFindings");
    const QString hint = hintOf(*list);
    QVERIFY2(list->count() > 0 || hint.contains("Check again"), qPrintable(hint));
    Element image = boxAt(10, 10, 50, 50);
    image.elementKind = ElementKind::Image;
    image.elementControl.kind = ControlKind::img;
    image.imageSource = "nothing";
    editor.add(image);                   // names no resource: an error
    editor.add(boxAt(3000, 10, 50, 50)); // off the screen: a warning
    editor.find<QPushButton>("cmdCheckAgain")->click();
    QCOMPARE(hintOf(*list), QString());
    QStringList names;
    for (int row = 0; row < list->count(); ++row) {
        names << list->item(row)->icon().name();
    }
    QCOMPARE(names, QStringList({"error", "warning"}));
}

TARVEL_UI_TEST(LookTest)
#include "look_test.moc"
