// Timers in time: each boundary, values that are missing, and the largest ones.
#include "playing/timer_play.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <ostream>
#include <string>

namespace tarvel {

void PrintTo(const ShownSpan& span, std::ostream* out) {
    *out << span.from << " to " << span.to;
}

namespace {

constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();

struct Case {
    const char* name;
    TimerValues timers;            // Delay, CycleOn, CycleOff, Lifetime
    std::vector<PlayTime> appears; // moments at which it comes or goes, the first one coming
};

class TimerPlay : public testing::TestWithParam<Case> {};

// Just before each change the old state holds, at it the new one, and nothing happens between two.
TEST_P(TimerPlay, ChangesAtItsMomentsOnly) {
    const Case& each = GetParam();
    bool isShown = false;
    PlayTime before = -1;
    for (const PlayTime change : each.appears) {
        EXPECT_EQ(nextTimerChange(each.timers, before), change);
        EXPECT_EQ(nextTimerChange(each.timers, change - 1), change);
        EXPECT_EQ(timersShow(each.timers, change - 1), isShown) << change - 1;
        isShown = !isShown;
        EXPECT_EQ(timersShow(each.timers, change), isShown) << change;
        before = change;
    }
    EXPECT_EQ(timersShow(each.timers, before + 1), isShown);
}

INSTANTIATE_TEST_SUITE_P(
    All, TimerPlay,
    testing::Values(
        Case{"nothing", {0, 0, 0, 0}, {0}}, Case{"delay", {500, 0, 0, 0}, {500}},
        Case{"lifetime", {0, 0, 0, 700}, {0, 700}},
        Case{"delayAndLifetime", {500, 0, 0, 700}, {500, 1200}},
        Case{"cycle", {0, 100, 50, 0}, {0, 100, 150, 250, 300, 400}},
        Case{"offIsAsLongAsOn", {0, 100, 0, 0}, {0, 100, 200, 300, 400}},
        Case{"offAloneDoesNotBlink", {0, 0, 50, 0}, {0}},
        Case{"all", {1000, 100, 50, 275}, {1000, 1100, 1150, 1250}},
        Case{"endsWhileOn", {10, 100, 50, 160}, {10, 110, 160, 170}},
        Case{"endsAsItGoesOff", {0, 100, 50, 100}, {0, 100}},
        Case{"endsAsItComesBack", {0, 100, 50, 150}, {0, 100}},
        Case{"endsWhileOff", {0, 100, 50, 120}, {0, 100}},
        Case{"shortest", {1, 1, 1, 3}, {1, 2, 3, 4}}, Case{"negative", {-5, -5, -5, -5}, {0}},
        Case{"negativeOff", {0, 100, -1, 0}, {0, 100, 200, 300}},
        Case{"largest", {largest, largest, largest, largest}, {largest, PlayTime{2} * largest}},
        Case{"largestCycle",
             {largest, largest, largest, 0},
             {largest, PlayTime{2} * largest, PlayTime{3} * largest, PlayTime{4} * largest}}),
    [](const testing::TestParamInfo<Case>& each) { return std::string(each.param.name); });

TEST(TimerPlay, StaysAsItIsAtTheEnd) {
    EXPECT_EQ(nextTimerChange({0, 0, 0, 0}, 0), never);
    EXPECT_EQ(nextTimerChange({500, 0, 0, 0}, 500), never);
    EXPECT_EQ(nextTimerChange({0, 0, 0, 700}, 700), never);
    EXPECT_EQ(nextTimerChange({0, 100, 50, 120}, 100), never); // it is off when it ends
    EXPECT_FALSE(timersShow({0, 100, 50, 275}, 300));
    EXPECT_FALSE(timersShow({0, 0, 0, 0}, -1));
    EXPECT_FALSE(timersShow({0, 0, 0, 1}, never));
    EXPECT_TRUE(timersShow({0, 0, 0, 0}, never - 1));
}

// The cycle is found from the time alone, wherever that is.
TEST(TimerPlay, IsTheSameHoweverFarTheTimeIs) {
    const TimerValues timers{7, 100, 50, 0};
    const PlayTime far = 7 + PlayTime{150} * 1'000'000'000'000;
    for (PlayTime at = 0; at < 300; ++at) {
        EXPECT_EQ(timersShow(timers, far + at), timersShow(timers, 7 + at));
        EXPECT_EQ(nextTimerChange(timers, far + at) - far, nextTimerChange(timers, 7 + at) - 7);
    }
}

// Nothing overflows where there is no room for a further change.
TEST(TimerPlay, EndsWithTheTimes) {
    const PlayTime half = never / 2;
    for (const TimerValues& timers : {TimerValues{largest, largest, largest, 0},
                                      {largest, 1, largest, 0},
                                      {0, 1, 1, 0},
                                      {largest, largest, largest, largest}}) {
        for (const PlayTime at :
             {-never, -half, PlayTime{-1}, half, half + 1, never - largest, never - 1, never}) {
            const PlayTime next = nextTimerChange(timers, at);
            EXPECT_GT(next, std::min(at, never - 1)) << at;
            if (next != never) {
                EXPECT_NE(timersShow(timers, at), timersShow(timers, next)) << at;
            }
        }
    }
}

TEST(ShownSpans, AreThoseOfTheTimers) {
    using Spans = std::vector<ShownSpan>;
    EXPECT_EQ(shownSpans({0, 0, 0, 0}, 30'000, 10), (Spans{{0, 30'000}}));
    EXPECT_EQ(shownSpans({500, 0, 0, 700}, 30'000, 10), (Spans{{500, 1200}}));
    EXPECT_EQ(shownSpans({500, 0, 0, 700}, 900, 10), (Spans{{500, 900}}));
    EXPECT_EQ(shownSpans({0, 100, 50, 0}, 260, 10), (Spans{{0, 100}, {150, 250}}));
    EXPECT_EQ(shownSpans({0, 100, 50, 220}, 30'000, 10), (Spans{{0, 100}, {150, 220}}));
    EXPECT_EQ(shownSpans({0, 100, 9, 0}, 300, 10), (Spans{{0, 300}})); // too quick to be drawn
    EXPECT_EQ(shownSpans({300, 0, 0, 0}, 300, 10), Spans{});
    EXPECT_EQ(shownSpans({0, 1, 10, 0}, 30'000, 10).size(), 2728U);
}

TEST(ShownSpans, HoldWhatTheTimersShow) {
    for (const TimerValues& timers :
         {TimerValues{13, 40, 25, 333}, {0, 30, 0, 0}, {200, 0, 0, 0}, {0, 77, 11, 400}}) {
        std::vector<bool> shown(500);
        for (const ShownSpan& span : shownSpans(timers, 500, 1)) {
            for (PlayTime at = span.from; at < span.to; ++at) {
                shown[static_cast<std::size_t>(at)] = true;
            }
        }
        for (PlayTime at = 0; at < 500; ++at) {
            EXPECT_EQ(shown[static_cast<std::size_t>(at)], timersShow(timers, at)) << at;
        }
    }
}

} // namespace
} // namespace tarvel
