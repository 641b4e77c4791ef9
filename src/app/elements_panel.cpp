// Six list views in one place.
#include "app/elements_panel.h"

#include "app/element_list_model.h"
#include "app/text.h"
#include "behaviour/layout_screens.h"

#include <QListView>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace tarvel {

ElementsPanel::ElementsPanel(const SkinDocument& document, QWidget* parent)
    : QGroupBox(QStringLiteral("ELEMENTS (Z-ORDER)"), parent)
    , stack_(new QStackedLayout) {
    setObjectName(QStringLiteral("fraElements"));
    setAccessibleName(QStringLiteral("Elements in stacking order"));
    auto* box = new QVBoxLayout(this);
    box->addLayout(stack_);
    for (int screen = 0; screen < screenCount; ++screen) {
        const auto caption = qtText(layoutScreens[static_cast<std::size_t>(screen)].caption);
        auto* model = new ElementListModel(document, screen, this);
        auto* list = new QListView;
        list->setObjectName(QStringLiteral("lst(%1)").arg(screen));
        list->setAccessibleName(QStringLiteral("Elements of %1").arg(caption));
        list->setModel(model);
        list->setUniformItemSizes(true); // thousands of rows open at once
        list->setSelectionMode(QAbstractItemView::SingleSelection);
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list->setTextElideMode(Qt::ElideRight); // the tool tip shows the whole text
        list->setEditTriggers(QAbstractItemView::NoEditTriggers);
        connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this, screen] { emit listIndexChanged(screen); });
        list->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(list, &QListView::customContextMenuRequested, this,
                [this, screen, list](const QPoint& point) {
                    if (!list->indexAt(point).isValid()) {
                        setListIndex(screen, -1);
                    }
                    emit menuWanted(list->viewport()->mapToGlobal(point), listIndex(screen) >= 0);
                });
        stack_->addWidget(list);
        models_[static_cast<std::size_t>(screen)] = model;
        lst_[static_cast<std::size_t>(screen)] = list;
    }
    showScreen(menuScreen);
}

void ElementsPanel::showScreen(int screen) {
    stack_->setCurrentIndex(screen);
}

int ElementsPanel::listIndex(int screen) const {
    const QModelIndexList rows = lst(screen)->selectionModel()->selectedIndexes();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void ElementsPanel::setListIndex(int screen, int row) {
    QListView* list = lst(screen);
    if (row < 0) {
        list->selectionModel()->clear();
        return;
    }
    const QModelIndex index = list->model()->index(row, 0);
    list->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    list->scrollTo(index);
}

void ElementsPanel::documentChanged(const DocumentChange& change) {
    switch (change.what) {
    case DocumentChange::What::everything:
        for (ElementListModel* model : models_) {
            model->sync();
        }
        break;
    case DocumentChange::What::rows:
        models_.at(static_cast<std::size_t>(change.screen))->sync();
        break;
    case DocumentChange::What::rowText:
        // Other changes of a record leave the text alone, and the list lays out all its rows anew
        // when one is told to be different: too much for every move of a drag.
        models_.at(static_cast<std::size_t>(change.screen))->rowTextChanged(change.elementId);
        break;
    default:
        break;
    }
}

} // namespace tarvel
