// Box: a filled rectangle with or without a border.
#include "surface/element_looks.h"
#include "surface/surface_pass.h"
#include "widgets/qt_text.h"

namespace tarvel {

namespace {

void paint(SurfacePass& pass, int /*id*/, const Element& element) {
    const ElementControl& control = element.elementControl;
    QPainter& painter = pass.painter();
    const QRectF rect = pass.targetOf(controlRect(control));
    if (control.fillStyle == FillStyle::solid) {
        painter.fillRect(rect, withOpacity(control.fillColor, element.elementAlpha));
    }
    if (control.borderStyle != BorderStyle::solid) {
        return;
    }
    const QColor color = qtColor(control.borderColor);
    const double edge = pass.grid().lineWidth();
    if (rect.width() <= 2 * edge || rect.height() <= 2 * edge) {
        painter.fillRect(rect, color);
        return;
    }
    const double side = rect.height() - 2 * edge;
    painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), edge), color);
    painter.fillRect(QRectF(rect.left(), rect.bottom() - edge, rect.width(), edge), color);
    painter.fillRect(QRectF(rect.left(), rect.top() + edge, edge, side), color);
    painter.fillRect(QRectF(rect.right() - edge, rect.top() + edge, edge, side), color);
}

} // namespace

const KindLook boxLook = {.tool = {.name = "optBox",
                                   .caption = "Box",
                                   .icon = IconName::box,
                                   .tip = "Draw a filled box or a frame"},
                          .paint = paint,
                          .bounds = rectangleBounds,
                          .naturalSize = noNaturalSize};

} // namespace tarvel
