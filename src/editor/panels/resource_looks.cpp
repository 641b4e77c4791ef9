// Paints thumbnails, pictures that fit, and the checkerboard below them.
#include "panels/resource_looks.h"

#include "surface/picture_cache.h"
#include "widgets/qt_text.h"

#include <QObject>
#include <QPainter>

#include <array>
#include <cmath>

namespace tarvel {

namespace {

constexpr QColor lightSquare{204, 204, 204};
constexpr QColor darkSquare{153, 153, 153};
constexpr QColor filmColor{38, 42, 50};
constexpr QColor filmHole{214, 220, 228};
constexpr QColor filmFrame{96, 140, 196};
constexpr QColor crossColor{196, 88, 72};
constexpr QColor edgeColor{128, 128, 128, 120};

// A strip of film: two rows of holes, a frame with a triangle between them.
void paintFilm(QPainter& painter, const QRectF& rect) {
    painter.fillRect(rect, filmColor);
    const double side = rect.height() / 8;
    for (double x = rect.left() + side / 2; x + side <= rect.right(); x += 2 * side) {
        painter.fillRect(QRectF(x, rect.top() + side / 2, side, side), filmHole);
        painter.fillRect(QRectF(x, rect.bottom() - 1.5 * side, side, side), filmHole);
    }
    painter.fillRect(rect.adjusted(0, 2 * side, 0, -2 * side), filmFrame);
    const QPointF middle = rect.center();
    const double half = 1.2 * side;
    const std::array<QPointF, 3> triangle = {middle + QPointF(-0.7 * half, -half),
                                             middle + QPointF(half, 0),
                                             middle + QPointF(-0.7 * half, half)};
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawPolygon(triangle.data(), static_cast<int>(triangle.size()));
}

void paintCrossed(QPainter& painter, const QRectF& rect) {
    painter.fillRect(rect, QColor(128, 128, 128, 60));
    painter.setPen(QPen(crossColor, 2));
    const QRectF inside =
        rect.adjusted(rect.width() / 3, rect.height() / 3, -rect.width() / 3, -rect.height() / 3);
    painter.drawLine(inside.topLeft(), inside.bottomRight());
    painter.drawLine(inside.topRight(), inside.bottomLeft());
}

QImage transparentImage(QSize size, double ratio) {
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

ResourceLook lookOf(const Resource& resource) {
    if (!resource.isFile) {
        return ResourceLook::preset;
    }
    if (resource.outside) {
        return ResourceLook::outside;
    }
    return isVideoFile(resource.content) ? ResourceLook::video : ResourceLook::picture;
}

QString lineAbout(const Resource& resource, PictureCache& pictures) {
    QString name = qtText(trimtofile(resource.content));
    switch (lookOf(resource)) {
    case ResourceLook::preset:
        return QObject::tr("Supplied by the dashboard");
    case ResourceLook::outside:
        return QObject::tr("%1: outside the skin's folder, not opened").arg(name);
    case ResourceLook::video:
        return name;
    case ResourceLook::picture:
        break;
    }
    const QSize size = pictures.pictureSize(resource.content);
    return size.isEmpty()
               ? name
               : QObject::tr("%1, %2 x %3").arg(name).arg(size.width()).arg(size.height());
}

void paintCheckerboard(QPainter& painter, const QRectF& rect, int square) {
    painter.fillRect(rect, lightSquare);
    const int columns = static_cast<int>(std::ceil(rect.width() / square));
    const int rows = static_cast<int>(std::ceil(rect.height() / square));
    for (int row = 0; row < rows; ++row) {
        for (int column = row % 2; column < columns; column += 2) {
            const QRectF cell(rect.left() + column * square, rect.top() + row * square, square,
                              square);
            painter.fillRect(cell & rect, darkSquare);
        }
    }
}

QString paintFitted(QPainter& painter, const QRectF& room, PictureCache& pictures,
                    std::string_view file, int square) {
    const QSize own = pictures.pictureSize(file);
    QSizeF size = own;
    if (own.width() > room.width() || own.height() > room.height()) {
        size.scale(room.size(), Qt::KeepAspectRatio);
    }
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize pixels = (size * ratio).toSize().expandedTo({1, 1});
    const Picture& picture = pictures.stretched(file, pixels);
    if (picture.state != Picture::State::ready) {
        return picture.problem;
    }
    // On whole pixels, where the picture stays sharp.
    const QSizeF shown = QSizeF(pixels) / ratio;
    const QPointF corner = room.center() - QPointF(shown.width() / 2, shown.height() / 2);
    const QRectF target(
        QPointF(std::round(corner.x() * ratio), std::round(corner.y() * ratio)) / ratio, shown);
    if (picture.image.hasAlphaChannel()) {
        paintCheckerboard(painter, target, square);
    }
    painter.drawImage(target, picture.image);
    return {};
}

QImage thumbnailOf(const Resource& resource, PictureCache& pictures, QSize size, double ratio) {
    QImage image = transparentImage(size, ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF room(QPointF(0, 0), size);
    constexpr int square = 4;
    switch (lookOf(resource)) {
    case ResourceLook::picture:
        if (!paintFitted(painter, room, pictures, resource.content, square).isEmpty()) {
            paintCrossed(painter, room);
        }
        break;
    case ResourceLook::video:
        paintFilm(painter, room);
        break;
    case ResourceLook::preset:
        paintFitted(painter, room, pictures, presetPicture, square);
        break;
    case ResourceLook::outside:
        paintCrossed(painter, room);
        break;
    }
    return image;
}

QImage emptyThumbnail(QSize size, double ratio) {
    QImage image = transparentImage(size, ratio);
    QPainter painter(&image);
    painter.setPen(edgeColor);
    painter.drawRect(QRectF(QPointF(0.5, 0.5), QSizeF(size.width() - 1, size.height() - 1)));
    return image;
}

} // namespace tarvel
