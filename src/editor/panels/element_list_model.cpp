// Keeps a screen's rows in step with the document by comparing ids.
#include "panels/element_list_model.h"

#include "widgets/qt_text.h"

#include <algorithm>

namespace tarvel {

namespace {

std::vector<int> idsOf(const SkinDocument& document, int screen) {
    std::vector<int> ids(static_cast<std::size_t>(document.rowCount(screen)));
    for (std::size_t row = 0; row < ids.size(); ++row) {
        ids[row] = document.itemData(screen, static_cast<int>(row));
    }
    return ids;
}

} // namespace

ElementListModel::ElementListModel(const SkinDocument& document, int screen, QObject* parent)
    : QAbstractListModel(parent)
    , document_(document)
    , screen_(screen)
    , ids_(idsOf(document, screen)) {}

int ElementListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(ids_.size());
}

QVariant ElementListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const int id = ids_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) {
        return qtText(document_.element(id).label);
    }
    if (role == Qt::ToolTipRole) {
        return plainToolTip(qtText(document_.element(id).label));
    }
    if (role == lockedRole) {
        return document_.element(id).elementLocked;
    }
    return role == Qt::UserRole ? QVariant(id) : QVariant{};
}

void ElementListModel::removeRun(std::size_t from, std::size_t count) {
    const auto first = ids_.begin() + static_cast<std::ptrdiff_t>(from);
    beginRemoveRows({}, static_cast<int>(from), static_cast<int>(from + count) - 1);
    ids_.erase(first, first + static_cast<std::ptrdiff_t>(count));
    endRemoveRows();
}

void ElementListModel::insertRun(std::size_t from, std::size_t count, const std::vector<int>& ids) {
    const auto source = ids.begin() + static_cast<std::ptrdiff_t>(from);
    beginInsertRows({}, static_cast<int>(from), static_cast<int>(from + count) - 1);
    ids_.insert(ids_.begin() + static_cast<std::ptrdiff_t>(from), source,
                source + static_cast<std::ptrdiff_t>(count));
    endInsertRows();
}

void ElementListModel::sync() {
    const std::vector<int> now = idsOf(document_, screen_);
    const auto [oldFirst, newFirst] =
        std::mismatch(ids_.begin(), ids_.end(), now.begin(), now.end());
    const auto same = static_cast<std::size_t>(oldFirst - ids_.begin());
    const auto limit = std::min(ids_.size(), now.size()) - same;
    std::size_t tail = 0;
    while (tail < limit && ids_[ids_.size() - 1 - tail] == now[now.size() - 1 - tail]) {
        ++tail;
    }
    if (const std::size_t gone = ids_.size() - same - tail; gone > 0) {
        removeRun(same, gone);
    }
    if (const std::size_t come = now.size() - same - tail; come > 0) {
        insertRun(same, come, now);
    }
}

void ElementListModel::textsChanged() {
    if (!ids_.empty()) {
        emit dataChanged(index(0), index(rowCount() - 1));
    }
}

void ElementListModel::rowTextChanged(int elementId) {
    const auto found = std::find(ids_.begin(), ids_.end(), elementId);
    if (found != ids_.end()) {
        const QModelIndex changed = index(static_cast<int>(found - ids_.begin()));
        emit dataChanged(changed, changed);
    }
}

} // namespace tarvel
