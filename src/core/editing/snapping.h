// Snapping: what moves, is sized or drawn is drawn to edges, middles and gaps of what stands still.
//
// All lengths are skin pixels; the tolerance of a call is too, so the window divides snapReach by
// its zoom. A tolerance that is negative or no number snaps nothing, and neither does a place that
// is not finite.
#pragma once

#include "document/skin_document.h"
#include "editing/group_places.h"
#include "editing/hit_test.h"
#include "editing/snap_axis.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tarvel {

/// How near something has to come to snap, in pixels of the display.
inline constexpr double snapReach = 6;
/// How much of the screen's width and height lies outside of the safe area, on each side.
inline constexpr double safeInset = 0.1;
inline constexpr double safePart = 1 - 2 * safeInset;
/// The part of the screen that every television shows.
inline constexpr Bounds safeArea{{skinWidth * safeInset, skinWidth* safePart},
                                 {skinHeight * safeInset, skinHeight* safePart}};

enum class GuideKind : std::uint8_t { line, gap };

/// Something that was met, for drawing it.
///
/// A line: edges or middles that have the same `position` along `axis`; it goes `from`, `to` across
/// the axis, over all that are on it: for Axis::across it is upright. A gap: one of the gaps that
/// are equal, along `axis` `from`, `to`, with `position` across the axis amid what it separates.
struct Guide {
    GuideKind kind = GuideKind::line;
    Axis axis = Axis::across;
    double position = 0;
    double from = 0;
    double to = 0;

    bool operator==(const Guide&) const = default;
};

/// What to add to where the pointer would put it, and what is met there. An axis on which nothing
/// is near enough has no offset and no guides.
struct Snap {
    double dx = 0;
    double dy = 0;
    std::vector<Guide> guides; ///< across before down, of each lines before gaps

    bool operator==(const Snap&) const = default;
};

/// What can be snapped to on the current screen of a document: edges and middles of its elements,
/// locked ones included, of the screen and of the safe area; and the gaps between elements. Made
/// once for a drag: it does not follow the document.
///
/// Each axis snaps by itself, to what is nearest. Of what is as near, the first counts of: the
/// left (top) edge, the middle, the right (bottom) edge, the gap between two neighbours, the gap
/// before, the gap behind; and of two lines as near to one of these, the left (upper) one.
///
/// The neighbours along an axis are the nearest elements on both sides that share some of the
/// extent across it. Their gap is met where the rectangle stands amid them, or goes on behind (or
/// before) two neighbours with the gap that is between them. A gap is longer than 0.
class SnapIndex {
  public:
    /// Leaves out the elements with the ids `excluded`, those that are moved.
    SnapIndex(const SkinDocument& document, std::span<const int> excluded);

    /// For a rectangle (left, top, width, height) that moves as a whole.
    [[nodiscard]] Snap snapMove(const Place& frame, double tolerance) const;
    /// For a rectangle that is sized or drawn: only the edges that move snap, to lines, and to
    /// where the gap beyond them equals the one on the other side, or the next one on theirs.
    [[nodiscard]] Snap snapEdges(const Place& frame, HandleEdges edges, double tolerance) const;
    /// For a line's end, and the press that begins a drawing: to lines only.
    [[nodiscard]] Snap snapPoint(SkinPoint point, double tolerance) const;

  private:
    SnapAxis across_;
    SnapAxis down_;
};

/// Limits of the grid, in skin pixels.
inline constexpr int finestGrid = 2;
inline constexpr int coarsestGrid = 64;

/// The nearest multiple of the grid, which is held within its limits; halfway the greater one. A
/// value that is not finite stays as it is.
[[nodiscard]] float snapToGrid(float value, int grid);

} // namespace tarvel
