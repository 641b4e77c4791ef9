// How marks of the selection look.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace tarvel {

inline constexpr int handleSide = 7; // pixels, odd: a handle has a middle
inline constexpr int markMargin = handleSide / 2;

[[nodiscard]] inline QColor markColor() {
    return {0, 140, 255};
}

inline void paintHandle(QPainter& painter, const QRectF& rect) {
    painter.fillRect(rect, markColor());
    painter.fillRect(rect.adjusted(1, 1, -1, -1), Qt::white);
}

/// Two colours, so that an outline shows on any ground.
inline void paintOutline(QPainter& painter, const QRectF& outline, const QColor& color,
                         Qt::PenStyle style) {
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(outline);
    painter.setPen(QPen(color, 1, style));
    painter.drawRect(outline);
}

} // namespace tarvel
