// Filtering the application's events for a screen that plays.
#include "window/play_input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSizeGrip>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

constexpr int tenthsPerSecond = 10;

bool holds(const QWidget& holder, const QWidget& widget) {
    return &holder == &widget || holder.isAncestorOf(&widget);
}

bool anyHolds(const std::vector<QWidget*>& holders, const QWidget& widget) {
    return std::any_of(holders.begin(), holders.end(),
                       [&](const QWidget* holder) { return holds(*holder, widget); });
}

// What the window or the desktop does with a key stays as it is.
bool isOthers(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_F1:
    case Qt::Key_F6:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) !=
               Qt::NoModifier;
    }
}

} // namespace

PlayInput::PlayInput(Parts parts)
    : parts_(std::move(parts)) {
    QApplication::instance()->installEventFilter(this);
}

PlayInput::~PlayInput() {
    QApplication::instance()->removeEventFilter(this);
}

void PlayInput::setActive(bool active) {
    active_ = active;
    if (active) {
        ending_ = Ending::none;
    }
}

bool PlayInput::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = active_ || ending_ != Ending::none ? qobject_cast<QWidget*>(watched) : nullptr;
    if (widget == nullptr || widget->window() != &parts_.window) {
        return false;
    }
    if (!active_) {
        return afterEnd(*event);
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (key(static_cast<const QKeyEvent&>(*event), false)) {
            event->accept();
            return true;
        }
        return false;
    case QEvent::KeyPress:
        return key(static_cast<const QKeyEvent&>(*event), true);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return mouse(static_cast<const QMouseEvent&>(*event));
    case QEvent::ContextMenu:
        return !anyHolds(parts_.strips, *widget);
    default:
        return false;
    }
}

// A press that ended the playing does nothing else, and neither does what follows from it: its
// release, a menu, and the second half of a double click.
bool PlayInput::afterEnd(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        ending_ = Ending::none; // a new one, even if the button came up elsewhere
        return false;
    case QEvent::MouseButtonDblClick:
        ending_ = Ending::pressed;
        return true;
    case QEvent::MouseButtonRelease:
        // Some platforms ask for a menu only now.
        QMetaObject::invokeMethod(this, &PlayInput::pressEnds, Qt::QueuedConnection);
        return ending_ == Ending::pressed;
    case QEvent::MouseMove:
    case QEvent::ContextMenu:
        return ending_ == Ending::pressed;
    default:
        return false;
    }
}

void PlayInput::pressEnds() {
    if (ending_ == Ending::pressed) {
        ending_ = Ending::clicked;
    }
}

bool PlayInput::key(const QKeyEvent& event, bool pressed) {
    if (isOthers(event)) {
        return false;
    }
    if (event.key() == Qt::Key_Escape || event.key() == Qt::Key_F5) {
        if (pressed && !event.isAutoRepeat()) {
            emit endWanted();
        }
        return true;
    }
    const QWidget* focus = parts_.window.focusWidget();
    const bool isControls =
        focus != nullptr && anyHolds(parts_.strips, *focus) && !holds(parts_.home, *focus);
    return !isControls && playKey(event, pressed);
}

bool PlayInput::playKey(const QKeyEvent& event, bool pressed) {
    if (!pressed) {
        return true;
    }
    const int tenths = (event.modifiers() & Qt::ShiftModifier) != 0 ? tenthsPerSecond : 1;
    switch (event.key()) {
    case Qt::Key_Space:
        if (!event.isAutoRepeat()) {
            emit holdWanted();
        }
        break;
    case Qt::Key_Left:
        emit stepWanted(-tenths);
        break;
    case Qt::Key_Right:
        emit stepWanted(tenths);
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        emit speedWanted(1);
        break;
    case Qt::Key_Minus:
        emit speedWanted(-1);
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        emit keyPressed();
        emit itemWanted(event.key() == Qt::Key_Up ? -1 : 1);
        break;
    default:
        emit keyPressed();
        break;
    }
    return true;
}

// True for a press that is to do nothing else. It counts where the pointer is: what nobody takes is
// told to one widget after the other.
bool PlayInput::mouse(const QMouseEvent& event) {
    const QWidget& window = parts_.window;
    const QPoint point = window.mapFromGlobal(event.globalPosition().toPoint());
    const QWidget* child = window.childAt(point);
    const QWidget& at = child == nullptr ? window : *child;
    if (anyHolds(parts_.strips, at) || anyHolds(parts_.usable, at) ||
        qobject_cast<const QSizeGrip*>(&at) != nullptr) {
        return false;
    }
    if (!holds(parts_.room, at) && event.type() == QEvent::MouseButtonPress) {
        ending_ = Ending::pressed;
        emit endWanted();
    }
    return true;
}

} // namespace tarvel
