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

/// Rows of the current screen's list, of which the one picked last leads. A selected element stays
/// selected while its row moves. Nothing is selected after the screen was changed or chosen again,
/// and after another document took the place of this one; an element whose row is gone is no longer
/// selected.
///
/// Watches the document, which outlives it. Whoever watches the document and asks for the selection
/// begins after it.
class Selection : private DocumentObserver {
  public:
    explicit Selection(SkinDocument& document);

    /// The element that panels and fields show: its id, 0 when nothing is selected.
    [[nodiscard]] int curNum() const { return ids_.empty() ? 0 : ids_.back(); }
    /// Its row, -1 when nothing is selected.
    [[nodiscard]] int leadingRow() const;
    /// All selected elements, in the order in which they were picked: the last one leads.
    [[nodiscard]] const std::vector<int>& ids() const { return ids_; }
    /// Their rows, from the back to the front.
    [[nodiscard]] std::vector<int> rows() const;
    [[nodiscard]] std::size_t size() const { return ids_.size(); }
    [[nodiscard]] bool isEmpty() const { return ids_.empty(); }
    [[nodiscard]] bool contains(int elementId) const;

    /// Selects one row of the current screen alone; -1 for none.
    void select(int row);
    void clear() { select(-1); }
    /// Adds a row, which leads then, or takes it away; -1 changes nothing.
    void toggle(int row);
    /// Lets a selected element lead.
    void lead(int elementId);
    /// Selects elements of the current screen alone, in this order. Those that it does not hold are
    /// left out.
    void selectIds(const std::vector<int>& ids);

    SelectionWatch watch(SelectionObserver& observer) { return observers_.add(observer); }

  private:
    void documentChanged(const DocumentChange& change) override;
    void take(std::vector<int>&& ids);
    void dropGone();
    void tell() const;

    SkinDocument& document_;
    std::vector<int> ids_;
    std::vector<bool> isSelected_; // by id, as far as any was selected yet
    mutable int row_ = -1;         // of the leading one, while rowIsKnown_
    mutable bool rowIsKnown_ = true;
    Observers<SelectionObserver> observers_;
    DocumentWatch watch_;
};

} // namespace tarvel
