// Paints a box in its colour.
#include "widgets/color_swatch.h"

#include "widgets/qt_text.h"

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
    : ColorButton(parent) {
    setColor(0);
}

void ColorSwatch::setColor(ColorNumber color) {
    color_ = color;
    describe(QLatin1Char('#') + qtText(rgbHex(color)));
}

QSize ColorSwatch::sizeHint() const {
    const QFontMetrics metrics(font());
    const int textWidth =
        text().isEmpty() ? 0 : metrics.size(Qt::TextShowMnemonic, text()).width() + 24;
    return {std::max(narrowest, textWidth), metrics.height() + 8};
}

void ColorSwatch::paintInside(QPainter& painter) {
    const QColor color = qtColor(color_);
    painter.fillRect(rect(), color);
    if (!text().isEmpty()) {
        painter.setPen(readableOn(color));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
    }
}

} // namespace tarvel
