// What the drawing side needs to know of playing videos.
#pragma once

#include <QImage>
#include <QString>

namespace tarvel {

class VideoFrames {
  public:
    virtual ~VideoFrames() = default;

    /// The newest frame of the element's video; null before the first one.
    [[nodiscard]] virtual QImage frame(int elementId) const = 0;
    /// Why there never will be a frame, in a few words; empty while there may be one.
    [[nodiscard]] virtual QString problem(int elementId) const = 0;
};

} // namespace tarvel
