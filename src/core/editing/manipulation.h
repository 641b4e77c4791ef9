// The arithmetic of working on the surface: moving, sizing, line ends, drawing, arrow keys.
//
// A drag is one object from press to release. It sees points of the surface and changes the
// document through placeElement(), so locked elements stay where they are and nothing is told when
// nothing changed. All functions that return bool say whether the document was changed.
#pragma once

#include "document/element_place.h"
#include "document/skin_document.h"
#include "editing/hit_test.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvel {

/// What the position readout shows before the pointer was on the surface.
inline constexpr std::string_view initialReadout = "X: 0 Y: 0";
/// What it shows for the pointer at a point.
[[nodiscard]] std::string readoutText(SkinPoint point);

/// The arrow keys by their key codes.
enum class ArrowKey : std::uint8_t { Left = 37, Up = 38, Right = 39, Down = 40 };
inline constexpr int shiftModifier = 1;
inline constexpr int ctrlModifier = 2;
inline constexpr int altModifier = 4;

/// How far an arrow key moves with a set of the three modifiers (0 to 7).
[[nodiscard]] int keyStep(int modifiers);
/// Moves the selected element (0: none) by an arrow key. A line has no selection box and stays.
bool moveByKey(SkinDocument& document, int elementId, ArrowKey key, int modifiers);

/// Moves the selected element with the pointer, keeping the point it was grabbed by. A line, which
/// has no selection box, stays.
class MoveDrag {
  public:
    MoveDrag(const SkinDocument& document, int elementId, SkinPoint press);

    bool moveTo(SkinDocument& document, SkinPoint point);
    /// Puts the element back where it was at the press.
    bool takeBack(SkinDocument& document) const;

  private:
    int elementId_;
    Place start_;
    SkinPoint last_;
};

/// Moves one end of a line with the pointer. The end is held within the screen.
class LineEndDrag {
  public:
    /// `end` is firstEnd or secondEnd.
    LineEndDrag(const SkinDocument& document, int elementId, Handle end, SkinPoint press);

    bool moveTo(SkinDocument& document, SkinPoint point) const;
    bool takeBack(SkinDocument& document) const;

  private:
    int elementId_;
    Handle end_;
    Place start_;
    SkinPoint press_;
};

/// No side becomes shorter by sizing with a handle; the edge that is moved stops that far from the
/// other one.
inline constexpr float smallestSide = 1;

/// The place that a rectangle takes when a handle of its selection box is moved by dx, dy. With
/// `keepProportions` both sides grow alike, in whole pixels: at a corner by the greater of the two
/// changes, at an edge by that edge's, the other side about its middle. A rectangle without area
/// has no proportions to keep. Negative sizes count as zero.
[[nodiscard]] Place resized(const Place& start, Handle handle, float dx, float dy,
                            bool keepProportions);

/// Sizes the selected element by one of the eight handles.
class ResizeDrag {
  public:
    ResizeDrag(const SkinDocument& document, int elementId, Handle handle, SkinPoint press);

    bool moveTo(SkinDocument& document, SkinPoint point, bool keepProportions) const;
    bool takeBack(SkinDocument& document) const;

  private:
    int elementId_;
    Handle handle_;
    Place start_;
    SkinPoint press_;
};

/// The size that an element gets when it is placed without a drag; a line's is its way from the
/// first to the second end. `natural` is the size of what the element shows, where it is known: a
/// text takes it, an image if it fits the screen, the other kinds have fixed sizes.
[[nodiscard]] SkinSize defaultSize(ElementKind kind, std::optional<SkinSize> natural);
/// The place of an element of the default size with its top left corner, or first end, at the
/// point.
[[nodiscard]] Place defaultPlace(ElementKind kind, SkinPoint at, std::optional<SkinSize> natural);
/// The same in the middle of the screen, in whole pixels.
[[nodiscard]] Place middlePlace(ElementKind kind, std::optional<SkinSize> natural);

/// A pointer that ends up less far than this from the press, both ways, has not drawn anything. In
/// pixels of the window.
inline constexpr float drawThreshold = 4;
/// The same in skin pixels, at so many pixels of the window for each: whole ones, since the pointer
/// goes from one to another, and one at least.
[[nodiscard]] double drawThresholdAt(double zoom);

/// The whole numbers that a press point is kept as; halves go to the even neighbour.
[[nodiscard]] SkinPoint wholePoint(SkinPoint point);

/// Draws a new element: it spans the rectangle between the press point and the pointer, whichever
/// way that is dragged. A line's first end stays at the press, the second follows.
class DrawDrag {
  public:
    /// The element was just made at the press point.
    DrawDrag(int elementId, SkinPoint press);

    bool moveTo(SkinDocument& document, SkinPoint point);
    /// Ends the drawing. Without a drag the element gets its default place at the press point;
    /// otherwise no side of a rectangle is left shorter than smallestSide.
    void finish(SkinDocument& document, SkinPoint release, std::optional<SkinSize> natural,
                double zoom = 1);
    /// Takes the element off the current screen again. Its id stays used.
    void takeBack(SkinDocument& document) const;

  private:
    int elementId_;
    SkinPoint start_;
    SkinPoint last_;
};

} // namespace tarvel
