// Sliding of the panels.
#include "app/panel_slide.h"

#include <QWidget>

#include <cmath>
#include <utility>

namespace tarvel {

PanelSlide::PanelSlide(QObject* parent)
    : QObject(parent)
    , easing_(15, 3) {
    connect(&easing_, &Easing::finished, this, &PanelSlide::finished);
}

void PanelSlide::movetoX(QWidget* panel, bool fromLeft) {
    const QWidget* window = panel->window();
    const int windowLeft = panel->parentWidget()->mapFrom(window, QPoint(0, 0)).x();
    const int start = windowLeft + (fromLeft ? -panel->width() : window->width());
    moves_.push_back(
        {static_cast<double>(start), static_cast<double>(panel->x()),
         [panel](double left) { panel->move(static_cast<int>(std::lround(left)), panel->y()); }});
    panel->move(start, panel->y());
    panel->setVisible(true);
}

void PanelSlide::start() {
    easing_.start(std::exchange(moves_, {}));
}

void PanelSlide::finish() {
    if (easing_.isRunning()) {
        easing_.finish();
    }
}

} // namespace tarvel
