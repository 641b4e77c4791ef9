// The table of menu entries, and the menus made from it.
#include "window/main_menus.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <array>

namespace tarvel {

namespace {

struct Entry {
    const char* menu;
    const char* name;
    const char* caption; // "-" is a separator
};

constexpr std::array entries = {
    Entry{"mnuSkin", "mnuSave", "Save"},
    Entry{"mnuSkin", "mnuLoad", "Load"},
    Entry{"mnuSkin", "mnuView", "View XML (for testing only)"},
    Entry{"mnuConfig", "mnuDelays", "Delays"},
    Entry{"mnuConfig", "mnuInfo", "Skin Info"},
    Entry{"mnuConfig", "mnuColors", "System Colors"},
    Entry{"mnuConfig", "mnuAudio", "Audio Settings"},
    Entry{"mnuConfig", "mnuResource", "Resource Manager"},
    Entry{"mnuBackground", "mnuLoadBg", "Load Background"},
    Entry{"mnuBackground", "mnuUnloadBg", "Unload Background"},
    Entry{"mnuRight2", "mnuUnlock", "Unlock all"},
    Entry{"mnuRight", "mnuFront", "Bring to Front"},
    Entry{"mnuRight", "mnuBack", "Send to Back"},
    Entry{"mnuRight", "mnuForward", "Bring Forward"},
    Entry{"mnuRight", "mnuBackward", "Send Backward"},
    Entry{"mnuRight", "mnuDash", "-"},
    Entry{"mnuRight", "mnuDeSel", "Unselect"},
    Entry{"mnuRight", "mnuLocked", "Lock"},
    Entry{"mnuRight", "mnuDash1", "-"},
    Entry{"mnuRight", "mnuModifier(0)", "Modifiers"},
    Entry{"mnuRight", "mnuModifier(1)", "Timers"},
    Entry{"mnuRight", "mnuModifier(2)", "Condition"},
    Entry{"mnuRight", "mnuDash2", "-"},
    Entry{"mnuRight", "mnuDelete", "Delete"},
    Entry{"mnuOptions", "mnuCover", "Cover objects while moving (to prevent blinking)"},
    Entry{"mnuOptions", "mnuBorders", "View safe borders (customize to your TV)"},
};

struct BarMenu {
    const char* name;
    const char* caption;
};

constexpr std::array barMenus = {BarMenu{"mnuSkin", "Skin"}, BarMenu{"mnuConfig", "Configuration"},
                                 BarMenu{"mnuBackground", "Background"},
                                 BarMenu{"mnuOptions", "Options"}};

QMenu* contextMenu(QMainWindow& window, const QString& name) {
    auto* menu = new QMenu(QStringLiteral("Right"), &window);
    menu->setObjectName(name);
    return menu;
}

} // namespace

MainMenus::MainMenus(QMainWindow& window)
    : window_(window)
    , mnuRight_(contextMenu(window, QStringLiteral("mnuRight")))
    , mnuRight2_(contextMenu(window, QStringLiteral("mnuRight2"))) {
    for (const auto& [name, caption] : barMenus) {
        QMenu* menu = window.menuBar()->addMenu(QLatin1String(caption));
        menu->setObjectName(QLatin1String(name));
        fill(*menu, menu->objectName());
    }
    fill(*mnuRight_, mnuRight_->objectName());
    fill(*mnuRight2_, mnuRight2_->objectName());
    entry(QStringLiteral("mnuSave"))->setShortcut(QKeySequence::Save);
    entry(QStringLiteral("mnuLoad"))->setShortcut(QKeySequence::Open);
    entry(QStringLiteral("mnuCover"))->setCheckable(true);
    entry(QStringLiteral("mnuLocked"))->setCheckable(true);
}

void MainMenus::fill(QMenu& menu, const QString& menuName) {
    for (const auto& [owner, name, caption] : entries) {
        if (menuName != QLatin1String(owner)) {
            continue;
        }
        auto* action = new QAction(QLatin1String(caption), &window_);
        action->setObjectName(QLatin1String(name));
        if (action->text() == QStringLiteral("-")) {
            action->setSeparator(true);
            action->setText({}); // a separator with a text is drawn as a heading
        }
        menu.addAction(action);
    }
}

QAction* MainMenus::entry(const QString& name) const {
    auto* action = window_.findChild<QAction*>(name, Qt::FindDirectChildrenOnly);
    Q_ASSERT(action != nullptr);
    return action;
}

} // namespace tarvel
