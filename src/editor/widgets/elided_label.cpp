// Shortens the text to the width that the label has.
#include "widgets/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace tarvel {

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent)
    : QLabel(parent)
    , mode_(mode) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const {
    constexpr int narrowest = 120; // pixels
    return {narrowest, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                          palette(), isEnabled(), fontMetrics().elidedText(text(), mode_, width()),
                          QPalette::WindowText);
}

} // namespace tarvel
