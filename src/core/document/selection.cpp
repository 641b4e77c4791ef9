// Selected elements by id, so that rows may move under them.
#include "document/selection.h"

namespace tarvel {

Selection::Selection(SkinDocument& document)
    : document_(document)
    , watch_(document.watch(*this)) {}

int Selection::leadingRow() const {
    if (!rowIsKnown_) {
        row_ = leading_ == 0 ? -1 : document_.rowOf(document_.currentLayout(), leading_);
        rowIsKnown_ = true;
    }
    return row_;
}

std::vector<int> Selection::rows() const {
    return isEmpty() ? std::vector<int>() : std::vector<int>{leadingRow()};
}

void Selection::select(int row) {
    const int id = row < 0 ? 0 : document_.itemData(document_.currentLayout(), row);
    if (id != leading_) {
        document_.endRun(); // it was one of the element that was selected
    }
    leading_ = id;
    row_ = row < 0 ? -1 : row;
    rowIsKnown_ = true;
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
        if (!isEmpty() && leadingRow() < 0) {
            clear();
        }
        break;
    case DocumentChange::What::settings:
    case DocumentChange::What::rowText:
    case DocumentChange::What::element:
    case DocumentChange::What::counts:
        break;
    }
}

} // namespace tarvel
