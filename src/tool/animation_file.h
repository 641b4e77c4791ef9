// Files with moving pictures, written frame by frame as they come.
#pragma once

#include "files/open_file.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <memory>

namespace tarvel::tool {

/// An animation that begins anew when it is over. No more than two frames are held at a time,
/// however many there are. What fails throws FileError.
class AnimationFile {
  public:
    AnimationFile() = default;
    virtual ~AnimationFile() = default;
    AnimationFile(const AnimationFile&) = delete;
    AnimationFile& operator=(const AnimationFile&) = delete;

    /// The next frame: an opaque picture of the animation's size, shown until this many seconds
    /// after the beginning. The file counts whole parts of a second from its beginning, so that
    /// what it rounds does not add up.
    virtual void add(const QImage& frame, double until) = 0;
    /// After the last frame.
    virtual void finish() = 0;
};

/// Writes into the file from its beginning. Every pixel comes back as it was; times are in
/// milliseconds.
[[nodiscard]] std::unique_ptr<AnimationFile> webpAnimation(const OpenFile& file, QSize size);

/// Writes into the file. Each frame has at most 255 colours of its own for what changes in it;
/// times are in hundredths of a second.
[[nodiscard]] std::unique_ptr<AnimationFile> gifAnimation(const OpenFile& file, QSize size);

/// The smallest rectangle with all pixels that differ; empty when none does. Both pictures have the
/// same size and 32 bits a pixel.
[[nodiscard]] QRect changedArea(const QImage& before, const QImage& now);

} // namespace tarvel::tool
