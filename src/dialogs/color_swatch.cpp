// Painting of colour boxes.
#include "dialogs/color_swatch.h"

#include "app/text.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int narrowest = 52; // pixels

QColor readableOn(const QColor& color) {
    return qGray(color.rgb()) > 140 ? Qt::black : Qt::white;
}

} // namespace

ColorSwatch::ColorSwatch(QWidget* parent)
    : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    setColor(0);
}

void ColorSwatch::setColor(ColorNumber color) {
    color_ = color;
    const QString hex = QLatin1Char('#') + qtText(rgbHex(color));
    setToolTip(tr("%1, click to change").arg(hex));
    setAccessibleDescription(hex);
    update();
}

QSize ColorSwatch::sizeHint() const {
    const QFontMetrics metrics(font());
    const int textWidth = text().isEmpty() ? 0 : metrics.horizontalAdvance(text()) + 24;
    return {std::max(narrowest, textWidth), metrics.height() + 8};
}

void ColorSwatch::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool strong = hasFocus() || underMouse();
    const QColor frame = strong ? palette().color(QPalette::Highlight)
                                : palette().color(QPalette::WindowText).lighter(100);
    const double pen = hasFocus() ? 2 : 1;
    QColor frameColor = frame;
    if (!strong) {
        frameColor.setAlphaF(0.5F);
    }
    painter.setPen(QPen(frameColor, pen));
    const double inset = pen / 2;
    painter.setBrush(qtColor(color_));
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 3, 3);
    if (!text().isEmpty()) {
        painter.setPen(readableOn(qtColor(color_)));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
}

void ColorSwatch::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void ColorSwatch::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace tarvel
