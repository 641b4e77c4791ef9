// Puts timers, conditions, motions and texts of an element together.
#include "playing/played_screen.h"

#include "document/element_kinds.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvel {

namespace {

ColorNumber played(ColorNumber color, const PlayLook& look) {
    const auto part = [&](std::size_t channel, int shift) {
        const auto own = static_cast<int>((color >> shift) & 0xFFU);
        return static_cast<ColorNumber>(look.channels.at(channel).value_or(own)) << shift;
    };
    constexpr int red = 0; // the low byte of a colour number
    constexpr int green = 8;
    constexpr int blue = 16;
    return part(1, red) | part(2, green) | part(3, blue);
}

void recolor(ElementControl& control, const PlayLook& look) {
    control.fillColor = played(control.fillColor, look);
    control.borderColor = played(control.borderColor, look);
    control.textColor = played(control.textColor, look);
}

void travel(ElementControl& control, const PlayLook& look) {
    Place place = placeOf(control);
    const std::size_t corners = hasEnds(control) ? place.size() : 2;
    for (std::size_t i = 0; i < corners; ++i) {
        place.at(i) += i % 2 == 0 ? look.right : look.down;
    }
    setPlace(control, place);
}

// What travels is the rectangle around the ends.
Place rectangleOf(const ElementControl& control) {
    const Place place = placeOf(control);
    if (!hasEnds(control)) {
        return place;
    }
    return {std::min(place[0], place[2]), std::min(place[1], place[3]),
            std::abs(place[2] - place[0]), std::abs(place[3] - place[1])};
}

bool isClock(const std::string& field) {
    return field == "Time" || field == "Date" || field == "DateTime";
}

bool isOfItem(const std::string& field) {
    return field == "CGTitle" || field == "Name" || field == "CGDescr";
}

bool glows(const Element& element) {
    return element.elementKind == ElementKind::Menu && element.menuSettings->glowSelected;
}

// Pictures, videos and lists have no colour of their own to swing.
bool showsNothing(const Motion& motion, ElementKind kind) {
    const bool isColorless = kind == ElementKind::Image || kind == ElementKind::Menu;
    return isColorless && motion.preview == ModifierPreview::color &&
           !motion.channels.front().Enable;
}

// What the dashboard fills in, in place of the field's name.
std::string filledIn(const std::string& field, PlayTime time, const PlayChoices& choices) {
    const ListItem* item = choices.list.selected < sampleItems.size()
                               ? &sampleItems.at(choices.list.selected)
                               : nullptr;
    return playedText(field, isClock(field) ? later(choices.clock, time) : choices.clock, item);
}

void applyMotions(PlayedElement& now, const std::vector<Motion>& motions, PlayTime time) {
    ElementControl& control = now.element.elementControl;
    const PlayLook look = lookAt(motions, rectangleOf(control), time);
    recolor(control, look);
    travel(control, look);
    now.scale = look.scale;
    now.opacity = look.opacity;
    if (const auto alpha = look.channels.front()) {
        constexpr double opaque = 255;
        now.element.elementAlpha = 100;
        now.opacity *= *alpha / opaque;
    }
}

} // namespace

PlayedScreen::PlayedScreen(const SkinDocument& document, int screen,
                           const ModifierCatalogue& catalogue)
    : document_(document)
    , screen_(screen) {
    for (int row = 0; row < document.rowCount(screen); ++row) {
        read(row, catalogue);
    }
    for (std::size_t i = 0; i < live_.size(); ++i) {
        places_.emplace(live_[i].id, i);
    }
}

void PlayedScreen::read(int row, const ModifierCatalogue& catalogue) {
    PlayedBy by;
    by.id = document_.itemData(screen_, row);
    const Element& element = document_.element(by.id);
    const auto& timers = element.elementTimers;
    by.timers = std::any_of(timers.begin(), timers.end(), [](auto value) { return value > 0; });
    by.condition = getcondNum(element.elementCondition) > 0;
    const bool isField = element.elementKind == ElementKind::Text && !element.textIsConstant;
    const std::string& field = element.elementControl.caption;
    by.clock = isField && isClock(field);
    const bool isMenu = element.elementKind == ElementKind::Menu;
    by.item = isMenu || (isField && isOfItem(field));
    by.motions = motionsOf(*element.elementModifiers, catalogue);
    by.isMoving = moves(by.motions, rectangleOf(element.elementControl)) || glows(element);
    for (const Motion& motion : by.motions) {
        if (motion.preview == ModifierPreview::still || showsNothing(motion, element.elementKind)) {
            still_.push_back({motion.type, document_.rowText(screen_, row)});
        }
    }
    if (isMenu) {
        menuId_ = by.id;
    }
    isMoving_ = isMoving_ || by.isMoving;
    if (by.timers || by.condition || isField || by.item || !by.motions.empty()) {
        live_.push_back(std::move(by));
    }
}

bool PlayedScreen::holds(std::string_view condition, const PlayChoices& choices) {
    const auto row = static_cast<std::size_t>(getcondNum(condition));
    return choices.forced.at(row).value_or(
        conditionHolds(condition, sampleItems, choices.list, choices.itemsShown));
}

std::optional<PlayedElement> PlayedScreen::at(const PlayedBy& live, PlayTime time,
                                              const PlayChoices& choices) const {
    const Element& rest = document_.element(live.id);
    if (!timersShow(rest.elementTimers, time) || !holds(rest.elementCondition, choices)) {
        return std::nullopt;
    }
    PlayedElement now{.element = rest};
    if (rest.elementKind == ElementKind::Text && !rest.textIsConstant) {
        std::string& caption = now.element.elementControl.caption;
        caption = filledIn(caption, time, choices);
    }
    if (rest.elementKind == ElementKind::Menu) {
        now.list = listAt(live.id, time, choices);
    }
    if (!live.motions.empty()) {
        applyMotions(now, live.motions, time);
    }
    return now;
}

std::optional<PlayedElement> PlayedScreen::at(int id, PlayTime time,
                                              const PlayChoices& choices) const {
    const auto found = places_.find(id);
    if (found == places_.end()) {
        return time < 0 ? std::nullopt : std::optional(PlayedElement{document_.element(id)});
    }
    return at(live_[found->second], time, choices);
}

// A menu behind the one in front has its own room, and is always where it has to be.
PlayedList PlayedScreen::listAt(int id, PlayTime time, const PlayChoices& choices) const {
    constexpr double glowPeriod = 1000; // ms
    const MenuSettings& settings = *document_.element(id).menuSettings;
    PlayedList list{.selected = choices.list.selected};
    if (id == menuId_) {
        list.first = scrolledTo(settings, choices.list, choices.scroll, time);
    } else {
        list.first = static_cast<double>(
            placeWith(choices.list.selected, {}, sampleItems.size(), itemsShownBy(settings)).first);
    }
    list.glow = settings.glowSelected ? swing(0, 1, glowPeriod, time) : 0;
    return list;
}

PlayTime PlayedScreen::nextChange(PlayTime time) const {
    PlayTime next = never;
    for (const PlayedBy& live : live_) {
        if (live.timers) {
            next = std::min(next, nextTimerChange(document_.element(live.id).elementTimers, time));
        }
    }
    return next;
}

const MenuSettings* PlayedScreen::menu() const {
    return menuId_ == 0 ? nullptr : &*document_.element(menuId_).menuSettings;
}

void moveList(PlayChoices& choices, int step, const MenuSettings* menu, PlayTime time) {
    static const MenuSettings usual;
    const MenuSettings& settings = menu == nullptr ? usual : *menu;
    choices.scroll = {.from = scrolledTo(settings, choices.list, choices.scroll, time),
                      .since = time};
    choices.list = movedBy(step, choices.list, sampleItems.size(), choices.itemsShown);
}

void selectItem(PlayChoices& choices, std::size_t item) {
    choices.list = placeWith(item, choices.list, sampleItems.size(), choices.itemsShown);
    choices.scroll = {.from = static_cast<double>(choices.list.first)};
}

} // namespace tarvel
