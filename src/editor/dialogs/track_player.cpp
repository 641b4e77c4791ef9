// Plays music on the system's audio device, where there is one.
#include "dialogs/track_player.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QUrl>

namespace tarvel {

namespace {

class MediaTrackPlayer : public TrackPlayer {
  public:
    void play(const QString& file) override;
    void stop() override;

  private:
    void makePlayer();
    void showProgress();

    QMediaPlayer* player_ = nullptr; // child; made when first needed
};

QString problemOf(const QString& file) {
    const QFileInfo info(file);
    if (!info.exists()) {
        return TrackPlayer::tr("not found");
    }
    if (!info.isFile() || !info.isReadable()) {
        return TrackPlayer::tr("not readable");
    }
    // Some backends do not survive an output without a device.
    return QMediaDevices::audioOutputs().isEmpty() ? TrackPlayer::tr("no audio device") : QString();
}

void MediaTrackPlayer::play(const QString& file) {
    stop();
    const QString problem = problemOf(file);
    if (!problem.isEmpty()) {
        setState({.file = file, .problem = problem});
        return;
    }
    makePlayer();
    player_->setSource(QUrl::fromLocalFile(file));
    setState({.playing = true, .file = file});
    player_->play();
}

void MediaTrackPlayer::stop() {
    setState({}); // first, so that what the player tells while it stops is let pass
    if (player_ != nullptr) {
        player_->stop();
        player_->setSource({});
    }
}

void MediaTrackPlayer::showProgress() {
    if (state().playing) {
        State now = state();
        now.position = player_->position();
        now.duration = player_->duration();
        setState(now);
    }
}

void MediaTrackPlayer::makePlayer() {
    if (player_ != nullptr) {
        return;
    }
    player_ = new QMediaPlayer(this);
    player_->setAudioOutput(new QAudioOutput(player_));
    connect(player_, &QMediaPlayer::positionChanged, this, &MediaTrackPlayer::showProgress);
    connect(player_, &QMediaPlayer::durationChanged, this, &MediaTrackPlayer::showProgress);
    // The state of a player says nothing after an error, and errors come in bursts.
    connect(player_, &QMediaPlayer::errorOccurred, this, [this] {
        if (state().playing) {
            setState({.file = state().file, .problem = tr("cannot be played here")});
        }
    });
    // Queued: a player is not to be stopped while it tells of its end.
    connect(
        player_, &QMediaPlayer::mediaStatusChanged, this,
        [this](QMediaPlayer::MediaStatus status) {
            if (state().playing && status == QMediaPlayer::EndOfMedia) {
                stop();
            }
        },
        Qt::QueuedConnection);
}

} // namespace

std::unique_ptr<TrackPlayer> makeTrackPlayer() {
    return std::make_unique<MediaTrackPlayer>();
}

} // namespace tarvel
