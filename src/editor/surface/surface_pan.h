// The hand: the screen is dragged through its room by the middle button, or with Space held.
#pragma once

#include <QObject>
#include <QPoint>

class QKeyEvent;
class QMouseEvent;

namespace tarvel {

class Pic;
class SurfaceController;
class SurfaceRoom;

/// Sees events of the surface and its room before the controller does, and keeps to itself what
/// pans. Leaves a press that is at work alone. What it is given is not owned and outlives it.
class SurfacePan : public QObject {
    Q_OBJECT

  public:
    SurfacePan(Pic& surface, SurfaceRoom& room, SurfaceController& controller);

    [[nodiscard]] bool isPanning() const { return button_ != Qt::NoButton; }
    /// Puts the screen back where it was at the press.
    void cancel();

  signals:
    /// The middle button was pressed and let go without a drag.
    void clicked();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    bool keyPress(const QKeyEvent& event);
    bool keyRelease(const QKeyEvent& event);
    void end();
    void showHand();

    Pic& surface_;
    SurfaceRoom& room_;
    SurfaceController& controller_;
    bool isSpaceHeld_ = false;
    Qt::MouseButton button_ = Qt::NoButton; // that pans
    bool hasMoved_ = false;
    QPoint pressedAt_; // on the display
    QPoint start_;     // what was scrolled then
};

} // namespace tarvel
