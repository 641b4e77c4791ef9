// Frames what an element covers, a little outside of it.
#include "surface/hover_mark.h"

#include "editing/group_places.h"
#include "surface/mark_painting.h"
#include "surface/pic.h"
#include "surface/surface_geometry.h"

namespace tarvel {

namespace {

constexpr int gap = 3; // pixels between the element and its frame

} // namespace

HoverMark::HoverMark(Pic& surface)
    : QWidget(&surface)
    , surface_(surface) {
    setObjectName(QStringLiteral("hoverMark"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setVisible(false);
    connect(&surface, &Pic::mappingChanged, this, &HoverMark::placeAnew);
}

void HoverMark::placeAnew() {
    setGeometry(
        surface_.mapping().toWidget(covered_).toAlignedRect().adjusted(-gap, -gap, gap, gap));
}

void HoverMark::mark(const SkinDocument& document, int elementId) {
    const ElementControl& control = document.element(elementId).elementControl;
    const Place place = placeOf(control);
    if (elementId == 0 || !isFinite(place)) {
        setVisible(false);
        return;
    }
    const Bounds bounds = boundsOf(place, rulesOf(control.kind).placeForm);
    covered_ = nearSurface(
        QRectF(bounds.across.start, bounds.down.start, bounds.across.length, bounds.down.length));
    placeAnew();
    raise();
    setVisible(true);
}

void HoverMark::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintOutline(painter, QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), hoverTones(),
                 Qt::DashLine);
}

} // namespace tarvel
