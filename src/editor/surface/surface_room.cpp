// Places the surface in its room, and zooms it at a point.
#include "surface/surface_room.h"

#include "document/skin_document.h"
#include "editing/zoom.h"
#include "surface/pic.h"
#include "surface/surface_ruler.h"
#include "widgets/focus_frame.h"

#include <QApplication>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvel {

namespace {

constexpr int margin = 2;      // pixels that a screen that fits leaves free on each side
constexpr int shadow = 3;      // pixels around the screen
constexpr int scrollStep = 20; // pixels
constexpr int wheelStep = 120; // of a wheel that clicks
constexpr QSize smallestRoom(200, 150);

QSize around(QSize size, int width) {
    return size + QSize(2 * width, 2 * width);
}

} // namespace

SurfaceRoom::SurfaceRoom(Pic& surface, QWidget* parent)
    : QAbstractScrollArea(parent)
    , surface_(surface)
    , frame_(new FocusFrame(surface, viewport()))
    , rulers_{new SurfaceRuler(Qt::Horizontal, this), new SurfaceRuler(Qt::Vertical, this)}
    , zoom_(actualZoom) {
    setObjectName(QStringLiteral("surfaceRoom"));
    setAccessibleName(tr("Room of the drawing surface"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the surface has it
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    viewport()->setBackgroundRole(QPalette::Window);
    viewport()->setAutoFillBackground(false); // paintEvent() does it
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) {
        bar->setSingleStep(scrollStep);
    }
    surface_.installEventFilter(this);
    connect(&surface_, &Pic::pointerMoved, this, [this](QPointF skin) {
        rulers_[0]->setPointer(skin.x());
        rulers_[1]->setPointer(skin.y());
    });
    frame_->setFixedSize(around(surface_.size(), frame_->frameWidth()));
}

QSize SurfaceRoom::sizeHint() const {
    const int free = frame_->frameWidth() + 2 * margin;
    const QMargins rulers = viewportMargins();
    return around(QSize(skinWidth, skinHeight), free).grownBy(rulers);
}

QSize SurfaceRoom::minimumSizeHint() const {
    return smallestRoom;
}

void SurfaceRoom::fit() {
    if (isBusy_ && isBusy_()) {
        return;
    }
    isFit_ = true;
    held_.reset();
    fitNow();
    emit zoomChanged();
}

void SurfaceRoom::fitNow() {
    const QSize room = maximumViewportSize() - around({0, 0}, frame_->frameWidth() + margin);
    setZoom(fittingZoom(room.width(), room.height()));
    place({0, 0});
}

void SurfaceRoom::zoomTo(int zoom) {
    zoomAt(zoom, QRectF(viewport()->rect()).center());
}

void SurfaceRoom::zoomIn() {
    zoomTo(zoomedIn(zoom_));
}

void SurfaceRoom::zoomOut() {
    zoomTo(zoomedOut(zoom_));
}

// The skin point at a place is remembered, or it would wander by parts of pixels with each step.
void SurfaceRoom::zoomAt(int zoom, QPointF at) {
    if (isBusy_ && isBusy_()) {
        return;
    }
    if (!held_ || held_->at != at) {
        held_ = {at, surface_.mapping().toSkin(at - surfacePlace())};
    }
    isFit_ = false;
    setZoom(zoom);
    const QPointF surface = surface_.mapping().toWidget(held_->skin);
    const QPoint line(frame_->frameWidth(), frame_->frameWidth());
    place((surface - at).toPoint() + line);
    emit zoomChanged();
}

void SurfaceRoom::setZoom(int zoom) {
    zoom_ = std::clamp(zoom, smallestZoom, largestZoom);
    surface_.setZoom(zoom_);
    frame_->layout()->invalidate();
    frame_->setFixedSize(around(surface_.size(), frame_->frameWidth()));
}

QPoint SurfaceRoom::surfacePlace() const {
    return frame_->pos() + QPoint(frame_->frameWidth(), frame_->frameWidth());
}

QPoint SurfaceRoom::scrolled() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void SurfaceRoom::scrollTo(QPoint scrolled) {
    horizontalScrollBar()->setValue(scrolled.x());
    verticalScrollBar()->setValue(scrolled.y());
}

void SurfaceRoom::reveal(const QRectF& part) {
    if (part.isEmpty()) {
        return; // what is just being drawn has no place yet
    }
    const QRectF place = surface_.mapping().toWidget(part).translated(surfacePlace());
    const QRectF room = viewport()->rect();
    if (!place.intersects(room) && !(isBusy_ && isBusy_())) {
        scrollTo(scrolled() + (place.center() - room.center()).toPoint());
    }
}

// Scroll bars come and go later and change the room, which places the surface once more.
void SurfaceRoom::place(QPoint scrolled) {
    {
        const QScopedValueRollback placing(isPlacing_, true);
        const QSize most = maximumViewportSize();
        const bool fits = frame_->width() <= most.width() && frame_->height() <= most.height();
        const QSize room = fits ? most : viewport()->size();
        placeAlong(*horizontalScrollBar(), frame_->width(), room.width(), scrolled.x());
        placeAlong(*verticalScrollBar(), frame_->height(), room.height(), scrolled.y());
    }
    moveFrame();
}

void SurfaceRoom::placeAlong(QScrollBar& bar, int length, int room, int wanted) {
    if (length <= room) {
        bar.setRange(0, 0);
        return;
    }
    bar.setPageStep(room);
    bar.setRange(std::min(0, wanted), std::max(length - room, wanted));
    bar.setValue(wanted);
}

QPoint SurfaceRoom::withinEnds(QPoint scrolled) const {
    const QSize most = frame_->size() - viewport()->size();
    return {std::clamp(scrolled.x(), 0, std::max(0, most.width())),
            std::clamp(scrolled.y(), 0, std::max(0, most.height()))};
}

void SurfaceRoom::moveFrame() {
    const auto along = [](const QScrollBar& bar, int length, int room) {
        return length > room ? -bar.value() : (room - length) / 2;
    };
    const QPoint before = frame_->pos();
    const QSize room = viewport()->size();
    frame_->move(along(*horizontalScrollBar(), frame_->width(), room.width()),
                 along(*verticalScrollBar(), frame_->height(), room.height()));
    viewport()->update(); // the shadow
    showOnRulers();
    if (pointer_ && (before != frame_->pos() || held_)) {
        movedBelowPointer();
    }
}

void SurfaceRoom::movedBelowPointer() {
    const QPointF at = *pointer_ - surfacePlace();
    if (QRectF(surface_.rect()).contains(at)) {
        surface_.tellPointer(at);
    } else {
        forgetPointer();
    }
}

void SurfaceRoom::forgetPointer() {
    pointer_.reset();
    for (SurfaceRuler* ruler : rulers_) {
        ruler->setPointer(std::nullopt);
    }
}

void SurfaceRoom::scrollContentsBy(int /*dx*/, int /*dy*/) {
    if (isPlacing_) {
        return;
    }
    held_.reset();
    moveFrame();
    // What a zoom has scrolled beyond the ends is given back on the way to them.
    if (!horizontalScrollBar()->isSliderDown() && !verticalScrollBar()->isSliderDown()) {
        place(scrolled());
    }
}

// Also when scroll bars have come or gone: then the room is no other.
void SurfaceRoom::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    if (std::exchange(lastSize_, size()) == size() && !isFit_) {
        place(scrolled());
        return;
    }
    held_.reset();
    if (isFit_) {
        const int before = zoom_;
        fitNow();
        if (zoom_ != before) {
            emit zoomChanged();
        }
    } else {
        place(withinEnds(scrolled()));
    }
}

void SurfaceRoom::showRulers(bool shown) {
    showsRulers_ = shown;
    const int thick = shown ? rulers_[0]->thickness() : 0;
    for (SurfaceRuler* ruler : rulers_) {
        ruler->setVisible(shown);
    }
    setViewportMargins(thick, thick, 0, 0);
    updateGeometry();
    showOnRulers();
}

void SurfaceRoom::showOnRulers() {
    if (!showsRulers_) {
        return;
    }
    const QRect room = viewport()->geometry();
    const QPoint at = surfacePlace();
    const int thick = rulers_[0]->thickness();
    const double scale = surface_.mapping().scale();
    rulers_[0]->setGeometry(room.left(), room.top() - thick, room.width(), thick);
    rulers_[1]->setGeometry(room.left() - thick, room.top(), thick, room.height());
    rulers_[0]->setView(at.x(), scale, skinWidth);
    rulers_[1]->setView(at.y(), scale, skinHeight);
}

void SurfaceRoom::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange && showsRulers_) {
        showRulers(true);
    }
}

bool SurfaceRoom::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &surface_) {
        if (event->type() == QEvent::MouseMove) {
            pointer_ = static_cast<QMouseEvent*>(event)->position() + surfacePlace();
        } else if (event->type() == QEvent::Leave) {
            forgetPointer();
        }
    }
    return QAbstractScrollArea::eventFilter(watched, event);
}

void SurfaceRoom::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        zoomByWheel(*event);
        event->accept();
        return;
    }
    const QPoint angle = event->angleDelta();
    const bool isAcross =
        event->modifiers().testFlag(Qt::ShiftModifier) || std::abs(angle.x()) > std::abs(angle.y());
    QScrollBar* bar = isAcross ? horizontalScrollBar() : verticalScrollBar();
    const int turned = angle.y() != 0 && !(isAcross && angle.x() != 0) ? angle.y() : angle.x();
    constexpr int stepsOfWheel = 3;
    const QPoint pixels = event->pixelDelta();
    const int way = pixels.isNull()               ? turned * stepsOfWheel * scrollStep / wheelStep
                    : isAcross && pixels.x() != 0 ? pixels.x()
                                                  : pixels.y();
    bar->setValue(bar->value() - way);
    event->accept();
}

void SurfaceRoom::zoomByWheel(const QWheelEvent& event) {
    wheeled_ += event.angleDelta().y();
    const QPointF at = viewport()->mapFromGlobal(event.globalPosition());
    for (; wheeled_ >= wheelStep; wheeled_ -= wheelStep) {
        zoomAt(zoomedIn(zoom_), at);
    }
    for (; wheeled_ <= -wheelStep; wheeled_ += wheelStep) {
        zoomAt(zoomedOut(zoom_), at);
    }
}

void SurfaceRoom::paintEvent(QPaintEvent* event) {
    constexpr int darker = 112; // per cent
    QPainter painter(viewport());
    const QColor ground = palette().color(QPalette::Window).darker(darker);
    const QRegion outside = event->region() - frame_->geometry();
    for (const QRect& part : outside) {
        painter.fillRect(part, ground);
    }
    painter.setClipRegion(outside);
    for (int ring = shadow; ring > 0; --ring) {
        painter.fillRect(frame_->geometry().adjusted(-ring, -ring, ring, ring),
                         QColor(0, 0, 0, 70 / (ring * ring)));
    }
}

} // namespace tarvel
