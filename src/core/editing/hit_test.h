// What lies under a point of the surface: elements, and the handles of the selected one.
//
// What is meant for the hand reaches as far on the display at every zoom: `zoom` is pixels of the
// window a skin pixel, above 0.
#pragma once

#include "document/element_place.h"
#include "document/skin_document.h"

#include <cstdint>

namespace tarvel {

/// Whether the point lies in the control's rectangle, edges included, without tolerance. For every
/// kind but lin; a rectangle of negative size holds no point.
[[nodiscard]] bool onElement(float x, float y, const ElementControl& control);

/// Both distances to an end of a line must be less than this, in pixels of the window.
inline constexpr float lineEndReach = 7;

/// An end of a line is the middle of its skin pixel, which lies so far behind the corner that its
/// numbers tell, in skin pixels; where pixels of the window are skin pixels both are one.
[[nodiscard]] constexpr double lineEndShift(double zoom) {
    return (1 - 1 / zoom) / 2;
}

/// Whether the point is at either end of the line. The middle of a line is no hit.
[[nodiscard]] bool onElementLine(float x, float y, const ElementControl& line, double zoom = 1);

/// Whether the element can be picked at the point. A locked one is part of the ground and cannot.
[[nodiscard]] bool isAt(const Element& element, SkinPoint point, double zoom = 1);

/// The row of the frontmost element of the current screen that can be picked at the point; -1 when
/// there is none. Takes time in proportion to the number of rows; PickIndex is faster.
[[nodiscard]] int rowAt(const SkinDocument& document, SkinPoint point, double zoom = 1);

/// What the selected element is sized by: eight places of its selection box, or two line ends.
enum class Handle : std::uint8_t {
    none,
    topLeft,
    top,
    topRight,
    right,
    bottomRight,
    bottom,
    bottomLeft,
    left,
    firstEnd,
    secondEnd
};

/// Which edges a handle of the selection box moves: x is -1 for the left edge, 1 for the right one
/// and 0 for neither; y likewise for top and bottom. Both 0 for anything but those eight.
struct HandleEdges {
    int x = 0;
    int y = 0;
};
[[nodiscard]] HandleEdges edgesOf(Handle handle);

/// How far from its centre a handle of the selection box takes a press, in pixels of the window.
/// Inward it reaches a quarter
/// of the side at most, so that the middle of a small element is left to move it by.
inline constexpr float handleReach = 5;
/// The handles in the middle of a side are left out on sides that are shorter on the window.
inline constexpr float shortestSideWithMiddle = 24;

/// Whether an element has the handle: line ends for a line, the others for the other kinds, none
/// for a locked element.
[[nodiscard]] bool hasHandle(const Element& element, Handle handle, double zoom = 1);
/// Where to draw a handle that the control's kind has. A negative size counts as zero.
[[nodiscard]] SkinPoint handleCentre(const ElementControl& control, Handle handle);
/// The handle of the element at the point. Where several are, the nearer line end (the second one
/// if both are as near), and the one that is farther right or down.
[[nodiscard]] Handle handleAt(const Element& element, SkinPoint point, double zoom = 1);

} // namespace tarvel
