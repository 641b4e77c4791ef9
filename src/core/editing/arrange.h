// Brings several elements of a screen into line: alignment, equal gaps, equal sizes, the screen.
#pragma once

#include "document/skin_document.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace tarvel {

enum class ArrangeCommand : std::uint8_t {
    alignLeft,
    alignCentre,
    alignRight,
    alignTop,
    alignMiddle,
    alignBottom,
    distributeAcross,
    distributeDown,
    sameWidth,
    sameHeight,
    sameSize,
    centreAcross,
    centreDown,
    fillScreen,
    wholePixels
};

/// What the steps are called.
namespace step {
inline constexpr std::string_view alignLeft = "align left";
inline constexpr std::string_view alignCentre = "align centre";
inline constexpr std::string_view alignRight = "align right";
inline constexpr std::string_view alignTop = "align top";
inline constexpr std::string_view alignMiddle = "align middle";
inline constexpr std::string_view alignBottom = "align bottom";
inline constexpr std::string_view distributeAcross = "distribute across";
inline constexpr std::string_view distributeDown = "distribute down";
inline constexpr std::string_view sameWidth = "make same width";
inline constexpr std::string_view sameHeight = "make same height";
inline constexpr std::string_view sameSize = "make same size";
inline constexpr std::string_view centreAcross = "centre across";
inline constexpr std::string_view centreDown = "centre down";
inline constexpr std::string_view fillScreen = "fill screen";
inline constexpr std::string_view wholePixels = "bring to whole pixels";
} // namespace step

/// The name of the command's step.
[[nodiscard]] std::string_view arrangeStep(ArrangeCommand command);

/// Carries out the command on elements of one screen, by their ids, of which `leading` is one, and
/// tells the document's observers. Returns whether the document was changed. Positions are not
/// rounded: wholePixels does that.
///
/// - Aligned are edges or middles: of one element to the screen, of several to the leading one.
/// - Distributed elements follow each other with equal gaps, in the order of their middles; the
///   first and the last stay. Gaps are negative where the elements need more room than there is.
/// - Same sizes are the leading one's, at least smallestSide. The left and top edges stay.
/// - Centred on the screen is what all of them cover together, so they keep their places among each
///   other. Each of them fills the screen.
/// - Whole pixels: positions and sizes are rounded, halves to even; no side of some length is
///   rounded to 0.
///
/// What has two ends is moved by both, and sized by bringing its ends to the new edges; where it
/// has no extent it cannot be sized. A negative size counts as zero. Locked elements are never
/// changed and take no part, except that a locked leading one is still aligned to and measured by.
/// The same holds for places that are not finite, which nothing is aligned to either.
bool arrange(SkinDocument& document, std::span<const int> ids, int leading, ArrangeCommand command);

/// Whether there are elements enough for the command: three to distribute, another one than the
/// leading one for the same size, one for the others. It may still find everything in place.
[[nodiscard]] bool isPossible(const SkinDocument& document, std::span<const int> ids, int leading,
                              ArrangeCommand command);

} // namespace tarvel
