// Which rows of the current screen are selected together.
//
// All functions give rows in ascending order, from the back to the front.
#pragma once

#include "document/element_place.h"
#include "document/skin_document.h"

#include <vector>

namespace tarvel {

/// A rectangle between two opposite corners, whichever: where a drag began and where the pointer
/// is.
struct RubberBand {
    SkinPoint press;
    SkinPoint pointer;
};

/// The rows of the unlocked elements that the rubber band touches, edges included: rectangles with
/// any of their area, lines with any of the points between their ends. Negative sizes and places
/// that are not finite are not touched.
[[nodiscard]] std::vector<int> rowsTouched(const SkinDocument& document, const RubberBand& band);

/// The rows of all unlocked elements.
[[nodiscard]] std::vector<int> unlockedRows(const SkinDocument& document);

/// The rows from one to the other, both included, whichever is in front; locked ones too, which a
/// list lets select. Only `to` when `from` is no row, and none when `to` is none.
[[nodiscard]] std::vector<int> rowRange(const SkinDocument& document, int from, int to);

} // namespace tarvel
