// Plays one video on a stage of its own, and paints its frames.
#include "panels/video_preview.h"

#include "surface/picture_place.h"
#include "widgets/qt_text.h"

#include <QPainter>

namespace tarvel {

namespace {

Element videoElement() {
    Element element;
    element.elementKind = ElementKind::Image;
    element.elementControl.kind = ControlKind::vid;
    return element;
}

} // namespace

VideoPreview::VideoPreview(QWidget* parent)
    : QWidget(parent)
    , video_(screenOfOne_.addElement(videoElement())) {
    connect(&stage_, &VideoStage::frameChanged, this, [this] { update(); });
}

const std::string& VideoPreview::fileName() const {
    return screenOfOne_.element(video_).elementControl.file;
}

void VideoPreview::take(std::string_view file) {
    screenOfOne_.editElement(video_, [&](Element& element) { element.elementControl.file = file; });
    update();
}

void VideoPreview::play(std::string_view file) {
    take(file);
    stage_.showAnew();
    stage_.show(screenOfOne_, screenOfOne_.currentLayout());
}

void VideoPreview::stop() {
    stage_.stopAllVids(screenOfOne_);
}

void VideoPreview::setFile(std::string_view file) {
    take({}); // so that a player of the same file goes as well
    stage_.show(screenOfOne_, VideoStage::noScreen);
    take(file);
}

void VideoPreview::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), Qt::black);
    const QRectF room(rect());
    const QImage frame = stage_.frame(video_);
    if (!stage_.problem(video_).isEmpty()) {
        paintMissingPicture(painter, room, room, qtText(trimtofile(fileName())),
                            stage_.problem(video_));
    } else if (frame.isNull()) {
        paintPendingPicture(painter, room);
    } else {
        QRectF target(QPointF(0, 0), QSizeF(frame.size()).scaled(room.size(), Qt::KeepAspectRatio));
        target.moveCenter(room.center());
        painter.drawImage(target, frame);
    }
}

} // namespace tarvel
