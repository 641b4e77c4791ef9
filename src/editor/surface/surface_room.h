// The room in which the surface stands: its zoom, its scroll bars and its rulers.
#pragma once

#include <QAbstractScrollArea>
#include <QPointF>

#include <array>
#include <functional>
#include <optional>

namespace tarvel {

class FocusFrame;
class Pic;
class SurfaceRuler;

/// Takes all the room that it is given. The screen stands in the middle, and is scrolled along an
/// axis on which it is larger than the room; zooming at a point may scroll it further than its end,
/// so that the point stays.
class SurfaceRoom : public QAbstractScrollArea {
    Q_OBJECT

  public:
    /// Takes the surface in, which fits the room from now on.
    explicit SurfaceRoom(Pic& surface, QWidget* parent = nullptr);

    /// In per cent.
    [[nodiscard]] int zoom() const { return zoom_; }
    /// Whether the screen is kept as large as the room lets it be.
    [[nodiscard]] bool isFit() const { return isFit_; }
    void fit();
    /// Zooms about the middle of the room. Nothing happens while isBusy() says so.
    void zoomTo(int zoom);
    void zoomIn();
    void zoomOut();
    /// Whether something goes on that zooming would disturb.
    void setBusyTest(std::function<bool()> isBusy) { isBusy_ = std::move(isBusy); }

    void showRulers(bool shown);

    /// The point of the surface, with the parts of pixels that are scrolled away, that is in the
    /// room's top left corner; negative where the surface begins further in.
    [[nodiscard]] QPoint scrolled() const;
    /// As far as the scroll bars go.
    void scrollTo(QPoint scrolled);
    /// Scrolls a part of the skin to the middle when nothing of it is in sight; not while isBusy().
    void reveal(const QRectF& part);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void zoomChanged();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    // A point of the room, and what was last zoomed at there.
    struct Held {
        QPointF at;
        QPointF skin;
    };

    void zoomAt(int zoom, QPointF at);
    void zoomByWheel(const QWheelEvent& event);
    void setZoom(int zoom);
    void fitNow();
    void place(QPoint scrolled);
    void placeAlong(QScrollBar& bar, int length, int room, int wanted);
    [[nodiscard]] QPoint withinEnds(QPoint scrolled) const;
    void moveFrame();
    void movedBelowPointer();
    void forgetPointer();
    void showOnRulers();
    [[nodiscard]] QPoint surfacePlace() const;

    Pic& surface_;
    FocusFrame* frame_;
    std::array<SurfaceRuler*, 2> rulers_; // across and down
    std::function<bool()> isBusy_;
    int zoom_;
    bool isFit_ = true;
    bool isPlacing_ = false;
    QSize lastSize_;
    bool showsRulers_ = false;
    int wheeled_ = 0; // less than a step of the wheel
    std::optional<Held> held_;
    std::optional<QPointF> pointer_; // in pixels of the viewport
};

} // namespace tarvel
