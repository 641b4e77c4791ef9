// Puts the time line under its heading.
#include "panels/time_panel.h"

#include "widgets/control_names.h"

#include <QLabel>
#include <QVBoxLayout>

namespace tarvel {

TimePanel::TimePanel(QWidget* parent)
    : SideCard(parent)
    , timeLine_(new TimeLine) {
    hide();
    named(this, QStringLiteral("fraTime"), tr("Time line"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(headingOf(QStringLiteral("TIME LINE:")));
    column->addWidget(timeLine_, 1);
}

} // namespace tarvel
