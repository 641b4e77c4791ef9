// Snaps lines to pixels, and clips coordinates that are too far out.
#include "surface/surface_geometry.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvel {

namespace {

// Far enough out that the edge of what is cut off is never seen, near enough to draw exactly.
constexpr double nearest = -4096;
constexpr double farthest = 8192;
constexpr double largestSide = 1'000'000; // device pixels

double snap(double value, double scale, double shift) {
    return (std::round(value * scale + shift) - shift) / scale;
}

} // namespace

PixelGrid::PixelGrid(const QTransform& toDevice)
    : scale_(toDevice.m11() > 0 ? toDevice.m11() : 1)
    , shiftX_(toDevice.dx())
    , shiftY_(toDevice.dy())
    , lineWidth_(std::max(1.0, std::round(scale_)) / scale_)
    , plain_(scale_ == 1 && shiftX_ == std::round(shiftX_) && shiftY_ == std::round(shiftY_)) {}

QRectF PixelGrid::snapped(const QRectF& rect) const {
    if (plain_) {
        const double left = std::round(rect.left());
        const double top = std::round(rect.top());
        return {left, top, std::round(rect.right()) - left, std::round(rect.bottom()) - top};
    }
    return {QPointF(snap(rect.left(), scale_, shiftX_), snap(rect.top(), scale_, shiftY_)),
            QPointF(snap(rect.right(), scale_, shiftX_), snap(rect.bottom(), scale_, shiftY_))};
}

QSize PixelGrid::deviceSize(const QRectF& rect) const {
    const auto pixels = [this](double length) {
        return static_cast<int>(std::clamp(std::round(length * scale_), 0.0, largestSide));
    };
    return {pixels(rect.width()), pixels(rect.height())};
}

QRectF nearSurface(const QRectF& rect) {
    const double left = std::clamp(rect.left(), nearest, farthest);
    const double top = std::clamp(rect.top(), nearest, farthest);
    return {left, top, std::clamp(rect.right(), nearest, farthest) - left,
            std::clamp(rect.bottom(), nearest, farthest) - top};
}

std::optional<QLineF> nearSurface(const QLineF& line) {
    // The part of the line, as fractions of it, that lies on the near side of all four edges.
    const double dx = line.x2() - line.x1();
    const double dy = line.y2() - line.y1();
    const std::array<std::pair<double, double>, 4> edges = {{{-dx, line.x1() - nearest},
                                                             {dx, farthest - line.x1()},
                                                             {-dy, line.y1() - nearest},
                                                             {dy, farthest - line.y1()}}};
    double from = 0;
    double to = 1;
    for (const auto& [slope, distance] : edges) {
        if (slope == 0 && distance < 0) {
            return std::nullopt;
        }
        if (slope < 0) {
            from = std::max(from, distance / slope);
        } else if (slope > 0) {
            to = std::min(to, distance / slope);
        }
    }
    if (from > to) {
        return std::nullopt;
    }
    return QLineF(line.x1() + from * dx, line.y1() + from * dy, line.x1() + to * dx,
                  line.y1() + to * dy);
}

} // namespace tarvel
