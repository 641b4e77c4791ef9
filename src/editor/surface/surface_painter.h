// Paints one screen of a skin document, the way the drawing surface shows it.
#pragma once

#include "document/skin_document.h"
#include "playing/played_screen.h"
#include "surface/text_cache.h"

#include <QImage>
#include <QPainter>
#include <QRectF>

#include <limits>

namespace tarvel {

class PictureCache;
class PlayedFrame;
class VideoFrames;

/// Which part of a screen is painted, and on what. The rows of the screen's list count from 0 at
/// the back.
struct SurfaceView {
    int firstRow = 0;
    int endRow = std::numeric_limits<int>::max(); ///< one past the last row
    /// Takes the place of the black ground and the background picture, stretched over the screen;
    /// not owned. nullptr for none.
    const QImage* ground = nullptr;
    /// The elements as they look while the screen plays; not owned. nullptr: as they are at rest.
    const PlayedFrame* played = nullptr;
    bool crisp = false; ///< enlarged pictures show their own pixels and are not smoothed
};

/// Everything the element may cover, in skin pixels, with a margin for edges between pixels; empty
/// for an element that shows nothing because its size is zero or negative.
[[nodiscard]] QRectF elementBounds(const Element& element);
/// The same for an element while it plays.
[[nodiscard]] QRectF elementBounds(const PlayedElement& played);

/// Paints from the document alone and changes nothing in it. Keeps laid out texts from one call to
/// the next, so one painter serves one surface. Needs a QGuiApplication.
class SurfacePainter {
  public:
    /// The cache is not owned and outlives the painter.
    explicit SurfacePainter(PictureCache& pictures);

    /// Where videos get their frames from; not owned. Without it they show as empty places.
    void setVideoFrames(const VideoFrames* frames) { frames_ = frames; }

    /// Paints the screen (0 to 5) in the painter's coordinates, one unit a skin pixel, as far as it
    /// lies in `dirty`. The painter may be scaled and moved, but not turned. Leaves its state as it
    /// was.
    void paint(QPainter& painter, const SkinDocument& document, int screen, const QRectF& dirty,
               const SurfaceView& view = {});

  private:
    PictureCache& pictures_;
    const VideoFrames* frames_ = nullptr;
    TextCache texts_;
};

} // namespace tarvel
