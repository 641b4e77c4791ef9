// How marks of the selection look.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace tarvel {

inline constexpr int handleSide = 7; // pixels, odd: a handle has a middle
inline constexpr int markMargin = handleSide / 2;

/// Every mark has two, so far apart that one of them stands out by 3 to 1 from whatever picture is
/// below it.
struct MarkTones {
    QColor dark;
    QColor light;
};

[[nodiscard]] inline MarkTones outlineTones() {
    return {Qt::black, {100, 190, 255}};
}
[[nodiscard]] inline MarkTones lockedTones() {
    return {Qt::black, {190, 190, 190}};
}
[[nodiscard]] inline MarkTones handleTones() {
    return {{0, 60, 130}, Qt::white};
}
/// Of the elements that are selected beside the leading one.
[[nodiscard]] inline MarkTones groupTones() {
    return {{0, 20, 50}, {120, 200, 255}};
}
[[nodiscard]] inline MarkTones hoverTones() {
    return {Qt::black, {255, 170, 0}};
}
[[nodiscard]] inline MarkTones guideTones() {
    return {Qt::black, {255, 130, 215}};
}

inline void paintHandle(QPainter& painter, const QRectF& rect) {
    const MarkTones tones = handleTones();
    painter.fillRect(rect, tones.dark);
    painter.fillRect(rect.adjusted(1, 1, -1, -1), tones.light);
}

/// Dashes of the light tone on the dark one; a solid light line has a dark one inside of it.
inline void paintOutline(QPainter& painter, const QRectF& outline, const MarkTones& tones,
                         Qt::PenStyle style) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(tones.dark, 1));
    painter.drawRect(style == Qt::SolidLine ? outline.adjusted(1, 1, -1, -1) : outline);
    painter.setPen(QPen(tones.light, 1, style));
    painter.drawRect(outline);
}

} // namespace tarvel
