// Draws the two faces of the play button.
#include "widgets/play_button.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace tarvel {

namespace {

QPixmap drawn(bool playing, int side, double ratio, const QColor& color) {
    QPixmap pixmap(QSize(side, side) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const double margin = side / 6.0;
    const QRectF shape = QRectF(0, 0, side, side).adjusted(margin, margin, -margin, -margin);
    if (playing) {
        painter.fillRect(shape, color);
    } else {
        QPainterPath triangle(shape.topLeft());
        triangle.lineTo(shape.right(), shape.center().y());
        triangle.lineTo(shape.bottomLeft());
        triangle.closeSubpath();
        painter.fillPath(triangle, color);
    }
    return pixmap;
}

} // namespace

PlayButton::PlayButton(QWidget* parent)
    : QPushButton(parent) {
    // As wide as its wider text, so that nothing moves when it changes.
    setText(tr("Stop"));
    drawIcon();
    const int stopWidth = sizeHint().width();
    showState();
    setMinimumWidth(std::max(stopWidth, sizeHint().width()));
}

void PlayButton::setPlaying(bool playing) {
    if (playing != playing_) {
        playing_ = playing;
        showState();
    }
}

void PlayButton::showState() {
    setText(playing_ ? tr("S&top") : tr("&Play")); // set anew while the dialog is open
    setAccessibleName(playing_ ? tr("Stop listening") : tr("Play the selected file"));
    drawIcon();
}

void PlayButton::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        drawIcon();
    }
}

void PlayButton::drawIcon() {
    const int side = fontMetrics().ascent();
    setIconSize({side, side});
    const double ratio = devicePixelRatioF();
    QIcon icon(drawn(playing_, side, ratio, palette().color(QPalette::ButtonText)));
    icon.addPixmap(
        drawn(playing_, side, ratio, palette().color(QPalette::Disabled, QPalette::ButtonText)),
        QIcon::Disabled);
    setIcon(icon);
}

} // namespace tarvel
