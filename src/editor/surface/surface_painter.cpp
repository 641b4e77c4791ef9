// The ground and the elements of a screen, back to front.
#include "surface/surface_painter.h"

#include "playing/played_frame.h"
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

// Enlarges about the middle of what lies at rest.
QTransform scaling(const PlayedElement& played) {
    const QPointF middle = elementBounds(played.element).center();
    return QTransform::fromTranslate(-middle.x(), -middle.y()) *
           QTransform::fromScale(played.scale, played.scale) *
           QTransform::fromTranslate(middle.x(), middle.y());
}

void paintPlayed(SurfacePass& pass, int id, const PlayedElement& played, const QRectF& area) {
    if (played.opacity <= 0 || played.scale <= 0 || !elementBounds(played).intersects(area)) {
        return;
    }
    QPainter& painter = pass.painter();
    const double opacity = painter.opacity();
    painter.setOpacity(opacity * played.opacity);
    if (played.scale == 1) {
        pass.setPlayedList(played.list ? &*played.list : nullptr);
        paintElement(pass, id, played.element);
    } else {
        SurfacePass resting = pass.everywhere();
        resting.setPlayedList(played.list ? &*played.list : nullptr);
        painter.save();
        painter.setTransform(scaling(played), true);
        paintElement(resting, id, played.element);
        painter.restore();
    }
    painter.setOpacity(opacity);
}

} // namespace

QRectF elementBounds(const Element& element) {
    return lookOf(element.elementControl).bounds(element.elementControl);
}

QRectF elementBounds(const PlayedElement& played) {
    const QRectF bounds = elementBounds(played.element);
    if (played.scale == 1 || bounds.isEmpty()) {
        return bounds;
    }
    constexpr double smoothing = 2; // which no scale makes narrower
    return scaling(played).mapRect(bounds).adjusted(-smoothing, -smoothing, smoothing, smoothing);
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
        const PlayedFrame::Look look =
            view.played == nullptr ? PlayedFrame::Look{} : view.played->lookOf(id);
        if (look.isAtRest) {
            paintElement(pass, id, document.element(id));
        } else if (look.played != nullptr) {
            paintPlayed(pass, id, *look.played, area);
        }
    }
    painter.restore();
}

} // namespace tarvel
