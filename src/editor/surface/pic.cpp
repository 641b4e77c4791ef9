// Paints the drawing surface, and repaints only what a change has touched.
#include "surface/pic.h"

#include "document/element_kinds.h"
#include "editing/snapping.h"
#include "editing/zoom.h"
#include "playing/played_frame.h"
#include "surface/picture_cache.h"
#include "widgets/accessible_roles.h"
#include "widgets/control_names.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvel {

namespace {

// More separate rectangles than this are painted as their common one.
constexpr std::size_t largestCount = 8;
// So are those that fill at least one part in so many of it: what lies between them costs less
// than another pass over all elements.
constexpr int fewestParts = 2;

// Over elements of any colour.
constexpr QColor pixelGridColor(128, 128, 128, 56);
constexpr QColor safeAreaColor(255, 200, 0);
constexpr double percent = 100;

bool lieTogether(const QRegion& region) {
    const auto area = [](const QRect& rect) { return rect.width() * rect.height(); };
    int covered = 0;
    for (const QRect& part : region) {
        covered += area(part);
    }
    return covered * fewestParts >= area(region.boundingRect());
}

QWidget* makePicBox(QWidget* parent) {
    auto* box = new QWidget(parent);
    box->setObjectName("picBox");
    // A press on it is one on the surface. Hidden under the pointer, it would swallow the rest of
    // the drag, and the release.
    box->setAttribute(Qt::WA_TransparentForMouseEvents);
    box->setAccessibleName(QWidget::tr("Cover of the drawing surface"));
    box->setGeometry(parent->rect());
    box->setAutoFillBackground(true);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::black);
    box->setPalette(palette);
    box->hide();
    return box;
}

} // namespace

Pic::Pic(PictureCache& pictures, QWidget* parent)
    : QWidget(parent)
    , pictures_(pictures)
    , painter_(pictures) {
    beCanvas(*this); // before anything about it is told
    named(this, "Pic", tr("Drawing surface"));
    setFixedSize(mapping_.screen().size().toSize());
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    picBox_ = makePicBox(this);
    painter_.setVideoFrames(&videos_);
    connect(&videos_, &VideoStage::frameChanged, this,
            [this](int elementId) { repaintRect(placeOf(elementId)); });
    connect(&videos_, &VideoStage::placeFreed, this, &Pic::catchUpLater);
}

Pic::~Pic() = default;

void Pic::setDocument(const SkinDocument* document) {
    document_ = document;
    watch_ = document == nullptr ? DocumentWatch() : document->watch(*this);
    documentChanged({DocumentChange::What::everything});
}

void Pic::documentChanged(const DocumentChange& change) {
    using What = DocumentChange::What;
    const bool shown = document_ != nullptr && change.screen == document_->currentLayout();
    switch (change.what) {
    case What::everything:
    case What::currentLayout:
        // The same screen chosen again counts as shown anew, too.
        videos_.showAnew();
        update();
        catchUpLater();
        break;
    case What::elements:
        update();
        catchUpLater();
        break;
    case What::settings:
        settingsChanged();
        break;
    case What::rows:
        // Of other screens too: their elements may have had videos.
        catchUpLater();
        break;
    case What::element:
        if (shown) {
            elementChanged(change.elementId);
        }
        break;
    case What::rowText:
    case What::rowTexts:
    case What::counts:
        break;
    }
}

void Pic::setZoom(int zoom) {
    const double scale = zoom / percent;
    if (scale == mapping_.scale()) {
        return;
    }
    mapping_ = ViewMapping(scale, {});
    clearFlatGround();
    setFixedSize(mapping_.screen().size().toSize());
    emit mappingChanged();
}

void Pic::showSafeArea(bool shown) {
    showsSafeArea_ = shown;
    update();
}

void Pic::tellPointer(QPointF at) {
    emit pointerMoved(mapping_.toSkin(at));
}

void Pic::setFlatGround(QImage ground, int firstRow) {
    flatGround_ = std::move(ground);
    firstRow_ = firstRow;
    update();
}

void Pic::clearFlatGround() {
    setFlatGround({}, 0);
}

QImage Pic::flatPicture(int endRow) {
    // Exactly the pixels that the painter snaps the screen to.
    QImage image((mapping_.screen().size() * devicePixelRatioF()).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(Qt::black);
    if (document_ != nullptr) {
        SurfaceView flat = restingView();
        flat.endRow = endRow;
        QPainter painter(&image);
        painter.setTransform(mapping_.toWidget(), true);
        painter_.paint(painter, *document_, document_->currentLayout(), mapping_.toSkin(rect()),
                       flat);
    }
    return image;
}

void Pic::showPlayed(const PlayedFrame* frame) {
    if (frame != nullptr && played_ == nullptr) {
        hideOverlays();
    } else if (frame == nullptr) {
        for (const auto& overlay : std::exchange(overlays_, {})) {
            if (overlay) {
                overlay->show();
            }
        }
    }
    played_ = frame;
    videos_.setPlaying(frame != nullptr);
    videos_.showAnew();
    update();
    catchUpLater();
}

void Pic::hideOverlays() {
    for (auto* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!child->isHidden() && child != picBox_) {
            overlays_.emplace_back(child);
            child->hide();
        }
    }
}

void Pic::playedChanged(const PlayedElement* before, const PlayedElement* now) {
    for (const PlayedElement* played : {before, now}) {
        if (played != nullptr) {
            repaintOnce(pixelsOf(tarvel::elementBounds(*played)));
        }
    }
}

// A frame may change every element, and to add each of a thousand places to those that wait for
// their painting takes longer than to paint them.
void Pic::repaintOnce(const QRect& pixels) {
    const auto holdsIt = [&](const QRect& place) { return place.contains(pixels); };
    if (pixels.isEmpty() || std::any_of(waiting_.begin(), waiting_.end(), holdsIt)) {
        return;
    }
    waiting_.push_back(pixels);
    if (waiting_.size() > largestCount) {
        QRect common;
        for (const QRect& place : std::exchange(waiting_, {})) {
            common |= place;
        }
        waiting_.push_back(common);
    }
    update(waiting_.back());
}

void Pic::stopAllVids() {
    if (document_ != nullptr) {
        videos_.stopAllVids(*document_);
    }
}

QRectF Pic::elementBounds(const Element& element) {
    return tarvel::elementBounds(element);
}

QSize Pic::sizeHint() const {
    return mapping_.screen().size().toSize();
}

void Pic::paintEvent(QPaintEvent* event) {
    waiting_.clear();
    QPainter painter(this);
    if (document_ == nullptr) {
        painter.fillRect(event->rect(), Qt::black);
        return;
    }
    if (mapping_.screen().size() != QSizeF(size())) {
        painter.fillRect(event->rect(), Qt::black); // the last pixels are no whole ones
    }
    // Pictures appear as they are decoded, so that a skin of hundreds shows at once.
    constexpr int budgetMs = 20;
    pictures_.beginSlice(budgetMs);
    paintRegion(painter, event->region());
    if (pictures_.endSlice()) {
        QMetaObject::invokeMethod(this, qOverload<>(&QWidget::update), Qt::QueuedConnection);
    }
}

void Pic::paintRegion(QPainter& painter, const QRegion& region) {
    painter.setTransform(mapping_.toWidget(), true);
    const auto paint = [&](const QRect& part) {
        painter_.paint(painter, *document_, shownScreen(), mapping_.toSkin(part), view());
    };
    const bool asOne = std::cmp_greater(region.rectCount(), largestCount) || lieTogether(region);
    if (asOne) {
        paint(region.boundingRect());
    } else {
        std::for_each(region.begin(), region.end(), paint);
    }
    painter.resetTransform();
    if (mapping_.scale() * percent >= pixelGridZoom) {
        paintPixelGrid(painter, region.boundingRect());
    }
    if (showsSafeArea_) {
        paintSafeArea(painter);
    }
}

// Along the first pixels of the window of each skin pixel.
void Pic::paintPixelGrid(QPainter& painter, const QRect& part) const {
    const QRectF skin = mapping_.toSkin(QRectF(part));
    const auto lines = [](double from, double to, auto&& paint) {
        for (int at = static_cast<int>(from); at <= to; ++at) {
            paint(at);
        }
    };
    lines(skin.left(), skin.right(), [&](int x) {
        const double left = std::round(mapping_.toWidget(QPointF(x, 0)).x());
        painter.fillRect(QRectF(left, part.top(), 1, part.height()), pixelGridColor);
    });
    lines(skin.top(), skin.bottom(), [&](int y) {
        const double top = std::round(mapping_.toWidget(QPointF(0, y)).y());
        painter.fillRect(QRectF(part.left(), top, part.width(), 1), pixelGridColor);
    });
}

// Two colours show on any ground.
void Pic::paintSafeArea(QPainter& painter) const {
    const QRect outer = mapping_
                            .toWidget(QRectF(safeArea.across.start, safeArea.down.start,
                                             safeArea.across.length, safeArea.down.length))
                            .toRect();
    const auto frame = [&](const QRect& rect, const QColor& color) {
        painter.fillRect(rect.left(), rect.top(), rect.width(), 1, color);
        painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, color);
        painter.fillRect(rect.left(), rect.top(), 1, rect.height(), color);
        painter.fillRect(rect.right(), rect.top(), 1, rect.height(), color);
    };
    frame(outer.adjusted(-1, -1, 1, 1), Qt::black);
    frame(outer, safeAreaColor);
}

void Pic::mouseMoveEvent(QMouseEvent* event) {
    tellPointer(event->position());
    QWidget::mouseMoveEvent(event);
}

void Pic::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    catchUpLater();
}

void Pic::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    catchUpLater();
}

void Pic::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    picBox_->setGeometry(rect());
}

void Pic::elementChanged(int elementId) {
    repaintDamage(damage_.elementChanged(*document_, elementId));
    if (rulesOf(document_->element(elementId).elementKind).namesResource) {
        catchUpLater();
    }
}

void Pic::settingsChanged() {
    const Background background =
        document_ == nullptr ? Background() : document_->settings().background;
    if (background != background_) {
        background_ = background;
        update();
    }
}

void Pic::repaintDamage(const Damage& damage) {
    if (damage.whole) {
        update();
    }
    for (const QRectF& place : damage.rects) {
        repaintRect(place);
    }
}

void Pic::repaintRect(const QRectF& rect) {
    update(pixelsOf(rect));
}

QRect Pic::pixelsOf(const QRectF& rect) const {
    const QRectF visible = rect & QRectF(0, 0, skinWidth, skinHeight);
    if (visible.isEmpty()) {
        return {};
    }
    // Edges between pixels of the window are drawn on the nearest ones.
    const int margin = mapping_.scale() < 1 ? 1 : 0;
    return mapping_.toWidget(visible).toAlignedRect().adjusted(-margin, -margin, margin, margin);
}

// Changes of rows come in runs, as when a skin is loaded; looking at all rows once after the run
// keeps the cost of each small.
void Pic::catchUpLater() {
    if (!std::exchange(catchingUp_, true)) {
        QMetaObject::invokeMethod(this, &Pic::catchUp, Qt::QueuedConnection);
    }
}

void Pic::catchUp() {
    catchingUp_ = false;
    settingsChanged();
    static const SkinDocument nothing;
    const SkinDocument& document = document_ == nullptr ? nothing : *document_;
    repaintDamage(damage_.rowsChanged(document, document.currentLayout()));
    videos_.show(document, isVisible() ? shownScreen() : VideoStage::noScreen);
}

int Pic::shownScreen() const {
    if (played_ != nullptr) {
        return played_->screen().screen();
    }
    return document_ == nullptr ? 0 : document_->currentLayout();
}

QRectF Pic::placeOf(int elementId) const {
    if (played_ == nullptr) {
        return damage_.placeOf(elementId);
    }
    const PlayedFrame::Look look = played_->lookOf(elementId);
    if (look.isAtRest) {
        return tarvel::elementBounds(document_->element(elementId));
    }
    return look.played == nullptr ? QRectF() : tarvel::elementBounds(*look.played);
}

SurfaceView Pic::view() const {
    if (played_ == nullptr) {
        return restingView();
    }
    return {.played = played_, .crisp = mapping_.scale() * percent >= crispZoom};
}

SurfaceView Pic::restingView() const {
    return {.firstRow = firstRow_,
            .ground = flatGround_.isNull() ? nullptr : &flatGround_,
            .crisp = mapping_.scale() * percent >= crispZoom};
}

} // namespace tarvel
