// The run of a skin from its start: which screen shows at a time, and for how long still.
#pragma once

#include "playing/timer_play.h"

#include <array>
#include <optional>

namespace tarvel {

/// The time within the screen that plays: of one screen for as long as one likes, or of the whole
/// skin, "Load" and "Title" for their delays, then "Menu", and "Saver" after its delay without a
/// key, until a key. "Load" and "Title" without a delay above 0 pass at once, and without one for
/// the saver "Menu" stays.
class SkinRun {
  public:
    /// `screen` 0 to 5.
    [[nodiscard]] static SkinRun ofScreen(int screen);
    /// Delays in milliseconds, in the order of the settings.
    [[nodiscard]] static SkinRun ofSkin(const std::array<double, 3>& delays);

    [[nodiscard]] int screen() const { return screen_; }
    /// Milliseconds since the screen was activated.
    [[nodiscard]] PlayTime at() const { return at_; }
    /// Until the next screen; nothing when this one stays.
    [[nodiscard]] std::optional<PlayTime> remaining() const;
    /// Whether a key has something to end or to put off: the saver, or its coming.
    [[nodiscard]] bool heedsKeys() const;

    /// Time passes; below 0 it goes back, as far as the beginning of this screen.
    void pass(PlayTime time);
    /// To a time of this screen; past its end the next ones follow.
    void goTo(PlayTime at);
    /// A key of the console: the saver goes, or takes its time anew.
    void key();

    bool operator==(const SkinRun&) const = default;

  private:
    [[nodiscard]] PlayTime stay() const;
    void settle();

    bool isWholeSkin_ = false;
    std::array<PlayTime, 3> delays_{};
    int screen_ = 0;
    PlayTime at_ = 0;
    PlayTime quietSince_ = 0; // on "Menu": the time of the last key
};

/// Turns the time of a clock into that of a run, which may be slower or quicker.
class PlayPace {
  public:
    /// The speed in quarters: 1 for a quarter, 4 for that of the clock, 16 for four times as quick.
    void setQuarters(int quarters);
    [[nodiscard]] int quarters() const { return quarters_; }
    /// How much time passes in the run. No part of a millisecond is lost from call to call.
    [[nodiscard]] PlayTime passed(PlayTime onClock);

  private:
    int quarters_ = 4;
    PlayTime rest_ = 0; // quarters of milliseconds
};

} // namespace tarvel
