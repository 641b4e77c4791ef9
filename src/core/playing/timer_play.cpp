// Reckons with the place within a cycle, so that no time is far from 0.
#include "playing/timer_play.h"

#include <algorithm>
#include <cstddef>

namespace tarvel {

namespace {

// The timers with what stands in for those that are not set.
struct Plan {
    PlayTime appears;
    PlayTime on;  // never: it does not blink
    PlayTime off; // 0 then
    PlayTime gone;
};

Plan planOf(const TimerValues& timers) {
    const auto value = [&](TimerSlot slot) {
        return std::max<PlayTime>(0, timers[static_cast<std::size_t>(slot)]);
    };
    const PlayTime on = value(TimerSlot::CycleOn);
    const PlayTime off = value(TimerSlot::CycleOff);
    const PlayTime lifetime = value(TimerSlot::Lifetime);
    Plan plan{.appears = value(TimerSlot::Delay), .on = never, .off = 0, .gone = never};
    if (on > 0) {
        plan.on = on;
        plan.off = off > 0 ? off : on;
    }
    if (lifetime > 0) {
        plan.gone = plan.appears + lifetime;
    }
    return plan;
}

bool shows(const Plan& plan, PlayTime at) {
    if (at < plan.appears || at >= plan.gone) {
        return false;
    }
    return plan.on == never || (at - plan.appears) % (plan.on + plan.off) < plan.on;
}

PlayTime nextChange(const Plan& plan, PlayTime at) {
    if (at < plan.appears) {
        return plan.appears;
    }
    if (at >= plan.gone) {
        return never;
    }
    PlayTime next = never;
    if (plan.on != never) {
        const PlayTime cycle = plan.on + plan.off;
        const PlayTime within = (at - plan.appears) % cycle;
        const PlayTime until = (within < plan.on ? plan.on : cycle) - within;
        next = until < never - at ? at + until : never;
    }
    if (next < plan.gone) {
        return next;
    }
    return shows(plan, plan.gone - 1) ? plan.gone : never;
}

} // namespace

bool timersShow(const TimerValues& timers, PlayTime at) {
    return at >= 0 && shows(planOf(timers), at);
}

PlayTime nextTimerChange(const TimerValues& timers, PlayTime at) {
    const Plan plan = planOf(timers);
    return at < 0 && shows(plan, 0) ? 0 : nextChange(plan, std::max<PlayTime>(at, 0));
}

std::vector<ShownSpan> shownSpans(const TimerValues& timers, PlayTime end, PlayTime smallest) {
    const Plan plan = planOf(timers);
    const PlayTime last = std::min(end, plan.gone);
    std::vector<ShownSpan> spans;
    if (plan.appears >= last) {
        return spans;
    }
    if (plan.on == never || plan.off < smallest) {
        return {{plan.appears, last}};
    }
    for (PlayTime from = plan.appears; from < last; from += plan.on + plan.off) {
        spans.push_back({from, std::min(from + plan.on, last)});
    }
    return spans;
}

} // namespace tarvel
