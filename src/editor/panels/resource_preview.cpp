// Chooses the right control for a resource, and paints pictures in the size of the preview.
#include "panels/resource_preview.h"

#include "document/image_source.h"
#include "panels/resource_looks.h"
#include "panels/video_preview.h"
#include "surface/picture_cache.h"
#include "surface/picture_place.h"
#include "widgets/control_names.h"
#include "widgets/faint_text.h"
#include "widgets/qt_text.h"

#include <QPainter>
#include <QStackedLayout>

#include <string>
#include <utility>

namespace tarvel {

namespace {

constexpr int square = 8; // of the checkerboard, in pixels

// The place of a preview without its picture.
QRectF paintGround(QPainter& painter, const QWidget& place) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(place.rect(), place.palette().base());
    QColor edge = place.palette().color(QPalette::Text);
    edge.setAlphaF(0.35F);
    painter.setPen(edge);
    painter.drawRect(QRectF(place.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    return QRectF(place.rect()).adjusted(1, 1, -1, -1);
}

// The control of an image of the resource.
ElementControl controlFor(const Resource& resource) {
    ElementControl control;
    tarvel::showResource(resource, control);
    return control;
}

} // namespace

/// A picture file, the program icon, a word about a file that is not shown, or nothing.
class PicturePreview : public QWidget {
  public:
    PicturePreview(PictureCache& pictures, QString emptyText)
        : pictures_(pictures)
        , emptyText_(std::move(emptyText)) {}

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
            paintFile(painter, room, std::string(presetPicture));
        } else if (content_ == PictureContent::barred) {
            paintMissing(painter, room, QStringLiteral("not opened"));
        } else if (!file_.empty()) {
            paintFile(painter, room, file_);
        } else {
            painter.setPen(faintText(palette()));
            painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
        }
    }

  private:
    void paintFile(QPainter& painter, const QRectF& room, const std::string& file) {
        const QString problem = paintFitted(painter, room, pictures_, file, square);
        if (!problem.isEmpty()) {
            paintMissing(painter, room, problem);
        }
    }

    void paintMissing(QPainter& painter, const QRectF& room, const QString& problem) const {
        painter.fillRect(room, Qt::black);
        paintMissingPicture(painter, room, room, qtText(trimtofile(file_)), problem);
    }

    PictureCache& pictures_;
    QString emptyText_;
    PictureContent content_ = PictureContent::file;
    std::string file_;
};

ResourcePreview::ResourcePreview(PictureCache& pictures, QSize usual, const QString& emptyText,
                                 QWidget* parent)
    : QWidget(parent)
    , usual_(usual)
    , stack_(new QStackedLayout(this))
    , picture_(new PicturePreview(pictures, emptyText))
    , png_(new PicturePreview(pictures, emptyText))
    , video_(new VideoPreview) {
    stack_->addWidget(picture_);
    stack_->addWidget(png_);
    stack_->addWidget(video_);
}

void ResourcePreview::nameParts() {
    named(picture_, QStringLiteral("imgPreview"), tr("Preview of the picture"));
    named(png_, QStringLiteral("imgPng"), tr("Preview of the PNG picture"));
    named(video_, QStringLiteral("vidPreview"), tr("Preview of the video"));
}

void ResourcePreview::showResource(const Resource& resource) {
    const ElementControl control = controlFor(resource);
    const bool opened = control.picture == PictureContent::file;
    if (opened && control.kind == ControlKind::vid) {
        video_->play(control.file);
        stack_->setCurrentWidget(video_);
        return;
    }
    video_->setFile(resource.content);
    PicturePreview* preview = opened && control.kind == ControlKind::png ? png_ : picture_;
    preview->showPicture(control.picture, control.file);
    stack_->setCurrentWidget(preview);
}

void ResourcePreview::showNothing() {
    video_->clear();
    picture_->showPicture(PictureContent::file, {});
    stack_->setCurrentWidget(picture_);
}

void ResourcePreview::stop() {
    video_->stop();
}

bool ResourcePreview::isPlaying() const {
    return video_->isPlaying();
}

} // namespace tarvel
