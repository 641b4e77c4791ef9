// Paints ticks as dense as the zoom lets them be read.
#include "surface/surface_ruler.h"

#include "editing/zoom.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

constexpr int space = 3; // pixels around numbers
constexpr int markWidth = 3;

QFont numberFont(const QWidget& ruler) {
    constexpr double part = 0.8; // of the size of other texts
    QFont font = ruler.font();
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * part);
    }
    return font;
}

QColor between(const QColor& a, const QColor& b) {
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

} // namespace

SurfaceRuler::SurfaceRuler(Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent)
    , orientation_(orientation) {
    const bool level = orientation == Qt::Horizontal;
    setObjectName(level ? QStringLiteral("rulerAcross") : QStringLiteral("rulerDown"));
    setAccessibleName(level ? tr("Ruler above the drawing surface")
                            : tr("Ruler beside the drawing surface"));
    setVisible(false);
}

int SurfaceRuler::thickness() const {
    return QFontMetrics(numberFont(*this)).height() + 2 * space;
}

void SurfaceRuler::setView(double origin, double scale, int length) {
    if (origin != origin_ || scale != scale_ || length != length_) {
        origin_ = origin;
        scale_ = scale;
        length_ = length;
        update();
    }
}

void SurfaceRuler::setPointer(std::optional<double> skin) {
    if (skin != pointer_) {
        update(markRect());
        pointer_ = skin;
        update(markRect());
    }
}

QRect SurfaceRuler::markRect() const {
    if (!pointer_) {
        return {};
    }
    const int at = static_cast<int>(std::floor(placeOf(*pointer_))) - markWidth / 2;
    return orientation_ == Qt::Horizontal ? QRect(at, 0, markWidth, height())
                                          : QRect(0, at, width(), markWidth);
}

void SurfaceRuler::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    painter.setFont(numberFont(*this));
    paintTicks(painter, event->rect());
    if (pointer_) {
        painter.fillRect(markRect(), palette().color(QPalette::Highlight));
    }
}

void SurfaceRuler::paintTicks(QPainter& painter, const QRect& part) const {
    const bool level = orientation_ == Qt::Horizontal;
    const QColor ink = palette().color(QPalette::WindowText);
    const QColor faint = between(ink, palette().color(QPalette::Window));
    const auto [number, tick] = rulerTicks(scale_);
    const int thick = thickness();
    // A number reaches from its tick over the following ones.
    const double from = ((level ? part.left() : part.top()) - origin_) / scale_ - number;
    const double to = ((level ? part.right() : part.bottom()) - origin_) / scale_ + 1;
    const int first = std::max(0, static_cast<int>(std::floor(from / tick)) * tick);
    for (int at = first; at <= std::min<double>(to, length_); at += tick) {
        const bool numbered = at % number == 0;
        const int place = static_cast<int>(std::lround(placeOf(at)));
        const int length = numbered ? thick : thick / 4;
        painter.fillRect(level ? QRect(place, thick - length, 1, length)
                               : QRect(thick - length, place, length, 1),
                         numbered ? ink : faint);
        if (numbered) {
            painter.setPen(ink);
            paintNumber(painter, at);
        }
    }
    painter.fillRect(level ? QRect(part.left(), thick - 1, part.width(), 1)
                           : QRect(thick - 1, part.top(), 1, part.height()),
                     faint);
}

void SurfaceRuler::paintNumber(QPainter& painter, int number) const {
    const QFontMetrics metrics = painter.fontMetrics();
    const QString text = QString::number(number);
    const double place = std::round(placeOf(number));
    if (orientation_ == Qt::Horizontal) {
        painter.drawText(QPointF(place + space, metrics.ascent() + 1), text);
        return;
    }
    painter.save(); // from below to above, beginning at the tick below it
    painter.translate(metrics.ascent() + 1, place + space + metrics.horizontalAdvance(text));
    painter.rotate(-90);
    painter.drawText(QPointF(0, 0), text);
    painter.restore();
}

} // namespace tarvel
