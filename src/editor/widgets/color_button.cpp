// Paints the frame and the states that all buttons with a colour share.
#include "widgets/color_button.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace tarvel {

namespace {

constexpr double cornerRadius = 3; // pixels
constexpr float frameOpacity = 0.6F;
constexpr double disabledOpacity = 0.4;

} // namespace

ColorButton::ColorButton(QWidget* parent)
    : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
}

void ColorButton::describe(const QString& valueText) {
    setToolTip(tr("%1, click to change").arg(valueText));
    setAccessibleDescription(valueText);
    update();
}

void ColorButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool strong = isEnabled() && (hasFocus() || underMouse());
    const double pen = strong && hasFocus() ? 2 : 1;
    const QRectF edge = QRectF(rect()).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
    QPainterPath shape;
    shape.addRoundedRect(edge, cornerRadius, cornerRadius);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    painter.save();
    painter.setClipPath(shape);
    paintInside(painter);
    painter.restore();
    QColor frame = palette().color(QPalette::WindowText);
    frame.setAlphaF(frameOpacity);
    painter.setPen(QPen(strong ? palette().color(QPalette::Highlight) : frame, pen));
    painter.drawPath(shape);
}

void ColorButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void ColorButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace tarvel
