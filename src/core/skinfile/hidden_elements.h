// Elements of a screen of which nothing can be seen.
#pragma once

#include "document/skin_document.h"

#include <vector>

namespace tarvel {

/// An element that lies wholly behind another.
struct HiddenElement {
    int row;      ///< of the hidden element
    int coverRow; ///< of the frontmost element that hides it

    bool operator==(const HiddenElement&) const = default;
};

/// The elements of a screen that can never be seen, because a single one in front of them is opaque
/// over all that they show on the screen; back to front.
///
/// Opaque for certain are filled boxes of 100 % opacity without condition, timers and modifiers: a
/// picture may be missing or have transparent parts. An element with modifiers may move out from
/// behind another, and one that is empty or wholly off the screen is not hidden by it.
///
/// Each element is compared with those opaque ones in front that reach into the 32 by 32 skin
/// pixels of its top left corner and that no other hides, a few for a layout of many elements, and
/// with no more than 500: behind more large opaque elements, none of which lies within another,
/// some that are hidden may not be found.
[[nodiscard]] std::vector<HiddenElement> hiddenElements(const SkinDocument& document, int screen);

} // namespace tarvel
