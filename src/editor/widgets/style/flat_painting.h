// The shapes that the controls are painted of.
#pragma once

#include <QPainter>
#include <QStyleOption>

namespace tarvel {

/// A flat rectangle with round corners, its edge within `rect`; no edge for an invalid colour.
void paintFlat(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& edge,
               double edgeWidth = 1);

/// The ground of a button by its state: idle, below the pointer, pressed, checked, disabled; with
/// the focus, or as the default, its edge is the accent.
void paintButtonGround(QPainter& painter, const QStyleOption& option, bool isDefault);

/// The frame and ground of what is typed into.
void paintField(QPainter& painter, const QStyleOption& option);

/// A mark that is checked, half checked or not: a square, or a disc for one of several.
void paintCheckMark(QPainter& painter, const QStyleOption& option, bool round);

/// The accent around what has the focus.
void paintFocus(QPainter& painter, const QStyleOption& option);

/// An arrow in the middle of a rectangle.
void paintArrow(QPainter& painter, const QRect& rect, Qt::ArrowType direction, const QColor& color);

} // namespace tarvel
