// Selected elements by id, so that rows may move under them.
#include "document/selection.h"

#include <algorithm>
#include <utility>

namespace tarvel {

Selection::Selection(SkinDocument& document)
    : document_(document)
    , watch_(document.watch(*this)) {}

int Selection::leadingRow() const {
    if (!rowIsKnown_) {
        row_ = isEmpty() ? -1 : document_.rowOf(document_.currentLayout(), curNum());
        rowIsKnown_ = true;
    }
    return row_;
}

std::vector<int> Selection::rows() const {
    if (size() <= 1) {
        return isEmpty() ? std::vector<int>() : std::vector<int>{leadingRow()};
    }
    const int screen = document_.currentLayout();
    std::vector<int> rows;
    rows.reserve(size());
    for (int row = 0; row < document_.rowCount(screen); ++row) {
        if (contains(document_.itemData(screen, row))) {
            rows.push_back(row);
        }
    }
    return rows;
}

bool Selection::contains(int elementId) const {
    const auto index = static_cast<std::size_t>(elementId);
    return index < isSelected_.size() && isSelected_[index];
}

void Selection::select(int row) {
    take(row < 0 ? std::vector<int>()
                 : std::vector<int>{document_.itemData(document_.currentLayout(), row)});
    row_ = row < 0 ? -1 : row;
    rowIsKnown_ = true;
    tell();
}

void Selection::toggle(int row) {
    if (row < 0) {
        return;
    }
    const int id = document_.itemData(document_.currentLayout(), row);
    std::vector<int> ids = ids_;
    if (contains(id)) {
        std::erase(ids, id);
    } else {
        ids.push_back(id);
    }
    take(std::move(ids));
    tell();
}

void Selection::lead(int elementId) {
    if (contains(elementId) && elementId != curNum()) {
        std::vector<int> ids = ids_;
        std::erase(ids, elementId);
        ids.push_back(elementId);
        take(std::move(ids));
        tell();
    }
}

void Selection::selectIds(const std::vector<int>& ids) {
    const int screen = document_.currentLayout();
    std::vector<bool> isThere(static_cast<std::size_t>(document_.lastElementId()) + 1);
    for (int row = 0; row < document_.rowCount(screen); ++row) {
        isThere[static_cast<std::size_t>(document_.itemData(screen, row))] = true;
    }
    std::vector<int> found;
    for (const int id : ids) {
        const auto index = static_cast<std::size_t>(id);
        if (index < isThere.size() && isThere[index]) {
            isThere[index] = false; // none twice
            found.push_back(id);
        }
    }
    take(std::move(found));
    tell();
}

// A run belongs to what was selected.
void Selection::take(std::vector<int>&& ids) {
    if (ids != ids_) {
        document_.endRun();
    }
    for (const int id : ids_) {
        isSelected_[static_cast<std::size_t>(id)] = false;
    }
    ids_ = std::move(ids);
    for (const int id : ids_) {
        const auto index = static_cast<std::size_t>(id);
        if (index >= isSelected_.size()) {
            isSelected_.resize(static_cast<std::size_t>(document_.lastElementId()) + 1);
        }
        isSelected_[index] = true;
    }
    rowIsKnown_ = false;
}

void Selection::tell() const {
    observers_.each([](SelectionObserver& observer) { observer.selectionChanged(); });
}

void Selection::documentChanged(const DocumentChange& change) {
    switch (change.what) {
    case DocumentChange::What::everything:
    case DocumentChange::What::currentLayout:
        clear();
        break;
    case DocumentChange::What::rows:
        rowIsKnown_ = false;
        dropGone();
        break;
    case DocumentChange::What::settings:
    case DocumentChange::What::rowText:
    case DocumentChange::What::element:
    case DocumentChange::What::elements:
    case DocumentChange::What::rowTexts:
    case DocumentChange::What::counts:
        break;
    }
}

void Selection::dropGone() {
    if (size() <= 1) {
        if (!isEmpty() && leadingRow() < 0) {
            clear();
        }
        return;
    }
    if (rows().size() == size()) {
        return;
    }
    const int screen = document_.currentLayout();
    std::vector<bool> isThere(isSelected_.size());
    for (const int row : rows()) {
        isThere[static_cast<std::size_t>(document_.itemData(screen, row))] = true;
    }
    std::vector<int> left = ids_;
    std::erase_if(left, [&](int id) { return !isThere[static_cast<std::size_t>(id)]; });
    take(std::move(left));
    tell();
}

} // namespace tarvel
