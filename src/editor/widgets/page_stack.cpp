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

void PageStack::invalidate() {
    heights_.clear();
    QStackedLayout::invalidate();
}

// Asked for again and again while a window is laid out; each time all texts would be broken anew.
int PageStack::highest(int width) const {
    const auto [known, isNew] = heights_.try_emplace(width, 0);
    for (int i = 0; isNew && i < count(); ++i) {
        known->second = std::max(known->second, heightOf(*widget(i), width));
    }
    return known->second;
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
