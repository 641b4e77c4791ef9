// A video in small, playing without sound.
#pragma once

#include "document/skin_document.h"
#include "surface/video_stage.h"

#include <QWidget>

#include <string_view>

namespace tarvel {

/// Plays a file in a loop. Never blocks; what cannot be played shows as a crossed frame that says
/// why.
class VideoPreview : public QWidget {
    Q_OBJECT

  public:
    explicit VideoPreview(QWidget* parent = nullptr);

    /// Plays a file, given as a document path. One that was stopped begins anew, one that plays
    /// goes on.
    void play(std::string_view file);
    /// Keeps the picture shown last.
    void stop();
    /// Plays nothing and opens nothing: fileName() is all that changes.
    void setFile(std::string_view file);
    /// Plays nothing and has no file.
    void clear() { setFile({}); }
    [[nodiscard]] bool isPlaying() const { return stage_.isPlaying(video_); }
    /// What was given last; "" after clear().
    [[nodiscard]] const std::string& fileName() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void take(std::string_view file);

    // The stage plays the videos of a document; this one has a single video.
    SkinDocument screenOfOne_;
    VideoStage stage_;
    int video_;
};

} // namespace tarvel
