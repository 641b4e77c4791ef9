// One screen as a picture, at rest or at the moments of its playing.
#pragma once

#include "playing/played_frame.h"
#include "surface/surface_painter.h"
#include "tool/render_options.h"

#include <QImage>

#include <memory>
#include <optional>

namespace tarvel::tool {

class VideoMoments;

/// Paints with the editor's surface. Needs a QGuiApplication. The document, the pictures and the
/// catalogue are not owned and outlive this.
class ScreenPicture {
  public:
    /// `screen` 0 to 5; without options it is at rest, with videos at their first frame.
    ScreenPicture(const SkinDocument& document, int screen, PictureCache& pictures,
                  const ModifierCatalogue& catalogue, const RenderOptions& options);
    ~ScreenPicture();
    ScreenPicture(const ScreenPicture&) = delete;
    ScreenPicture& operator=(const ScreenPicture&) = delete;

    /// The screen at a time, which is of no account at rest, in the painter's coordinates.
    void paint(QPainter& painter, PlayTime time);

  private:
    const SkinDocument& document_;
    int screen_;
    std::optional<PlayedScreen> played_; // the members from here on only where it plays
    PlayChoices choices_;
    std::optional<PlayedFrame> frame_;
    std::unique_ptr<VideoMoments> videos_;
    SurfacePainter painter_;
};

} // namespace tarvel::tool
