// Paints crossed and empty frames, and the words in them.
#include "surface/picture_place.h"

#include "widgets/skin_fonts.h"

#include <QFontMetricsF>

#include <algorithm>

namespace tarvel {

namespace {

constexpr QColor groundColor{28, 32, 40, 225};
constexpr QColor frameColor{172, 181, 194};
constexpr QColor crossColor{172, 181, 194, 110};
constexpr QColor nameColor{240, 243, 247};
constexpr QColor reasonColor{255, 196, 120};
constexpr double textMargin = 2;     // skin pixels
constexpr double narrowestText = 24; // skin pixels; less shows nothing but dots

void paintFrame(QPainter& painter, const QRectF& rect, const QColor& color) {
    const double edge = std::min({1.0, rect.width(), rect.height()});
    painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), edge), color);
    painter.fillRect(QRectF(rect.left(), rect.bottom() - edge, rect.width(), edge), color);
    painter.fillRect(QRectF(rect.left(), rect.top(), edge, rect.height()), color);
    painter.fillRect(QRectF(rect.right() - edge, rect.top(), edge, rect.height()), color);
}

void paintCross(QPainter& painter, const QRectF& rect) {
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(crossColor, 1));
    painter.drawLine(rect.topLeft(), rect.bottomRight());
    painter.drawLine(rect.topRight(), rect.bottomLeft());
    painter.setRenderHint(QPainter::Antialiasing, false);
}

// One line of text in the middle of the width.
void paintLine(QPainter& painter, const QRectF& room, double top, const QFont& font,
               const QColor& color, const QString& text, Qt::TextElideMode elision) {
    const QFontMetricsF metrics(font);
    const double width = room.width() - 2 * textMargin;
    const QString shown = metrics.elidedText(text, elision, width);
    const double left = room.center().x() - metrics.horizontalAdvance(shown) / 2;
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(QPointF(qRound(left), top + qRound(metrics.ascent())), shown);
}

// The usual font of names, or a smaller one where that would be too high.
QFont nameFontIn(const QRectF& room) {
    QFont usual = skinFont({.size = 8.25F});
    const bool isLow = room.height() < qRound(QFontMetricsF(usual).height()) + 2;
    return isLow ? skinFont({.size = 6}) : usual;
}

void paintTexts(QPainter& painter, const QRectF& room, const QString& name, const QString& reason) {
    const QFont nameFont = nameFontIn(room);
    const QFont reasonFont = skinFont({.size = 7.5F});
    const double nameHeight = qRound(QFontMetricsF(nameFont).height());
    const double reasonHeight = qRound(QFontMetricsF(reasonFont).height());
    const bool both = room.height() >= nameHeight + reasonHeight + 2;
    const double height = both ? nameHeight + reasonHeight : nameHeight;
    if (room.width() < narrowestText + 2 * textMargin || room.height() < height + 2) {
        return;
    }
    const double top = qRound(room.center().y() - height / 2);
    // A plate keeps the diagonals out of the letters.
    const double reasonWidth = both ? QFontMetricsF(reasonFont).horizontalAdvance(reason) : 0;
    const double widest = std::max(QFontMetricsF(nameFont).horizontalAdvance(name), reasonWidth);
    const double plate = std::min(room.width() - 2, widest + 2 * textMargin);
    painter.fillRect(QRectF(qRound(room.center().x() - plate / 2), top, qRound(plate), height),
                     groundColor);
    paintLine(painter, room, top, nameFont, nameColor, name, Qt::ElideMiddle);
    if (both) {
        paintLine(painter, room, top + nameHeight, reasonFont, reasonColor, reason, Qt::ElideRight);
    }
}

} // namespace

void paintMissingPicture(QPainter& painter, const QRectF& rect, const QRectF& visible,
                         const QString& name, const QString& reason) {
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    painter.fillRect(rect, groundColor);
    paintCross(painter, rect);
    paintFrame(painter, rect, frameColor);
    paintTexts(painter, rect & visible, name, reason);
    painter.restore();
}

void paintPendingPicture(QPainter& painter, const QRectF& rect) {
    painter.fillRect(rect, groundColor);
    paintFrame(painter, rect, crossColor);
}

} // namespace tarvel
