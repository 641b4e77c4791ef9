// Works out drags, keys and default places, in doubles that are stored as singles.
#include "editing/manipulation.h"

#include "document/element_kinds.h"
#include "editing/stacking.h"
#include "text/number_format.h"

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

Place placeIn(const SkinDocument& document, int elementId) {
    return placeOf(document.element(elementId).elementControl);
}

bool isLine(const SkinDocument& document, int elementId) {
    return hasEnds(document.element(elementId).elementControl);
}

float sum(float a, double b) {
    return toSingle(a + b);
}

double difference(float to, float from) {
    return static_cast<double>(to) - from;
}

Place shifted(const Place& place, double dx, double dy) {
    return {sum(place[0], dx), sum(place[1], dy), place[2], place[3]};
}

// One of the two sides of a rectangle.
struct Side {
    double start;
    double length;
};

// The side with one of its edges (-1: the first, 1: the last, 0: neither) moved.
Side stretched(const Side& side, int edge, double by) {
    if (edge == 0) {
        return side;
    }
    const double length = std::max<double>(smallestSide, side.length + edge * by);
    return {edge < 0 ? side.start + side.length - length : side.start, length};
}

// The side brought to a length, with the edge in its place that is not moved, or else the middle.
Side brought(const Side& side, int edge, double length) {
    const double held = std::max<double>(smallestSide, std::round(length));
    const double less = side.length - held;
    if (edge == 0) {
        return {side.start + std::round(less / 2), held};
    }
    return {edge < 0 ? side.start + less : side.start, held};
}

// The place on one axis of an element drawn from `start` to the pointer.
void span(float& position, float& size, float start, float pointer) {
    const auto way = static_cast<float>(std::abs(difference(pointer, start)));
    position = pointer >= start ? start : pointer;
    size = way;
}

} // namespace

std::string readoutText(SkinPoint point) {
    std::string text = "X: ";
    appendNumber(text, point.x);
    text += "    Y: ";
    appendNumber(text, point.y);
    return text;
}

int keyStep(int modifiers) {
    return 1 + 8 * modifiers;
}

bool moveByKey(SkinDocument& document, int elementId, ArrowKey key, int modifiers) {
    if (!isMovable(document, elementId) || isLine(document, elementId)) {
        return false;
    }
    const int step = keyStep(modifiers);
    const Place place = placeIn(document, elementId);
    switch (key) {
    case ArrowKey::Left:
        return placeElement(document, elementId, shifted(place, -step, 0));
    case ArrowKey::Right:
        return placeElement(document, elementId, shifted(place, step, 0));
    case ArrowKey::Up:
        return placeElement(document, elementId, shifted(place, 0, -step));
    case ArrowKey::Down:
        return placeElement(document, elementId, shifted(place, 0, step));
    }
    return false;
}

MoveDrag::MoveDrag(const SkinDocument& document, int elementId, SkinPoint press)
    : elementId_(elementId)
    , start_(placeIn(document, elementId))
    , last_(press) {}

bool MoveDrag::moveTo(SkinDocument& document, SkinPoint point) {
    if (point == last_ || isLine(document, elementId_)) {
        return false;
    }
    const double dx = difference(point.x, last_.x);
    const double dy = difference(point.y, last_.y);
    last_ = point;
    return placeElement(document, elementId_, shifted(placeIn(document, elementId_), dx, dy));
}

bool MoveDrag::takeBack(SkinDocument& document) const {
    return placeElement(document, elementId_, start_);
}

LineEndDrag::LineEndDrag(const SkinDocument& document, int elementId, Handle end, SkinPoint press)
    : elementId_(elementId)
    , end_(end)
    , start_(placeIn(document, elementId))
    , press_(press) {}

bool LineEndDrag::moveTo(SkinDocument& document, SkinPoint point) const {
    const std::size_t at = end_ == Handle::firstEnd ? 0 : 2;
    const double x = start_[at] + difference(point.x, press_.x);
    const double y = start_[at + 1] + difference(point.y, press_.y);
    Place place = start_;
    place[at] = toSingle(std::clamp<double>(x, 0, skinWidth));
    place[at + 1] = toSingle(std::clamp<double>(y, 0, skinHeight));
    return placeElement(document, elementId_, place);
}

bool LineEndDrag::takeBack(SkinDocument& document) const {
    return placeElement(document, elementId_, start_);
}

Place resized(const Place& start, Handle handle, float dx, float dy, bool keepProportions) {
    const auto [x, y] = edgesOf(handle);
    const Side across{start[0], std::max(start[2], 0.0F)};
    const Side down{start[1], std::max(start[3], 0.0F)};
    Side width = stretched(across, x, dx);
    Side height = stretched(down, y, dy);
    if (keepProportions && across.length > 0 && down.length > 0) {
        const double wider = x == 0 ? 0 : width.length / across.length;
        const double higher = y == 0 ? 0 : height.length / down.length;
        const double factor = std::max(wider, higher);
        width = brought(across, x, across.length * factor);
        height = brought(down, y, down.length * factor);
    }
    return {toSingle(width.start), toSingle(height.start), toSingle(width.length),
            toSingle(height.length)};
}

ResizeDrag::ResizeDrag(const SkinDocument& document, int elementId, Handle handle, SkinPoint press)
    : elementId_(elementId)
    , handle_(handle)
    , start_(placeIn(document, elementId))
    , press_(press) {}

bool ResizeDrag::moveTo(SkinDocument& document, SkinPoint point, bool keepProportions) const {
    return placeElement(
        document, elementId_,
        resized(start_, handle_, point.x - press_.x, point.y - press_.y, keepProportions));
}

bool ResizeDrag::takeBack(SkinDocument& document) const {
    return placeElement(document, elementId_, start_);
}

SkinSize defaultSize(ElementKind kind, std::optional<SkinSize> natural) {
    return rulesOf(kind).defaultSize(natural);
}

Place defaultPlace(ElementKind kind, SkinPoint at, std::optional<SkinSize> natural) {
    const SkinSize size = defaultSize(kind, natural);
    if (rulesOf(kind).placeForm == PlaceForm::ends) {
        return {at.x, at.y, sum(at.x, size.width), sum(at.y, size.height)};
    }
    return {at.x, at.y, size.width, size.height};
}

Place middlePlace(ElementKind kind, std::optional<SkinSize> natural) {
    const SkinSize size = defaultSize(kind, natural);
    const SkinPoint corner{std::floor((skinWidth - size.width) / 2),
                           std::floor((skinHeight - size.height) / 2)};
    return defaultPlace(kind, corner, natural);
}

SkinPoint wholePoint(SkinPoint point) {
    return {static_cast<float>(toInt32(point.x)), static_cast<float>(toInt32(point.y))};
}

double drawThresholdAt(double zoom) {
    return std::max(1.0, std::floor(drawThreshold / zoom));
}

DrawDrag::DrawDrag(int elementId, SkinPoint press)
    : elementId_(elementId)
    , start_(wholePoint(press))
    , last_(press) {}

bool DrawDrag::moveTo(SkinDocument& document, SkinPoint point) {
    Place place = placeIn(document, elementId_);
    const bool line = isLine(document, elementId_);
    if (point.x != last_.x) {
        if (line) {
            place[2] = point.x;
        } else {
            span(place[0], place[2], start_.x, point.x);
        }
    }
    if (point.y != last_.y) {
        if (line) {
            place[3] = point.y;
        } else {
            span(place[1], place[3], start_.y, point.y);
        }
    }
    last_ = point;
    return placeElement(document, elementId_, place);
}

void DrawDrag::finish(SkinDocument& document, SkinPoint release, std::optional<SkinSize> natural,
                      double zoom) {
    moveTo(document, release);
    const double threshold = drawThresholdAt(zoom);
    const bool isClick = std::abs(difference(release.x, start_.x)) < threshold &&
                         std::abs(difference(release.y, start_.y)) < threshold;
    Place place = placeIn(document, elementId_);
    if (isClick) {
        place = defaultPlace(document.element(elementId_).elementKind, start_, natural);
    } else if (!isLine(document, elementId_)) {
        place[2] = std::max(place[2], smallestSide);
        place[3] = std::max(place[3], smallestSide);
    }
    placeElement(document, elementId_, place);
}

void DrawDrag::takeBack(SkinDocument& document) const {
    deleteRow(document, document.rowOf(document.currentLayout(), elementId_));
}

} // namespace tarvel
