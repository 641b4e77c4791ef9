// The preview of the resources dialog.
#include "dialogs/resource_preview.h"

#include "panels/resource_looks.h"
#include "surface/picture_cache.h"
#include "surface/picture_place.h"
#include "widgets/faint_text.h"
#include "widgets/qt_text.h"

#include <QPainter>

namespace tarvel {

namespace {

constexpr int square = 8; // of the checkerboard, in pixels

Element videoElement() {
    Element element;
    element.elementKind = ElementKind::Image;
    element.elementControl.kind = ControlKind::vid;
    return element;
}

} // namespace

ResourcePreview::ResourcePreview(PictureCache& pictures, QWidget* parent)
    : QWidget(parent)
    , pictures_(pictures)
    , video_(screenOfOne_.addElement(videoElement())) {
    setMinimumSize(240, 180);
    connect(&stage_, &VideoStage::frameChanged, this, [this] { update(); });
}

void ResourcePreview::showNothing() {
    showResource({});
}

void ResourcePreview::showResource(const Resource& resource) {
    resource_ = resource;
    const bool isVideo = lookOf(resource) == ResourceLook::video;
    screenOfOne_.editElement(video_, [&](Element& element) {
        element.elementControl.file = isVideo ? resource.content : std::string();
    });
    stage_.show(screenOfOne_, isVideo ? screenOfOne_.currentLayout() : VideoStage::noScreen);
    update();
}

bool ResourcePreview::isPlaying() const {
    return stage_.isPlaying(video_);
}

QString ResourcePreview::description() const {
    if (resource_.content.empty()) {
        return {};
    }
    QString name = qtText(trimtofile(resource_.content));
    switch (lookOf(resource_)) {
    case ResourceLook::preset:
        return tr("Supplied by the dashboard");
    case ResourceLook::outside:
        return tr("%1: outside the skin's folder, not opened").arg(name);
    case ResourceLook::video:
        return name;
    case ResourceLook::picture:
        break;
    }
    const QSize size = pictures_.pictureSize(resource_.content);
    return size.isEmpty() ? name : tr("%1, %2 x %3").arg(name).arg(size.width()).arg(size.height());
}

void ResourcePreview::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), palette().base());
    QColor edge = palette().color(QPalette::Text);
    edge.setAlphaF(0.25F);
    painter.setPen(edge);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRectF room = QRectF(rect()).adjusted(1, 1, -1, -1);
    if (resource_.content.empty()) {
        painter.setPen(faintText(palette()));
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap,
                         tr("Select a resource to see it,\nor drop a file here to add it"));
        return;
    }
    switch (lookOf(resource_)) {
    case ResourceLook::picture: {
        const QString problem = paintFitted(painter, room, pictures_, resource_.content, square);
        if (!problem.isEmpty()) {
            paintMissing(painter, room, problem);
        }
        break;
    }
    case ResourceLook::video:
        paintVideo(painter, room);
        break;
    case ResourceLook::preset:
        paintFitted(painter, room, pictures_, presetPicture, square);
        break;
    case ResourceLook::outside:
        paintMissing(painter, room, tr("not opened"));
        break;
    }
}

void ResourcePreview::paintVideo(QPainter& painter, const QRectF& room) {
    const QImage frame = stage_.frame(video_);
    if (!stage_.problem(video_).isEmpty()) {
        paintMissing(painter, room, stage_.problem(video_));
    } else if (frame.isNull()) {
        paintPendingPicture(painter, room);
    } else {
        QRectF target(QPointF(0, 0), QSizeF(frame.size()).scaled(room.size(), Qt::KeepAspectRatio));
        target.moveCenter(room.center());
        painter.fillRect(room, Qt::black);
        painter.drawImage(target, frame);
    }
}

void ResourcePreview::paintMissing(QPainter& painter, const QRectF& room, const QString& problem) {
    paintMissingPicture(painter, room, room, qtText(trimtofile(resource_.content)), problem);
}

} // namespace tarvel
