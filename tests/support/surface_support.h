// Quick elements of every kind, and pictures of screens, for the tests of the drawing side.
#pragma once

#include "document/skin_document.h"
#include "files/host_files.h"
#include "surface/surface_painter.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <string>
#include <utility>

namespace tarvel::test {

inline constexpr ColorNumber red = makeColor(255, 0, 0);
inline constexpr ColorNumber green = makeColor(0, 255, 0);
inline constexpr ColorNumber blue = makeColor(0, 0, 255);
inline constexpr QRectF wholeSurface(0, 0, skinWidth, skinHeight);

inline Element elementOf(ElementKind kind, ControlKind control, const QRectF& rect) {
    Element element;
    element.elementKind = kind;
    element.elementControl.kind = control;
    element.elementControl.left = static_cast<float>(rect.left());
    element.elementControl.top = static_cast<float>(rect.top());
    element.elementControl.width = static_cast<float>(rect.width());
    element.elementControl.height = static_cast<float>(rect.height());
    return element;
}

/// A box without a border.
inline Element boxOf(const QRectF& rect, ColorNumber fill, int opacity = 100) {
    Element element = elementOf(ElementKind::Box, ControlKind::box, rect);
    element.elementAlpha = static_cast<std::int16_t>(opacity);
    element.elementControl.fillStyle = FillStyle::solid;
    element.elementControl.fillColor = fill;
    return element;
}

/// A box with a border and no fill.
inline Element frameOf(const QRectF& rect, ColorNumber border) {
    Element element = elementOf(ElementKind::Box, ControlKind::box, rect);
    element.elementControl.borderStyle = BorderStyle::solid;
    element.elementControl.borderColor = border;
    return element;
}

inline Element lineOf(const QLineF& line, ColorNumber color) {
    Element element = elementOf(ElementKind::Line, ControlKind::lin, {});
    element.elementControl.X1 = static_cast<float>(line.x1());
    element.elementControl.Y1 = static_cast<float>(line.y1());
    element.elementControl.X2 = static_cast<float>(line.x2());
    element.elementControl.Y2 = static_cast<float>(line.y2());
    element.elementControl.borderColor = color;
    return element;
}

inline Element textOf(const QRectF& rect, std::string caption, ColorNumber color) {
    Element element = elementOf(ElementKind::Text, ControlKind::txt, rect);
    element.elementControl.caption = std::move(caption);
    element.elementControl.textColor = color;
    return element;
}

/// An image of the given control; `path` is a path of the host.
inline Element imageOf(ControlKind control, const QRectF& rect, const QString& path) {
    Element element = elementOf(ElementKind::Image, control, rect);
    element.elementControl.file = documentPath(path.toStdString());
    return element;
}

inline Element menuOf(const QRectF& rect) {
    return elementOf(ElementKind::Menu, ControlKind::qor, rect);
}

/// A folder of test pictures that goes at the end of the scope.
class PictureFolder {
  public:
    /// Saves the picture in the format that the name ends in, and returns its path.
    [[nodiscard]] QString save(const QImage& image, const QString& name) const {
        const QString path = folder_.filePath(name);
        if (!image.save(path)) {
            qFatal("cannot save %s", qPrintable(path));
        }
        return path;
    }
    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

  private:
    QTemporaryDir folder_;
};

inline QImage plainPicture(QSize size, const QColor& color) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/// Halves of different colours side by side.
inline QImage halvesPicture(QSize size, const QColor& left, const QColor& right) {
    QImage image = plainPicture(size, left);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(size.width() / 2, 0, size.width(), size.height(), right);
    return image;
}

/// A black surface of so many device pixels a skin pixel, to paint on in skin pixels.
inline QImage blackSurface(double scale = 1) {
    QImage image(QSizeF(skinWidth * scale, skinHeight * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::black);
    return image;
}

/// What the painter makes of a screen.
inline QImage painted(SurfacePainter& surface, const SkinDocument& document, int screen = 1,
                      double scale = 1, const SurfaceView& view = {}) {
    QImage image = blackSurface(scale);
    QPainter painter(&image);
    painter.scale(scale, scale);
    surface.paint(painter, document, screen, wholeSurface, view);
    return image;
}

} // namespace tarvel::test
