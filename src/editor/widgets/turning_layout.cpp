// Turns the direction of a box layout by the width that there is.
#include "widgets/turning_layout.h"

#include <algorithm>

namespace tarvel {

TurningLayout::TurningLayout(QWidget* first, QWidget* second)
    : QBoxLayout(LeftToRight) {
    setContentsMargins(0, 0, 0, 0);
    addWidget(first);
    addWidget(second, 1);
}

bool TurningLayout::isBeside(int width) const {
    return itemAt(0)->minimumSize().width() + spacing() + itemAt(1)->minimumSize().width() <= width;
}

QSize TurningLayout::sizeHint() const {
    const QSize a = itemAt(0)->sizeHint();
    const QSize b = itemAt(1)->sizeHint();
    return {a.width() + spacing() + b.width(), std::max(a.height(), b.height())};
}

QSize TurningLayout::minimumSize() const {
    const QSize a = itemAt(0)->minimumSize();
    const QSize b = itemAt(1)->minimumSize();
    return {std::max(a.width(), b.width()), std::max(a.height(), b.height())};
}

int TurningLayout::heightForWidth(int width) const {
    const int a = itemAt(0)->sizeHint().height();
    const int b = itemAt(1)->sizeHint().height();
    return isBeside(width) ? std::max(a, b) : a + spacing() + b;
}

int TurningLayout::minimumHeightForWidth(int width) const {
    const int a = itemAt(0)->minimumSize().height();
    const int b = itemAt(1)->minimumSize().height();
    return isBeside(width) ? std::max(a, b) : a + spacing() + b;
}

void TurningLayout::setGeometry(const QRect& rect) {
    const Direction wanted = isBeside(rect.width()) ? LeftToRight : TopToBottom;
    if (direction() != wanted) {
        setDirection(wanted);
    }
    QBoxLayout::setGeometry(rect);
}

} // namespace tarvel
