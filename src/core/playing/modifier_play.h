// What the modifiers of an element do in time, as far as their types say it.
#pragma once

#include "document/element_place.h"
#include "document/modifier_catalogue.h"
#include "editing/color_channels.h"
#include "playing/timer_play.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tarvel {

/// One modifier of an element with its values, as the file has them; what it lacks is 0.
struct Motion {
    ModifierPreview preview = ModifierPreview::still;
    std::string type; ///< as spelt in the skin
    std::array<ColorChannel, channelCount> channels;
    double from = 0; ///< per cent: X of a range
    double to = 0;   ///< per cent: Y
    Place bounds{};  ///< left, top, right and bottom in skin pixels

    bool operator==(const Motion&) const = default;
};

/// The modifiers of an element in their order, the still ones too. A Color modifier that has a
/// channel without a name plays the channels up to it.
[[nodiscard]] std::vector<Motion> motionsOf(const XmlTree& modifiers,
                                            const ModifierCatalogue& catalogue);

/// How an element looks at a moment, beside what it is at rest.
struct PlayLook {
    /// 0 to 255 in the order of channelNames; what no modifier plays is the element's own.
    std::array<std::optional<int>, channelCount> channels;
    double opacity = 1; ///< a factor, 0 to 1
    double scale = 1;   ///< a factor of both sizes about the middle, 0 to 10
    float right = 0;    ///< skin pixels that it has travelled from its place
    float down = 0;

    bool operator==(const PlayLook&) const = default;
};

/// The look at a time of an element with a size, at a place. Several modifiers work together: later
/// colours and travels stand for earlier ones, factors are multiplied. All of them begin with the
/// screen.
[[nodiscard]] PlayLook lookAt(const std::vector<Motion>& motions, const Place& rectangle,
                              PlayTime at);

/// Whether the look of an element with a size, at a place, changes in time.
[[nodiscard]] bool moves(const std::vector<Motion>& motions, const Place& rectangle);

/// From `low` to `high` and back once in `period` milliseconds, evenly, beginning with `low`;
/// always `low` when the period is below 1 or no number.
[[nodiscard]] double swing(double low, double high, double period, PlayTime at);

} // namespace tarvel
