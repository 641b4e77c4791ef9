// Tells which buttons of the main window can be seen together.
#include "window/window_mnemonics.h"

#include "widgets/mnemonics.h"

#include <QAbstractButton>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <array>

namespace tarvel {

namespace {

struct Letter {
    const char* button;
    char letter; // of its caption
};

// Chosen by hand: the menu bar has S, C, B, O, E, A and H, and there are hardly as many others as
// buttons. A letter stands twice where the buttons are never seen together.
constexpr std::array letters = {
    Letter{"optBox", 'x'},         Letter{"optLine", 'L'},         Letter{"optImg", 'I'},
    Letter{"optText", 'T'},        Letter{"optQor", 'Q'},          Letter{"cmdModifier(0)", 'M'},
    Letter{"cmdModifier(1)", 'r'}, Letter{"cmdModifier(2)", 'd'},  Letter{"cmdApply", 'p'},
    Letter{"cmdStop", 'V'},        Letter{"cmdPlayScreen", 'y'},   Letter{"cmdClearL", 'n'},
    Letter{"cmdClearF", 'f'},      Letter{"cmdFont", 'F'},         Letter{"cmdAddRes", 'u'},
    Letter{"chkThumbVis", 'u'},    Letter{"chkSmoothScroll", 'n'}, Letter{"chkSelGlow", 'G'},
    Letter{"chkShowDesc", 'w'}};

// The first one of that letter in the caption, which has it in this letter case.
void giveLetter(QAbstractButton& button, char letter) {
    QString caption = button.text();
    const qsizetype at = caption.indexOf(QLatin1Char(letter));
    if (at >= 0 && mnemonicOf(caption).isNull()) {
        button.setText(caption.insert(at, QLatin1Char('&')));
    }
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
    for (const auto& [name, letter] : letters) {
        if (auto* button = window.findChild<QAbstractButton*>(QLatin1String(name))) {
            giveLetter(*button, letter);
        }
    }
    // A panel covers the window, but for one button.
    const QList<QAbstractButton*> stop = {window.findChild<QAbstractButton*>("cmdStop")};
    for (const char* panel : {"fraModifier(0)", "fraModifier(1)", "fraModifier(2)", "fraPlay"}) {
        const auto* holder = window.findChild<QWidget*>(QLatin1String(panel));
        giveMnemonics(stop + holder->findChildren<QAbstractButton*>());
    }
}

} // namespace tarvel
