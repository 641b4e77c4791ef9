// Element commands.
#include "window/element_commands.h"

namespace tarvel {

void ElementCommands::restackSelected(StackingCommand command) {
    const int row = host_.selectedRow();
    if (row >= 0) {
        host_.selectRow(restack(host_.document(), row, command));
    }
}

void ElementCommands::mnuDeSel_Click() {
    host_.selectRow(-1);
}

void ElementCommands::mnuLocked_Click() {
    const int row = host_.selectedRow();
    host_.selectRow(-1); // a locked element shows no selection marks in the flat picture
    lockRows(host_.document(), row);
    host_.selectRow(row);
}

void ElementCommands::mnuUnlock_Click() {
    unlockRows(host_.document());
}

bool ElementCommands::mnuDelete_Click() {
    const int row = host_.selectedRow();
    if (row < 0) {
        return false;
    }
    host_.selectRow(-1);
    deleteRow(host_.document(), row);
    return true;
}

} // namespace tarvel
