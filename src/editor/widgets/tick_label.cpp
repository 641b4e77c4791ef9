// A fixed size keeps a label from asking for another one.
#include "widgets/tick_label.h"

#include <QEvent>
#include <QFontMetrics>

namespace tarvel {

TickLabel::TickLabel(const QString& sample, QWidget* parent)
    : QLabel(parent)
    , sample_(sample) {
    setTextFormat(Qt::PlainText);
    takeSize();
}

void TickLabel::takeSize() {
    const QFontMetrics metrics(font());
    setFixedSize(metrics.horizontalAdvance(sample_) + 2, metrics.height());
}

void TickLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        takeSize();
    }
    QLabel::changeEvent(event);
}

} // namespace tarvel
