// Shortens a path in its middle to the width that the label has.
#include "widgets/path_label.h"

#include "widgets/qt_text.h"

#include <QPainter>
#include <QStyle>

namespace tarvel {

PathLabel::PathLabel(QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PathLabel::setPath(const QString& path) {
    setText(path);
    setToolTip(plainToolTip(path));
}

QSize PathLabel::minimumSizeHint() const {
    constexpr int narrowest = 120; // pixels
    return {narrowest, fontMetrics().height()};
}

void PathLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                          palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideMiddle, width()),
                          QPalette::WindowText);
}

} // namespace tarvel
