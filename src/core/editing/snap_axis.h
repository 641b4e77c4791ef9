// One direction of an index for snapping: the lines to snap to, and the neighbours of a place.
#pragma once

#include "editing/group_places.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <vector>

namespace tarvel {

/// A rectangle as seen along an axis: where it is along it, and from where to where across it.
struct SnapItem {
    float start = 0;
    float end = 0;
    float from = 0;
    float to = 0;

    bool operator==(const SnapItem&) const = default;
};

/// A position that somebody's edge or middle has, and how far those who have it reach across the
/// axis, all together.
struct SnapLine {
    float position = 0;
    float from = 0;
    float to = 0;

    bool operator==(const SnapLine&) const = default;
};

/// Positions this near to each other, in skin pixels, are on one line, and such gaps are equal.
/// Singles that should meet differ by less, and no eye sees it.
inline constexpr double sameLine = 0.01;

/// Sorted once, then asked: lines by binary search, neighbours by walking on from where one leads.
/// The walk leaves out runs of elements none of which is in the way.
class SnapAxis {
  public:
    SnapAxis() = default;
    /// `elements` give lines and are neighbours; `others` give lines only.
    SnapAxis(std::vector<SnapItem> elements, std::span<const SnapItem> others);

    /// The nearest line no farther than the tolerance; of two as near the lesser position.
    [[nodiscard]] std::optional<double> nearest(double position, double tolerance) const;
    /// What lies at the position, as one line.
    [[nodiscard]] std::optional<SnapLine> lineAt(double position) const;

    /// The element that ends last of those that end at `limit` or before and share some of `cross`,
    /// the extent across the axis; nullptr without one. Where several end there, the one that
    /// starts last, and where these do too, the last that was given.
    [[nodiscard]] const SnapItem* before(double limit, const Extent& cross) const;
    /// The element that starts first of those that start at `limit` or after, likewise; where
    /// several start there, the one that ends first, and then the first that was given.
    [[nodiscard]] const SnapItem* after(double limit, const Extent& cross) const;

  private:
    // What a run of elements in their order covers across the axis.
    struct Run {
        float from = std::numeric_limits<float>::max();
        float to = std::numeric_limits<float>::lowest();
    };
    static constexpr std::size_t runLength = 64;

    [[nodiscard]] static std::vector<Run> runsOf(const std::vector<SnapItem>& items);

    std::vector<SnapLine> lines_; // by position, each once
    std::vector<SnapItem> byStart_;
    std::vector<SnapItem> byEnd_;
    std::vector<Run> startRuns_;
    std::vector<Run> endRuns_;
};

} // namespace tarvel
