// What the dashboard's fields show while a screen plays.
#pragma once

#include "playing/item_list_play.h"
#include "playing/timer_play.h"

#include <string>
#include <string_view>

namespace tarvel {

/// A moment of a clock on the wall.
struct WallClock {
    int year = 2000;
    int month = 1; ///< 1 to 12
    int day = 1;
    int hour = 0; ///< 0 to 23
    int minute = 0;
    int second = 0;

    bool operator==(const WallClock&) const = default;
};

/// What the clock shows some time later, or earlier for a time below 0; held at ten thousand years
/// either way.
[[nodiscard]] WallClock later(const WallClock& clock, PlayTime time);

/// The text of a field of the dashboard, by its name with letter case: "Time", "Date" and
/// "DateTime" by the clock, those of an item by the selected one, the others a sample of what
/// stands there on a console. `item` may be nullptr: then its texts are empty. A name that is no
/// field is its own text.
[[nodiscard]] std::string playedText(std::string_view field, const WallClock& clock,
                                     const ListItem* item);

} // namespace tarvel
