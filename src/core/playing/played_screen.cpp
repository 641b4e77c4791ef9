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

// About the middle, and then to where it has travelled.
void moveAndScale(ElementControl& control, const PlayLook& look) {
    const Place rest = placeOf(control);
    const auto scale = static_cast<float>(look.scale);
    Place now = rest;
    if (hasEnds(control)) {
        const float middleX = (rest[0] + rest[2]) / 2;
        const float middleY = (rest[1] + rest[3]) / 2;
        for (std::size_t i = 0; i < now.size(); ++i) {
            const float middle = i % 2 == 0 ? middleX : middleY;
            now.at(i) = middle + (rest.at(i) - middle) * scale;
            now.at(i) += i % 2 == 0 ? look.right : look.down;
        }
    } else {
        now[2] = rest[2] * scale;
        now[3] = rest[3] * scale;
        now[0] = rest[0] + (rest[2] - now[2]) / 2 + look.right;
        now[1] = rest[1] + (rest[3] - now[3]) / 2 + look.down;
    }
    setPlace(control, now);
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

} // namespace

PlayedScreen::PlayedScreen(const SkinDocument& document, int screen,
                           const ModifierCatalogue& catalogue)
    : document_(document) {
    for (int row = 0; row < document.rowCount(screen); ++row) {
        const int id = document.itemData(screen, row);
        ids_.push_back(id);
        std::vector<Motion> motions = motionsOf(*document.element(id).elementModifiers, catalogue);
        for (const Motion& motion : motions) {
            if (motion.preview == ModifierPreview::still) {
                still_.push_back({motion.type, document.rowText(screen, row)});
            }
        }
        isMoving_ = isMoving_ || moves(motions);
        if (!motions.empty()) {
            motions_.emplace(id, std::move(motions));
        }
    }
}

bool PlayedScreen::holds(std::string_view condition, const PlayChoices& choices) {
    const auto row = static_cast<std::size_t>(getcondNum(condition));
    return choices.forced.at(row).value_or(
        conditionHolds(condition, sampleItems, choices.list, choices.itemsShown));
}

std::optional<PlayedElement> PlayedScreen::at(int id, PlayTime time,
                                              const PlayChoices& choices) const {
    const Element& rest = document_.element(id);
    if (!timersShow(rest.elementTimers, time) || !holds(rest.elementCondition, choices)) {
        return std::nullopt;
    }
    PlayedElement now{.element = rest, .opacity = 1};
    ElementControl& control = now.element.elementControl;
    if (rest.elementKind == ElementKind::Text && !rest.textIsConstant) {
        const ListItem* item = choices.list.selected < sampleItems.size()
                                   ? &sampleItems.at(choices.list.selected)
                                   : nullptr;
        control.caption = playedText(control.caption, choices.clock, item);
    }
    if (const auto moving = motions_.find(id); moving != motions_.end()) {
        const PlayLook look = lookAt(moving->second, rectangleOf(control), time);
        recolor(control, look);
        moveAndScale(control, look);
        now.opacity = look.opacity;
        if (const auto alpha = look.channels.front()) {
            constexpr double opaque = 255;
            now.element.elementAlpha = 100;
            now.opacity *= *alpha / opaque;
        }
    }
    return now;
}

PlayTime PlayedScreen::nextChange(PlayTime time) const {
    PlayTime next = never;
    for (const int id : ids_) {
        next = std::min(next, nextTimerChange(document_.element(id).elementTimers, time));
    }
    return next;
}

} // namespace tarvel
