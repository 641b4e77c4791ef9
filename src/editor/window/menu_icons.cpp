// The table of the entries' icons.
#include "window/menu_icons.h"

#include "widgets/icons.h"

#include <QAction>
#include <QHash>
#include <QMenu>
#include <QWidget>

#include <array>

namespace tarvel {

namespace {

struct EntryIcon {
    const char* entry;
    IconName icon;
};

constexpr std::array table = {
    EntryIcon{"mnuSave", IconName::save},
    EntryIcon{"mnuLoad", IconName::open},
    EntryIcon{"mnuCheck", IconName::warning},
    EntryIcon{"mnuPlay", IconName::play},
    EntryIcon{"mnuInfo", IconName::note},
    EntryIcon{"mnuAudio", IconName::play},
    EntryIcon{"mnuResource", IconName::image},
    EntryIcon{"mnuUndo", IconName::undo},
    EntryIcon{"mnuRedo", IconName::redo},
    EntryIcon{"mnuCut", IconName::cut},
    EntryIcon{"mnuCopy", IconName::copy},
    EntryIcon{"mnuPaste", IconName::paste},
    EntryIcon{"mnuDuplicate", IconName::duplicate},
    EntryIcon{"mnuDeleteSelected", IconName::deleteSelected},
    EntryIcon{"mnuDelete", IconName::deleteSelected},
    EntryIcon{"mnuAlignLeft", IconName::alignLeft},
    EntryIcon{"mnuAlignCentre", IconName::alignCentre},
    EntryIcon{"mnuAlignRight", IconName::alignRight},
    EntryIcon{"mnuAlignTop", IconName::alignTop},
    EntryIcon{"mnuAlignMiddle", IconName::alignMiddle},
    EntryIcon{"mnuAlignBottom", IconName::alignBottom},
    EntryIcon{"mnuDistributeAcross", IconName::distributeAcross},
    EntryIcon{"mnuDistributeDown", IconName::distributeDown},
    EntryIcon{"mnuFront", IconName::bringToFront},
    EntryIcon{"mnuBack", IconName::sendToBack},
    EntryIcon{"mnuForward", IconName::bringForward},
    EntryIcon{"mnuBackward", IconName::sendBackward},
    EntryIcon{"mnuZoomIn", IconName::zoomIn},
    EntryIcon{"mnuZoomOut", IconName::zoomOut},
    EntryIcon{"mnuZoomFit", IconName::zoomFit},
    EntryIcon{"mnuUserGuide", IconName::help},
};

} // namespace

void setMenuIcons(QWidget& window) {
    QHash<QString, QAction*> entries;
    const auto actions = window.findChildren<QAction*>();
    for (QAction* action : actions) {
        entries.insert(action->objectName(), action);
    }
    for (const auto& [entry, name] : table) {
        if (QAction* action = entries.value(QLatin1String(entry))) {
            action->setIcon(icon(name));
        }
    }
}

} // namespace tarvel
