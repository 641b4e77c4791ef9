// Plays a music file, so that the user can listen to it before it is in a skin.
#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace tarvel {

/// Plays one file at a time.
class TrackPlayer : public QObject {
    Q_OBJECT

  public:
    struct State {
        bool playing = false;
        QString file{};      ///< that plays, or could not be played; empty otherwise
        QString problem{};   ///< why it cannot be played, in a few words; empty when it can
        qint64 position = 0; ///< milliseconds
        qint64 duration = 0; ///< milliseconds; 0 while unknown
    };

    /// Plays a file of the host from its beginning, in the place of the one that plays.
    virtual void play(const QString& file) = 0;
    /// Falls silent; also forgets a problem.
    virtual void stop() = 0;

    [[nodiscard]] const State& state() const { return state_; }

  signals:
    /// Another state.
    void changed();

  protected:
    using QObject::QObject;

    void setState(const State& state) {
        state_ = state;
        emit changed();
    }

  private:
    State state_;
};

/// A player that can be heard. Without an audio device every file has a problem.
[[nodiscard]] std::unique_ptr<TrackPlayer> makeTrackPlayer();

} // namespace tarvel
