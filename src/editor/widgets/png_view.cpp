// Loads a PNG file by the decoder of the program, and draws it from its corner on.
#include "widgets/png_view.h"

#include "files/host_files.h"

#include <QImage>
#include <QPainter>

#include <string>
#include <utility>

namespace tarvel {

namespace {

class FilePngDecoder : public PngDecoder {
  public:
    void load(const QString& path) override {
        picture_ = {};
        try {
            const std::string bytes = readFile(hostPath(path.toStdString()));
            picture_.loadFromData(
                reinterpret_cast<const uchar*>(bytes.data()), // NOLINT: Qt's bytes
                static_cast<int>(bytes.size()), "png");
            // The size in dots per metre is no part of the picture's size here.
            picture_.setDevicePixelRatio(1);
        } catch (const FileError&) {
            picture_ = {};
        }
    }

    void draw(QPainter& painter, int x, int y) override { painter.drawImage(x, y, picture_); }

  private:
    QImage picture_;
};

} // namespace

std::unique_ptr<PngDecoder> makePngDecoder() {
    return std::make_unique<FilePngDecoder>();
}

PngView::PngView(QWidget* parent, std::unique_ptr<PngDecoder> decoder)
    : QWidget(parent)
    , decoder_(std::move(decoder)) {
    setAccessibleName(tr("Picture"));
}

void PngView::setFile(const QString& path) {
    if (path == file_) {
        return;
    }
    file_ = path;
    decoder_->load(file_);
    update();
}

void PngView::paintEvent(QPaintEvent* /*event*/) {
    if (file_.isEmpty()) {
        return;
    }
    QPainter painter(this);
    decoder_->draw(painter, 0, 0);
}

} // namespace tarvel
