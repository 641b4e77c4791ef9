// The targets of a screen's rows in one block of memory, and the search in it.
#include "editing/pick_index.h"

#include "document/element_kinds.h"
#include "editing/hit_test.h"

#include <cmath>
#include <limits>

namespace tarvel {

namespace {

// The sum, or the next single beyond it in the direction of `by`.
float beyond(float position, double by) {
    const double exact = static_cast<double>(position) + by;
    const float near = toSingle(exact);
    constexpr float infinity = std::numeric_limits<float>::infinity();
    if (by < 0) {
        return near > exact ? std::nextafter(near, -infinity) : near;
    }
    return near < exact ? std::nextafter(near, infinity) : near;
}

} // namespace

void PickIndex::documentChanged(const DocumentChange& change) {
    using What = DocumentChange::What;
    switch (change.what) {
    case What::everything:
    case What::currentLayout:
    case What::elements:
        stale_ = true;
        break;
    case What::rows:
        stale_ = stale_ || change.screen == screen_;
        break;
    case What::element:
        if (!stale_ && change.screen == screen_) {
            changed_.push_back(change.elementId);
            stale_ = changed_.size() > targets_.size(); // as much work as looking at all of them
        }
        break;
    case What::settings:
    case What::rowText:
    case What::rowTexts:
    case What::counts:
        break;
    }
}

int PickIndex::rowAt(const SkinDocument& document, SkinPoint point, double zoom) {
    stale_ = stale_ || zoom != zoom_;
    zoom_ = zoom;
    refresh(document);
    const auto [x, y] = point;
    for (std::size_t i = targets_.size(); i-- > 0;) {
        const Target& target = targets_[i];
        if (x < target.left || x > target.right || y < target.top || y > target.bottom) {
            continue;
        }
        const int row = static_cast<int>(i / targetsPerRow);
        if (isAt(document.element(document.itemData(screen_, row)), point, zoom_)) {
            return row;
        }
    }
    return -1;
}

void PickIndex::refresh(const SkinDocument& document) {
    if (stale_) {
        rebuild(document);
    }
    for (const int id : changed_) {
        const int row = rows_[static_cast<std::size_t>(id)];
        if (row >= 0) {
            setTargets(row, document.element(id));
        }
    }
    changed_.clear();
}

void PickIndex::rebuild(const SkinDocument& document) {
    screen_ = document.currentLayout();
    const int count = document.rowCount(screen_);
    targets_.assign(static_cast<std::size_t>(count) * targetsPerRow, {});
    rows_.assign(static_cast<std::size_t>(document.lastElementId()) + 1, -1);
    for (int row = 0; row < count; ++row) {
        const int id = document.itemData(screen_, row);
        rows_[static_cast<std::size_t>(id)] = row;
        setTargets(row, document.element(id));
    }
    changed_.clear();
    stale_ = false;
}

void PickIndex::setTargets(int row, const Element& element) {
    const std::size_t at = static_cast<std::size_t>(row) * targetsPerRow;
    Target& first = targets_[at];
    Target& second = targets_[at + 1];
    first = second = {};
    const ElementControl& control = element.elementControl;
    const double before = lineEndShift(zoom_) - lineEndReach / zoom_;
    const double after = lineEndShift(zoom_) + lineEndReach / zoom_;
    const auto around = [&](float x, float y) {
        return Target{beyond(x, before), beyond(y, before), beyond(x, after), beyond(y, after)};
    };
    if (element.elementLocked) {
        return;
    }
    if (hasEnds(control)) {
        first = around(control.X1, control.Y1);
        second = around(control.X2, control.Y2);
    } else if (control.width >= 0 && control.height >= 0) {
        first = {control.left, control.top, beyond(control.left, control.width),
                 beyond(control.top, control.height)};
    }
}

} // namespace tarvel
