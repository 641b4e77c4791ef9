// Maps places from one frame into another, axis by axis.
#include "editing/group_scale.h"

#include "editing/manipulation.h"

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

// The frame as an element, for the rules of its handles.
Element elementOf(const Place& frame) {
    Element element;
    setPlace(element.elementControl, frame);
    return element;
}

// The same axis of both frames.
struct Scale {
    Extent from;
    Extent to;

    [[nodiscard]] double mapped(double at) const {
        return to.start + (at - from.start) * (to.length / from.length);
    }
};

Extent mappedSide(const Scale& scale, const Extent& side) {
    const double length = side.length * (scale.to.length / scale.from.length);
    const double shortest = std::min<double>(side.length, smallestSide);
    const double start = scale.mapped(side.start);
    if (length >= shortest) {
        return {start, length};
    }
    return {std::min(start, scale.to.end() - shortest), shortest};
}

Place scaledAlong(const StartPlace& start, const Scale& scale, Axis axis) {
    if (scale.from == scale.to) {
        return start.place;
    }
    if (scale.from.length == 0) {
        return fittedAlong(start, axis, scale.to); // which a flat line does not take
    }
    const Extent extent = boundsOf(start).along(axis);
    if (start.form == PlaceForm::rectangle) {
        return fittedAlong(start, axis, mappedSide(scale, extent));
    }
    const double first = scale.mapped(extent.start);
    if (extent.length == 0) {
        return movedAlong(start, axis, first - extent.start);
    }
    return fittedAlong(start, axis, {first, scale.mapped(extent.end()) - first});
}

} // namespace

Place commonFrame(std::span<const StartPlace> starts) {
    const auto [across, down] = commonBounds(starts);
    return {toSingle(across.start), toSingle(down.start), toSingle(across.length),
            toSingle(down.length)};
}

bool hasFrameHandle(const Place& frame, Handle handle, double zoom) {
    return hasHandle(elementOf(frame), handle, zoom);
}

SkinPoint frameHandleCentre(const Place& frame, Handle handle) {
    return handleCentre(elementOf(frame).elementControl, handle);
}

Handle frameHandleAt(const Place& frame, SkinPoint point, double zoom) {
    return handleAt(elementOf(frame), point, zoom);
}

bool scaleAll(SkinDocument& document, std::span<const StartPlace> starts, const Place& from,
              const Place& to) {
    const auto isFrame = [](const Place& place) {
        return isFinite(place) && place[2] >= 0 && place[3] >= 0;
    };
    if (!isFrame(from) || !isFrame(to)) {
        return false;
    }
    const Bounds before = boundsOf(from, PlaceForm::rectangle);
    const Bounds after = boundsOf(to, PlaceForm::rectangle);
    std::vector<StartPlace> parts(starts.begin(), starts.end());
    for (StartPlace& part : parts) {
        part.place = scaledAlong(part, {before.across, after.across}, Axis::across);
        part.place = scaledAlong(part, {before.down, after.down}, Axis::down);
    }
    return placeAll(document, parts);
}

bool moveAll(SkinDocument& document, std::span<const StartPlace> starts, double dx, double dy) {
    if (!std::isfinite(dx) || !std::isfinite(dy)) {
        return false;
    }
    std::vector<StartPlace> parts(starts.begin(), starts.end());
    for (StartPlace& part : parts) {
        part.place = movedAlong(part, Axis::across, dx);
        part.place = movedAlong(part, Axis::down, dy);
    }
    return placeAll(document, parts);
}

bool moveAllByKey(SkinDocument& document, std::span<const StartPlace> starts, ArrowKey key,
                  int modifiers) {
    const int step = keyStep(modifiers);
    switch (key) {
    case ArrowKey::Left:
        return moveAll(document, starts, -step, 0);
    case ArrowKey::Right:
        return moveAll(document, starts, step, 0);
    case ArrowKey::Up:
        return moveAll(document, starts, 0, -step);
    case ArrowKey::Down:
        return moveAll(document, starts, 0, step);
    }
    return false;
}

} // namespace tarvel
