// Lets time pass by the clock, and makes the frame of the moment.
#include "window/play_session.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace tarvel {

PlayClock machineClock() {
    QElapsedTimer timer;
    timer.start();
    return {.elapsed = [timer] { return PlayTime{timer.elapsed()}; },
            .wall =
                [] {
                    const QDateTime now = QDateTime::currentDateTime();
                    return WallClock{.year = now.date().year(),
                                     .month = now.date().month(),
                                     .day = now.date().day(),
                                     .hour = now.time().hour(),
                                     .minute = now.time().minute(),
                                     .second = now.time().second()};
                }};
}

PlaySession::PlaySession(const SkinDocument& document, PlayClock clock)
    : document_(document)
    , clock_(std::move(clock)) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &PlaySession::tick);
}

void PlaySession::start(const SkinRun& run, ModifierCatalogue catalogue) {
    run_ = run;
    catalogue_ = std::move(catalogue);
    pace_ = {};
    choices_ = {};
    isHeld_ = false;
    isSuspended_ = false;
    seen_ = clock_.elapsed();
    sinceStart_.start();
    due_ = 0;
    beginScreen();
}

void PlaySession::end() {
    timer_.stop();
    frame_.reset();
    screen_.reset();
}

// The list stays where it is from screen to screen, as far as it fits there.
void PlaySession::beginScreen() {
    auto screen = std::make_unique<PlayedScreen>(document_, run_.screen(), catalogue_);
    const MenuSettings* menu = screen->menu();
    choices_.itemsShown = menu == nullptr ? PlayChoices{}.itemsShown : itemsShownBy(*menu);
    selectItem(choices_, choices_.list.selected);
    choices_.clock = later(clock_.wall(), -run_.at());
    frame_ = std::make_unique<PlayedFrame>(*screen, choices_);
    frame_->show(run_.at(), choices_, [](const auto*, const auto*) {});
    screen_ = std::move(screen);
    emit screenChanged();
    emit changed();
    scheduleNext();
}

void PlaySession::tick() {
    takePassed();
    show();
}

void PlaySession::takePassed() {
    const PlayTime now = clock_.elapsed();
    const PlayTime passed = std::max<PlayTime>(0, now - std::exchange(seen_, now));
    if (!isHeld_ && !isSuspended_) {
        run_.pass(pace_.passed(passed));
    }
}

void PlaySession::show() {
    if (run_.screen() != screen_->screen()) {
        beginScreen();
        return;
    }
    frame_->show(run_.at(), choices_,
                 [this](const PlayedElement* before, const PlayedElement* now) {
                     emit elementChanged(before, now);
                 });
    emit changed();
    scheduleNext();
}

// Until the next frame, counted from the moment at which this one was due: what it took to make it
// belongs to the pause. One that is late leaves some time for what else there is to do.
PlayTime PlaySession::frameStep() const {
    constexpr PlayTime shortestPause = 4;
    return std::clamp<PlayTime>(due_ + framePause - sinceStart_.elapsed(), shortestPause,
                                framePause);
}

// Milliseconds on the clock.
PlayTime PlaySession::untilNext() const {
    constexpr PlayTime wholes = 4;
    if (frame_->isMoving()) {
        return frameStep();
    }
    PlayTime next = frame_->nextChange();
    if (const auto remaining = run_.remaining()) {
        next = std::min(next, run_.at() + *remaining);
    }
    if (next == never) {
        return lookPause;
    }
    const PlayTime pause = std::min<PlayTime>(next - run_.at(), wholes * lookPause);
    return std::clamp<PlayTime>(pause * wholes / pace_.quarters(), 1, lookPause);
}

void PlaySession::scheduleNext() {
    if (isHeld_ || isSuspended_) {
        timer_.stop();
    } else {
        const PlayTime pause = untilNext();
        due_ = sinceStart_.elapsed() + pause;
        timer_.start(static_cast<int>(pause));
    }
}

// By a hand, which may come a moment after the end.
void PlaySession::change(const std::function<void()>& what) {
    if (isPlaying()) {
        takePassed();
        what();
        show();
    }
}

void PlaySession::setTime(const std::function<void()>& what) {
    if (isPlaying()) {
        change(what);
        emit timeSet();
    }
}

void PlaySession::toggleHold() {
    change([this] { isHeld_ = !isHeld_; });
}

void PlaySession::suspend(bool suspended) {
    change([&] { isSuspended_ = suspended; });
}

void PlaySession::step(PlayTime time) {
    setTime([&] { run_.pass(time); });
}

void PlaySession::goTo(PlayTime time) {
    setTime([&] { run_.goTo(time); });
}

void PlaySession::setSpeed(int quarters) {
    change([&] { pace_.setQuarters(quarters); });
}

void PlaySession::moveItem(int step) {
    change([&] { moveList(choices_, step, screen_->menu(), run_.at()); });
}

void PlaySession::force(int condition, std::optional<bool> holds) {
    change([&] { choices_.forced.at(static_cast<std::size_t>(condition)) = holds; });
}

void PlaySession::key() {
    change([this] { run_.key(); });
}

} // namespace tarvel
