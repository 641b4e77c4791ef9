// Walks the rows of the current screen; lines are cut to the rubber band to see if some is left.
#include "editing/select_rules.h"

#include "editing/group_places.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tarvel {

namespace {

template <class Test> std::vector<int> rowsWhere(const SkinDocument& document, Test&& test) {
    const int screen = document.currentLayout();
    std::vector<int> rows;
    for (int row = 0; row < document.rowCount(screen); ++row) {
        const Element& element = document.element(document.itemData(screen, row));
        if (!element.elementLocked && test(element.elementControl)) {
            rows.push_back(row);
        }
    }
    return rows;
}

bool meet(const Extent& a, const Extent& b) {
    return a.start <= b.end() && b.start <= a.end();
}

// The part of a line that is still in question, from 0 at its first end to 1 at its second.
struct Stretch {
    double begin = 0;
    double end = 1;
};

// Leaves what lies within the extent along one axis, where the line goes from `first` by `way`.
void cut(Stretch& stretch, double first, double way, const Extent& extent) {
    if (way == 0) {
        return; // its bounds tell whether it lies within
    }
    const double enters = (extent.start - first) / way;
    const double leaves = (extent.end() - first) / way;
    stretch.begin = std::max(stretch.begin, std::min(enters, leaves));
    stretch.end = std::min(stretch.end, std::max(enters, leaves));
}

bool crosses(const Place& line, const Bounds& band) {
    const double wayAcross = static_cast<double>(line[2]) - line[0];
    const double wayDown = static_cast<double>(line[3]) - line[1];
    Stretch stretch;
    cut(stretch, line[0], wayAcross, band.across);
    cut(stretch, line[1], wayDown, band.down);
    return stretch.begin <= stretch.end;
}

bool touches(const Bounds& band, const ElementControl& control) {
    const Place place = placeOf(control);
    const bool isLine = hasEnds(control);
    if (!isFinite(place) || (!isLine && (place[2] < 0 || place[3] < 0))) {
        return false;
    }
    const Bounds bounds = boundsOf(place, rulesOf(control.kind).placeForm);
    return meet(bounds.across, band.across) && meet(bounds.down, band.down) &&
           (!isLine || crosses(place, band));
}

} // namespace

std::vector<int> rowsTouched(const SkinDocument& document, const RubberBand& band) {
    const Place corners{band.press.x, band.press.y, band.pointer.x, band.pointer.y};
    if (!isFinite(corners)) {
        return {};
    }
    const Bounds bounds = boundsOf(corners, PlaceForm::ends);
    return rowsWhere(document,
                     [&](const ElementControl& control) { return touches(bounds, control); });
}

std::vector<int> unlockedRows(const SkinDocument& document) {
    return rowsWhere(document, [](const ElementControl& /*control*/) { return true; });
}

std::vector<int> rowRange(const SkinDocument& document, int from, int to) {
    const int count = document.rowCount(document.currentLayout());
    const auto isRow = [&](int row) { return row >= 0 && row < count; };
    if (!isRow(to)) {
        return {};
    }
    const auto [first, last] = std::minmax(isRow(from) ? from : to, to);
    std::vector<int> rows(static_cast<std::size_t>(last - first) + 1);
    std::iota(rows.begin(), rows.end(), first);
    return rows;
}

} // namespace tarvel
