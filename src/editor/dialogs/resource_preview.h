// One resource in large: its picture, or its video playing.
#pragma once

#include "document/skin_document.h"
#include "surface/video_stage.h"

#include <QWidget>

namespace tarvel {

class PictureCache;

/// Pictures are shown at their own size where that fits, on a checkerboard where they are not
/// opaque. Videos play in a loop, without sound.
class ResourcePreview : public QWidget {
    Q_OBJECT

  public:
    explicit ResourcePreview(PictureCache& pictures, QWidget* parent = nullptr);

    void showNothing();
    void showResource(const Resource& resource);
    /// A line about what is shown.
    [[nodiscard]] QString description() const;
    [[nodiscard]] bool isPlaying() const;

    [[nodiscard]] QSize sizeHint() const override { return {320, 240}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintVideo(QPainter& painter, const QRectF& room);
    void paintMissing(QPainter& painter, const QRectF& room, const QString& problem);

    PictureCache& pictures_;
    Resource resource_; // without content: nothing is shown
    // The stage plays the videos of a document; this one has a single video.
    SkinDocument screenOfOne_;
    VideoStage stage_;
    int video_;
};

} // namespace tarvel
