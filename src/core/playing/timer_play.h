// What the four timers of an element do in time.
#pragma once

#include "document/timers.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace tarvel {

/// Milliseconds since the screen was activated.
using PlayTime = std::int64_t;

/// A time that does not come.
inline constexpr PlayTime never = std::numeric_limits<PlayTime>::max();

/// Whether an element with these timers is shown. It is hidden until Delay; then it is on for
/// CycleOn and off for CycleOff in turns, beginning with on; Lifetime after its appearance it is
/// gone for good. At the very moment of a change the new state holds. Without Delay it is there at
/// once, without CycleOn it does not blink, without CycleOff it is off for as long as it is on, and
/// without Lifetime it stays. Values below 1 are not set. Nothing is shown before the time 0.
[[nodiscard]] bool timersShow(const TimerValues& timers, PlayTime at);

/// The first moment after `at` at which timersShow() changes; `never` when it stays as it is.
[[nodiscard]] PlayTime nextTimerChange(const TimerValues& timers, PlayTime at);

/// A time during which an element is shown; `to` is the first moment at which it is not.
struct ShownSpan {
    PlayTime from;
    PlayTime to;

    bool operator==(const ShownSpan&) const = default;
};

/// The spans from 0 up to `end`, which cuts the last one. Spans that a gap shorter than `smallest`
/// milliseconds parts count as one, so that there are no more than end / smallest + 1 of them, and
/// blinking that is too quick to be drawn costs no more than its picture. `smallest` is above 0.
[[nodiscard]] std::vector<ShownSpan> shownSpans(const TimerValues& timers, PlayTime end,
                                                PlayTime smallest);

} // namespace tarvel
