// The commands of the element's context menu: order, selection, locks, deletion.
#pragma once

#include "document/selection.h"
#include "editing/stacking.h"

namespace tarvel {

/// Works on what is selected. Document and selection are not owned and outlive it.
class ElementCommands {
  public:
    ElementCommands(SkinDocument& document, Selection& selection)
        : document_(document)
        , selection_(selection) {}

    void mnuFront_Click() { restackSelected(StackingCommand::Front); }
    void mnuBack_Click() { restackSelected(StackingCommand::Back); }
    void mnuForward_Click() { restackSelected(StackingCommand::Forward); }
    void mnuBackward_Click() { restackSelected(StackingCommand::Backward); }
    void mnuDeSel_Click();
    /// Locks up to the frontmost of the selected elements.
    void mnuLocked_Click();
    void mnuUnlock_Click();
    /// Deletes the selected elements. Returns whether one was selected.
    bool mnuDelete_Click();

  private:
    void restackSelected(StackingCommand command);
    [[nodiscard]] std::string stepWith(std::string_view what) const;

    SkinDocument& document_;
    Selection& selection_;
};

} // namespace tarvel
