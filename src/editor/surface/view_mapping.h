// Where skin pixels are on the surface: the one place that knows how widget pixels follow from
// them.
#pragma once

#include "document/element_place.h"

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QTransform>

namespace tarvel {

/// The skin pixel that a point lies in; on finer displays the pointer stands between pixels, too.
[[nodiscard]] SkinPoint pixelOf(QPointF skin);

/// A scale and a shift, the same for painting, marks, picking and tools.
class ViewMapping {
  public:
    ViewMapping() = default;
    /// `scale` in widget pixels a skin pixel, above 0; `origin` is where the skin's top left corner
    /// is, in widget pixels.
    ViewMapping(double scale, QPointF origin)
        : scale_(scale)
        , origin_(origin) {}

    [[nodiscard]] double scale() const { return scale_; }

    /// From skin pixels to those of the widget, for a painter.
    [[nodiscard]] QTransform toWidget() const {
        return {scale_, 0, 0, scale_, origin_.x(), origin_.y()};
    }
    [[nodiscard]] QPointF toWidget(QPointF skin) const { return skin * scale_ + origin_; }
    [[nodiscard]] QRectF toWidget(const QRectF& skin) const {
        return {toWidget(skin.topLeft()), skin.size() * scale_};
    }
    /// The place of the whole screen.
    [[nodiscard]] QRectF screen() const { return toWidget(QRectF(0, 0, skinWidth, skinHeight)); }

    [[nodiscard]] QPointF toSkin(QPointF widget) const { return (widget - origin_) / scale_; }
    [[nodiscard]] QRectF toSkin(const QRectF& widget) const {
        return {toSkin(widget.topLeft()), widget.size() / scale_};
    }
    /// The skin pixel under a point of the widget.
    [[nodiscard]] SkinPoint pixelAt(QPointF widget) const { return pixelOf(toSkin(widget)); }

  private:
    double scale_ = 1;
    QPointF origin_;
};

} // namespace tarvel
