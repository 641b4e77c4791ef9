// Keeps the window within what its display has room for.
#include "window/window_place.h"

#include "widgets/remembered.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace tarvel {

namespace {

// What window managers put around a window, in pixels; known only once it is shown.
constexpr int frameAcross = 12;
constexpr int frameDown = 40;

QRect within(QRect place, const QRect& room) {
    place.setSize(place.size().boundedTo(room.size()).expandedTo({1, 1}));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    return place;
}

} // namespace

void takePlace(QWidget& window, const Remembered& remembered) {
    const QByteArray last = remembered.windowPlace();
    if (!last.isEmpty() && window.restoreGeometry(last)) {
        if (!window.isMaximized() && !window.isFullScreen()) {
            const QRect room = window.screen()->availableGeometry();
            window.setGeometry(within(window.geometry(), room.adjusted(0, frameDown / 2, 0, 0)));
        }
        return;
    }
    const QSize room = window.screen()->availableSize() - QSize(frameAcross, frameDown);
    window.resize(window.sizeHint().boundedTo(room));
}

void placeWithin(QWidget& window, QSize wanted) {
    constexpr int side = frameAcross / 2;
    const QRect room =
        window.screen()->availableGeometry().adjusted(side, frameDown - side, -side, -side);
    const QWidget* parent = window.parentWidget();
    QRect place(QPoint(), wanted.boundedTo(room.size()));
    place.moveCenter(parent == nullptr ? room.center() : parent->window()->geometry().center());
    window.setGeometry(within(place, room));
}

void keepPlace(const QWidget& window, Remembered& remembered) {
    remembered.rememberWindowPlace(window.saveGeometry());
}

} // namespace tarvel
