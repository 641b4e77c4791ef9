// The elements of a playing screen as they look now, and what changes from one moment to the next.
#pragma once

#include "playing/played_screen.h"

#include <functional>
#include <unordered_map>
#include <vector>

namespace tarvel {

/// Keeps the looks of the elements that are not the same all the time. Most moments change few of
/// them; only those are made anew. The screen is not owned and outlives this.
class PlayedFrame {
  public:
    /// Begins at the time 0.
    PlayedFrame(const PlayedScreen& screen, const PlayChoices& choices);

    /// Told of an element that looks otherwise; nullptr while it is hidden.
    using Changed = std::function<void(const PlayedElement* before, const PlayedElement* now)>;

    /// Goes to a time, forward or back.
    void show(PlayTime time, const PlayChoices& choices, const Changed& changed);

    /// How an element looks.
    struct Look {
        bool isAtRest = true;                  ///< as the document has it
        const PlayedElement* played = nullptr; ///< otherwise; nullptr while it is hidden
    };
    /// Valid until the next show().
    [[nodiscard]] Look lookOf(int elementId) const;

    [[nodiscard]] const PlayedScreen& screen() const { return screen_; }
    [[nodiscard]] PlayTime time() const { return time_; }
    /// Whether the next moment looks otherwise, whenever it is: something that is shown moves, or
    /// the list scrolls.
    [[nodiscard]] bool isMoving() const;
    /// The first moment after time() at which something comes, goes or shows another text, beside
    /// what moves; `never` when all stays.
    [[nodiscard]] PlayTime nextChange() const;

  private:
    struct Slot {
        std::optional<PlayedElement> look;
        PlayTime nextChange = never; // by its timers
    };

    void make(std::size_t index);
    [[nodiscard]] bool isDue(const PlayedBy& by, const Slot& slot, bool backward,
                             const PlayChoices& choices, PlayTime time) const;
    [[nodiscard]] bool isScrolling(PlayTime time) const;

    const PlayedScreen& screen_;
    std::vector<Slot> slots_; // as screen_.live()
    std::unordered_map<int, std::size_t> places_;
    PlayChoices choices_;
    PlayTime time_ = 0;
};

} // namespace tarvel
