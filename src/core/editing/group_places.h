// Where several elements are: the rectangle that each covers, and the places that they start from.
//
// All lengths are skin pixels, in doubles, where sums of singles are exact.
#pragma once

#include "document/element_kinds.h"
#include "document/element_place.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tarvel {

/// The directions of the surface; as numbers, where in a Place their numbers begin: the second one
/// is two farther.
enum class Axis : std::uint8_t { across, down };

/// What is covered along one axis; the length is 0 or more.
struct Extent {
    double start = 0;
    double length = 0;

    [[nodiscard]] double end() const { return start + length; }
    [[nodiscard]] double middle() const { return start + length / 2; }

    bool operator==(const Extent&) const = default;
};

struct Bounds {
    Extent across;
    Extent down;

    [[nodiscard]] const Extent& along(Axis axis) const {
        return axis == Axis::across ? across : down;
    }

    bool operator==(const Bounds&) const = default;
};

/// The whole screen.
inline constexpr Bounds screenBounds{{0, skinWidth}, {0, skinHeight}};

/// The rectangle that a place covers; a negative size counts as zero.
[[nodiscard]] Bounds boundsOf(const Place& place, PlaceForm form);
/// Whether all four numbers are finite. Others are no place that could be worked with.
[[nodiscard]] bool isFinite(const Place& place);

/// An element with the place that it has when a command or drag begins.
struct StartPlace {
    int elementId = 0;
    PlaceForm form = PlaceForm::rectangle;
    Place place{};
};

[[nodiscard]] Bounds boundsOf(const StartPlace& start);

/// The elements with their places, each once, by ascending id. Locked ones are left out, and so are
/// ids without an element and places that are not finite.
[[nodiscard]] std::vector<StartPlace> startPlaces(const SkinDocument& document,
                                                  std::span<const int> ids);
/// The smallest rectangle that holds them all; at 0, 0 without extent for none.
[[nodiscard]] Bounds commonBounds(std::span<const StartPlace> starts);

/// The place moved along an axis; of a line both ends move.
[[nodiscard]] Place movedAlong(const StartPlace& start, Axis axis, double by);
/// The place brought to the extent along an axis. A line keeps its direction; one that has no
/// extent along the axis has nothing to stretch and stays there.
[[nodiscard]] Place fittedAlong(const StartPlace& start, Axis axis, const Extent& extent);

/// Puts the elements where `places` say, and tells of all at once. What is locked or there already
/// stays. Returns whether the document was changed.
bool placeAll(SkinDocument& document, std::span<const StartPlace> places);

} // namespace tarvel
