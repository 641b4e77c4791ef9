// Paints the frames of several selected elements.
#include "surface/group_marks.h"

#include "editing/group_scale.h"
#include "surface/mark_painting.h"
#include "surface/pic.h"
#include "surface/surface_geometry.h"

#include <QPaintEvent>
#include <QPainter>

#include <array>
#include <cmath>

namespace tarvel {

namespace {

QRectF rectOf(const Bounds& bounds) {
    return {bounds.across.start, bounds.down.start, bounds.across.length, bounds.down.length};
}

// Filled and opaque: stroked or blended, thousands of them take longer than their elements.
void paintThinFrame(QPainter& painter, const QRect& frame, const QColor& color) {
    const int width = frame.width();
    const int height = frame.height();
    painter.fillRect(frame.left(), frame.top(), width, 1, color);
    painter.fillRect(frame.left(), frame.bottom(), width, 1, color);
    painter.fillRect(frame.left(), frame.top(), 1, height, color);
    painter.fillRect(frame.right(), frame.top(), 1, height, color);
}

constexpr std::array handles = {Handle::topLeft,    Handle::top,         Handle::topRight,
                                Handle::right,      Handle::bottomRight, Handle::bottom,
                                Handle::bottomLeft, Handle::left};

} // namespace

GroupMarks::GroupMarks(Pic& surface)
    : QWidget(&surface)
    , surface_(surface) {
    setObjectName(QStringLiteral("groupMarks"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setVisible(false);
    connect(&surface, &Pic::mappingChanged, this, &GroupMarks::placeAnew);
}

void GroupMarks::placeAnew() {
    frames_.clear();
    frames_.reserve(covered_.size());
    for (const QRectF& rect : covered_) {
        frames_.push_back(surface_.mapping().toWidget(rect).toAlignedRect());
    }
    setGeometry(surface_.rect());
    update();
}

void GroupMarks::show(const std::vector<StartPlace>& elements, int leading) {
    covered_.clear();
    covered_.reserve(static_cast<qsizetype>(elements.size()));
    for (const StartPlace& each : elements) {
        if (each.elementId != leading) {
            // Places may be as far out as numbers go, what is painted may not.
            covered_.push_back(nearSurface(rectOf(boundsOf(each))));
        }
    }
    around_ = commonFrame(elements);
    placeAnew();
    raise();
    setVisible(true);
}

void GroupMarks::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const MarkTones tones = groupTones();
    for (const QRect& frame : frames_) {
        paintThinFrame(painter, frame.adjusted(-1, -1, 1, 1), tones.dark);
        paintThinFrame(painter, frame, tones.light);
    }
    const Place& place = around_;
    const QRectF around =
        surface_.mapping().toWidget(nearSurface(QRectF(place[0], place[1], place[2], place[3])));
    paintOutline(painter, around.adjusted(-0.5, -0.5, 0.5, 0.5), outlineTones(), Qt::DashLine);
    for (const Handle handle : handles) {
        if (!hasFrameHandle(around_, handle, surface_.mapping().scale())) {
            continue;
        }
        const SkinPoint centre = frameHandleCentre(around_, handle);
        const QPointF at = surface_.mapping().toWidget(QPointF(centre.x, centre.y));
        const QPointF corner(std::round(at.x()) - markMargin, std::round(at.y()) - markMargin);
        paintHandle(painter, QRectF(corner, QSizeF(handleSide, handleSide)));
    }
}

} // namespace tarvel
