// Text: from the top left corner of its rectangle, cut off at its edges.
#include "surface/element_looks.h"
#include "surface/surface_pass.h"
#include "widgets/skin_fonts.h"

#include <QFontMetricsF>

#include <cmath>

namespace tarvel {

namespace {

void paint(SurfacePass& pass, int id, const Element& element) {
    const ElementControl& control = element.elementControl;
    QPainter& painter = pass.painter();
    const LaidOutText& entry = pass.useText(id, control);
    pass.usePen(withOpacity(control.textColor, element.elementAlpha));
    const QRectF rect = nearSurface(controlRect(control));
    if (entry.size.width() <= rect.width() && entry.size.height() <= rect.height()) {
        painter.drawStaticText(rect.topLeft(), entry.text);
        return;
    }
    painter.save();
    painter.setClipRect(pass.targetOf(rect), Qt::IntersectClip);
    painter.drawStaticText(rect.topLeft(), entry.text);
    painter.restore();
}

std::optional<SkinSize> naturalSize(const PanelValues& values, const SkinSettings& /*settings*/,
                                    PictureCache& /*pictures*/) {
    const QSizeF size = QFontMetricsF(skinFont(values.font)).size(0, brokenLines(values.text));
    return SkinSize{static_cast<float>(std::ceil(size.width()) + 1),
                    static_cast<float>(std::ceil(size.height()))};
}

} // namespace

const KindLook textLook = {.tool = {.name = "optText",
                                    .caption = "Text",
                                    .icon = IconName::text,
                                    .tip = "Place a text: your own, or one that the dashboard "
                                           "fills in"},
                           .paint = paint,
                           .bounds = rectangleBounds,
                           .naturalSize = naturalSize};

} // namespace tarvel
