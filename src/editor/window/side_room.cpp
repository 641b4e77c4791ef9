// Reckons where a panel lies over the side.
#include "window/side_room.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace tarvel {

QRect placeOver(const SideRoom& room, const QWidget& ground, const QWidget& panel) {
    constexpr int gap = 6;
    const QRect side(room.side.mapTo(&ground, QPoint(0, 0)), room.side.size());
    const auto topOf = [&](const QWidget& widget) {
        return widget.mapTo(&ground, QPoint(0, 0)).y();
    };
    const int bottom = topOf(room.floor) - gap;
    const int roof = std::max(side.top(), topOf(room.roof)); // which may be scrolled out of sight
    QSize wanted = panel.sizeHint();
    if (wanted.height() > bottom) { // its scroll bar must not cover the texts
        wanted.rwidth() += panel.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    }
    const QSize size =
        wanted.expandedTo({side.width(), bottom - roof}).boundedTo({side.right() + 1, bottom});
    return {QPoint(side.right() + 1 - size.width(), bottom - size.height()), size};
}

} // namespace tarvel
