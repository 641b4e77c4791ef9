// Makes only those looks anew that the time or a choice has touched.
#include "playing/played_frame.h"

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

constexpr PlayTime second = 1000;

} // namespace

PlayedFrame::PlayedFrame(const PlayedScreen& screen, const PlayChoices& choices)
    : screen_(screen)
    , slots_(screen.live().size())
    , choices_(choices) {
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        places_.emplace(screen.live()[i].id, i);
        make(i);
    }
}

void PlayedFrame::make(std::size_t index) {
    const PlayedBy& by = screen_.live()[index];
    Slot& slot = slots_[index];
    slot.look = screen_.at(by, time_, choices_);
    slot.nextChange =
        by.timers ? nextTimerChange(screen_.document().element(by.id).elementTimers, time_) : never;
}

bool PlayedFrame::isScrolling(PlayTime time) const {
    const MenuSettings* menu = screen_.menu();
    return menu != nullptr && scrolledTo(*menu, choices_.list, choices_.scroll, time) !=
                                  static_cast<double>(choices_.list.first);
}

bool PlayedFrame::isDue(const PlayedBy& by, const Slot& slot, bool backward,
                        const PlayChoices& choices, PlayTime time) const {
    if (slot.nextChange <= time || (by.timers && backward)) {
        return true;
    }
    if (by.condition && (choices.list != choices_.list || choices.forced != choices_.forced ||
                         choices.itemsShown != choices_.itemsShown)) {
        return true;
    }
    if (!slot.look) {
        return false; // whatever would change is hidden
    }
    if (by.item && (choices.list != choices_.list || choices.scroll != choices_.scroll ||
                    isScrolling(time) || isScrolling(time_))) {
        return true;
    }
    return by.isMoving ||
           (by.clock && (time / second != time_ / second || choices.clock != choices_.clock));
}

void PlayedFrame::show(PlayTime time, const PlayChoices& choices, const Changed& changed) {
    const bool backward = time < time_;
    std::vector<std::size_t> due;
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        if (isDue(screen_.live()[i], slots_[i], backward, choices, time)) {
            due.push_back(i);
        }
    }
    time_ = time;
    choices_ = choices;
    for (const std::size_t i : due) {
        Slot& slot = slots_[i];
        const std::optional<PlayedElement> before = std::exchange(slot.look, std::nullopt);
        make(i);
        if (before != slot.look) {
            changed(before ? &*before : nullptr, slot.look ? &*slot.look : nullptr);
        }
    }
}

PlayedFrame::Look PlayedFrame::lookOf(int elementId) const {
    const auto found = places_.find(elementId);
    if (found == places_.end()) {
        return {};
    }
    const auto& look = slots_[found->second].look;
    return {.isAtRest = false, .played = look ? &*look : nullptr};
}

bool PlayedFrame::isMoving() const {
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        if (screen_.live()[i].isMoving && slots_[i].look) {
            return true;
        }
    }
    return isScrolling(time_);
}

PlayTime PlayedFrame::nextChange() const {
    PlayTime next = never;
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        next = std::min(next, slots_[i].nextChange);
        if (screen_.live()[i].clock && slots_[i].look) {
            next = std::min(next, (time_ / second + 1) * second);
        }
    }
    return next;
}

} // namespace tarvel
