// Line: one skin pixel wide, upright and level ones without smoothing.
#include "surface/element_looks.h"
#include "surface/surface_pass.h"
#include "widgets/qt_text.h"

#include <algorithm>

namespace tarvel {

namespace {

// A slanted line adds half its width and a pixel of smoothing.
constexpr double lineMargin = 2;

void paint(SurfacePass& pass, int /*id*/, const Element& element) {
    const ElementControl& control = element.elementControl;
    const auto [x1, x2] = std::minmax(control.X1, control.X2);
    const auto [y1, y2] = std::minmax(control.Y1, control.Y2);
    if (!pass.isDirty(x1, y1, x2, y2, lineMargin)) {
        return;
    }
    const auto line = nearSurface(QLineF(control.X1, control.Y1, control.X2, control.Y2));
    if (!line) {
        return;
    }
    QPainter& painter = pass.painter();
    const PixelGrid& grid = pass.grid();
    const QColor color = qtColor(control.borderColor);
    if (x1 == x2 || y1 == y2) {
        // Both ends included, so a line of no length is a dot.
        const QRectF box = QRectF(line->p1(), line->p2()).normalized();
        const QRectF corner = grid.snapped(QRectF(box.topLeft(), QSizeF(0, 0)));
        const QRectF length = grid.snapped(box);
        painter.fillRect(QRectF(corner.topLeft(), QSizeF(length.width() + grid.lineWidth(),
                                                         length.height() + grid.lineWidth())),
                         color);
        return;
    }
    pass.usePen(color);
    painter.setRenderHint(QPainter::Antialiasing, true);
    // Through the middle of the pixels that the ends name.
    painter.drawLine(line->translated(0.5, 0.5));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

QRectF bounds(const ElementControl& control) {
    const QRectF box = nearSurface(
        QRectF(QPointF(control.X1, control.Y1), QPointF(control.X2, control.Y2)).normalized());
    return box.adjusted(-lineMargin, -lineMargin, lineMargin + 1, lineMargin + 1);
}

} // namespace

const KindLook lineLook = {
    .tool = {.name = "optLine", .caption = "Line", .icon = IconName::line, .tip = "Draw a line"},
    .paint = paint,
    .bounds = bounds,
    .naturalSize = noNaturalSize};

} // namespace tarvel
