// The main window at a zoom, with places of the skin and of the room to point at.
#pragma once

#include "support/behaviour_editor.h"
#include "support/settle.h"
#include "surface/pic.h"
#include "surface/surface_room.h"

#include <QLabel>
#include <QMouseEvent>

namespace tarvel::test {

/// A box at 20, 20 with sides of 100 and 50, and one at 300, 200, of the same size.
struct ZoomEditor : BehaviourEditor {
    explicit ZoomEditor(int zoom = 100)
        : BehaviourEditor(1) {
        add(boxAt(300, 200, 100, 50));
        zoomTo(zoom);
    }
    SurfaceRoom& room() { return *find<SurfaceRoom>("surfaceRoom"); }
    Pic& surface() { return *find<Pic>("Pic"); }
    void zoomTo(int zoom) {
        room().zoomTo(zoom);
        settle();
    }
    [[nodiscard]] double scale() { return surface().mapping().scale(); }
    /// Where a point of the skin is on the surface.
    QPoint at(QPointF skin) { return surface().mapping().toWidget(skin).toPoint(); }
    void dragSkin(QPointF from, QPoint way) { pressDragRelease(at(from), at(from) + way); }
    QPoint middle() { return room().viewport()->rect().center(); }
    QPoint ofSurface(QPoint inRoom) { return pic()->mapFrom(room().viewport(), inRoom); }
    void button(QEvent::Type type, Qt::MouseButton which, QPoint inRoom) {
        const bool isMove = type == QEvent::MouseMove;
        const bool isUp = type == QEvent::MouseButtonRelease;
        const QPoint inSurface = ofSurface(inRoom);
        QMouseEvent event(type, inSurface, pic()->mapToGlobal(inSurface),
                          isMove ? Qt::NoButton : which, isUp ? Qt::NoButton : which, {});
        QApplication::sendEvent(pic(), &event);
    }
    /// Drags a point of the room with a button.
    void pan(Qt::MouseButton which, QPoint way) {
        button(QEvent::MouseButtonPress, which, middle());
        button(QEvent::MouseMove, which, middle() + way / 2);
        button(QEvent::MouseMove, which, middle() + way);
        button(QEvent::MouseButtonRelease, which, middle() + way);
    }
    void space(QEvent::Type type) {
        QKeyEvent event(type, Qt::Key_Space, {}, QStringLiteral(" "));
        QApplication::sendEvent(pic(), &event);
    }
    /// The pointer at a place of the surface, be it in the room or not.
    void hover(QPoint at) {
        QMouseEvent event(QEvent::MouseMove, at, pic()->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                          {});
        QApplication::sendEvent(pic(), &event);
    }
    QWidget* mark(const char* name) { return find<QWidget>(name); }
    Qt::CursorShape cursor() { return pic()->cursor().shape(); }
    QString text() { return find<QLabel>("lblPos")->text(); }
};

} // namespace tarvel::test
