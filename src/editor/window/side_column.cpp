// Looks how much room the panels have, and whether the pages may keep some.
#include "window/side_column.h"

#include "widgets/content_scroll.h"
#include "widgets/page_stack.h"

#include <QEvent>
#include <QVBoxLayout>

namespace tarvel {

SideColumn::SideColumn(ContentScroll* panels, QWidget* floor, PageStack& pages, QWidget* parent)
    : QWidget(parent)
    , scroll_(*panels)
    , pages_(pages) {
    panels->setObjectName(QStringLiteral("sidePanels"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(panels, 1);
    column->addWidget(floor);
    panels->viewport()->installEventFilter(this);
    panels->widget()->installEventFilter(this);
}

bool SideColumn::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        shareRoom();
    }
    return QWidget::eventFilter(watched, event);
}

void SideColumn::shareRoom() {
    const QSize room = scroll_.viewport()->size();
    const int others =
        scroll_.widget()->heightForWidth(room.width()) - pages_.heightForWidth(room.width());
    pages_.keepRoom(others + pages_.highest(room.width()) <= room.height());
}

} // namespace tarvel
