// Tells which buttons of the main window can be seen together.
#include "window/window_mnemonics.h"

#include "widgets/mnemonics.h"

#include <QAbstractButton>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace tarvel {

namespace {

QList<QAbstractButton*> buttonsOf(const QMainWindow& window, const char* holder) {
    QList<QAbstractButton*> buttons;
    if (auto* widget = window.findChild<QWidget*>(QLatin1String(holder))) {
        buttons = widget->findChildren<QAbstractButton*>();
        if (auto* itself = qobject_cast<QAbstractButton*>(widget)) {
            buttons.prepend(itself);
        }
    }
    return buttons;
}

// Context menus first: what they share with menus of the bar keeps its letter there, where there
// are more entries to choose from.
void giveMenus(const QMainWindow& window) {
    giveMnemonics(window.menuBar()->actions());
    for (const char* name : {"mnuRight", "mnuRight2"}) {
        if (const auto* menu = window.findChild<QMenu*>(QLatin1String(name))) {
            giveMnemonics(menu->actions());
        }
    }
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        giveMnemonics(menu->actions());
    }
}

} // namespace

void giveWindowMnemonics(QMainWindow& window) {
    giveMenus(window);
    QString taken;
    for (const QAction* menu : window.menuBar()->actions()) {
        taken += mnemonicOf(menu->text());
    }
    QList<QAbstractButton*> always;
    for (const char* holder : {"fraCreate", "fraBehaviour", "cmdApply", "cmdStop"}) {
        always += buttonsOf(window, holder);
    }
    taken = giveMnemonics(always, taken);
    const QString shared = giveMnemonics(buttonsOf(window, "fraShared"), taken);
    giveMnemonics(buttonsOf(window, "fraText"), shared);
    giveMnemonics(buttonsOf(window, "fraImg"), taken); // these two come alone
    giveMnemonics(buttonsOf(window, "fraQor"), taken);
    const auto stop = buttonsOf(window, "cmdStop"); // can be used while a panel is open
    for (const char* panel : {"fraModifier(0)", "fraModifier(1)", "fraModifier(2)"}) {
        giveMnemonics(stop + buttonsOf(window, panel));
    }
}

} // namespace tarvel
