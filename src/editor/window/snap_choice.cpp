// Keeps the entries, the box for the grid and what is remembered in line.
#include "window/snap_choice.h"

#include "widgets/control_names.h"
#include "widgets/remembered.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSpinBox>
#include <QWidgetAction>

namespace tarvel {

namespace {

constexpr RememberedSwitch snapToElements{"snap/elements", false};
constexpr RememberedSwitch snapToGridKey{"snap/grid", false};
constexpr RememberedNumber gridSize{"snap/gridSize", SnapOptions().grid, finestGrid, coarsestGrid};

} // namespace

SnapChoice::SnapChoice(QMenu& menu, QAction& toElements, QAction& toGrid, Remembered& remembered)
    : toElements_(toElements)
    , toGrid_(toGrid)
    , remembered_(remembered) {
    addGridSize(menu);
    toElements_.setCheckable(true);
    toElements_.setChecked(remembered.value(snapToElements));
    toGrid_.setCheckable(true);
    toGrid_.setChecked(remembered.value(snapToGridKey));
    connect(&toElements_, &QAction::toggled, this, &SnapChoice::remember);
    connect(&toGrid_, &QAction::toggled, this, &SnapChoice::remember);
    connect(txtGrid_, &QSpinBox::valueChanged, this, &SnapChoice::remember);
}

void SnapChoice::addGridSize(QMenu& menu) {
    auto* row = new QWidget;
    auto* line = new QHBoxLayout(row);
    constexpr int indent = 28; // pixels: where the texts of the entries begin
    line->setContentsMargins(indent, 2, 8, 2);
    auto* caption = new QLabel(tr("Grid in pixels"));
    txtGrid_ = named(new QSpinBox, QStringLiteral("txtGrid"), tr("Grid in pixels"));
    txtGrid_->setRange(finestGrid, coarsestGrid);
    txtGrid_->setValue(remembered_.value(gridSize));
    caption->setBuddy(txtGrid_);
    line->addWidget(caption);
    line->addStretch();
    line->addWidget(txtGrid_);
    auto* entry = new QWidgetAction(&menu);
    entry->setObjectName(QStringLiteral("mnuGrid"));
    entry->setDefaultWidget(row);
    const QList<QAction*> entries = menu.actions();
    menu.insertAction(entries.value(entries.indexOf(&toGrid_) + 1), entry);
}

SnapOptions SnapChoice::options() const {
    return {.toElements = toElements_.isChecked(),
            .toGrid = toGrid_.isChecked(),
            .grid = txtGrid_->value()};
}

void SnapChoice::remember() {
    const SnapOptions chosen = options();
    remembered_.remember(snapToElements, chosen.toElements);
    remembered_.remember(snapToGridKey, chosen.toGrid);
    remembered_.remember(gridSize, chosen.grid);
    emit changed(chosen);
}

} // namespace tarvel
