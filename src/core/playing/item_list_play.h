// The list of games while a screen plays: which items are in sight, and which conditions hold.
#pragma once

#include "document/element.h"
#include "playing/timer_play.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace tarvel {

/// An item of the list: a game, or a folder with games.
struct ListItem {
    std::string_view title;
    std::string_view description;
    bool isSubMenu = false; ///< leads to another list
    bool hasPassCode = false;
};

/// What plays in place of the games of a console: games, a folder and a locked game among them.
inline constexpr std::array<ListItem, 9> sampleItems = {{
    {.title = "Night Garden", .description = "Puzzle for two players"},
    {.title = "Starlight Rally", .description = "Race around the rings"},
    {.title = "Deep Harbour", .description = "Salvage and trade"},
    {.title = "Tower of Tiles", .description = "Stack them to the sky"},
    {.title = "Paper Planes", .description = "Calm flying at dusk"},
    {.title = "Arcade", .description = "More games", .isSubMenu = true},
    {.title = "Copper Mine", .description = "Dig, carry, sell"},
    {.title = "Midnight Vault", .description = "Asks for a passcode", .hasPassCode = true},
    {.title = "Winter Post", .description = "Letters through the snow"},
}};

/// Where the list stands. What is selected is always in sight.
struct ListPlace {
    std::size_t selected = 0;
    std::size_t first = 0; ///< the first item in sight

    bool operator==(const ListPlace&) const = default;
};

/// The place of a list of `items` of which `shown` fit, with this one selected: the last item for a
/// larger number. Scrolls as far from `before` as it has to; an empty list has the place 0, 0, and
/// at least one item fits.
[[nodiscard]] ListPlace placeWith(std::size_t selected, const ListPlace& before, std::size_t items,
                                  std::size_t shown);

/// One item up (-1) or down (1); the ends stay.
[[nodiscard]] ListPlace movedBy(int step, const ListPlace& before, std::size_t items,
                                std::size_t shown);

/// How many items of a menu fit at a time, by its settings; at least one.
[[nodiscard]] std::size_t itemsShownBy(const MenuSettings& settings);

/// Where the list scrolls from: an item, with parts of it between two, since a time.
struct ListScroll {
    double from = 0;
    PlayTime since = 0;

    bool operator==(const ListScroll&) const = default;
};

/// The item at the top of a menu at a time, with parts of it while the list scrolls to `place`.
/// With smooth scrolling it goes evenly, two items a second times the scroll factor, of which only
/// the size counts; without, and at times before the scrolling began, it is there at once.
[[nodiscard]] double scrolledTo(const MenuSettings& settings, const ListPlace& place,
                                const ListScroll& scroll, PlayTime at);

/// Whether the condition of an element holds, by its text as `getcondNum` reads it. "None", an
/// empty text and an unknown one always hold; in an empty list those of the selected item do not.
[[nodiscard]] bool conditionHolds(std::string_view condition, std::span<const ListItem> items,
                                  const ListPlace& place, std::size_t shown);

} // namespace tarvel
