// Snapping while something is dragged: where the pointer would have to be for it to meet something.
#pragma once

#include "editing/manipulation.h"
#include "editing/snapping.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tarvel {

/// What is snapped to.
struct SnapOptions {
    bool toElements = false; ///< edges, middles and gaps of elements, screen and safe area
    bool toGrid = false;
    int grid = 8; ///< skin pixels, finestGrid to coarsestGrid

    [[nodiscard]] bool isOn() const { return toElements || toGrid; }
    bool operator==(const SnapOptions&) const = default;
};

/// What a drag does from its press on.
struct SnapSubject {
    enum class What : std::uint8_t {
        whole,   ///< moves a rectangle
        handle,  ///< moves a handle of a rectangle
        corner,  ///< draws a rectangle from the press to the pointer
        lineEnd, ///< moves a point, and draws a line
    };
    What what = What::whole;
    Place start{}; ///< the rectangle at the press
    SkinPoint press;
    Handle handle = Handle::none;
    std::vector<int> ids; ///< of the elements that it changes
};

/// Made at the press, from the document as it is then. Where both are on, elements come before the
/// grid on each axis.
class SnapDrag {
  public:
    SnapDrag(const SkinDocument& document, SnapSubject subject, const SnapOptions& options);

    /// Where the pointer, which is at `point`, would be for what it drags to snap, and what is met
    /// there. The tolerance is in skin pixels.
    [[nodiscard]] SkinPoint snapped(SkinPoint point, double tolerance);
    /// What the last call has met.
    [[nodiscard]] const std::vector<Guide>& guides() const { return guides_; }

  private:
    [[nodiscard]] Place frameAt(SkinPoint point) const;
    [[nodiscard]] HandleEdges edgesAt(SkinPoint point) const;
    [[nodiscard]] Snap toElements(SkinPoint point, double tolerance) const;
    [[nodiscard]] SkinPoint toGrid(SkinPoint point) const;

    SnapSubject subject_;
    SnapOptions options_;
    std::optional<SnapIndex> index_;
    std::vector<Guide> guides_;
};

/// Where a press begins to draw: on a line that is near, or on the grid.
[[nodiscard]] SkinPoint snappedPress(const SkinDocument& document, SkinPoint press,
                                     const SnapOptions& options, double tolerance);

} // namespace tarvel
