// Lays the screens out on a dark ground.
#include "tool/screen_sheet.h"

#include "document/layout_screens.h"
#include "widgets/qt_text.h"

#include <QColor>
#include <QFont>
#include <QPainter>

namespace tarvel::tool {

namespace {

constexpr int columns = 3;
constexpr int rows = 2;
constexpr int gap = 32;
constexpr int captionHeight = 44;
constexpr int captionPixels = 24;

static_assert(sheetSize.width() == columns * skinWidth + (columns + 1) * gap);
static_assert(sheetSize.height() == rows * (skinHeight + captionHeight) + (rows + 1) * gap);

} // namespace

QRect placeOnSheet(int screen) {
    return {gap + screen % columns * (skinWidth + gap),
            gap + screen / columns * (skinHeight + captionHeight + gap), skinWidth, skinHeight};
}

ScreenSheet::ScreenSheet(const SkinDocument& document, PictureCache& pictures,
                         const ModifierCatalogue& catalogue, const RenderOptions& options) {
    for (int screen = 0; screen < screenCount; ++screen) {
        screens_.push_back(
            std::make_unique<ScreenPicture>(document, screen, pictures, catalogue, options));
    }
}

QImage ScreenSheet::at(PlayTime time) {
    const QColor ground(0x2b, 0x2d, 0x31);
    const QColor ink(0xe6, 0xe6, 0xe6);
    QImage sheet(sheetSize, QImage::Format_RGB32);
    sheet.fill(ground);
    QPainter painter(&sheet);
    QFont font;
    font.setPixelSize(captionPixels);
    painter.setFont(font);
    painter.setPen(ink);
    for (int screen = 0; screen < screenCount; ++screen) {
        const QRect place = placeOnSheet(screen);
        const auto& named = layoutScreens.at(static_cast<std::size_t>(screen));
        painter.drawText(QRect(place.left(), place.bottom() + 1, place.width(), captionHeight),
                         Qt::AlignCenter, qtText(named.caption));
        painter.save();
        painter.translate(place.topLeft());
        screens_.at(static_cast<std::size_t>(screen))->paint(painter, time);
        painter.restore();
    }
    return sheet;
}

} // namespace tarvel::tool
