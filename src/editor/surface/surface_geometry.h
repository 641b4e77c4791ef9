// Arithmetic of the painter: pixels of the device, and coordinates of any size made harmless.
#pragma once

#include "document/element.h"

#include <QLineF>
#include <QRectF>
#include <QTransform>

#include <optional>

namespace tarvel {

/// Snaps skin coordinates to the pixels of a device, so that edges are sharp at every scale.
class PixelGrid {
  public:
    /// From skin pixels to the device's; a scale and a shift.
    explicit PixelGrid(const QTransform& toDevice);

    /// The rectangle whose edges lie between device pixels nearest to those of `rect`.
    [[nodiscard]] QRectF snapped(const QRectF& rect) const;
    /// Size in device pixels of a rectangle from snapped(), held at a million each way.
    [[nodiscard]] QSize deviceSize(const QRectF& rect) const;
    /// How far from their places edges may be drawn, in skin pixels: one, or one of the device's
    /// where that is more.
    [[nodiscard]] double margin() const { return scale_ < 1 ? 1 / scale_ : 1; }
    /// Width of a line of one skin pixel: whole device pixels, at least one.
    [[nodiscard]] double lineWidth() const { return lineWidth_; }

  private:
    double scale_;
    double shiftX_;
    double shiftY_;
    double lineWidth_;
    bool plain_; // device pixels are skin pixels
};

/// Left, top, width and height of a control of any kind but lin.
[[nodiscard]] inline QRectF controlRect(const ElementControl& control) {
    return {control.left, control.top, control.width, control.height};
}

/// The part of the rectangle within a few screens of the surface: what lies further out is never
/// seen and would overflow the painter's arithmetic.
[[nodiscard]] QRectF nearSurface(const QRectF& rect);

/// The part of a line within a few screens of the surface, if there is any.
[[nodiscard]] std::optional<QLineF> nearSurface(const QLineF& line);

} // namespace tarvel
