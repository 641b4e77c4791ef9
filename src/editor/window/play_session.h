// A screen, or a whole skin from its start, while it plays: its time and what it plays with.
#pragma once

#include "playing/played_frame.h"
#include "playing/skin_run.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace tarvel {

/// Where the time comes from.
struct PlayClock {
    /// Milliseconds from any moment on.
    std::function<PlayTime()> elapsed;
    /// What the clock on the wall shows now.
    std::function<WallClock()> wall;
};

/// The clocks of the machine.
[[nodiscard]] PlayClock machineClock();

/// Lets the time of a run pass and keeps the frame in line with it. Looks again as often as
/// something moves, and else when something changes. The document is not owned; it stays as it is
/// from start() to end().
class PlaySession : public QObject {
    Q_OBJECT

  public:
    /// Pauses between frames while something moves, and between looks at the time otherwise, in
    /// milliseconds.
    static constexpr int framePause = 16;
    static constexpr int lookPause = 100;

    PlaySession(const SkinDocument& document, PlayClock clock);

    void setClock(PlayClock clock) { clock_ = std::move(clock); }

    void start(const SkinRun& run, ModifierCatalogue catalogue);
    void end();
    [[nodiscard]] bool isPlaying() const { return frame_ != nullptr; }

    [[nodiscard]] const SkinRun& run() const { return run_; }
    /// While it plays.
    [[nodiscard]] const PlayedFrame& frame() const { return *frame_; }
    [[nodiscard]] const PlayChoices& choices() const { return choices_; }
    [[nodiscard]] bool isHeld() const { return isHeld_; }
    [[nodiscard]] bool isSuspended() const { return isSuspended_; }
    /// In quarters: 1, 2, 4, 8 or 16.
    [[nodiscard]] int speed() const { return pace_.quarters(); }

    // What a hand wants; nothing happens when nothing plays.
    void toggleHold();
    /// Time stands still for as long as something else goes through it.
    void suspend(bool suspended);
    void step(PlayTime time);
    void goTo(PlayTime time);
    void setSpeed(int quarters);
    void moveItem(int step);
    /// Forces a condition by its row, or leaves it to the list.
    void force(int condition, std::optional<bool> holds);
    /// A key of the console.
    void key();

  signals:
    /// Another screen shows, from its beginning. The frame is another one.
    void screenChanged();
    /// An element looks otherwise; nullptr while it is hidden. Good until the signal's end.
    void elementChanged(const tarvel::PlayedElement* before, const tarvel::PlayedElement* now);
    /// The time is another one, or what it plays with: hold, speed, list, conditions.
    void changed();
    /// The time did not just pass: it is another one by a hand.
    void timeSet();

  private:
    void change(const std::function<void()>& what);
    void setTime(const std::function<void()>& what);
    void tick();
    void takePassed();
    void show();
    void beginScreen();
    void scheduleNext();
    [[nodiscard]] PlayTime untilNext() const;
    [[nodiscard]] PlayTime frameStep() const;

    const SkinDocument& document_;
    PlayClock clock_;
    ModifierCatalogue catalogue_;
    SkinRun run_ = SkinRun::ofScreen(0);
    PlayPace pace_;
    PlayChoices choices_;
    std::unique_ptr<PlayedScreen> screen_;
    std::unique_ptr<PlayedFrame> frame_;
    PlayTime seen_ = 0;        // on the clock
    QElapsedTimer sinceStart_; // of the machine, whatever clock it plays by
    PlayTime due_ = 0;         // when the next look is to come, since then
    bool isHeld_ = false;
    bool isSuspended_ = false;
    QTimer timer_;
};

} // namespace tarvel
