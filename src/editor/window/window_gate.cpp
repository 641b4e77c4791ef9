// Disables and enables the rest of the window around one part of it.
#include "window/window_gate.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QWidget>

#include <algorithm>

namespace tarvel {

namespace {

constexpr auto alwaysUsable = "cmdStop";

bool holdsUsable(const QWidget& widget) {
    return widget.objectName() == QLatin1String(alwaysUsable) ||
           widget.findChild<QWidget*>(QLatin1String(alwaysUsable)) != nullptr;
}

} // namespace

WindowGate::WindowGate(QMainWindow& window)
    : QObject(&window)
    , window_(window) {}

// The entries, and the bar itself: else it would still share its letters with what stays open, and
// take the focus.
void WindowGate::enableMenus(bool enabled) {
    window_.menuBar()->setEnabled(enabled);
    for (QAction* menu : window_.menuBar()->actions()) {
        menu->setEnabled(enabled);
    }
}

void WindowGate::disablex(const std::vector<const QWidget*>& controls) {
    enableAll();
    closed_ = true;
    for (QWidget* widget : window_.centralWidget()->findChildren<QWidget*>()) {
        const bool related =
            std::any_of(controls.begin(), controls.end(), [widget](const QWidget* control) {
                return widget == control || control->isAncestorOf(widget) ||
                       widget->isAncestorOf(control);
            });
        // Those that were disabled for a reason of their own stay so afterwards.
        if (!related && !holdsUsable(*widget) && widget->isEnabled()) {
            disabled_.emplace_back(widget);
        }
    }
    for (const auto& widget : disabled_) {
        widget->setEnabled(false);
    }
    enableMenus(false);
    emit changed();
}

void WindowGate::enableAll() {
    closed_ = false;
    for (const auto& widget : disabled_) {
        if (widget) {
            widget->setEnabled(true);
        }
    }
    disabled_.clear();
    enableMenus(true);
    emit changed();
}

} // namespace tarvel
