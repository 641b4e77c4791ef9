// Scrolls the list by whole items, and answers the conditions row by row.
#include "playing/item_list_play.h"

#include "document/conditions.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tarvel {

namespace {

// Rows of conditionRows.
enum Row { none, itemPrev, itemNext, itemEntry, itemSubMenu, itemPassCode, itemNoPassCode };

constexpr double itemsPerSecond = 2; // at a scroll factor of 1
constexpr double millisecondsPerSecond = 1000;

bool holdsFor(Row row, const ListItem& item) {
    switch (row) {
    case itemEntry:
        return !item.isSubMenu;
    case itemSubMenu:
        return item.isSubMenu;
    case itemPassCode:
        return item.hasPassCode;
    case itemNoPassCode:
        return !item.hasPassCode;
    case none:
    case itemPrev:
    case itemNext:
        break;
    }
    return true;
}

} // namespace

ListPlace placeWith(std::size_t selected, const ListPlace& before, std::size_t items,
                    std::size_t shown) {
    if (items == 0) {
        return {};
    }
    const std::size_t room = std::clamp<std::size_t>(shown, 1, items);
    ListPlace place{.selected = std::min(selected, items - 1), .first = before.first};
    place.first = std::min(place.first, items - room);
    place.first = std::min(place.first, place.selected);
    if (place.selected >= place.first + room) {
        place.first = place.selected + 1 - room;
    }
    return place;
}

ListPlace movedBy(int step, const ListPlace& before, std::size_t items, std::size_t shown) {
    std::size_t selected = before.selected;
    if (step < 0 && selected > 0) {
        --selected;
    } else if (step > 0) {
        ++selected;
    }
    return placeWith(selected, before, items, shown);
}

std::size_t itemsShownBy(const MenuSettings& settings) {
    return static_cast<std::size_t>(std::max<int>(settings.itemsShown, 1));
}

double scrolledTo(const MenuSettings& settings, const ListPlace& place, const ListScroll& scroll,
                  PlayTime at) {
    const auto target = static_cast<double>(place.first);
    if (!settings.smoothScroll || at < scroll.since) {
        return target;
    }
    const int factor = std::max(1, std::abs(int{settings.scrollFactor}));
    const double way =
        static_cast<double>(at - scroll.since) / millisecondsPerSecond * itemsPerSecond * factor;
    const double whole = target - scroll.from;
    return way >= std::abs(whole) ? target : scroll.from + std::copysign(way, whole);
}

bool conditionHolds(std::string_view condition, std::span<const ListItem> items,
                    const ListPlace& place, std::size_t shown) {
    const auto row = static_cast<Row>(getcondNum(condition));
    switch (row) {
    case none:
        return true;
    case itemPrev:
        return place.first > 0;
    case itemNext:
        return place.first + std::max<std::size_t>(shown, 1) < items.size();
    case itemEntry:
    case itemSubMenu:
    case itemPassCode:
    case itemNoPassCode:
        break;
    }
    return place.selected < items.size() && holdsFor(row, items[place.selected]);
}

} // namespace tarvel
