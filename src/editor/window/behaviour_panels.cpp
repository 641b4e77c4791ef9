// Opens, places and closes the behaviour panels, one at a time.
#include "window/behaviour_panels.h"

#include "panels/condition_panel.h"
#include "panels/modifier_panel.h"
#include "panels/timer_panel.h"
#include "window/window_gate.h"

#include <QEvent>

#include <algorithm>

namespace tarvel {

BehaviourPanels::BehaviourPanels(SkinDocument& document, Prompts& prompts, WindowGate& gate,
                                 SideRoom room, QWidget& ground,
                                 const std::filesystem::path& programFolder)
    : QObject(&ground)
    , gate_(gate)
    , room_(room)
    , ground_(ground) {
    panels_ = {new ModifierPanel(document, prompts, programFolder, &ground),
               new TimerPanel(document, &ground), new ConditionPanel(document, &ground)};
    for (BehaviourPanel* panel : panels_) {
        connect(panel, &BehaviourPanel::closed, this, &BehaviourPanels::panelClosed);
    }
    room.side.installEventFilter(this);
}

void BehaviourPanels::cmdModifier_Click(int index, const std::vector<int>& elementIds) {
    if (elementIds.empty() || isOpen()) {
        return;
    }
    BehaviourPanel& panel = *panels_.at(static_cast<std::size_t>(index));
    focusBefore_ = room_.side.window()->focusWidget();
    gate_.disablex(panel);
    place(panel);
    panel.open(elementIds);
    place(panel); // what it shows may need more room
    panel.raise();
}

bool BehaviourPanels::isOpen() const {
    return std::any_of(panels_.begin(), panels_.end(),
                       [](const BehaviourPanel* panel) { return !panel->isHidden(); });
}

std::vector<QWidget*> BehaviourPanels::panels() const {
    return {panels_.begin(), panels_.end()};
}

std::function<void()> BehaviourPanels::storeChanged() {
    for (BehaviourPanel* panel : panels_) {
        if (!panel->isHidden() && panel->isChanged()) {
            panel->storeNow();
            return [panel] { panel->takeBack(); };
        }
    }
    return {};
}

void BehaviourPanels::place(BehaviourPanel& panel) {
    panel.setGeometry(placeOver(room_, ground_, panel));
}

void BehaviourPanels::panelClosed() {
    gate_.enableAll();
    if (focusBefore_) {
        focusBefore_->setFocus(Qt::OtherFocusReason);
    }
    emit closed();
}

bool BehaviourPanels::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        for (BehaviourPanel* panel : panels_) {
            if (!panel->isHidden()) {
                place(*panel);
            }
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarvel
