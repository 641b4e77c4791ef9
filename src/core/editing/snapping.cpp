// Tries what a rectangle could snap to, takes the nearest, and tells what it meets there.
#include "editing/snapping.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace tarvel {

namespace {

SnapItem itemAlong(const Bounds& bounds, Axis axis) {
    const Extent& along = bounds.along(axis);
    const Extent& cross = bounds.along(axis == Axis::across ? Axis::down : Axis::across);
    return {toSingle(along.start), toSingle(along.end()), toSingle(cross.start),
            toSingle(cross.end())};
}

// What of a rectangle snaps along an axis.
struct Grip {
    bool start = false;
    bool middle = false;
    bool end = false;
    bool gaps = false;

    [[nodiscard]] bool moves() const { return start && end; }
};

constexpr Grip wholeGrip{true, true, true, true};
constexpr Grip pointGrip{true, false, true, false};

Grip edgeGrip(int edge) {
    const bool isFirst = edge < 0;
    const bool isLast = edge > 0;
    return {isFirst, false, isLast, isFirst || isLast};
}

// A rectangle on its way along an axis.
struct Mover {
    Extent along;
    Extent cross;
    Grip grip;

    // Calls see(position) for each that snaps, in the order that counts.
    template <class See> void eachPosition(See&& see) const {
        if (grip.start) {
            see(along.start);
        }
        if (grip.middle) {
            see(along.middle());
        }
        if (grip.end) {
            see(along.end());
        }
    }
};

// The gaps around a rectangle. Each is missing where there is no such neighbour.
struct Gaps {
    const SnapItem* before = nullptr;
    const SnapItem* after = nullptr;
    std::optional<double> pairBefore; // between the neighbour before and the one before it
    std::optional<double> pairAfter;
};

// `slack`: how much neighbours may overlap with the rectangle, which could snap back from them.
Gaps gapsAround(const SnapAxis& axis, const Mover& mover, double slack) {
    Gaps gaps;
    gaps.before = axis.before(mover.along.start + slack, mover.cross);
    gaps.after = axis.after(mover.along.end() - slack, mover.cross);
    if (gaps.before != nullptr) {
        if (const SnapItem* next = axis.before(gaps.before->start, mover.cross)) {
            gaps.pairBefore = static_cast<double>(gaps.before->start) - next->end;
        }
    }
    if (gaps.after != nullptr) {
        if (const SnapItem* next = axis.after(gaps.after->end, mover.cross)) {
            gaps.pairAfter = static_cast<double>(next->start) - gaps.after->end;
        }
    }
    return gaps;
}

// The offset of the least length within the tolerance; of several, the one that came first.
class Nearest {
  public:
    explicit Nearest(double tolerance)
        : distance_(tolerance) {}

    void offer(double offset) {
        const double way = std::abs(offset);
        if (way < distance_ || (!found_ && way == distance_)) {
            distance_ = way;
            found_ = offset;
        }
    }
    [[nodiscard]] std::optional<double> found() const { return found_; }

  private:
    double distance_;
    std::optional<double> found_;
};

// The gap on both sides when the rectangle is amid its neighbours, with what moves of it moved.
double gapBetween(const Mover& mover, const Gaps& gaps) {
    const double before = mover.along.start - gaps.before->end;
    const double after = gaps.after->start - mover.along.end();
    if (mover.grip.moves()) {
        return (before + after) / 2;
    }
    return mover.grip.start ? after : before;
}

void offerGaps(Nearest& nearest, const Mover& mover, const Gaps& gaps) {
    const auto fromBefore = [&](double gap) {
        nearest.offer(gaps.before->end + gap - mover.along.start);
    };
    const auto fromAfter = [&](double gap) {
        nearest.offer(gaps.after->start - gap - mover.along.end());
    };
    if (gaps.before != nullptr && gaps.after != nullptr) {
        const double gap = gapBetween(mover, gaps);
        if (gap > 0 && mover.grip.start) {
            fromBefore(gap);
        } else if (gap > 0) {
            fromAfter(gap);
        }
    }
    if (gaps.pairBefore && mover.grip.start) {
        fromBefore(*gaps.pairBefore);
    }
    if (gaps.pairAfter && mover.grip.end) {
        fromAfter(*gaps.pairAfter);
    }
}

std::optional<double> offsetOf(const SnapAxis& axis, const Mover& mover, double tolerance) {
    Nearest nearest(tolerance);
    mover.eachPosition([&](double position) {
        if (const auto line = axis.nearest(position, tolerance)) {
            nearest.offer(*line - position);
        }
    });
    if (mover.grip.gaps) {
        offerGaps(nearest, mover, gapsAround(axis, mover, tolerance));
    }
    return nearest.found();
}

// Collects the guides along one axis.
class Guides {
  public:
    Guides(std::vector<Guide>& guides, Axis axis)
        : guides_(guides)
        , axis_(axis) {}

    void add(GuideKind kind, double position, double from, double to) {
        const Guide guide{kind, axis_, position, from, to};
        if (std::find(guides_.begin(), guides_.end(), guide) == guides_.end()) {
            guides_.push_back(guide);
        }
    }

    // Between two things that share some of their extents across the axis.
    void addGap(const SnapItem& first, const SnapItem& second) {
        const double from = std::max(first.from, second.from);
        const double to = std::min(first.to, second.to);
        add(GuideKind::gap, (from + to) / 2, first.end, second.start);
    }

  private:
    std::vector<Guide>& guides_;
    Axis axis_;
};

void addLines(Guides& guides, const SnapAxis& axis, const Mover& landed) {
    landed.eachPosition([&](double position) {
        if (const auto line = axis.lineAt(position)) {
            guides.add(GuideKind::line, line->position,
                       std::min<double>(line->from, landed.cross.start),
                       std::max<double>(line->to, landed.cross.end()));
        }
    });
}

void addGaps(Guides& guides, const SnapAxis& axis, const Mover& landed) {
    const Gaps gaps = gapsAround(axis, landed, sameLine);
    const SnapItem own{toSingle(landed.along.start), toSingle(landed.along.end()),
                       toSingle(landed.cross.start), toSingle(landed.cross.end())};
    const auto isSame = [](double a, double b) { return a > 0 && std::abs(a - b) <= sameLine; };
    const double before = gaps.before ? landed.along.start - gaps.before->end : 0;
    const double after = gaps.after ? gaps.after->start - landed.along.end() : 0;
    const bool between = isSame(before, after);
    const bool goesOn = landed.grip.start && gaps.pairBefore && isSame(before, *gaps.pairBefore);
    const bool leads = landed.grip.end && gaps.pairAfter && isSame(after, *gaps.pairAfter);
    if (goesOn) {
        guides.addGap(*axis.before(gaps.before->start, landed.cross), *gaps.before);
    }
    if (goesOn || between) {
        guides.addGap(*gaps.before, own);
    }
    if (leads || between) {
        guides.addGap(own, *gaps.after);
    }
    if (leads) {
        guides.addGap(*gaps.after, *axis.after(gaps.after->end, landed.cross));
    }
}

// The extents of the rectangle, and what of it snaps.
struct Request {
    Bounds bounds;
    Grip across;
    Grip down;
    double tolerance;
};

Extent movedBy(const Extent& extent, const Grip& grip, double by) {
    if (grip.moves()) {
        return {extent.start + by, extent.length};
    }
    if (grip.start) {
        return {extent.start + by, std::max(extent.length - by, 0.0)};
    }
    return {extent.start, std::max(extent.length + by, 0.0)};
}

Snap snapped(const SnapAxis& across, const SnapAxis& down, const Request& request) {
    const auto& [bounds, gripAcross, gripDown, tolerance] = request;
    Snap snap;
    const auto dx = offsetOf(across, {bounds.across, bounds.down, gripAcross}, tolerance);
    const auto dy = offsetOf(down, {bounds.down, bounds.across, gripDown}, tolerance);
    snap.dx = dx.value_or(0);
    snap.dy = dy.value_or(0);
    const Bounds landed{movedBy(bounds.across, gripAcross, snap.dx),
                        movedBy(bounds.down, gripDown, snap.dy)};
    const auto tell = [&](Axis name, const SnapAxis& axis, const Mover& mover) {
        Guides guides(snap.guides, name);
        addLines(guides, axis, mover);
        if (mover.grip.gaps) {
            addGaps(guides, axis, mover);
        }
    };
    if (dx) {
        tell(Axis::across, across, {landed.across, landed.down, gripAcross});
    }
    if (dy) {
        tell(Axis::down, down, {landed.down, landed.across, gripDown});
    }
    return snap;
}

// The elements of the current screen that are not excluded and have a place.
std::vector<Bounds> standing(const SkinDocument& document, std::span<const int> excluded) {
    std::vector<bool> isOut(static_cast<std::size_t>(document.lastElementId()) + 1);
    for (const int id : excluded) {
        if (id > 0 && id <= document.lastElementId()) {
            isOut[static_cast<std::size_t>(id)] = true;
        }
    }
    const int screen = document.currentLayout();
    std::vector<Bounds> result;
    result.reserve(static_cast<std::size_t>(document.rowCount(screen)));
    for (int row = 0; row < document.rowCount(screen); ++row) {
        const int id = document.itemData(screen, row);
        const ElementControl& control = document.element(id).elementControl;
        const Place place = placeOf(control);
        if (!isOut[static_cast<std::size_t>(id)] && isFinite(place)) {
            result.push_back(boundsOf(place, rulesOf(control.kind).placeForm));
        }
    }
    return result;
}

SnapAxis axisOf(const std::vector<Bounds>& elements, Axis axis) {
    std::vector<SnapItem> items;
    items.reserve(elements.size());
    for (const Bounds& bounds : elements) {
        items.push_back(itemAlong(bounds, axis));
    }
    const std::array others = {itemAlong(screenBounds, axis), itemAlong(safeArea, axis)};
    return {std::move(items), others};
}

} // namespace

SnapIndex::SnapIndex(const SkinDocument& document, std::span<const int> excluded) {
    const std::vector<Bounds> elements = standing(document, excluded);
    across_ = axisOf(elements, Axis::across);
    down_ = axisOf(elements, Axis::down);
}

Snap SnapIndex::snapMove(const Place& frame, double tolerance) const {
    if (!isFinite(frame)) {
        return {};
    }
    return snapped(across_, down_,
                   {boundsOf(frame, PlaceForm::rectangle), wholeGrip, wholeGrip, tolerance});
}

Snap SnapIndex::snapEdges(const Place& frame, HandleEdges edges, double tolerance) const {
    if (!isFinite(frame)) {
        return {};
    }
    return snapped(
        across_, down_,
        {boundsOf(frame, PlaceForm::rectangle), edgeGrip(edges.x), edgeGrip(edges.y), tolerance});
}

Snap SnapIndex::snapPoint(SkinPoint point, double tolerance) const {
    if (!std::isfinite(point.x) || !std::isfinite(point.y)) {
        return {};
    }
    return snapped(across_, down_, {{{point.x, 0}, {point.y, 0}}, pointGrip, pointGrip, tolerance});
}

float snapToGrid(float value, int grid) {
    if (!std::isfinite(value)) {
        return value;
    }
    const double step = std::clamp(grid, finestGrid, coarsestGrid);
    return toSingle(std::floor(value / step + 0.5) * step);
}

} // namespace tarvel
