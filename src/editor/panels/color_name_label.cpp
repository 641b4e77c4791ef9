// Paints colour names, and copies values where a name is dropped.
#include "panels/color_name_label.h"

#include "editing/color_channels.h"
#include "widgets/qt_text.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <array>

namespace tarvel {

namespace {

constexpr auto channelFormat = "application/x-tarvel-color-channel";
constexpr int swatchSize = 11; // pixels
constexpr int swatchGap = 6;
constexpr int padding = 4;
constexpr qreal cornerRadius = 3;

// Where the picture of a dragged name hangs from the pointer, and how much of it covers what is
// below: the marked target stays in sight.
constexpr QPoint hanging{14, 14};
constexpr float dragOpacity = 0.6F;

void drawSwatch(QPainter& painter, QPoint topLeft, int channel) {
    constexpr std::array<QRgb, channelCount> colors = {0xFF9A9A9A, 0xFFD6453D, 0xFF3C9A4E,
                                                       0xFF3F74D8};
    const QRect swatch(topLeft, QSize(swatchSize, swatchSize));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(colors.at(static_cast<std::size_t>(channel))));
    painter.drawRoundedRect(swatch, 2, 2);
    if (channel == 0) { // opacity: a chequered half
        painter.setBrush(Qt::white);
        const int half = swatchSize / 2;
        painter.drawRect(QRect(topLeft, QSize(half, half)));
        painter.drawRect(QRect(topLeft + QPoint(half, half), QSize(half, half)));
    }
}

} // namespace

std::unique_ptr<QMimeData> channelData(int channel) {
    auto data = std::make_unique<QMimeData>();
    data->setData(QLatin1String(channelFormat), QByteArray::number(channel));
    return data;
}

std::optional<int> channelOf(const QMimeData& data) {
    bool isNumber = false;
    const int channel = data.data(QLatin1String(channelFormat)).toInt(&isNumber);
    if (!isNumber || channel < 0 || channel >= static_cast<int>(channelCount)) {
        return std::nullopt;
    }
    return channel;
}

ColorDropLabel::ColorDropLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent) {
    setAcceptDrops(true);
    setContentsMargins(padding, 2, padding, 2);
}

void ColorDropLabel::dragEnterEvent(QDragEnterEvent* event) {
    if (channelOf(*event->mimeData())) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        setMarked(true);
    }
}

void ColorDropLabel::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    setMarked(false);
}

void ColorDropLabel::dropEvent(QDropEvent* event) {
    setMarked(false);
    if (const auto channel = channelOf(*event->mimeData())) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        emit channelDropped(*channel);
    }
}

void ColorDropLabel::setMarked(bool marked) {
    marked_ = marked;
    update();
}

void ColorDropLabel::paintEvent(QPaintEvent* event) {
    if (marked_) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor fill = palette().color(QPalette::Highlight);
        painter.setPen(QPen(fill, 1.5));
        fill.setAlphaF(0.25F);
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    }
    QLabel::paintEvent(event);
}

ColorNameLabel::ColorNameLabel(int channel, QWidget* parent)
    : ColorDropLabel(qtText(channelNames.at(static_cast<std::size_t>(channel))), parent)
    , channel_(channel) {
    setContentsMargins(padding + swatchSize + swatchGap, 2, padding, 2);
    setCursor(Qt::OpenHandCursor);
}

QPixmap ColorNameLabel::dragPicture() const {
    const qreal ratio = devicePixelRatioF();
    QPixmap picture((QSizeF(size()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
    drawSwatch(painter, {padding, (height() - swatchSize) / 2}, channel_);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, text());
    // Faded as a whole: strokes that are faded one by one would show each other.
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(rect(), QColor::fromRgbF(0, 0, 0, dragOpacity));
    return picture;
}

void ColorNameLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        press_ = event->position().toPoint();
    }
}

void ColorNameLabel::mouseMoveEvent(QMouseEvent* event) {
    const bool far = press_ && (event->position().toPoint() - *press_).manhattanLength() >=
                                   QApplication::startDragDistance();
    if (far) {
        drag();
    }
}

void ColorNameLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && press_) {
        press_.reset();
        emit clicked();
    }
}

void ColorNameLabel::drag() {
    auto* drag = new QDrag(this); // deletes itself after the drop
    drag->setMimeData(channelData(channel_).release());
    drag->setPixmap(dragPicture());
    drag->setHotSpot(-hanging);
    press_.reset();
    drag->exec(Qt::CopyAction);
}

void ColorNameLabel::paintEvent(QPaintEvent* event) {
    ColorDropLabel::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSwatch(painter, {padding, (height() - swatchSize) / 2}, channel_);
}

} // namespace tarvel
