// The videos of a screen at chosen moments.
#pragma once

#include "document/skin_document.h"
#include "playing/timer_play.h"
#include "surface/video_frames.h"

#include <map>
#include <memory>

namespace tarvel {

class VideoStage;

} // namespace tarvel

namespace tarvel::tool {

/// Shows of each video the frame that it has at a time, going round when it is over. A video that
/// cannot be moved to a time stays at its first frame. Needs a QGuiApplication, and waits for the
/// videos in its event loop, some seconds at most.
class VideoMoments : public VideoFrames {
  public:
    /// Brings the videos of a screen (0 to 5) to their first frame, or to a word why there is none.
    /// The document is not owned and outlives this.
    VideoMoments(const SkinDocument& document, int screen);
    ~VideoMoments() override;

    /// `time` 0 or more. Until the first call each is as it begins.
    void goTo(PlayTime time);

    [[nodiscard]] QImage frame(int elementId) const override;
    [[nodiscard]] QString problem(int elementId) const override;

  private:
    class Video;

    const SkinDocument& document_;
    std::unique_ptr<VideoStage> stage_; // plays until the first goTo()
    std::map<int, QString> problems_;
    std::map<int, std::unique_ptr<Video>> videos_;
};

} // namespace tarvel::tool
