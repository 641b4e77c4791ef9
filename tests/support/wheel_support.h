// Turning the wheel over a widget as the system tells it: whoever does not want it hands it on.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QtTest/qtestspontaneevent.h>

namespace tarvel::test {

/// The wheel turned at a point of a widget, by steps; upwards they count above 0.
inline void turnWheel(QWidget& widget, QPoint at, int steps, Qt::KeyboardModifiers keys = {}) {
    constexpr int step = 120;
    QWidget* inside = widget.childAt(at);
    QWidget* below = inside != nullptr ? inside : &widget;
    const QPoint global = widget.mapToGlobal(at);
    QWheelEvent event(below->mapFromGlobal(QPointF(global)), global, {}, {0, step * steps},
                      Qt::NoButton, keys, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // others are not handed on
    qApp->notify(below, &event);
}

} // namespace tarvel::test
