// Turns the pointer's and the keyboard's events on the drawing surface into work on the document.
#pragma once

#include "editing/hit_test.h"
#include "editing/manipulation.h"
#include "editing/pick_index.h"
#include "surface/canvas_tool.h"

#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QTimer>

#include <memory>
#include <optional>

class QContextMenuEvent;
class QDropEvent;
class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace tarvel {

class Pic;
class GuideMarks;
class SelectionMarks;

/// Watches the surface's events. Surface, host and marks are not owned and outlive it.
class SurfaceController : public QObject, private DocumentObserver {
    Q_OBJECT

  public:
    SurfaceController(Pic& surface, ToolHost& host, SelectionMarks& marks);
    ~SurfaceController() override;

    /// The kind that the next press draws; nothing lets presses pick.
    void setTool(std::optional<ElementKind> kind);
    /// What is drawn, moved and sized from now on snaps to.
    void setSnapping(const SnapOptions& options);
    /// Whether the pointer is drawing or dragging.
    [[nodiscard]] bool isWorking() const { return work_ != nullptr; }
    /// Whether an element is just being made and selected.
    [[nodiscard]] bool isMaking() const { return making_; }
    /// Shows the pointer that tells what a press would do, after something else had changed it.
    void restorePointer();
    /// Takes back what the pointer is doing.
    void cancelWork();
    /// Ends what the pointer is doing where it stands, as letting the button go does.
    void endWork();

  signals:
    /// A button went down: previews are to stop.
    void pressed();
    /// A tool's kind is about to be drawn. Answer with `refuse` set to keep it from being made.
    void aboutToDraw(tarvel::ElementKind kind, bool& refuse);
    /// The right button asks for a menu, or the menu key.
    void menuWanted(QPoint globalPosition);
    /// The pointer is over the element of this row of the current screen and could pick it; -1 for
    /// none. Told again for the same row when the document has changed.
    void rowHovered(int row);
    /// Escape, with nothing going on.
    void toolGivenUp();
    /// A file of the host was dropped onto the surface.
    void fileDropped(const QString& file);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // The pointer: what it draws and drags goes by skin pixels, what it picks is where it is.
    struct PointerAt {
        SkinPoint pixel;
        SkinPoint exact;
    };

    void documentChanged(const DocumentChange& change) override;
    void press(const QMouseEvent& event);
    void pressLeft(const PointerAt& at, Qt::KeyboardModifiers keys);
    bool pressSeveral(const PointerAt& at, bool copies);
    bool pressSelected(const PointerAt& at, bool copies);
    void pressAnew(const PointerAt& at, bool copies);
    bool leadAt(SkinPoint point);
    void toggleAt(const PointerAt& at);
    void pick(SkinPoint point);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void drop(QDropEvent& event);
    bool contextMenu(const QContextMenuEvent& event);
    bool key(const QKeyEvent& event);
    bool arrowKey(const QKeyEvent& event);
    void nudge(ArrowKey key, int modifiers);
    void showPointer();
    void showPointerLater();
    void draw(ElementKind kind, const PointerAt& press);
    [[nodiscard]] Qt::CursorShape pointerAt(SkinPoint point, int row);
    void tellHovered(int row);
    [[nodiscard]] SkinPoint pointOf(const QMouseEvent& event) const;
    [[nodiscard]] PointerAt pointerOf(const QMouseEvent& event) const;
    [[nodiscard]] bool isStillAtPress(const QMouseEvent& event) const;
    [[nodiscard]] double zoom() const;
    [[nodiscard]] SkinPoint snappedPointOf(const QMouseEvent& event);
    [[nodiscard]] double snapTolerance() const;
    [[nodiscard]] std::unique_ptr<CanvasTool> takeWork();
    [[nodiscard]] bool refused(ElementKind kind);

    Pic& surface_;
    ToolHost& host_;
    SelectionMarks& marks_;
    PickIndex picks_;
    DocumentWatch watch_;
    DocumentWatch picksWatch_;
    QTimer nudgeEnd_; // between arrow keys that are one step
    std::optional<ElementKind> kind_;
    std::unique_ptr<CanvasTool> work_;
    SnapOptions snapping_;
    std::optional<SnapDrag> snap_; // of work_, from its first move on
    struct DrawnFrom {
        QPointF pressed; // in pixels of the widget
        SkinPoint snapped;
    };
    QPointF pressedAt_;                  // the last press, in pixels of the widget
    std::optional<DrawnFrom> drawnFrom_; // while work_ draws
    GuideMarks* guides_;
    bool making_ = false;
    SkinPoint lastPoint_;
    std::optional<SkinPoint> hover_; // where the pointer stands, while it is over the surface
    bool pointerIsStale_ = false;
    int hoveredRow_ = -1;
};

} // namespace tarvel
