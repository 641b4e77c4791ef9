// One resource in large: its picture, or its video playing.
#pragma once

#include "document/skin_settings.h"

#include <QWidget>

class QStackedLayout;

namespace tarvel {

class PictureCache;
class PicturePreview;
class VideoPreview;

/// Shows a resource as an image of it looks on a screen, in the largest size that fits, and never
/// larger than its own; on a checkerboard where it is not opaque. Videos play in a loop, without
/// sound. The cache of pictures is not owned.
class ResourcePreview : public QWidget {
    Q_OBJECT

  public:
    /// `usual` is the size that it would like to have, in pixels; `emptyText` is what it says while
    /// it shows nothing.
    ResourcePreview(PictureCache& pictures, QSize usual, const QString& emptyText = {},
                    QWidget* parent = nullptr);

    /// Names what is shown for each type of file: imgPreview, imgPng and vidPreview, one of them in
    /// sight. For where the whole has no name.
    void nameParts();

    /// A video plays, from its beginning if it was stopped. The player has the content of every
    /// resource as its file name, and opens it for videos only.
    void showResource(const Resource& resource);
    void showNothing();
    /// Stops a video, which keeps its last picture.
    void stop();
    [[nodiscard]] bool isPlaying() const;

    [[nodiscard]] QSize sizeHint() const override { return usual_; }
    [[nodiscard]] QSize minimumSizeHint() const override { return usual_; }

  private:
    QSize usual_;
    QStackedLayout* stack_;
    PicturePreview* picture_;
    PicturePreview* png_;
    VideoPreview* video_;
};

} // namespace tarvel
