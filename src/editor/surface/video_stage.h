// Plays the videos of the shown screen, without sound.
#pragma once

#include "document/skin_document.h"
#include "surface/video_frames.h"

#include <QObject>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

class QMediaPlayer;
class QVideoFrame;

namespace tarvel {

/// One player for each vid element, made when its screen is shown first, playing in a loop, paused
/// while another screen is shown, and gone with its element. Never blocks: players that are done
/// with are left a moment to come to rest.
class VideoStage : public QObject, public VideoFrames {
    Q_OBJECT

  public:
    /// Players that exist at the same time. The videos beyond it on one screen, counted from the
    /// back, have a problem instead.
    static constexpr int largestCount = 8;
    static constexpr int noScreen = -1;

    explicit VideoStage(QObject* parent = nullptr);
    ~VideoStage() override;

    /// Brings the players into line with the document; `screen` is the one shown, 0 to 5, or
    /// noScreen. Showing another screen than before lets its stopped videos play again and tries
    /// again the ones that failed.
    void show(const SkinDocument& document, int screen);

    /// The same for the screen that is shown already, at the next show().
    void showAnew() { shown_ = noScreen; }

    /// Stops the videos of the document's current screen, or of the one that plays. They keep their
    /// last frame, and stay stopped until the screen is shown anew or their file changes.
    void stopAllVids(const SkinDocument& document);

    /// While screens play, each screen that is shown anew begins its videos from their start, and
    /// time may be held, sped up and gone through. Afterwards the videos that were stopped before
    /// are so again.
    void setPlaying(bool playing);
    /// Lets the time of the shown screen stand still.
    void setHeld(bool held);
    /// How quick it is, 1 as usual.
    void setRate(double rate);
    /// Goes to a time, in milliseconds since the screen was shown; videos that are shorter have
    /// begun anew by then.
    void goTo(std::int64_t time);

    [[nodiscard]] bool isPlaying(int elementId) const;

    /// True when each video of the shown screen that can be seen there has a frame, or a problem.
    [[nodiscard]] bool isSettled(const SkinDocument& document) const;

    [[nodiscard]] QImage frame(int elementId) const override;
    [[nodiscard]] QString problem(int elementId) const override;

  signals:
    /// The element looks different now: another frame, or a problem.
    void frameChanged(int elementId);
    /// A player was given up, so that show() may have room for another video.
    void placeFreed();

  private:
    struct Seat {
        std::string file;
        QMediaPlayer* player = nullptr; ///< child of the stage; nullptr with a problem
        QImage frame;
        QString problem;
        bool onShown = false; ///< its element is on the shown screen
        bool stopped = false;
        bool wasStopped = false; ///< before screens played
    };
    using Seats = std::map<int, Seat>;

    void dropOutdated(const SkinDocument& document);
    void startAfresh();
    void play(int elementId, const SkinDocument& document);
    bool makeRoom(const SkinDocument& document);
    void open(int elementId, Seat& seat);
    void watch(int elementId, QMediaPlayer* player, const std::filesystem::path& path);
    void fail(int elementId, const QString& problem);
    void takeFrame(int elementId, const QVideoFrame& frame);
    void startOrHold(QMediaPlayer& player) const;
    void retire(QMediaPlayer* player);
    Seats::iterator drop(Seats::iterator seat);

    Seats seats_;
    int shown_ = noScreen;
    bool playing_ = false;
    bool held_ = false;
    double rate_ = 1;
};

} // namespace tarvel
