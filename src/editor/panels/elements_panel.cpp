// Six list views in one place.
#include "panels/elements_panel.h"

#include "document/layout_screens.h"
#include "panels/element_list_model.h"
#include "widgets/qt_text.h"

#include <QListView>
#include <QMouseEvent>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvel {

namespace {

class ElementListView : public QListView {
  protected:
    // The right button asks for the menu of what is selected. Without a row under it, it would
    // take the selection away first.
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::RightButton || indexAt(event->position().toPoint()).isValid()) {
            QListView::mousePressEvent(event);
        }
    }
};

} // namespace

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
        auto* list = new ElementListView;
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
                    // The menu key asks at the selected row, which may be scrolled out of sight.
                    const QRect inSight = list->viewport()->rect();
                    const QPoint at(std::clamp(point.x(), inSight.left(), inSight.right()),
                                    std::clamp(point.y(), inSight.top(), inSight.bottom()));
                    emit menuWanted(list->viewport()->mapToGlobal(at), listIndex(screen) >= 0);
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
