// The previews of the chosen resource: imgPreview, imgPng and vidPreview, one of them in sight.
#pragma once

#include "document/skin_settings.h"

#include <QWidget>

class QStackedLayout;

namespace tarvel {

class PictureCache;
class PicturePreview;
class PngView;
class VideoPreview;

/// Shows a resource as an image of it looks on a screen, in the largest size that fits, and never
/// larger than its own. The cache of pictures is not owned.
class PreviewArea : public QWidget {
    Q_OBJECT

  public:
    explicit PreviewArea(PictureCache& pictures, QWidget* parent = nullptr);

    /// A video plays, from its beginning if it was stopped. The player has the content of every
    /// resource as its file name, and opens it for videos only.
    void showResource(const Resource& resource);
    /// Shows an empty place.
    void clear();
    /// Stops a video, which keeps its last picture.
    void stop();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  private:
    QStackedLayout* stack_;
    PicturePreview* imgPreview_;
    PngView* imgPng_;
    VideoPreview* vidPreview_;
};

} // namespace tarvel
