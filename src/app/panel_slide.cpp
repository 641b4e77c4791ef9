// Easing of the panels.
#include "app/panel_slide.h"

#include <QWidget>

#include <cmath>

namespace tarvel {

namespace {

constexpr int frameMs = 16;
// A panel that crosses 1,500 pixels needs 91 steps: 19 frames, some 300 ms.
constexpr int stepsPerFrame = 5;
constexpr double easing = 1.0 / 15;
constexpr double nearEnough = 3;

} // namespace

PanelSlide::PanelSlide(QObject* parent)
    : QObject(parent) {
    frames_.setInterval(frameMs);
    frames_.setTimerType(Qt::PreciseTimer);
    connect(&frames_, &QTimer::timeout, this, &PanelSlide::stepFrame);
}

void PanelSlide::movetoX(QWidget* panel, bool fromLeft) {
    const int target = panel->x();
    const QWidget* window = panel->window();
    const int windowLeft = panel->parentWidget()->mapFrom(window, QPoint(0, 0)).x();
    const int start = windowLeft + (fromLeft ? -panel->width() : window->width());
    panel->move(start, panel->y());
    panel->setVisible(true);
    panels_.push_back({panel, target, static_cast<double>(start)});
}

void PanelSlide::start() {
    frames_.start();
}

void PanelSlide::stepFrame() {
    bool moving = false;
    for (auto& [panel, target, left] : panels_) {
        for (int step = 0; step < stepsPerFrame && std::abs(target - left) > nearEnough; ++step) {
            left += (target - left) * easing;
        }
        const bool arrived = std::abs(target - left) <= nearEnough;
        panel->move(arrived ? target : static_cast<int>(std::lround(left)), panel->y());
        moving = moving || !arrived;
    }
    if (!moving) {
        finish();
    }
}

void PanelSlide::finish() {
    if (panels_.empty()) {
        return;
    }
    frames_.stop();
    for (const auto& [panel, target, left] : panels_) {
        panel->move(target, panel->y());
    }
    panels_.clear();
    emit finished();
}

} // namespace tarvel
