// Filtering the application's key events for the main window.
#include "window/window_keys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace tarvel {

WindowKeys::WindowKeys(QWidget& window, std::function<bool()> isOpen, std::vector<Key> keys)
    : window_(window)
    , isOpen_(std::move(isOpen))
    , keys_(std::move(keys)) {
    QApplication::instance()->installEventFilter(this);
}

WindowKeys::~WindowKeys() {
    QApplication::instance()->removeEventFilter(this);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool pressed = event->type() == QEvent::KeyPress;
    if (pressed || event->type() == QEvent::ShortcutOverride) {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && widget->window() == &window_ && isOpen_() &&
            (windowKey(*static_cast<QKeyEvent*>(event), pressed) ||
             (pressed && menuKey(*static_cast<QKeyEvent*>(event), *widget)))) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

// False when the key is the widget's. A key that is but announced is claimed from shortcuts.
bool WindowKeys::windowKey(QKeyEvent& event, bool pressed) {
    const auto found = std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) {
        return key.key == event.key() && key.isWanted();
    });
    if (found == keys_.end()) {
        return false;
    }
    if (pressed) {
        found->press();
    } else {
        event.accept();
    }
    return true;
}

bool WindowKeys::menuKey(const QKeyEvent& event, QWidget& widget) {
    if (event.key() != Qt::Key_F10 || event.modifiers() != Qt::ShiftModifier) {
        return false;
    }
    const QPoint at = widget.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, at, widget.mapToGlobal(at));
    QApplication::sendEvent(&widget, &menu);
    return true;
}

} // namespace tarvel
