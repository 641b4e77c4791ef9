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
    return stepName(what, document_, selection_.ids());
}

void ElementCommands::restackSelected(StackingCommand command) {
    if (selection_.size() > 1) {
        const OpenEdit edit(document_, stepWith(nameOf(command)));
        restackRows(document_, selection_.rows(), command);
        return;
    }
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
    const std::vector<int> ids = selection_.ids();
    const std::vector<int> rows = selection_.rows();
    const OpenEdit edit(document_, stepWith(step::lock));
    selection_.clear(); // a locked element shows no selection marks in the flat picture
    lockRows(document_, rows.empty() ? -1 : rows.back());
    selection_.selectIds(ids);
}

void ElementCommands::mnuUnlock_Click() {
    const OpenEdit edit(document_, std::string(step::unlock));
    unlockRows(document_);
}

bool ElementCommands::mnuDelete_Click() {
    const std::vector<int> rows = selection_.rows();
    if (rows.empty()) {
        return false;
    }
    const OpenEdit edit(document_, stepWith(step::remove));
    selection_.clear();
    deleteRows(document_, rows);
    return true;
}

} // namespace tarvel
