// Paints texts and pictures for the looks, or what stands in for a picture that is missing.
#include "surface/surface_pass.h"

#include "surface/picture_cache.h"
#include "surface/picture_place.h"
#include "widgets/qt_text.h"

#include <algorithm>

namespace tarvel {

QColor withOpacity(ColorNumber color, int percent) {
    QColor result = qtColor(color);
    result.setAlpha((std::clamp(percent, 0, 100) * 255 + 50) / 100);
    return result;
}

SurfacePass SurfacePass::everywhere() const {
    constexpr QRectF everything(-1e6, -1e6, 2e6, 2e6); // more than nearSurface() leaves
    return {painter_, pictures_, texts_, frames_, everything, crisp_};
}

const LaidOutText& SurfacePass::useText(int id, const ElementControl& control) {
    const LaidOutText& entry = texts_.laidOut(id, control);
    if (entry.font != font_) {
        painter_.setFont(texts_.font(entry.font));
        font_ = entry.font;
    }
    return entry;
}

void SurfacePass::paintStretched(const QRectF& rect, std::string_view file) {
    const QSize size = grid_.deviceSize(grid_.snapped(rect));
    const Picture& picture =
        crisp_ ? pictures_.notEnlarged(file, size) : pictures_.stretched(file, size);
    if (picture.state == Picture::State::ready) {
        drawStretched(rect, picture.image);
    } else {
        paintWithoutPicture(rect, file, picture);
    }
}

void SurfacePass::paintUnscaled(const QRectF& rect, std::string_view file) {
    const Picture& picture = pictures_.unscaled(file);
    if (picture.state != Picture::State::ready) {
        paintWithoutPicture(rect, file, picture);
        return;
    }
    // The picture keeps to the element's top left corner, however far out that is.
    const QRectF target = targetOf(rect);
    const QPointF cut = target.topLeft() - grid_.snapped(rect).topLeft();
    const QRectF source = QRectF(cut, target.size()) & QRectF(picture.image.rect());
    if (!source.isEmpty()) {
        painter_.drawImage(QRectF(target.topLeft(), source.size()), picture.image, source);
    }
}

void SurfacePass::drawStretched(const QRectF& rect, const QImage& image) {
    const QRectF whole = grid_.snapped(rect);
    const QRectF target = targetOf(rect);
    if (whole == target) {
        painter_.drawImage(target, image);
        return;
    }
    const double scaleX = image.width() / whole.width();
    const double scaleY = image.height() / whole.height();
    const QPointF cut = target.topLeft() - whole.topLeft();
    painter_.drawImage(target, image,
                       QRectF(cut.x() * scaleX, cut.y() * scaleY, target.width() * scaleX,
                              target.height() * scaleY));
}

void SurfacePass::paintWithoutPicture(const QRectF& rect, std::string_view file,
                                      const Picture& picture) {
    if (picture.state == Picture::State::pending) {
        paintPendingPicture(painter_, targetOf(rect));
    } else {
        paintMissing(rect, file, picture.problem);
    }
}

void SurfacePass::paintMissing(const QRectF& rect, std::string_view file, const QString& reason) {
    paintMissingPicture(painter_, targetOf(rect), surfaceRect, qtText(trimtofile(file)), reason);
}

} // namespace tarvel
