// A fixed size keeps a label from asking for another one.
#include "widgets/tick_label.h"

#include <QEvent>

namespace tarvel {

TickLabel::TickLabel(const QString& sample, QWidget* parent)
    : QLabel(parent)
    , sample_(sample) {
    setTextFormat(Qt::PlainText);
    takeSize();
}

void TickLabel::takeSize() {
    QLabel sample(sample_);
    sample.setFont(font());
    setFixedSize(sample.sizeHint());
}

void TickLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        takeSize();
    }
    QLabel::changeEvent(event);
}

} // namespace tarvel
