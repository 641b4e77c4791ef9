// The part of a side of the window that an open panel covers.
#pragma once

#include <QRect>

class QWidget;

namespace tarvel {

/// From the top of `roof` down to `floor`, which stays free. Owns nothing.
struct SideRoom {
    QWidget& side;
    QWidget& roof;
    QWidget& floor;
};

/// The place of a panel that covers the room, in pixels of `ground`, which holds both. One that
/// needs more reaches over what is beside and above it.
[[nodiscard]] QRect placeOver(const SideRoom& room, const QWidget& ground, const QWidget& panel);

} // namespace tarvel
