// Goes from screen to screen as their delays pass.
#include "playing/skin_run.h"

#include "document/layout_screens.h"
#include "document/skin_settings.h"

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

constexpr int titleScreen = 0;
constexpr int loadScreen = 2;
constexpr int saverScreen = 3;

PlayTime delayIn(double milliseconds) {
    constexpr double longest = 1e15;
    if (!(milliseconds > 0)) {
        return 0;
    }
    // Parts of a millisecond take a whole one.
    return static_cast<PlayTime>(std::ceil(std::min(milliseconds, longest)));
}

} // namespace

SkinRun SkinRun::ofScreen(int screen) {
    SkinRun run;
    run.screen_ = screen;
    return run;
}

SkinRun SkinRun::ofSkin(const std::array<double, 3>& delays) {
    SkinRun run;
    run.isWholeSkin_ = true;
    std::transform(delays.begin(), delays.end(), run.delays_.begin(), delayIn);
    run.screen_ = loadScreen;
    run.settle();
    return run;
}

// How long this screen stays, from its beginning.
PlayTime SkinRun::stay() const {
    if (!isWholeSkin_) {
        return never;
    }
    const auto delay = [&](DelaySlot slot) { return delays_.at(static_cast<std::size_t>(slot)); };
    switch (screen_) {
    case loadScreen:
        return delay(DelaySlot::Load);
    case titleScreen:
        return delay(DelaySlot::Title);
    case menuScreen:
        return delay(DelaySlot::Saver) > 0 ? quietSince_ + delay(DelaySlot::Saver) : never;
    default:
        return never;
    }
}

void SkinRun::settle() {
    for (PlayTime end = stay(); at_ >= end; end = stay()) {
        at_ -= end;
        quietSince_ = 0;
        if (screen_ == loadScreen) {
            screen_ = titleScreen;
        } else if (screen_ == titleScreen) {
            screen_ = menuScreen;
        } else {
            screen_ = saverScreen;
        }
    }
}

std::optional<PlayTime> SkinRun::remaining() const {
    const PlayTime end = stay();
    return end == never ? std::nullopt : std::optional(end - at_);
}

bool SkinRun::heedsKeys() const {
    return isWholeSkin_ && (screen_ == saverScreen || (screen_ == menuScreen && stay() != never));
}

void SkinRun::pass(PlayTime time) {
    goTo(at_ + time);
}

void SkinRun::goTo(PlayTime at) {
    at_ = std::max<PlayTime>(at, 0);
    quietSince_ = std::min(quietSince_, at_);
    settle();
}

void SkinRun::key() {
    if (isWholeSkin_ && screen_ == saverScreen) {
        screen_ = menuScreen;
        at_ = 0;
        quietSince_ = 0;
    } else if (isWholeSkin_ && screen_ == menuScreen) {
        quietSince_ = at_;
    }
}

void PlayPace::setQuarters(int quarters) {
    quarters_ = std::clamp(quarters, 1, 16);
}

PlayTime PlayPace::passed(PlayTime onClock) {
    constexpr PlayTime wholes = 4;
    const PlayTime quarters = onClock * quarters_ + rest_;
    rest_ = quarters % wholes;
    return quarters / wholes;
}

} // namespace tarvel
