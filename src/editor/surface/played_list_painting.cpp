// Rows of the same height, each with its picture, its title and its description.
#include "surface/played_list_painting.h"

#include "text/text_case.h"
#include "text/value_encodings.h"
#include "widgets/qt_text.h"
#include "widgets/skin_fonts.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

// The small pictures of the games lie side by side in one.
constexpr int pictureWidth = 46;
constexpr int pictureHeight = 34;

constexpr double largestPicture = 68; // skin pixels high
constexpr double pictureShare = 0.74; // of the height of a row
constexpr double margin = 8;          // at the sides of a row
constexpr double corner = 4;
constexpr double rowGap = 2; // between the selected row and the next

constexpr double largestTitle = 20; // skin pixels
constexpr double titleShare = 0.36;
constexpr double loneTitleShare = 0.46;   // without a description
constexpr double descriptionShare = 0.72; // of the title's size
constexpr double smallestText = 3;        // smaller ones would be but dust

constexpr QColor selectedRow(58, 138, 224);
constexpr QColor glowColor(150, 205, 255);
constexpr double selectedOpacity = 0.55;
constexpr double glowOpacity = 0.45;

const QImage& gamePictures() {
    static const QImage pictures(QStringLiteral(":/tarvel/gamepictures.png"));
    return pictures;
}

QColor colorOf(const std::string& number) {
    return qtColor(static_cast<ColorNumber>(toInt32(val(number))));
}

Qt::Alignment alignmentOf(const std::string& word) {
    if (equalsIgnoringCase(word, "right")) {
        return Qt::AlignRight;
    }
    return equalsIgnoringCase(word, "center") ? Qt::AlignHCenter : Qt::AlignLeft;
}

void paintLine(QPainter& painter, const QRectF& place, std::string_view text, double pixels,
               const QColor& color, Qt::Alignment alignment) {
    if (pixels < smallestText || place.width() <= 0) {
        return;
    }
    QFont font = skinFont({});
    font.setPixelSize(static_cast<int>(std::lround(pixels)));
    painter.setFont(font);
    painter.setPen(color);
    const QString fitting =
        QFontMetricsF(font).elidedText(qtText(text), Qt::ElideRight, place.width());
    painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                     fitting);
}

void paintSelection(QPainter& painter, const QRectF& row, double glow) {
    painter.setRenderHint(QPainter::Antialiasing, true);
    QColor fill = selectedRow;
    fill.setAlphaF(
        static_cast<float>(selectedOpacity + (1 - selectedOpacity) * glow * glowOpacity));
    QColor edge = glowColor;
    edge.setAlphaF(static_cast<float>(1 - glowOpacity + glow * glowOpacity));
    painter.setBrush(fill);
    painter.setPen(QPen(edge, 1 + glow));
    const QRectF frame = row.adjusted(rowGap, rowGap / 2, -rowGap, -rowGap / 2);
    if (!frame.isEmpty()) {
        painter.drawRoundedRect(frame, corner, corner);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void paintPicture(QPainter& painter, const QRectF& place, std::size_t item) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.drawImage(
        place, gamePictures(),
        QRectF(static_cast<double>(item) * pictureWidth, 0, pictureWidth, pictureHeight));
}

struct RowColors {
    QColor title;
    QColor description;
};

RowColors colorsOf(const MenuSettings& settings, bool selected) {
    return selected ? RowColors{colorOf(settings.selectedTitleColor),
                                colorOf(settings.selectedDescriptionColor)}
                    : RowColors{colorOf(settings.unselectedTitleColor),
                                colorOf(settings.unselectedDescriptionColor)};
}

void paintTexts(QPainter& painter, const QRectF& place, const MenuSettings& settings,
                const ListItem& item, const RowColors& colors) {
    const Qt::Alignment titleAt = alignmentOf(settings.titleAlignment);
    if (!settings.showDescription) {
        paintLine(painter, place, item.title,
                  std::min(largestTitle, place.height() * loneTitleShare), colors.title, titleAt);
        return;
    }
    const double pixels = std::min(largestTitle, place.height() * titleShare);
    // Both together stand in the middle of the row.
    const double line = pixels * 1.25;
    const double small = line * descriptionShare;
    const double top = place.top() + (place.height() - line - small) / 2;
    paintLine(painter, {place.left(), top, place.width(), line}, item.title, pixels, colors.title,
              titleAt);
    paintLine(painter, {place.left(), top + line, place.width(), small}, item.description,
              pixels * descriptionShare, colors.description,
              alignmentOf(settings.descriptionAlignment));
}

void paintRow(QPainter& painter, const QRectF& row, const MenuSettings& settings,
              const PlayedList& list, std::size_t item) {
    const bool selected = item == list.selected;
    if (selected) {
        paintSelection(painter, row, list.glow);
    }
    QRectF texts = row.adjusted(margin, 0, -margin, 0);
    if (settings.thumbnailsVisible) {
        const double height = std::min(largestPicture, row.height() * pictureShare);
        const double width = height * pictureWidth / pictureHeight;
        paintPicture(painter, {texts.left(), row.center().y() - height / 2, width, height}, item);
        texts.setLeft(texts.left() + width + margin);
    }
    paintTexts(painter, texts, settings, sampleItems.at(item), colorsOf(settings, selected));
}

} // namespace

void paintPlayedList(QPainter& painter, const QRectF& rect, const MenuSettings& settings,
                     const PlayedList& list) {
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    const double height = rect.height() / static_cast<double>(itemsShownBy(settings));
    auto item = static_cast<std::size_t>(std::max(0.0, std::floor(list.first)));
    for (; item < sampleItems.size(); ++item) {
        const double top = rect.top() + (static_cast<double>(item) - list.first) * height;
        if (top >= rect.bottom()) {
            break;
        }
        paintRow(painter, {rect.left(), top, rect.width(), height}, settings, list, item);
    }
    painter.restore();
}

} // namespace tarvel
