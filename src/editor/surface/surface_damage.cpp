// Compares the rows that were painted with the rows of now.
#include "surface/surface_damage.h"

#include "surface/surface_painter.h"

#include <algorithm>

namespace tarvel {

namespace {

// More rectangles than this take longer to paint one by one than everything at once.
constexpr std::size_t largestCount = 16;

// The stretch in which two lists differ, without their common beginning and end.
struct Difference {
    std::vector<int> before;
    std::vector<int> after;
};

Difference differenceOf(const std::vector<int>& before, const std::vector<int>& after) {
    const auto [first, other] =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto [last, otherLast] = std::mismatch(before.rbegin(), std::make_reverse_iterator(first),
                                                 after.rbegin(), std::make_reverse_iterator(other));
    return {{first, last.base()}, {other, otherLast.base()}};
}

// The one element whose move makes `after` out of `before`; 0 when it takes more than that.
int movedElement(const Difference& difference) {
    const auto& [before, after] = difference;
    if (before.size() != after.size() || before.empty()) {
        return 0;
    }
    if (before.front() == after.back() &&
        std::equal(before.begin() + 1, before.end(), after.begin())) {
        return before.front();
    }
    if (before.back() == after.front() &&
        std::equal(after.begin() + 1, after.end(), before.begin())) {
        return before.back();
    }
    return 0;
}

} // namespace

Damage SurfaceDamage::rowsChanged(const SkinDocument& document, int screen) {
    SurfaceDamage now;
    now.screen_ = screen;
    const int count = document.rowCount(screen);
    now.rows_.reserve(static_cast<std::size_t>(count));
    now.places_.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        const int id = document.itemData(screen, row);
        now.rows_.push_back(id);
        now.places_.emplace(id, elementBounds(document.element(id)));
    }
    Damage damage = now.since(*this);
    *this = std::move(now);
    return damage;
}

Damage SurfaceDamage::since(const SurfaceDamage& before) const {
    if (screen_ != before.screen_) {
        return {true, {}};
    }
    const Difference difference = differenceOf(before.rows_, rows_);
    if (const int moved = movedElement(difference)) {
        return {false, {places_.at(moved)}};
    }
    if (difference.before.size() + difference.after.size() > largestCount) {
        return {true, {}};
    }
    Damage damage;
    for (const int id : difference.before) {
        damage.rects.push_back(before.places_.at(id));
    }
    for (const int id : difference.after) {
        damage.rects.push_back(places_.at(id));
    }
    return damage;
}

Damage SurfaceDamage::elementChanged(const SkinDocument& document, int elementId) {
    const auto known = places_.find(elementId);
    if (known == places_.end()) {
        return {};
    }
    const QRectF before = known->second;
    known->second = elementBounds(document.element(elementId));
    return {false, {before, known->second}};
}

QRectF SurfaceDamage::placeOf(int elementId) const {
    const auto known = places_.find(elementId);
    return known == places_.end() ? QRectF() : known->second;
}

} // namespace tarvel
