// The ground and the elements of a screen, back to front.
#include "surface/surface_painter.h"

#include "surface/element_looks.h"
#include "surface/surface_pass.h"

#include <algorithm>

namespace tarvel {

namespace {

void paintGround(SurfacePass& pass, const SkinDocument& document, const SurfaceView& view) {
    const QRectF target = pass.grid().snapped(surfaceRect);
    if (view.ground != nullptr) {
        pass.painter().drawImage(target, *view.ground);
        return;
    }
    pass.painter().fillRect(target, Qt::black);
    const Background& background = document.settings().background;
    if (background.loaded) {
        pass.paintStretched(surfaceRect, background.path);
    }
}

void paintElement(SurfacePass& pass, int id, const Element& element) {
    const ElementControl& control = element.elementControl;
    if (hasEnds(control) || pass.isDirty(control)) {
        lookOf(control).paint(pass, id, element);
    }
}

} // namespace

QRectF elementBounds(const Element& element) {
    return lookOf(element.elementControl).bounds(element.elementControl);
}

SurfacePainter::SurfacePainter(PictureCache& pictures)
    : pictures_(pictures) {}

void SurfacePainter::paint(QPainter& painter, const SkinDocument& document, int screen,
                           const QRectF& dirty, const SurfaceView& view) {
    const QRectF area = dirty & surfaceRect;
    if (area.isEmpty()) {
        return;
    }
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !view.crisp);
    SurfacePass pass(painter, pictures_, texts_, frames_, area, view.crisp);
    paintGround(pass, document, view);
    const int end = std::min(view.endRow, document.rowCount(screen));
    for (int row = std::max(view.firstRow, 0); row < end; ++row) {
        const int id = document.itemData(screen, row);
        paintElement(pass, id, document.element(id));
    }
    painter.restore();
}

} // namespace tarvel
