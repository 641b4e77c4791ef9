// Putting copied elements onto the current screen, with the resources that the skin lacks.
#pragma once

#include "document/element_place.h"
#include "skinfile/clipboard.h"

#include <vector>

namespace tarvel {

/// Skin pixels by which each further paste of the same elements on their own screen is shifted
/// down and to the right.
inline constexpr float pasteShift = 10;

/// Adds the elements to the current screen, on top and in their order, with new ids and the row
/// texts of fresh elements, and returns the ids. `offset`, in skin pixels, is added to all ends.
///
/// Of the resources that the elements use, one whose name is taken, in whatever letter case, by the
/// same file or fragment is shared. One whose name is taken by another, or reserved, gets the first
/// free of the names "Name 2", "Name 3" and so on, which the elements follow, unless one of these
/// is the same file already. An element whose source is none of these resources shows what the skin
/// has of that name. Takes time as the content and the skin's resources grow.
std::vector<int> pasteElements(SkinDocument& document, const ClipboardContent& content,
                               SkinPoint offset);

} // namespace tarvel
