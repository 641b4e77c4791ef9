// Opening, placing and closing of the behaviour panels.
#include "app/behaviour_panels.h"

#include "app/window_gate.h"
#include "behaviour/condition_panel.h"
#include "behaviour/modifier_panel.h"
#include "behaviour/timer_panel.h"

#include <QEvent>

#include <algorithm>

namespace tarvel {

BehaviourPanels::BehaviourPanels(SkinDocument& document, Prompts& prompts, WindowGate& gate,
                                 QWidget& place, const std::filesystem::path& programFolder)
    : QObject(&place)
    , gate_(gate)
    , place_(place) {
    QWidget* parent = place.parentWidget();
    panels_ = {new ModifierPanel(document, prompts, programFolder, parent),
               new TimerPanel(document, parent), new ConditionPanel(document, parent)};
    for (BehaviourPanel* panel : panels_) {
        connect(panel, &BehaviourPanel::closed, this, &BehaviourPanels::panelClosed);
    }
    place.installEventFilter(this);
}

void BehaviourPanels::cmdModifier_Click(int index, int elementId) {
    if (elementId == 0 || isOpen()) {
        return;
    }
    BehaviourPanel& panel = *panels_.at(static_cast<std::size_t>(index));
    gate_.disablex(panel);
    place(panel);
    panel.open(elementId);
    place(panel); // what it shows may need more room
    panel.raise();
}

bool BehaviourPanels::isOpen() const {
    return std::any_of(panels_.begin(), panels_.end(),
                       [](const BehaviourPanel* panel) { return !panel->isHidden(); });
}

void BehaviourPanels::place(BehaviourPanel& panel) {
    const QRect over = place_.geometry();
    const QRect room = place_.parentWidget()->rect();
    const QSize wanted = panel.sizeHint().expandedTo(panel.minimumSizeHint());
    QRect frame(over.topLeft(), over.size().expandedTo(wanted));
    frame.moveBottom(std::min(frame.bottom(), room.bottom()));
    frame.moveRight(std::min(frame.right(), room.right()));
    frame.moveTop(std::max(frame.top(), room.top()));
    panel.setGeometry(frame);
}

void BehaviourPanels::panelClosed() {
    gate_.enableAll();
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
