// Looks how much room the panels have, and whether the pages may keep some.
#include "window/side_column.h"

#include "widgets/content_scroll.h"
#include "widgets/page_stack.h"

#include <QEvent>
#include <QVBoxLayout>

namespace tarvel {

SideColumn::SideColumn(QWidget* panels, QWidget* floor, PageStack& pages, QWidget* parent)
    : QWidget(parent)
    , panels_(*panels)
    , pages_(pages)
    , scroll_(new ContentScroll(panels, ContentScroll::Ways::down)) {
    scroll_->setObjectName(QStringLiteral("sidePanels"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(scroll_, 1);
    column->addWidget(floor);
    scroll_->viewport()->installEventFilter(this);
    panels->installEventFilter(this);
}

bool SideColumn::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        shareRoom();
    }
    return QWidget::eventFilter(watched, event);
}

void SideColumn::shareRoom() {
    const QSize room = scroll_->viewport()->size();
    const int others = panels_.heightForWidth(room.width()) - pages_.heightForWidth(room.width());
    pages_.keepRoom(others + pages_.highest(room.width()) <= room.height());
}

} // namespace tarvel
