// The drawing surface: shows the current screen of a document, 640 by 480 skin pixels, at a zoom.
#pragma once

#include "document/skin_document.h"
#include "surface/surface_damage.h"
#include "surface/surface_painter.h"
#include "surface/video_stage.h"
#include "surface/view_mapping.h"

#include <QImage>
#include <QPointer>
#include <QWidget>

#include <string>
#include <vector>

namespace tarvel {

class PictureCache;
class PlayedFrame;

/// mapping() tells which widget pixels are which skin pixels; on finer displays everything is drawn
/// at their resolution.
/// Paints from the document each time and keeps no skin data besides where things were last seen.
class Pic : public QWidget, private DocumentObserver {
    Q_OBJECT

  public:
    /// The cache is not owned and outlives the surface.
    explicit Pic(PictureCache& pictures, QWidget* parent = nullptr);
    ~Pic() override;

    /// Not owned, and outlives the surface or its next setDocument(); nullptr shows black. Follows
    /// the document's changes from now on, and repaints no more than what changed.
    void setDocument(const SkinDocument* document);

    /// Where on the widget the skin is.
    [[nodiscard]] const ViewMapping& mapping() const { return mapping_; }
    /// Takes the size of the screen at a zoom, in per cent, as `editing/zoom.h` has them. A flat
    /// ground goes: it is of another size.
    void setZoom(int percent);

    /// Shows the safe area of a television as a frame.
    void showSafeArea(bool shown);
    /// Tells that the pointer is at a point of the widget, which may have moved below it.
    void tellPointer(QPointF at);

    /// Shows `ground` stretched over the screen in place of the background picture, and only the
    /// rows from `firstRow` on.
    void setFlatGround(QImage ground, int firstRow);
    /// Back to all rows on the background picture.
    void clearFlatGround();
    [[nodiscard]] bool hasFlatGround() const { return !flatGround_.isNull(); }

    /// The screen as it is shown, in the pixels of the display: on the background picture or the
    /// flat ground, with the rows before `endRow`.
    [[nodiscard]] QImage flatPicture(int endRow);

    /// Shows a screen as it plays, of the document that is set, in place of the current one at
    /// rest, and none of what lies over the surface: marks, guides. The frame is not owned and
    /// stays until the next call; nullptr ends it. Videos begin anew with each frame shown.
    void showPlayed(const PlayedFrame* frame);
    /// An element of the frame looks otherwise now; nullptr while it is hidden.
    void playedChanged(const PlayedElement* before, const PlayedElement* now);

    /// Stops the videos of the shown screen.
    void stopAllVids();
    [[nodiscard]] const VideoStage& videos() const { return videos_; }
    [[nodiscard]] VideoStage& videos() { return videos_; }

    /// The cover of the whole surface, "picBox"; hidden unless something covers the surface.
    [[nodiscard]] QWidget& picBox() { return *picBox_; }

    /// Everything the element may cover, in skin pixels; empty when it shows nothing.
    [[nodiscard]] static QRectF elementBounds(const Element& element);

    [[nodiscard]] QSize sizeHint() const override;

  signals:
    /// The pointer is at a point, in skin pixels and parts of them.
    void pointerMoved(QPointF point);
    /// Skin pixels are somewhere else on the widget.
    void mappingChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void documentChanged(const DocumentChange& change) override;
    void elementChanged(int elementId);
    void settingsChanged();
    void repaintDamage(const Damage& damage);
    void repaintRect(const QRectF& rect);
    void repaintOnce(const QRect& pixels);
    /// Of the widget; empty for what is outside of the screen.
    [[nodiscard]] QRect pixelsOf(const QRectF& rect) const;
    void catchUpLater();
    void catchUp();
    [[nodiscard]] SurfaceView view() const;
    [[nodiscard]] SurfaceView restingView() const;
    [[nodiscard]] int shownScreen() const;
    [[nodiscard]] QRectF placeOf(int elementId) const;
    void hideOverlays();
    void paintRegion(QPainter& painter, const QRegion& region);
    void paintPixelGrid(QPainter& painter, const QRect& part) const;
    void paintSafeArea(QPainter& painter) const;

    PictureCache& pictures_;
    const SkinDocument* document_ = nullptr;
    DocumentWatch watch_;
    ViewMapping mapping_;
    VideoStage videos_;
    SurfacePainter painter_;
    SurfaceDamage damage_;
    Background background_;
    QImage flatGround_;
    int firstRow_ = 0;
    QWidget* picBox_;
    const PlayedFrame* played_ = nullptr;
    std::vector<QRect> waiting_; // what has changed since the last painting while a screen plays
    std::vector<QPointer<QWidget>> overlays_; // hidden while a screen plays
    bool catchingUp_ = false;
    bool showsSafeArea_ = false;
};

} // namespace tarvel
