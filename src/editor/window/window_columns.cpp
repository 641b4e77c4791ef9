// Gives the right column its width whenever there is another one to share.
#include "window/window_columns.h"

#include "widgets/accessible_roles.h"
#include "widgets/remembered.h"

#include <QEvent>
#include <QSplitterHandle>

#include <algorithm>

namespace tarvel {

namespace {

constexpr RememberedNumber columnWidth{
    .key = "columnWidth", .first = 0, .lowest = 0, .highest = 8000};

} // namespace

WindowColumns::WindowColumns(Remembered& remembered, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent)
    , remembered_(remembered)
    , chosen_(remembered.value(columnWidth)) {
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, &WindowColumns::dragged);
}

void WindowColumns::setColumns(QWidget* left, QWidget* right, QWidget* most) {
    most_ = most;
    addWidget(right);
    insertWidget(0, left);
    setStretchFactor(0, 1);
    setStretchFactor(1, 0);
    beHandle(*handle(1)); // before its name is told
    handle(1)->setAccessibleName(tr("Edge between the surface and the panels"));
    handle(1)->setToolTip(tr("Drag to make the panels wider"));
}

QSize WindowColumns::sizeHint() const {
    QSize size(-handleWidth(), 0);
    for (int i = 0; i < count(); ++i) {
        const QSize column = widget(i)->sizeHint();
        size = {size.width() + handleWidth() + column.width(),
                std::max(size.height(), column.height())};
    }
    return size;
}

void WindowColumns::resizeEvent(QResizeEvent* event) {
    QSplitter::resizeEvent(event);
    share();
}

bool WindowColumns::event(QEvent* event) {
    const bool handled = QSplitter::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        share(); // another font, or another style
    }
    return handled;
}

void WindowColumns::share() {
    if (count() < 2) {
        return;
    }
    const int room = width() - handleWidth();
    const int least = widget(1)->minimumSizeHint().width();
    const int wanted =
        chosen_ > 0 ? chosen_
                    : std::min(widget(1)->sizeHint().width(), room - most_->sizeHint().width());
    const int most = std::max(least, room - widget(0)->minimumSizeHint().width());
    const int right = std::clamp(wanted, least, most);
    if (sizes().at(1) != right) {
        setSizes({room - right, right});
    }
}

void WindowColumns::dragged() {
    chosen_ = sizes().at(1);
    remembered_.remember(columnWidth, chosen_);
}

} // namespace tarvel
