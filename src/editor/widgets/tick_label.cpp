// Draws the text where it stands.
#include "widgets/tick_label.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>

namespace tarvel {

TickLabel::TickLabel(const QString& sample, QWidget* parent)
    : QWidget(parent)
    , sample_(sample) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void TickLabel::setText(const QString& text) {
    if (text != text_) {
        text_ = text;
        update();
    }
}

QSize TickLabel::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(sample_) + 2, metrics.height()};
}

void TickLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QString fitting = fontMetrics().elidedText(text_, Qt::ElideRight, width());
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, fitting);
}

void TickLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
    }
    QWidget::changeEvent(event);
}

} // namespace tarvel
