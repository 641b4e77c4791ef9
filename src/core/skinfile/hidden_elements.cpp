// Goes from the front to the back, with the opaque rectangles so far in the cells of a grid.
#include "skinfile/hidden_elements.h"

#include "document/element_kinds.h"
#include "document/layout_screens.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarvel {

namespace {

constexpr int cellSize = 32; // skin pixels
constexpr int cellsAcross = skinWidth / cellSize;
constexpr int cellsDown = skinHeight / cellSize;
// Opaque elements that a cell knows, the frontmost ones: what keeps thousands of large ones cheap.
constexpr std::size_t mostInCell = 500;

// A part of the screen: from left and top up to right and bottom.
struct Extent {
    float left;
    float top;
    float right;
    float bottom;

    [[nodiscard]] bool isEmpty() const { return !(left < right && top < bottom); }
    [[nodiscard]] bool covers(const Extent& other) const {
        return left <= other.left && top <= other.top && right >= other.right &&
               bottom >= other.bottom;
    }
};

Extent whole(const ElementControl& control) {
    if (!hasEnds(control)) {
        return {control.left, control.top, control.left + control.width,
                control.top + control.height};
    }
    // A line is a pixel wide, and has its last pixel where it ends.
    return {std::min(control.X1, control.X2), std::min(control.Y1, control.Y2),
            std::max(control.X1, control.X2) + 1, std::max(control.Y1, control.Y2) + 1};
}

// What the screen shows of it.
Extent onScreen(const Extent& extent) {
    return {std::max(extent.left, 0.0F), std::max(extent.top, 0.0F),
            std::min(extent.right, float{skinWidth}), std::min(extent.bottom, float{skinHeight})};
}

bool isOpaque(const Element& element) {
    constexpr std::int16_t opaquePercent = 100;
    const ElementControl& control = element.elementControl;
    return element.elementKind == ElementKind::Box && control.kind == ControlKind::box &&
           control.fillStyle == FillStyle::solid && element.elementAlpha == opaquePercent &&
           element.elementModifiers->empty() && isNoCondition(element.elementCondition) &&
           std::all_of(element.elementTimers.begin(), element.elementTimers.end(),
                       [](std::int32_t timer) { return timer == 0; });
}

// The opaque elements, each in all cells that it reaches into.
class Covers {
  public:
    // The frontmost that covers the extent, by its row.
    [[nodiscard]] std::optional<int> over(const Extent& extent) const {
        for (const std::size_t index : cells_[cellAt(columnOf(extent.left), rowOf(extent.top))]) {
            if (covers_[index].extent.covers(extent)) {
                return covers_[index].row;
            }
        }
        return std::nullopt;
    }

    void add(const Extent& extent, int row) {
        for (int down = rowOf(extent.top); down <= rowOf(extent.bottom); ++down) {
            for (int across = columnOf(extent.left); across <= columnOf(extent.right); ++across) {
                if (auto& cell = cells_[cellAt(across, down)]; cell.size() < mostInCell) {
                    cell.push_back(covers_.size());
                }
            }
        }
        covers_.push_back({extent, row});
    }

  private:
    struct Cover {
        Extent extent;
        int row;
    };

    static int columnOf(float x) {
        return std::min(static_cast<int>(x) / cellSize, cellsAcross - 1);
    }
    static int rowOf(float y) { return std::min(static_cast<int>(y) / cellSize, cellsDown - 1); }
    static std::size_t cellAt(int across, int down) {
        return static_cast<std::size_t>(down) * cellsAcross + static_cast<std::size_t>(across);
    }

    std::vector<Cover> covers_; // front to back
    std::array<std::vector<std::size_t>, std::size_t{cellsAcross} * cellsDown> cells_;
};

} // namespace

std::vector<HiddenElement> hiddenElements(const SkinDocument& document, int screen) {
    std::vector<HiddenElement> hidden;
    Covers covers;
    for (int row = document.rowCount(screen) - 1; row >= 0; --row) {
        const Element& element = document.element(document.itemData(screen, row));
        const Extent extent = onScreen(whole(element.elementControl));
        if (extent.isEmpty()) {
            continue;
        }
        const std::optional<int> cover = covers.over(extent);
        if (cover && element.elementModifiers->empty()) {
            hidden.push_back({row, *cover});
        } else if (!cover && isOpaque(element)) {
            covers.add(extent, row);
        }
    }
    std::reverse(hidden.begin(), hidden.end());
    return hidden;
}

} // namespace tarvel
