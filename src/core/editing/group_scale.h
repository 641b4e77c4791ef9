// Several elements moved and scaled as one, from the places that they had when the drag began.
//
// The drag keeps what startPlaces() gave at its beginning, and the frame around it. Each move of
// the pointer works out all places anew from these, so that nothing adds up over a drag. Whatever
// is locked meanwhile stays where it is. All functions that return bool say whether the document
// was changed.
#pragma once

#include "document/element_place.h"
#include "editing/group_places.h"
#include "editing/hit_test.h"
#include "editing/manipulation.h"

#include <span>

namespace tarvel {

/// The frame around the elements: left, top, width and height.
[[nodiscard]] Place commonFrame(std::span<const StartPlace> starts);

/// The handles of the frame are those that an element of its place has. resized() tells the frame
/// that follows from moving one of them, and with it the rules of sizing: no side becomes shorter
/// than smallestSide, so nothing is turned over.
[[nodiscard]] bool hasFrameHandle(const Place& frame, Handle handle, double zoom = 1);
[[nodiscard]] SkinPoint frameHandleCentre(const Place& frame, Handle handle);
[[nodiscard]] Handle frameHandleAt(const Place& frame, SkinPoint point, double zoom = 1);

/// Puts every element where it is in `to` what it was in `from`, the frame at the start: positions
/// and sizes, and of lines both ends.
///
/// - Along an axis on which the frame is the same nothing changes.
/// - A side does not become shorter than smallestSide, or than it was where that is less; it is
///   kept within the frame then. Lines may become as short as they like.
/// - Where `from` has no extent along an axis, rectangles take the whole of `to` there, as a single
///   one without width or height does; lines, flat there, keep their numbers.
///
/// A frame that is not finite, or has a negative side, changes nothing.
bool scaleAll(SkinDocument& document, std::span<const StartPlace> starts, const Place& from,
              const Place& to);

/// Puts every element at its start place moved by dx, dy; 0, 0 puts them back. Of lines both ends
/// move. An offset that is not finite changes nothing.
bool moveAll(SkinDocument& document, std::span<const StartPlace> starts, double dx, double dy);
/// The same by an arrow key, as far as it moves a single element.
bool moveAllByKey(SkinDocument& document, std::span<const StartPlace> starts, ArrowKey key,
                  int modifiers);

} // namespace tarvel
