// Carries out each entry of the context menu as one step with the selected element.
#include "window/element_commands.h"

#include "document/open_edit.h"
#include "editing/step_names.h"

namespace tarvel {

namespace {

std::string_view nameOf(StackingCommand command) {
    switch (command) {
    case StackingCommand::Front:
        return step::front;
    case StackingCommand::Back:
        return step::back;
    case StackingCommand::Forward:
        return step::forward;
    case StackingCommand::Backward:
        break;
    }
    return step::backward;
}

} // namespace

std::string ElementCommands::stepWith(std::string_view what) const {
    return stepName(what, document_.element(selection_.curNum()));
}

void ElementCommands::restackSelected(StackingCommand command) {
    const int row = selection_.leadingRow();
    if (stackingTarget(document_, row, command) != row) {
        const OpenEdit edit(document_, stepWith(nameOf(command)));
        selection_.select(restack(document_, row, command));
    }
}

void ElementCommands::mnuDeSel_Click() {
    selection_.clear();
}

void ElementCommands::mnuLocked_Click() {
    const int row = selection_.leadingRow();
    const OpenEdit edit(document_, stepWith(step::lock));
    selection_.clear(); // a locked element shows no selection marks in the flat picture
    lockRows(document_, row);
    selection_.select(row);
}

void ElementCommands::mnuUnlock_Click() {
    const OpenEdit edit(document_, std::string(step::unlock));
    unlockRows(document_);
}

bool ElementCommands::mnuDelete_Click() {
    const int row = selection_.leadingRow();
    if (row < 0) {
        return false;
    }
    const OpenEdit edit(document_, stepWith(step::remove));
    selection_.clear();
    deleteRow(document_, row);
    return true;
}

} // namespace tarvel
