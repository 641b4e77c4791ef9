// Asks the pages for their heights, all of them or the shown one.
#include "widgets/page_stack.h"

#include <QWidget>

#include <algorithm>

namespace tarvel {

namespace {

// Of the page itself: the layout's items have no size while their page is hidden.
int heightOf(const QWidget& page, int width) {
    return page.hasHeightForWidth() ? page.heightForWidth(width) : page.sizeHint().height();
}

} // namespace

PageStack::PageStack() {
    connect(this, &QStackedLayout::currentChanged, this, [this] { update(); });
}

void PageStack::keepRoom(bool keep) {
    if (keep != keepsRoom_) {
        keepsRoom_ = keep;
        update();
    }
}

int PageStack::highest(int width) const {
    int height = 0;
    for (int i = 0; i < count(); ++i) {
        height = std::max(height, heightOf(*widget(i), width));
    }
    return height;
}

QSize PageStack::sizeHint() const {
    int width = 0;
    for (int i = 0; i < count(); ++i) {
        width = std::max({width, widget(i)->sizeHint().width(), widget(i)->minimumWidth()});
    }
    return {width, heightForWidth(width)};
}

QSize PageStack::minimumSize() const {
    QSize size;
    for (int i = 0; i < count(); ++i) {
        const QSize page = widget(i)->minimumSizeHint().expandedTo(widget(i)->minimumSize());
        const bool counts = keepsRoom_ || i == currentIndex();
        size = size.expandedTo({page.width(), counts ? page.height() : 0});
    }
    return size;
}

int PageStack::heightForWidth(int width) const {
    if (keepsRoom_ || currentWidget() == nullptr) {
        return highest(width);
    }
    return heightOf(*currentWidget(), width);
}

} // namespace tarvel
