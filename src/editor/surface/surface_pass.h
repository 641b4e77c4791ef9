// One run of painting over the rows of a screen: what the looks of the kinds paint with.
#pragma once

#include "document/skin_document.h"
#include "surface/surface_geometry.h"
#include "surface/text_cache.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QString>

#include <string_view>

namespace tarvel {

class PictureCache;
struct Picture;
struct PlayedList;
class VideoFrames;

/// The whole surface, in skin pixels.
inline constexpr QRectF surfaceRect(0, 0, skinWidth, skinHeight);

/// Edges are snapped to pixels, so an element may show this much outside of its rectangle.
inline constexpr double edgeMargin = 1;

/// The colour with an opacity in percent.
[[nodiscard]] QColor withOpacity(ColorNumber color, int percent);

[[nodiscard]] inline bool isVisible(const ElementControl& control) {
    return control.width > 0 && control.height > 0;
}

/// Remembers the painter's pen and font, because setting them again for each element takes longer
/// than drawing most elements. Owns none of what it paints with; `frames` may be nullptr.
class SurfacePass {
  public:
    SurfacePass(QPainter& painter, PictureCache& pictures, TextCache& texts,
                const VideoFrames* frames, const QRectF& dirty, bool crisp)
        : painter_(painter)
        , pictures_(pictures)
        , texts_(texts)
        , frames_(frames)
        , crisp_(crisp)
        , grid_(painter.deviceTransform())
        , left_(dirty.left() - grid_.margin())
        , top_(dirty.top() - grid_.margin())
        , right_(dirty.right() + grid_.margin())
        , bottom_(dirty.bottom() + grid_.margin()) {}

    /// A pass over the same pixels as these are now, that paints whatever lies anywhere: for what
    /// the painter will be scaled for, which does not show where it lies at rest.
    [[nodiscard]] SurfacePass everywhere() const;

    /// Whether anything of a rectangle has to be painted.
    [[nodiscard]] bool isDirty(const ElementControl& control) const {
        const double left = control.left;
        const double top = control.top;
        return left < right_ && top < bottom_ && left + control.width > left_ &&
               top + control.height > top_ && isVisible(control);
    }
    /// Whether anything between the edges, and a margin beyond them, has to be painted.
    [[nodiscard]] bool isDirty(double left, double top, double right, double bottom,
                               double margin) const {
        return left < right_ + margin && right > left_ - margin && top < bottom_ + margin &&
               bottom > top_ - margin;
    }

    [[nodiscard]] QPainter& painter() const { return painter_; }
    [[nodiscard]] const PixelGrid& grid() const { return grid_; }
    [[nodiscard]] const VideoFrames* frames() const { return frames_; }
    /// The list of the menu that is painted next while it plays; nullptr for a picture of one.
    [[nodiscard]] const PlayedList* playedList() const { return playedList_; }
    void setPlayedList(const PlayedList* list) { playedList_ = list; }
    /// The part of a rectangle that can be seen, on the pixels of the device.
    [[nodiscard]] QRectF targetOf(const QRectF& rect) const {
        return grid_.snapped(nearSurface(rect));
    }
    void usePen(const QColor& color) {
        if (pen_ != color) {
            QPen pen(color);
            pen.setWidthF(grid_.margin()); // a thinner one would fade
            painter_.setPen(pen);
            pen_ = color;
        }
    }
    /// The laid out text of an element, with its font in use; good until the next call.
    const LaidOutText& useText(int id, const ElementControl& control);

    // Pictures in rectangles: as large as the rectangle, or in their own size.
    void paintStretched(const QRectF& rect, std::string_view file);
    void paintUnscaled(const QRectF& rect, std::string_view file);
    void drawStretched(const QRectF& rect, const QImage& image);
    void paintMissing(const QRectF& rect, std::string_view file, const QString& reason);

  private:
    void paintWithoutPicture(const QRectF& rect, std::string_view file, const Picture& picture);

    QPainter& painter_;
    PictureCache& pictures_;
    TextCache& texts_;
    const VideoFrames* frames_;
    const PlayedList* playedList_ = nullptr;
    bool crisp_; // enlarged pictures show their pixels
    PixelGrid grid_;
    double left_; // what is dirty, with the margin of edges
    double top_;
    double right_;
    double bottom_;
    QColor pen_;
    int font_ = -1;
};

} // namespace tarvel
