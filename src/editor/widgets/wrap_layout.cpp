// Breaks the items into rows by the width that there is, and places these.
#include "widgets/wrap_layout.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace tarvel {

WrapLayout::WrapLayout(Fill fill, QWidget* parent)
    : QLayout(parent)
    , fill_(fill) {}

WrapLayout::~WrapLayout() = default;

void WrapLayout::addItem(QLayoutItem* item) {
    items_.emplace_back(item);
}

void WrapLayout::addTogether(std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* widget : widgets) {
        row->addWidget(widget);
    }
    addLayout(row);
}

void WrapLayout::addLayout(QLayout* layout) {
    addChildLayout(layout);
    addItem(layout);
}

int WrapLayout::count() const {
    return static_cast<int>(items_.size());
}

QLayoutItem* WrapLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrapLayout::takeAt(int index) {
    if (itemAt(index) == nullptr) {
        return nullptr;
    }
    const auto at = items_.begin() + index;
    QLayoutItem* item = at->release();
    items_.erase(at);
    return item;
}

std::vector<std::size_t> WrapLayout::shown() const {
    std::vector<std::size_t> items;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (!items_[i]->isEmpty()) {
            items.push_back(i);
        }
    }
    return items;
}

int WrapLayout::widest(const std::vector<std::size_t>& items) const {
    int width = 0;
    for (const std::size_t item : items) {
        width = std::max(width, items_[item]->sizeHint().width());
    }
    return width;
}

std::size_t WrapLayout::perRow(const std::vector<std::size_t>& items, int width) const {
    const int step = std::max(1, widest(items) + gap());
    const auto most =
        std::min(most_, static_cast<std::size_t>(std::max(1, (width + gap()) / step)));
    if (most >= items.size()) {
        return std::max<std::size_t>(1, items.size());
    }
    const std::size_t rows = (items.size() + most - 1) / most;
    return (items.size() + rows - 1) / rows;
}

std::vector<WrapLayout::Row> WrapLayout::rowsFor(const std::vector<std::size_t>& items,
                                                 int width) const {
    const std::size_t most =
        fill_ == Fill::evenly ? perRow(items, width) : std::min(most_, items.size());
    std::vector<Row> rows;
    int used = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const QSize size = items_[items[i]]->sizeHint();
        const bool hasRoom = fill_ == Fill::evenly || used + gap() + size.width() <= width;
        if (rows.empty() || !hasRoom || i - rows.back().first >= most) {
            rows.push_back({i, i, 0});
            used = size.width();
        } else {
            used += gap() + size.width();
        }
        rows.back().end = i + 1;
        rows.back().height = std::max(rows.back().height, size.height());
    }
    return rows;
}

int WrapLayout::heightForWidth(int width) const {
    const QMargins margins = contentsMargins();
    int height = margins.top() + margins.bottom();
    const auto rows = rowsFor(shown(), width - margins.left() - margins.right());
    for (const Row& row : rows) {
        height += row.height;
    }
    return height + std::max(0, static_cast<int>(rows.size()) - 1) * gap();
}

QSize WrapLayout::sizeHint() const {
    constexpr int anyWidth = QLAYOUTSIZE_MAX;
    const auto items = shown();
    int width = 0;
    int height = 0;
    for (const Row& row : rowsFor(items, anyWidth)) {
        int across = -gap();
        for (std::size_t i = row.first; i < row.end; ++i) {
            across += gap() + (fill_ == Fill::evenly ? widest(items)
                                                     : items_[items[i]]->sizeHint().width());
        }
        width = std::max(width, across);
        height += row.height + (height > 0 ? gap() : 0);
    }
    return QSize(width, height).grownBy(contentsMargins());
}

QSize WrapLayout::minimumSize() const {
    const auto items = shown();
    QSize size(widest(items), 0);
    for (const std::size_t item : items) {
        size.setHeight(std::max(size.height(), items_[item]->sizeHint().height()));
    }
    return size.grownBy(contentsMargins());
}

void WrapLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const QRect room = rect.marginsRemoved(contentsMargins());
    const auto items = shown();
    int top = room.top();
    for (const Row& row : rowsFor(items, room.width())) {
        place(row, items, {room.left(), top, room.width(), row.height});
        top += row.height + gap();
    }
}

void WrapLayout::place(const Row& row, const std::vector<std::size_t>& items, const QRect& place) {
    const auto most = static_cast<int>(perRow(items, place.width()));
    int left = place.left();
    for (std::size_t i = row.first; i < row.end; ++i) {
        int width = std::min(items_[items[i]]->sizeHint().width(), place.width());
        if (fill_ == Fill::evenly) { // what does not divide goes to the first ones
            const auto at = static_cast<int>(i - row.first);
            const auto edge = [&](int column) { return column * (place.width() + gap()) / most; };
            left = place.left() + edge(at);
            width = edge(at + 1) - edge(at) - gap();
        }
        items_[items[i]]->setGeometry(QStyle::visualRect(
            parentWidget()->layoutDirection(), place, {left, place.top(), width, place.height()}));
        left += width + gap();
    }
}

} // namespace tarvel
