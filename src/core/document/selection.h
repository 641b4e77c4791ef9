// Which elements of the current screen are selected.
#pragma once

#include "document/skin_document.h"

#include <vector>

namespace tarvel {

class SelectionObserver {
  public:
    virtual ~SelectionObserver() = default;
    /// Something was selected, or nothing. Told also when the same is selected once more: views
    /// show it anew then.
    virtual void selectionChanged() = 0;
};

using SelectionWatch = Observers<SelectionObserver>::Watch;

/// Rows of the current screen's list, at most one for now, which leads. A selected element stays
/// selected while its row moves. Nothing is selected after the screen was changed or chosen again,
/// after another document took the place of this one, and when the row of the element is gone.
///
/// Watches the document, which outlives it. Whoever watches the document and asks for the selection
/// begins after it.
class Selection : private DocumentObserver {
  public:
    explicit Selection(SkinDocument& document);

    /// The element that panels and fields show: its id, 0 when nothing is selected.
    [[nodiscard]] int curNum() const { return leading_; }
    /// Its row, -1 when nothing is selected.
    [[nodiscard]] int leadingRow() const;
    /// All selected rows, from the back to the front.
    [[nodiscard]] std::vector<int> rows() const;
    [[nodiscard]] bool isEmpty() const { return leading_ == 0; }

    /// Selects one row of the current screen alone; -1 for none.
    void select(int row);
    void clear() { select(-1); }

    SelectionWatch watch(SelectionObserver& observer) { return observers_.add(observer); }

  private:
    void documentChanged(const DocumentChange& change) override;

    SkinDocument& document_;
    int leading_ = 0;
    mutable int row_ = -1; // of leading_, while rowIsKnown_
    mutable bool rowIsKnown_ = true;
    Observers<SelectionObserver> observers_;
    DocumentWatch watch_;
};

} // namespace tarvel
