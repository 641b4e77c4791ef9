// The commands of the element's context menu: order, selection, locks, deletion.
#pragma once

#include "editing/stacking.h"
#include "surface/canvas_tool.h"

namespace tarvel {

/// Works on the selected element of the host, which outlives it.
class ElementCommands {
  public:
    explicit ElementCommands(ToolHost& host)
        : host_(host) {}

    void mnuFront_Click() { restackSelected(StackingCommand::Front); }
    void mnuBack_Click() { restackSelected(StackingCommand::Back); }
    void mnuForward_Click() { restackSelected(StackingCommand::Forward); }
    void mnuBackward_Click() { restackSelected(StackingCommand::Backward); }
    void mnuDeSel_Click();
    /// Locks the selected element and all behind it.
    void mnuLocked_Click();
    void mnuUnlock_Click();
    /// Deletes the selected element. Returns whether one was selected.
    bool mnuDelete_Click();

  private:
    void restackSelected(StackingCommand command);

    ToolHost& host_;
};

} // namespace tarvel
