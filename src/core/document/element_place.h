// Where elements are on the surface: four numbers, whatever their kind.
//
// All lengths are skin pixels of the 640 by 480 screen, origin top left, y downward.
#pragma once

#include "document/skin_document.h"

#include <array>

namespace tarvel {

/// A point of the surface; may lie outside of the screen.
struct SkinPoint {
    float x = 0;
    float y = 0;

    bool operator==(const SkinPoint&) const = default;
};

struct SkinSize {
    float width = 0;
    float height = 0;

    bool operator==(const SkinSize&) const = default;
};

/// Left, top, width and height; of what has two ends: X1, Y1, X2 and Y2.
using Place = std::array<float, 4>;

[[nodiscard]] Place placeOf(const ElementControl& control);
void setPlace(ElementControl& control, const Place& place);

/// True for an element on a screen (ids from 1 on) that may be moved and sized: not a locked one.
[[nodiscard]] bool isMovable(const SkinDocument& document, int elementId);

/// Moves and sizes an element and tells the document's observer. Returns false, and does nothing,
/// when the element is not movable or is at that place already.
bool placeElement(SkinDocument& document, int elementId, const Place& place);

} // namespace tarvel
