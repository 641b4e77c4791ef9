// Pictures in the size of the preview, and the choice of the right control for a resource.
#include "panels/preview_area.h"

#include "document/image_source.h"
#include "panels/resource_looks.h"
#include "panels/video_preview.h"
#include "surface/picture_cache.h"
#include "surface/picture_place.h"
#include "widgets/png_view.h"
#include "widgets/qt_text.h"

#include <QPainter>
#include <QStackedLayout>

#include <memory>
#include <string>
#include <utility>

namespace tarvel {

namespace {

constexpr QSize smallest{200, 150}; // pixels
constexpr int square = 8;           // of the checkerboard, in pixels

// The place of a preview without its picture.
QRectF paintGround(QPainter& painter, const QWidget& place) {
    painter.fillRect(place.rect(), place.palette().base());
    QColor edge = place.palette().color(QPalette::Text);
    edge.setAlphaF(0.35F);
    painter.setPen(edge);
    painter.drawRect(QRectF(place.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    return QRectF(place.rect()).adjusted(1, 1, -1, -1);
}

void paintMissing(QPainter& painter, const QRectF& room, const std::string& file,
                  const QString& problem) {
    painter.fillRect(room, Qt::black);
    paintMissingPicture(painter, room, room, qtText(trimtofile(file)), problem);
}

void paintFile(QPainter& painter, const QRectF& room, PictureCache& pictures,
               const std::string& file) {
    const QString problem = paintFitted(painter, room, pictures, file, square);
    if (!problem.isEmpty()) {
        paintMissing(painter, room, file, problem);
    }
}

// Draws a PNG picture as large as the place has room for.
class FittedDecoder : public PngDecoder {
  public:
    FittedDecoder(PictureCache& pictures, const QWidget& place)
        : pictures_(pictures)
        , place_(place) {}

    void load(const QString& path) override { file_ = coreText(path); }
    void draw(QPainter& painter, int /*x*/, int /*y*/) override {
        paintFile(painter, paintGround(painter, place_), pictures_, file_);
    }

  private:
    PictureCache& pictures_;
    const QWidget& place_;
    std::string file_;
};

// The control of an image of the resource.
ElementControl controlFor(const Resource& resource) {
    ElementControl control;
    tarvel::showResource(resource, control);
    return control;
}

} // namespace

/// A picture file, the program icon, or a word about a file that is not shown.
class PicturePreview : public QWidget {
  public:
    explicit PicturePreview(PictureCache& pictures)
        : pictures_(pictures) {}

    void showPicture(PictureContent content, std::string file) {
        content_ = content;
        file_ = std::move(file);
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const QRectF room = paintGround(painter, *this);
        if (content_ == PictureContent::programIcon) {
            paintFile(painter, room, pictures_, std::string(presetPicture));
        } else if (content_ == PictureContent::barred) {
            paintMissing(painter, room, file_, QStringLiteral("not opened"));
        } else if (!file_.empty()) {
            paintFile(painter, room, pictures_, file_);
        }
    }

  private:
    PictureCache& pictures_;
    PictureContent content_ = PictureContent::file;
    std::string file_;
};

PreviewArea::PreviewArea(PictureCache& pictures, QWidget* parent)
    : QWidget(parent)
    , stack_(new QStackedLayout(this))
    , imgPreview_(new PicturePreview(pictures))
    , imgPng_(new PngView(nullptr, std::make_unique<FittedDecoder>(pictures, *this)))
    , vidPreview_(new VideoPreview) {
    const auto add = [this](QWidget* preview, const char* name, const QString& spoken) {
        preview->setObjectName(QLatin1String(name));
        preview->setAccessibleName(spoken);
        stack_->addWidget(preview);
    };
    add(imgPreview_, "imgPreview", tr("Preview of the picture"));
    add(imgPng_, "imgPng", tr("Preview of the PNG picture"));
    add(vidPreview_, "vidPreview", tr("Preview of the video"));
}

QSize PreviewArea::sizeHint() const {
    return smallest;
}

void PreviewArea::showResource(const Resource& resource) {
    const ElementControl control = controlFor(resource);
    const bool opened = control.picture == PictureContent::file;
    if (opened && control.kind == ControlKind::vid) {
        vidPreview_->play(control.file);
        stack_->setCurrentWidget(vidPreview_);
        return;
    }
    vidPreview_->setFile(resource.content);
    if (opened && control.kind == ControlKind::png) {
        imgPng_->setFile(qtText(control.file));
        stack_->setCurrentWidget(imgPng_);
    } else {
        imgPreview_->showPicture(control.picture, control.file);
        stack_->setCurrentWidget(imgPreview_);
    }
}

void PreviewArea::clear() {
    vidPreview_->clear();
    imgPreview_->showPicture(PictureContent::file, {});
    stack_->setCurrentWidget(imgPreview_);
}

void PreviewArea::stop() {
    vidPreview_->stop();
}

} // namespace tarvel
