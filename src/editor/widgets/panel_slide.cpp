// Slides panels in from beside the window, and holds them against the layout meanwhile.
#include "widgets/panel_slide.h"

#include <QEvent>
#include <QWidget>

#include <cmath>
#include <utility>

namespace tarvel {

PanelSlide::PanelSlide(QObject* parent)
    : QObject(parent)
    , easing_(15, 3, this) {
    connect(&easing_, &Easing::finished, this, &PanelSlide::finished);
}

void PanelSlide::movetoX(QWidget* panel, bool fromLeft) {
    const QWidget* window = panel->window();
    const int windowLeft = panel->parentWidget()->mapFrom(window, QPoint(0, 0)).x();
    const int start = windowLeft + (fromLeft ? -panel->width() : window->width());
    moves_.push_back(
        {static_cast<double>(start), static_cast<double>(panel->x()), [this, panel](double left) {
             lefts_[panel] = static_cast<int>(std::lround(left));
             panel->move(lefts_[panel], panel->y());
         }});
    lefts_[panel] = start;
}

void PanelSlide::start() {
    easing_.start(std::exchange(moves_, {}));
    for (const auto& [panel, left] : lefts_) {
        panel->installEventFilter(this);
        panel->move(left, panel->y());
        panel->setVisible(true);
    }
}

// Becoming visible asks for a new layout, which puts the panels to their final places.
bool PanelSlide::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Move && easing_.isRunning()) {
        auto* panel = static_cast<QWidget*>(watched);
        const int left = lefts_.at(panel);
        if (panel->x() != left) {
            panel->move(left, panel->y());
        }
    }
    return QObject::eventFilter(watched, event);
}

void PanelSlide::finish() {
    if (easing_.isRunning()) {
        easing_.finish();
    }
}

} // namespace tarvel
