// Asks the index about what a drag moves, and turns the answer into a place of the pointer.
#include "editing/snap_drag.h"

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

int signOf(float value) {
    return value < 0 ? -1 : value > 0 ? 1 : 0;
}

bool hasMet(const std::vector<Guide>& guides, Axis axis) {
    return std::any_of(guides.begin(), guides.end(),
                       [&](const Guide& guide) { return guide.axis == axis; });
}

} // namespace

SnapDrag::SnapDrag(const SkinDocument& document, SnapSubject subject, const SnapOptions& options)
    : subject_(std::move(subject))
    , options_(options) {
    if (options_.toElements) {
        index_.emplace(document, subject_.ids);
    }
}

Place SnapDrag::frameAt(SkinPoint point) const {
    const auto& [left, top, width, height] = subject_.start;
    const float dx = point.x - subject_.press.x;
    const float dy = point.y - subject_.press.y;
    switch (subject_.what) {
    case SnapSubject::What::whole:
        return {left + dx, top + dy, width, height};
    case SnapSubject::What::handle:
        return resized(subject_.start, subject_.handle, dx, dy, false);
    case SnapSubject::What::corner:
    case SnapSubject::What::lineEnd:
        break;
    }
    return {std::min(point.x, subject_.press.x), std::min(point.y, subject_.press.y), std::abs(dx),
            std::abs(dy)};
}

HandleEdges SnapDrag::edgesAt(SkinPoint point) const {
    if (subject_.what == SnapSubject::What::handle) {
        return edgesOf(subject_.handle);
    }
    return {signOf(point.x - subject_.press.x), signOf(point.y - subject_.press.y)};
}

Snap SnapDrag::toElements(SkinPoint point, double tolerance) const {
    switch (subject_.what) {
    case SnapSubject::What::whole:
        return index_->snapMove(frameAt(point), tolerance);
    case SnapSubject::What::lineEnd:
        return index_->snapPoint(point, tolerance);
    case SnapSubject::What::handle:
    case SnapSubject::What::corner:
        break;
    }
    return index_->snapEdges(frameAt(point), edgesAt(point), tolerance);
}

// The pointer on the grid, or as far from it as what it drags is.
SkinPoint SnapDrag::toGrid(SkinPoint point) const {
    const auto near = [this](float value) { return snapToGrid(value, options_.grid); };
    if (subject_.what == SnapSubject::What::lineEnd || subject_.what == SnapSubject::What::corner) {
        return {near(point.x), near(point.y)};
    }
    const auto [left, top, width, height] = frameAt(point);
    const bool isWhole = subject_.what == SnapSubject::What::whole;
    const HandleEdges edges = isWhole ? HandleEdges{-1, -1} : edgesAt(point);
    const float x = edges.x > 0 ? left + width : left;
    const float y = edges.y > 0 ? top + height : top;
    return {edges.x == 0 ? point.x : point.x + near(x) - x,
            edges.y == 0 ? point.y : point.y + near(y) - y};
}

SkinPoint SnapDrag::snapped(SkinPoint point, double tolerance) {
    guides_.clear();
    SkinPoint result = options_.toGrid ? toGrid(point) : point;
    if (index_) {
        Snap snap = toElements(point, tolerance);
        if (hasMet(snap.guides, Axis::across)) {
            result.x = toSingle(point.x + snap.dx);
        }
        if (hasMet(snap.guides, Axis::down)) {
            result.y = toSingle(point.y + snap.dy);
        }
        guides_ = std::move(snap.guides);
    }
    return result;
}

SkinPoint snappedPress(const SkinDocument& document, SkinPoint press, const SnapOptions& options,
                       double tolerance) {
    return SnapDrag(document, {.what = SnapSubject::What::lineEnd, .press = press, .ids = {}},
                    options)
        .snapped(press, tolerance);
}

} // namespace tarvel
