// A PNG picture with its transparency, at its own size.
#pragma once

#include <QString>
#include <QWidget>

#include <memory>

class QPainter;

namespace tarvel {

/// Decodes a picture and draws it. It keeps the picture loaded last.
class PngDecoder {
  public:
    virtual ~PngDecoder() = default;

    /// A file that cannot be decoded leaves nothing to draw.
    virtual void load(const QString& path) = 0;
    /// Draws the picture unscaled with its top left corner at x, y.
    virtual void draw(QPainter& painter, int x, int y) = 0;
};

/// A decoder for PNG files, and for no others.
[[nodiscard]] std::unique_ptr<PngDecoder> makePngDecoder();

/// Shows a file from its top left corner on, whatever size it has itself.
class PngView : public QWidget {
    Q_OBJECT

  public:
    explicit PngView(QWidget* parent = nullptr,
                     std::unique_ptr<PngDecoder> decoder = makePngDecoder());

    /// Shows the file; "" shows nothing. The file shown already is not loaded again.
    void setFile(const QString& path);
    /// The path given last, as it was given.
    [[nodiscard]] QString getfile() const { return file_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString file_;
    std::unique_ptr<PngDecoder> decoder_;
};

} // namespace tarvel
