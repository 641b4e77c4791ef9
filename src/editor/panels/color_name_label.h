// Colour names that are dragged onto each other or onto value names, to copy values.
#pragma once

#include <QLabel>
#include <QPixmap>

#include <memory>
#include <optional>

class QMimeData;

namespace tarvel {

/// What a dragged colour name carries: its channel, 0 to 3.
[[nodiscard]] std::unique_ptr<QMimeData> channelData(int channel);
/// The channel that is carried; nothing for other data.
[[nodiscard]] std::optional<int> channelOf(const QMimeData& data);

/// A label that takes dropped colour names, and is marked while one is over it.
class ColorDropLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ColorDropLabel(const QString& text, QWidget* parent = nullptr);

  signals:
    /// The name of the channel was dropped on the label.
    void channelDropped(int channel);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void setMarked(bool marked);

    bool marked_ = false; // a colour name is over the label
};

/// The name of a channel beside a swatch of its colour: can be dragged, and takes other names.
class ColorNameLabel : public ColorDropLabel {
    Q_OBJECT

  public:
    explicit ColorNameLabel(int channel, QWidget* parent = nullptr);

    /// What hangs from the pointer while the name is dragged; lets through what is below.
    [[nodiscard]] QPixmap dragPicture() const;

  signals:
    /// A press and release without a drag.
    void clicked();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void drag();

    int channel_;
    std::optional<QPoint> press_; // of the left button, until it is let go or a drag begins
};

} // namespace tarvel
