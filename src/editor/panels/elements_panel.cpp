// Puts the six screens' lists in one place, the current one in front.
#include "panels/elements_panel.h"

#include "document/layout_screens.h"
#include "panels/element_list_model.h"
#include "widgets/control_names.h"
#include "widgets/qt_text.h"

#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvel {

class ElementListView : public QListView {
  public:
    /// The selected row; -1 for none.
    [[nodiscard]] int listIndex() const {
        const QModelIndexList rows = selectionModel()->selectedIndexes();
        return rows.isEmpty() ? -1 : rows.front().row();
    }

    void setListIndex(int row) {
        if (row < 0) {
            selectionModel()->clear();
        } else if (row != listIndex()) {
            const QModelIndex index = model()->index(row, 0);
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
            scrollTo(index);
        }
    }

  protected:
    // The right button asks for the menu of what is selected. Without a row under it, it would
    // take the selection away first.
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::RightButton || indexAt(event->position().toPoint()).isValid()) {
            QListView::mousePressEvent(event);
        }
    }
};

ElementsPanel::ElementsPanel(const SkinDocument& document, Selection& selection, QWidget* parent)
    : QGroupBox(QStringLiteral("ELEMENTS (Z-ORDER)"), parent)
    , document_(document)
    , selection_(selection)
    , stack_(new QStackedLayout)
    , documentWatch_(document.watch(*this))
    , selectionWatch_(selection.watch(*this)) {
    named(this, QStringLiteral("fraElements"), QStringLiteral("Elements in stacking order"));
    auto* box = new QVBoxLayout(this);
    box->addLayout(stack_);
    for (int screen = 0; screen < screenCount; ++screen) {
        const auto at = static_cast<std::size_t>(screen);
        models_[at] = new ElementListModel(document, screen, this);
        lst_[at] = makeList(screen);
        stack_->addWidget(lst_[at]);
    }
    stack_->setCurrentIndex(document.currentLayout());
}

ElementListView* ElementsPanel::makeList(int screen) {
    const auto caption = qtText(layoutScreens[static_cast<std::size_t>(screen)].caption);
    auto* list = named(new ElementListView, QStringLiteral("lst(%1)").arg(screen),
                       QStringLiteral("Elements of %1").arg(caption));
    list->setModel(&model(screen));
    list->setUniformItemSizes(true); // thousands of rows open at once
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight); // the tool tip shows the whole text
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this, screen] { lst_Click(screen); });
    // A click on the row that is selected already shows its values once more.
    connect(list, &QListView::clicked, this, [this, screen] { lst_Click(screen); });
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QListView::customContextMenuRequested, this,
            [this, list](const QPoint& point) { askForMenu(*list, point); });
    return list;
}

void ElementsPanel::lst_Click(int screen) {
    if (!following_ && screen == document_.currentLayout()) {
        selection_.select(lst_.at(static_cast<std::size_t>(screen))->listIndex());
    }
}

void ElementsPanel::askForMenu(const QListView& list, QPoint point) {
    // The menu key asks at the selected row, which may be scrolled out of sight.
    const QRect inSight = list.viewport()->rect();
    const QPoint at(std::clamp(point.x(), inSight.left(), inSight.right()),
                    std::clamp(point.y(), inSight.top(), inSight.bottom()));
    emit menuWanted(list.viewport()->mapToGlobal(at));
}

void ElementsPanel::selectionChanged() {
    const QScopedValueRollback following(following_, true);
    lst_.at(static_cast<std::size_t>(document_.currentLayout()))
        ->setListIndex(selection_.leadingRow());
}

void ElementsPanel::documentChanged(const DocumentChange& change) {
    const QScopedValueRollback following(following_, true);
    switch (change.what) {
    case DocumentChange::What::everything:
        for (ElementListModel* model : models_) {
            model->sync();
            model->textsChanged();
        }
        stack_->setCurrentIndex(document_.currentLayout());
        break;
    case DocumentChange::What::currentLayout:
        stack_->setCurrentIndex(document_.currentLayout());
        break;
    case DocumentChange::What::rows:
        model(change.screen).sync();
        if (change.screen == document_.currentLayout()) {
            selectionChanged(); // its row may be another one
        }
        break;
    case DocumentChange::What::rowText:
        // Other changes of a record leave the text alone, and the list lays out all its rows anew
        // when one is told to be different: too much for every move of a drag.
        model(change.screen).rowTextChanged(change.elementId);
        break;
    case DocumentChange::What::elements:
        for (ElementListModel* model : models_) {
            model->textsChanged();
        }
        break;
    case DocumentChange::What::settings:
    case DocumentChange::What::element:
    case DocumentChange::What::counts:
        break;
    }
}

} // namespace tarvel
