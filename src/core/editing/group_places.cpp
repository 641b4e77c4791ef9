// Works out bounds and places, the same for rectangles and lines as far as it goes.
#include "editing/group_places.h"

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

std::size_t firstOf(Axis axis) {
    return static_cast<std::size_t>(axis);
}

std::size_t secondOf(Axis axis) {
    return firstOf(axis) + 2;
}

Extent extentOf(const Place& place, PlaceForm form, Axis axis) {
    const double first = place.at(firstOf(axis));
    const double second = place.at(secondOf(axis));
    if (form == PlaceForm::ends) {
        return {std::min(first, second), std::abs(second - first)};
    }
    return {first, std::max(second, 0.0)};
}

Extent united(const Extent& a, const Extent& b) {
    const double start = std::min(a.start, b.start);
    return {start, std::max(a.end(), b.end()) - start};
}

} // namespace

Bounds boundsOf(const Place& place, PlaceForm form) {
    return {extentOf(place, form, Axis::across), extentOf(place, form, Axis::down)};
}

bool isFinite(const Place& place) {
    return std::all_of(place.begin(), place.end(), [](float each) { return std::isfinite(each); });
}

Bounds boundsOf(const StartPlace& start) {
    return boundsOf(start.place, start.form);
}

std::vector<StartPlace> startPlaces(const SkinDocument& document, std::span<const int> ids) {
    std::vector<int> each(ids.begin(), ids.end());
    std::sort(each.begin(), each.end());
    each.erase(std::unique(each.begin(), each.end()), each.end());
    std::vector<StartPlace> starts;
    starts.reserve(each.size());
    for (const int id : each) {
        if (id > document.lastElementId() || !isMovable(document, id)) {
            continue;
        }
        const ElementControl& control = document.element(id).elementControl;
        const Place place = placeOf(control);
        if (isFinite(place)) {
            starts.push_back({id, rulesOf(control.kind).placeForm, place});
        }
    }
    return starts;
}

Bounds commonBounds(std::span<const StartPlace> starts) {
    if (starts.empty()) {
        return {};
    }
    Bounds common = boundsOf(starts.front());
    for (const StartPlace& start : starts.subspan(1)) {
        const Bounds bounds = boundsOf(start);
        common = {united(common.across, bounds.across), united(common.down, bounds.down)};
    }
    return common;
}

Place movedAlong(const StartPlace& start, Axis axis, double by) {
    Place place = start.place;
    float& first = place.at(firstOf(axis));
    first = toSingle(first + by);
    if (start.form == PlaceForm::ends) {
        float& second = place.at(secondOf(axis));
        second = toSingle(second + by);
    }
    return place;
}

Place fittedAlong(const StartPlace& start, Axis axis, const Extent& extent) {
    Place place = start.place;
    float& first = place.at(firstOf(axis));
    float& second = place.at(secondOf(axis));
    if (start.form == PlaceForm::rectangle) {
        first = toSingle(extent.start);
        second = toSingle(extent.length);
    } else if (first != second) {
        const bool forward = first < second;
        first = toSingle(forward ? extent.start : extent.end());
        second = toSingle(forward ? extent.end() : extent.start);
    }
    return place;
}

bool placeAll(SkinDocument& document, std::span<const StartPlace> places) {
    std::vector<int> ids;
    std::vector<const Place*> targets;
    for (const StartPlace& each : places) {
        if (isMovable(document, each.elementId) &&
            placeOf(document.element(each.elementId).elementControl) != each.place) {
            ids.push_back(each.elementId);
            targets.push_back(&each.place);
        }
    }
    if (ids.empty()) {
        return false;
    }
    auto target = targets.begin();
    document.editElements(ids,
                          [&](Element& element) { setPlace(element.elementControl, **target++); });
    return true;
}

} // namespace tarvel
