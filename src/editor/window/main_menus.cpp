// Makes the menus from the table of their entries.
#include "window/main_menus.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace tarvel {

struct MainMenus::Entry {
    const char* menu;
    const char* name;
    const char* caption; // "-" is a separator
    QAction* MainMenus::*member;
};

struct MainMenus::Table {
    static constexpr std::array entries = {
        Entry{"mnuSkin", "mnuSave", "Save", &MainMenus::mnuSave},
        Entry{"mnuSkin", "mnuLoad", "Load", &MainMenus::mnuLoad},
        Entry{"mnuSkin", "mnuView", "View XML (for testing only)", &MainMenus::mnuView},
        Entry{"mnuSkin", "mnuNewWindow", "New Window", &MainMenus::mnuNewWindow},
        Entry{"mnuSkin", "mnuSaveAgain", "Save Again", &MainMenus::mnuSaveAgain},
        Entry{"mnuSkin", "mnuRecent", "Open Recent", &MainMenus::mnuRecent},
        Entry{"mnuSkin", "mnuCheck", "Check", &MainMenus::mnuCheck},
        Entry{"mnuSkin", "mnuPlay", "Play", &MainMenus::mnuPlay},
        Entry{"mnuSkin", "mnuPlaySkin", "Play Skin", &MainMenus::mnuPlaySkin},
        Entry{"mnuConfig", "mnuDelays", "Delays", &MainMenus::mnuDelays},
        Entry{"mnuConfig", "mnuInfo", "Skin Info", &MainMenus::mnuInfo},
        Entry{"mnuConfig", "mnuColors", "System Colors", &MainMenus::mnuColors},
        Entry{"mnuConfig", "mnuAudio", "Audio Settings", &MainMenus::mnuAudio},
        Entry{"mnuConfig", "mnuResource", "Resource Manager", &MainMenus::mnuResource},
        Entry{"mnuBackground", "mnuLoadBg", "Load Background", &MainMenus::mnuLoadBg},
        Entry{"mnuBackground", "mnuUnloadBg", "Unload Background", &MainMenus::mnuUnloadBg},
        Entry{"mnuRight2", "mnuUnlock", "Unlock all", &MainMenus::mnuUnlock},
        Entry{"mnuRight", "mnuFront", "Bring to Front", &MainMenus::mnuFront},
        Entry{"mnuRight", "mnuBack", "Send to Back", &MainMenus::mnuBack},
        Entry{"mnuRight", "mnuForward", "Bring Forward", &MainMenus::mnuForward},
        Entry{"mnuRight", "mnuBackward", "Send Backward", &MainMenus::mnuBackward},
        Entry{"mnuRight", "mnuDash", "-", nullptr},
        Entry{"mnuRight", "mnuDeSel", "Unselect", &MainMenus::mnuDeSel},
        Entry{"mnuRight", "mnuLocked", "Lock", &MainMenus::mnuLocked},
        Entry{"mnuRight", "mnuDash1", "-", nullptr},
        Entry{"mnuRight", "mnuModifier(0)", "Modifiers", &MainMenus::mnuModifier0_},
        Entry{"mnuRight", "mnuModifier(1)", "Timers", &MainMenus::mnuModifier1_},
        Entry{"mnuRight", "mnuModifier(2)", "Condition", &MainMenus::mnuModifier2_},
        Entry{"mnuRight", "mnuDash2", "-", nullptr},
        Entry{"mnuRight", "mnuDelete", "Delete", &MainMenus::mnuDelete},
        Entry{"mnuOptions", "mnuCover", "Cover objects while moving (to prevent blinking)",
              &MainMenus::mnuCover},
        Entry{"mnuOptions", "mnuBorders", "View safe borders (customize to your TV)", nullptr},
        Entry{"mnuOptions", "mnuDash4", "-", nullptr},
        Entry{"mnuOptions", "mnuSnapElements", "Snap to elements", &MainMenus::mnuSnapElements},
        Entry{"mnuOptions", "mnuSnapGrid", "Snap to grid", &MainMenus::mnuSnapGrid},
        Entry{"mnuOptions", "mnuSystemStyle", "System Style", &MainMenus::mnuSystemStyle},
        Entry{"mnuEdit", "mnuUndo", "Undo", &MainMenus::mnuUndo},
        Entry{"mnuEdit", "mnuRedo", "Redo", &MainMenus::mnuRedo},
        Entry{"mnuEdit", "mnuDash3", "-", nullptr},
        Entry{"mnuEdit", "mnuCut", "Cut", &MainMenus::mnuCut},
        Entry{"mnuEdit", "mnuCopy", "Copy", &MainMenus::mnuCopy},
        Entry{"mnuEdit", "mnuPaste", "Paste", &MainMenus::mnuPaste},
        Entry{"mnuEdit", "mnuDuplicate", "Duplicate", &MainMenus::mnuDuplicate},
        // The key is the window's, wherever the focus is; here it is but shown.
        Entry{"mnuEdit", "mnuDeleteSelected", "Delete\tDel", &MainMenus::mnuDeleteSelected},
        Entry{"mnuEdit", "mnuSelectAll", "Select All", &MainMenus::mnuSelectAll},
        Entry{"mnuHelp", "mnuGuide", "User Guide", &MainMenus::mnuGuide},
        Entry{"mnuHelp", "mnuKeys", "Keys", &MainMenus::mnuKeys},
        Entry{"mnuHelp", "mnuAbout", "About Tarvel", &MainMenus::mnuAbout},
    };
};

namespace {

struct BarMenu {
    const char* name;
    const char* caption;
};

constexpr std::array barMenus = {BarMenu{"mnuSkin", "Skin"},
                                 BarMenu{"mnuConfig", "Configuration"},
                                 BarMenu{"mnuBackground", "Background"},
                                 BarMenu{"mnuOptions", "Options"},
                                 BarMenu{"mnuEdit", "Edit"},
                                 BarMenu{"mnuArrange", "Arrange"},
                                 BarMenu{"mnuHelp", "Help"}};

QMenu* contextMenu(QMainWindow& window, const QString& name) {
    auto* menu = new QMenu(QStringLiteral("Right"), &window);
    menu->setObjectName(name);
    return menu;
}

} // namespace

MainMenus::MainMenus(QMainWindow& window)
    : mnuRight_(contextMenu(window, QStringLiteral("mnuRight")))
    , mnuRight2_(contextMenu(window, QStringLiteral("mnuRight2"))) {
    for (const auto& [name, caption] : barMenus) {
        QMenu* menu = window.menuBar()->addMenu(QLatin1String(caption));
        menu->setObjectName(QLatin1String(name));
        fill(window, *menu);
    }
    mnuArrange_ = window.findChild<QMenu*>(QStringLiteral("mnuArrange"));
    fill(window, *mnuRight_);
    fill(window, *mnuRight2_);
    // The table makes every member.
    Q_ASSERT(mnuSave != nullptr && mnuLoad != nullptr && mnuCover != nullptr &&
             mnuLocked != nullptr && mnuUndo != nullptr && mnuRedo != nullptr &&
             mnuNewWindow != nullptr && mnuSaveAgain != nullptr && mnuRecent != nullptr &&
             mnuCheck != nullptr && mnuPlay != nullptr && mnuPlaySkin != nullptr);
    mnuRecent->setMenu(new QMenu(&window));
    mnuCover->setCheckable(true);
    mnuLocked->setCheckable(true);
    setKeys();
}

void MainMenus::setKeys() {
    mnuSave->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    mnuSaveAgain->setShortcut(QKeySequence::Save);
    mnuNewWindow->setShortcut(QKeySequence::New);
    mnuLoad->setShortcut(QKeySequence::Open);
    mnuUndo->setShortcut(Qt::CTRL | Qt::Key_Z);
    mnuRedo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    mnuCut->setShortcut(Qt::CTRL | Qt::Key_X);
    mnuCopy->setShortcut(Qt::CTRL | Qt::Key_C);
    mnuPaste->setShortcut(Qt::CTRL | Qt::Key_V);
    mnuDuplicate->setShortcut(Qt::CTRL | Qt::Key_D);
    mnuSelectAll->setShortcut(Qt::CTRL | Qt::Key_A);
    mnuGuide->setShortcut(Qt::Key_F1);
    mnuPlay->setShortcut(Qt::Key_F5);
    mnuPlaySkin->setShortcut(Qt::SHIFT | Qt::Key_F5);
    for (QAction* play : {mnuPlay, mnuPlaySkin}) {
        play->setAutoRepeat(false); // the key that has ended it may still be held
    }
}

void MainMenus::fill(QMainWindow& window, QMenu& menu) {
    for (const auto& [owner, name, caption, member] : Table::entries) {
        if (menu.objectName() != QLatin1String(owner)) {
            continue;
        }
        auto* action = new QAction(QLatin1String(caption), &window);
        action->setObjectName(QLatin1String(name));
        if (action->text() == QStringLiteral("-")) {
            action->setSeparator(true);
            action->setText({}); // a separator with a text is drawn as a heading
        }
        menu.addAction(action);
        if (member != nullptr) {
            this->*member = action;
        }
    }
}

} // namespace tarvel
