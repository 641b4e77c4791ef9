// Takes the events of a hand that pans away from the tools.
#include "surface/surface_pan.h"

#include "surface/pic.h"
#include "surface/surface_controller.h"
#include "surface/surface_room.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace tarvel {

SurfacePan::SurfacePan(Pic& surface, SurfaceRoom& room, SurfaceController& controller)
    : surface_(surface)
    , room_(room)
    , controller_(controller) {
    surface_.installEventFilter(this);
    room_.viewport()->installEventFilter(this);
}

void SurfacePan::cancel() {
    if (isPanning()) {
        room_.scrollTo(start_);
        end();
    }
}

bool SurfacePan::eventFilter(QObject* watched, QEvent* event) {
    if (!surface_.isEnabled()) {
        if (isPanning() || isSpaceHeld_) { // something has opened meanwhile
            isSpaceHeld_ = false;
            end();
        }
        return QObject::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return release(*static_cast<QMouseEvent*>(event));
    case QEvent::KeyPress:
        return keyPress(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        return keyRelease(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut: // the key's release goes elsewhere
        if (watched == &surface_ && isSpaceHeld_) {
            isSpaceHeld_ = false;
            showHand();
        }
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool SurfacePan::press(const QMouseEvent& event) {
    if (isPanning()) {
        return true; // another button while one is held
    }
    const bool isHand =
        event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && isSpaceHeld_);
    if (!isHand || controller_.isWorking()) {
        return false;
    }
    surface_.setFocus(Qt::MouseFocusReason);
    button_ = event.button();
    hasMoved_ = false;
    pressedAt_ = event.globalPosition().toPoint();
    start_ = room_.scrolled();
    showHand();
    return true;
}

bool SurfacePan::move(const QMouseEvent& event) {
    if (!isPanning()) {
        const bool isHand = isSpaceHeld_ && event.buttons() == Qt::NoButton;
        if (isHand) {
            surface_.tellPointer(event.position()); // which stays a hand
        }
        return isHand;
    }
    if (!event.buttons().testFlag(button_)) { // its release went elsewhere
        end();
        return false;
    }
    const QPoint way = event.globalPosition().toPoint() - pressedAt_;
    hasMoved_ = hasMoved_ || way.manhattanLength() >= QApplication::startDragDistance();
    if (hasMoved_) {
        room_.scrollTo(start_ - way);
    }
    return true;
}

bool SurfacePan::release(const QMouseEvent& event) {
    if (!isPanning()) {
        return false;
    }
    if (event.button() == button_) {
        const bool isClick = !hasMoved_ && button_ == Qt::MiddleButton;
        end();
        if (isClick) {
            emit clicked();
        }
    }
    return true;
}

bool SurfacePan::keyPress(const QKeyEvent& event) {
    if (event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier ||
        controller_.isWorking()) {
        return isPanning();
    }
    if (!event.isAutoRepeat()) {
        isSpaceHeld_ = true;
        showHand();
    }
    return true;
}

bool SurfacePan::keyRelease(const QKeyEvent& event) {
    if (event.key() != Qt::Key_Space || !isSpaceHeld_) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        isSpaceHeld_ = false;
        showHand();
    }
    return true;
}

void SurfacePan::end() {
    button_ = Qt::NoButton;
    showHand();
}

void SurfacePan::showHand() {
    if (isPanning()) {
        surface_.setCursor(Qt::ClosedHandCursor);
    } else if (isSpaceHeld_) {
        surface_.setCursor(Qt::OpenHandCursor);
    } else {
        controller_.restorePointer();
    }
}

} // namespace tarvel
