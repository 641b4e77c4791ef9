// How each kind of control looks.
#include "surface/surface_painter.h"

#include "surface/picture_cache.h"
#include "surface/picture_place.h"
#include "surface/surface_geometry.h"
#include "surface/video_frames.h"
#include "widgets/qt_text.h"

#include <algorithm>
#include <string_view>

namespace tarvel {

namespace {

constexpr std::string_view gameListPicture = ":/tarvel/gamelist.png";
constexpr std::string_view programIconPicture = ":/tarvel/imgCustom.png";
constexpr QRectF surfaceRect(0, 0, skinWidth, skinHeight);
// Edges are snapped to pixels, so an element may show this much outside of its rectangle; a slanted
// line adds half its width and a pixel of smoothing.
constexpr double edgeMargin = 1;
constexpr double lineMargin = 2;

QColor withOpacity(ColorNumber color, int percent) {
    QColor result = qtColor(color);
    result.setAlpha((std::clamp(percent, 0, 100) * 255 + 50) / 100);
    return result;
}

bool isVisible(const ElementControl& control) {
    return control.width > 0 && control.height > 0;
}

// One run over the rows. It remembers the painter's pen and font, because setting them again for
// each element takes longer than drawing most elements.
class SurfacePass {
  public:
    SurfacePass(QPainter& painter, PictureCache& pictures, TextCache& texts,
                const VideoFrames* frames, const QRectF& dirty)
        : painter_(painter)
        , pictures_(pictures)
        , texts_(texts)
        , frames_(frames)
        , grid_(painter.deviceTransform())
        , left_(dirty.left() - edgeMargin)
        , top_(dirty.top() - edgeMargin)
        , right_(dirty.right() + edgeMargin)
        , bottom_(dirty.bottom() + edgeMargin) {}

    void paintGround(const SkinDocument& document, const SurfaceView& view);
    void paintElement(int id, const Element& element);

  private:
    [[nodiscard]] bool isDirty(const ElementControl& control) const {
        const double left = control.left;
        const double top = control.top;
        return left < right_ && top < bottom_ && left + control.width > left_ &&
               top + control.height > top_ && isVisible(control);
    }
    void paintBox(const Element& element);
    void paintLine(const ElementControl& control);
    void paintText(int id, const Element& element);
    void paintImage(int id, const ElementControl& control);
    void paintVideo(int id, const ElementControl& control);
    void paintStretched(const QRectF& rect, std::string_view file);
    void paintUnscaled(const QRectF& rect, std::string_view file);
    void drawStretched(const QRectF& rect, const QImage& image);
    void paintWithoutPicture(const QRectF& rect, std::string_view file, const Picture& picture);
    void paintMissing(const QRectF& rect, std::string_view file, const QString& reason);
    [[nodiscard]] QRectF targetOf(const QRectF& rect) const {
        return grid_.snapped(nearSurface(rect));
    }
    void usePen(const QColor& color) {
        if (pen_ != color) {
            painter_.setPen(color);
            pen_ = color;
        }
    }

    QPainter& painter_;
    PictureCache& pictures_;
    TextCache& texts_;
    const VideoFrames* frames_;
    PixelGrid grid_;
    double left_; // what is dirty, with the margin of edges
    double top_;
    double right_;
    double bottom_;
    QColor pen_;
    int font_ = -1;
};

void SurfacePass::paintGround(const SkinDocument& document, const SurfaceView& view) {
    const QRectF target = grid_.snapped(surfaceRect);
    if (view.ground != nullptr) {
        painter_.drawImage(target, *view.ground);
        return;
    }
    painter_.fillRect(target, Qt::black);
    const Background& background = document.settings().background;
    if (background.loaded) {
        paintStretched(surfaceRect, background.path);
    }
}

void SurfacePass::paintElement(int id, const Element& element) {
    const ElementControl& control = element.elementControl;
    if (control.kind == ControlKind::lin) {
        paintLine(control);
        return;
    }
    if (!isDirty(control)) {
        return;
    }
    switch (control.kind) {
    case ControlKind::box:
        paintBox(element);
        break;
    case ControlKind::txt:
        paintText(id, element);
        break;
    case ControlKind::qor:
    case ControlKind::img:
    case ControlKind::png:
    case ControlKind::vid:
        paintImage(id, control);
        break;
    case ControlKind::lin:
        break;
    }
}

void SurfacePass::paintBox(const Element& element) {
    const ElementControl& control = element.elementControl;
    const QRectF rect = targetOf(controlRect(control));
    if (control.fillStyle == FillStyle::solid) {
        painter_.fillRect(rect, withOpacity(control.fillColor, element.elementAlpha));
    }
    if (control.borderStyle != BorderStyle::solid) {
        return;
    }
    const QColor color = qtColor(control.borderColor);
    const double edge = grid_.lineWidth();
    if (rect.width() <= 2 * edge || rect.height() <= 2 * edge) {
        painter_.fillRect(rect, color);
        return;
    }
    const double side = rect.height() - 2 * edge;
    painter_.fillRect(QRectF(rect.left(), rect.top(), rect.width(), edge), color);
    painter_.fillRect(QRectF(rect.left(), rect.bottom() - edge, rect.width(), edge), color);
    painter_.fillRect(QRectF(rect.left(), rect.top() + edge, edge, side), color);
    painter_.fillRect(QRectF(rect.right() - edge, rect.top() + edge, edge, side), color);
}

void SurfacePass::paintLine(const ElementControl& control) {
    const auto [x1, x2] = std::minmax(control.X1, control.X2);
    const auto [y1, y2] = std::minmax(control.Y1, control.Y2);
    if (x1 >= right_ + lineMargin || x2 <= left_ - lineMargin || y1 >= bottom_ + lineMargin ||
        y2 <= top_ - lineMargin) {
        return;
    }
    const auto line = nearSurface(QLineF(control.X1, control.Y1, control.X2, control.Y2));
    if (!line) {
        return;
    }
    const QColor color = qtColor(control.borderColor);
    if (x1 == x2 || y1 == y2) {
        // Both ends included, so a line of no length is a dot.
        const QRectF box = QRectF(line->p1(), line->p2()).normalized();
        const QRectF corner = grid_.snapped(QRectF(box.topLeft(), QSizeF(0, 0)));
        const QRectF length = grid_.snapped(box);
        painter_.fillRect(QRectF(corner.topLeft(), QSizeF(length.width() + grid_.lineWidth(),
                                                          length.height() + grid_.lineWidth())),
                          color);
        return;
    }
    usePen(color);
    painter_.setRenderHint(QPainter::Antialiasing, true);
    // Through the middle of the pixels that the ends name.
    painter_.drawLine(line->translated(0.5, 0.5));
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

void SurfacePass::paintText(int id, const Element& element) {
    const ElementControl& control = element.elementControl;
    const LaidOutText& entry = texts_.laidOut(id, control);
    if (entry.font != font_) {
        painter_.setFont(texts_.font(entry.font));
        font_ = entry.font;
    }
    usePen(withOpacity(control.textColor, element.elementAlpha));
    const QRectF rect = nearSurface(controlRect(control));
    if (entry.size.width() <= rect.width() && entry.size.height() <= rect.height()) {
        painter_.drawStaticText(rect.topLeft(), entry.text);
        return;
    }
    painter_.save();
    painter_.setClipRect(targetOf(rect), Qt::IntersectClip);
    painter_.drawStaticText(rect.topLeft(), entry.text);
    painter_.restore();
}

void SurfacePass::paintImage(int id, const ElementControl& control) {
    const QRectF rect = controlRect(control);
    if (targetOf(rect).isEmpty()) {
        return;
    }
    if (control.kind == ControlKind::qor) {
        paintStretched(rect, gameListPicture);
        return;
    }
    switch (control.picture) {
    case PictureContent::programIcon:
        paintStretched(rect, programIconPicture);
        return;
    case PictureContent::barred:
        paintMissing(rect, control.file, QStringLiteral("outside the skin"));
        return;
    case PictureContent::file:
        break;
    }
    if (control.kind == ControlKind::vid) {
        paintVideo(id, control);
    } else if (control.kind == ControlKind::png) {
        paintUnscaled(rect, control.file);
    } else {
        paintStretched(rect, control.file);
    }
}

void SurfacePass::paintVideo(int id, const ElementControl& control) {
    const QRectF rect = controlRect(control);
    const QString problem = frames_ != nullptr ? frames_->problem(id) : QString();
    if (!problem.isEmpty()) {
        paintMissing(rect, control.file, problem);
        return;
    }
    const QImage frame = frames_ != nullptr ? frames_->frame(id) : QImage();
    if (frame.isNull()) {
        paintPendingPicture(painter_, targetOf(rect));
    } else {
        drawStretched(rect, frame);
    }
}

void SurfacePass::paintStretched(const QRectF& rect, std::string_view file) {
    const Picture& picture = pictures_.stretched(file, grid_.deviceSize(grid_.snapped(rect)));
    if (picture.state == Picture::State::ready) {
        drawStretched(rect, picture.image);
    } else {
        paintWithoutPicture(rect, file, picture);
    }
}

void SurfacePass::paintUnscaled(const QRectF& rect, std::string_view file) {
    const Picture& picture = pictures_.unscaled(file);
    if (picture.state != Picture::State::ready) {
        paintWithoutPicture(rect, file, picture);
        return;
    }
    // The picture keeps to the element's top left corner, however far out that is.
    const QRectF target = targetOf(rect);
    const QPointF cut = target.topLeft() - grid_.snapped(rect).topLeft();
    const QRectF source = QRectF(cut, target.size()) & QRectF(picture.image.rect());
    if (!source.isEmpty()) {
        painter_.drawImage(QRectF(target.topLeft(), source.size()), picture.image, source);
    }
}

void SurfacePass::drawStretched(const QRectF& rect, const QImage& image) {
    const QRectF whole = grid_.snapped(rect);
    const QRectF target = targetOf(rect);
    if (whole == target) {
        painter_.drawImage(target, image);
        return;
    }
    const double scaleX = image.width() / whole.width();
    const double scaleY = image.height() / whole.height();
    const QPointF cut = target.topLeft() - whole.topLeft();
    painter_.drawImage(target, image,
                       QRectF(cut.x() * scaleX, cut.y() * scaleY, target.width() * scaleX,
                              target.height() * scaleY));
}

void SurfacePass::paintWithoutPicture(const QRectF& rect, std::string_view file,
                                      const Picture& picture) {
    if (picture.state == Picture::State::pending) {
        paintPendingPicture(painter_, targetOf(rect));
    } else {
        paintMissing(rect, file, picture.problem);
    }
}

void SurfacePass::paintMissing(const QRectF& rect, std::string_view file, const QString& reason) {
    paintMissingPicture(painter_, targetOf(rect), surfaceRect, qtText(trimtofile(file)), reason);
}

} // namespace

QRectF elementBounds(const Element& element) {
    const ElementControl& control = element.elementControl;
    if (control.kind != ControlKind::lin) {
        return isVisible(control) ? nearSurface(controlRect(control))
                                        .adjusted(-edgeMargin, -edgeMargin, edgeMargin, edgeMargin)
                                  : QRectF();
    }
    const QRectF box = nearSurface(
        QRectF(QPointF(control.X1, control.Y1), QPointF(control.X2, control.Y2)).normalized());
    return box.adjusted(-lineMargin, -lineMargin, lineMargin + 1, lineMargin + 1);
}

SurfacePainter::SurfacePainter(PictureCache& pictures)
    : pictures_(pictures) {}

void SurfacePainter::paint(QPainter& painter, const SkinDocument& document, int screen,
                           const QRectF& dirty, const SurfaceView& view) {
    const QRectF area = dirty & surfaceRect;
    if (area.isEmpty()) {
        return;
    }
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    SurfacePass pass(painter, pictures_, texts_, frames_, area);
    pass.paintGround(document, view);
    const int end = std::min(view.endRow, document.rowCount(screen));
    for (int row = std::max(view.firstRow, 0); row < end; ++row) {
        const int id = document.itemData(screen, row);
        pass.paintElement(id, document.element(id));
    }
    painter.restore();
}

} // namespace tarvel
