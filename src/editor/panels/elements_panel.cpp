// Puts the six screens' lists in one place, the current one in front.
#include "panels/elements_panel.h"

#include "document/layout_screens.h"
#include "panels/element_list_model.h"
#include "panels/element_list_view.h"
#include "panels/element_row_delegate.h"
#include "widgets/control_names.h"
#include "widgets/empty_hint.h"
#include "widgets/qt_text.h"

#include <QScopedValueRollback>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace tarvel {

ElementsPanel::ElementsPanel(const SkinDocument& document, Selection& selection,
                             PictureCache& pictures, QWidget* parent)
    : QGroupBox(QStringLiteral("ELEMENTS (Z-ORDER)"), parent)
    , document_(document)
    , selection_(selection)
    , stack_(new QStackedLayout)
    , rows_(new ElementRowDelegate(document, pictures, this))
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
    connect(&rows_->thumbnails(), &ElementThumbnails::made, this,
            [this] { current().viewport()->update(); });
}

ElementListView* ElementsPanel::makeList(int screen) {
    const auto caption = qtText(layoutScreens[static_cast<std::size_t>(screen)].caption);
    auto* list = named(new ElementListView, QStringLiteral("lst(%1)").arg(screen),
                       QStringLiteral("Elements of %1").arg(caption));
    list->setModel(&model(screen));
    list->setUniformItemSizes(true); // thousands of rows open at once
    list->setItemDelegate(rows_);
    new EmptyHint(*list, tr("No elements yet.\nChoose a tool and draw on the screen.")); // NOLINT
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight); // the tool tip shows the whole text
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this, screen] { lst_Click(screen); });
    // A click on the row that is selected already shows its values once more.
    connect(list, &QListView::clicked, this, [this, screen] { lst_Click(screen); });
    connect(list, &ElementListView::rowsDropped, this, &ElementsPanel::rowsDropped);
    connect(list, &ElementListView::rowHovered, this, &ElementsPanel::hover);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QListView::customContextMenuRequested, this,
            [this, list](const QPoint& point) { askForMenu(*list, point); });
    return list;
}

// What was selected before keeps its order; of what came, the row that the hand was at leads.
void ElementsPanel::lst_Click(int screen) {
    if (following_ || screen != document_.currentLayout()) {
        return;
    }
    const ElementListView& list = *lst_.at(static_cast<std::size_t>(screen));
    const std::vector<int> rows = list.selectedRows();
    if (rows.size() <= 1) {
        selection_.select(rows.empty() ? -1 : rows.front());
        return;
    }
    std::vector<int> chosen(rows.size());
    std::transform(rows.begin(), rows.end(), chosen.begin(),
                   [&](int row) { return document_.itemData(screen, row); });
    std::vector<int> ids;
    const std::unordered_set<int> isChosen(chosen.begin(), chosen.end());
    std::copy_if(selection_.ids().begin(), selection_.ids().end(), std::back_inserter(ids),
                 [&](int id) { return isChosen.count(id) > 0; });
    std::copy_if(chosen.begin(), chosen.end(), std::back_inserter(ids),
                 [&](int id) { return !selection_.contains(id); });
    const int current = list.currentIndex().row();
    if (std::binary_search(rows.begin(), rows.end(), current)) {
        const int leading = document_.itemData(screen, current);
        std::erase(ids, leading);
        ids.push_back(leading);
    }
    selection_.selectIds(ids);
}

void ElementsPanel::askForMenu(const QListView& list, QPoint point) {
    // The menu key asks at the selected row, which may be scrolled out of sight.
    const QRect inSight = list.viewport()->rect();
    const QPoint at(std::clamp(point.x(), inSight.left(), inSight.right()),
                    std::clamp(point.y(), inSight.top(), inSight.bottom()));
    emit menuWanted(list.viewport()->mapToGlobal(at));
}

void ElementsPanel::hover(int row) {
    const int screen = document_.currentLayout();
    hovered_ = row < 0 || row >= document_.rowCount(screen) ? 0 : document_.itemData(screen, row);
    emit elementHovered(hovered_);
}

void ElementsPanel::markRow(int row) {
    const int screen = document_.currentLayout();
    const bool isThere = row >= 0 && row < document_.rowCount(screen);
    const int marked = isThere ? document_.itemData(screen, row) : 0;
    const int before = rows_->marked();
    if (marked != before) {
        rows_->setMarked(marked);
        repaintRow(before);
        repaintRow(marked);
    }
}

// Looked for among the rows in sight: there may be many thousands of others.
void ElementsPanel::repaintRow(int elementId) {
    ElementListView& list = current();
    for (QModelIndex row = list.indexAt({0, 0}); row.isValid();
         row = row.siblingAtRow(row.row() + 1)) {
        const QRect place = list.visualRect(row);
        if (place.top() > list.viewport()->height()) {
            return;
        }
        if (row.data(Qt::UserRole).toInt() == elementId) {
            list.viewport()->update(place);
        }
    }
}

void ElementsPanel::picturesChanged() {
    rows_->thumbnails().forget();
}

bool ElementsPanel::isDragging() const {
    return current().isDragging();
}

void ElementsPanel::cancelDrag() {
    current().cancelDrag();
}

ElementListView& ElementsPanel::current() const {
    return *lst_.at(static_cast<std::size_t>(document_.currentLayout()));
}

void ElementsPanel::selectionChanged() {
    const QScopedValueRollback following(following_, true);
    current().setSelectedRows(selection_.rows(), selection_.leadingRow());
}

void ElementsPanel::documentChanged(const DocumentChange& change) {
    showChange(change);
    const bool isElsewhere = change.what == DocumentChange::What::element ||
                             change.what == DocumentChange::What::rowText;
    if (hovered_ != 0 && !(isElsewhere && change.elementId != hovered_)) {
        const bool stays = document_.rowOf(document_.currentLayout(), hovered_) >= 0;
        hovered_ = stays ? hovered_ : 0;
        emit elementHovered(hovered_);
    }
}

void ElementsPanel::showChange(const DocumentChange& change) {
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
    case DocumentChange::What::rowTexts:
        for (ElementListModel* model : models_) {
            model->textsChanged();
        }
        break;
    case DocumentChange::What::element:
        repaintRow(change.elementId); // its colour or its picture
        break;
    case DocumentChange::What::elements:
        current().viewport()->update();
        break;
    case DocumentChange::What::settings:
    case DocumentChange::What::counts:
        break;
    }
}

} // namespace tarvel
