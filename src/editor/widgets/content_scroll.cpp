// Hands on what the content asks for, which a plain scroll area keeps to itself.
#include "widgets/content_scroll.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace tarvel {

namespace {

constexpr QSize smallest{160, 120}; // pixels of the content in sight

} // namespace

ContentScroll::ContentScroll(QWidget* content, Ways ways, QWidget* parent)
    : QScrollArea(parent)
    , ways_(ways) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    if (ways == Ways::down) {
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    content->installEventFilter(this);
}

QSize ContentScroll::sizeHint() const {
    return widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
}

QSize ContentScroll::minimumSizeHint() const {
    const int bar = verticalScrollBar()->sizeHint().width();
    const QSize content = widget()->minimumSizeHint() + QSize(bar, 0);
    return {ways_ == Ways::down ? content.width() : std::min(smallest.width(), content.width()),
            std::min(smallest.height(), content.height())};
}

bool ContentScroll::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return handled;
}

} // namespace tarvel
