// Paints a colour well, or the checkerboard of one without a colour.
#include "widgets/color_well.h"

#include "widgets/prompts.h"
#include "widgets/qt_text.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>

namespace tarvel {

namespace {

constexpr int wellWidth = 44; // pixels
constexpr int square = 5;     // of the checkerboard, in pixels
constexpr QColor lightSquare{236, 236, 236};
constexpr QColor darkSquare{196, 196, 196};
constexpr QColor stroke{200, 40, 40};

void paintClear(QPainter& painter, const QRect& rect) {
    painter.fillRect(rect, lightSquare);
    for (int row = 0; row * square < rect.height(); ++row) {
        for (int column = row % 2; column * square < rect.width(); column += 2) {
            painter.fillRect(rect.left() + column * square, rect.top() + row * square, square,
                             square, darkSquare);
        }
    }
    painter.setPen(QPen(stroke, 1.5));
    painter.drawLine(QRectF(rect).bottomLeft(), QRectF(rect).topRight());
}

} // namespace

ColorWell::ColorWell(QWidget* parent)
    : ColorButton(parent) {
    setSwatch({});
}

void ColorWell::setSwatch(const Swatch& swatch) {
    swatch_ = swatch;
    describe(valueText());
}

QString ColorWell::valueText() const {
    return swatch_.fillStyle == FillStyle::transparent
               ? tr("none")
               : QLatin1Char('#') + qtText(rgbHex(swatch_.color));
}

QSize ColorWell::sizeHint() const {
    return {wellWidth, QFontMetrics(font()).height() + 8};
}

void ColorWell::paintInside(QPainter& painter) {
    if (swatch_.fillStyle == FillStyle::transparent) {
        paintClear(painter, rect());
    } else {
        painter.fillRect(rect(), qtColor(swatch_.color));
    }
}

void ColorWell::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        ColorButton::keyPressEvent(event);
    }
}

std::optional<ColorNumber> askColor(Prompts& prompts, const QWidget& control, ColorNumber initial) {
    const auto chosen = prompts.color(control.window(), qtColor(initial));
    return chosen ? std::optional(colorNumber(*chosen)) : std::nullopt;
}

} // namespace tarvel
