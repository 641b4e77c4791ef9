// Moves, deletes and locks rows of the current screen, and keeps the counts with them.
#include "editing/stacking.h"

#include <string>

namespace tarvel {

namespace {

bool isLocked(const SkinDocument& document, int row) {
    return document.element(document.itemData(document.currentLayout(), row)).elementLocked;
}

void setLocked(SkinDocument& document, int row, bool locked) {
    document.editElement(document.itemData(document.currentLayout(), row),
                         [&](Element& element) { element.elementLocked = locked; });
}

} // namespace

int stackingTarget(const SkinDocument& document, int row, StackingCommand command) {
    const int screen = document.currentLayout();
    if (row < 0 || isLocked(document, row)) {
        return row;
    }
    const int last = document.rowCount(screen) - 1;
    const int rearmost = document.lockCount(screen);
    switch (command) {
    case StackingCommand::Front:
        return last;
    case StackingCommand::Back:
        return rearmost;
    case StackingCommand::Forward:
        return row < last ? row + 1 : row;
    case StackingCommand::Backward:
        return row > rearmost ? row - 1 : row;
    }
    return row;
}

int restack(SkinDocument& document, int row, StackingCommand command) {
    const int target = stackingTarget(document, row, command);
    if (target != row) {
        document.moveRow(document.currentLayout(), row, target);
    }
    return target;
}

bool deleteRow(SkinDocument& document, int row) {
    if (row < 0) {
        return false;
    }
    const int screen = document.currentLayout();
    const bool wasLocked = isLocked(document, row);
    document.delItem(row);
    document.setScreenElementCount(screen, document.screenElementCount(screen) - 1);
    if (wasLocked) {
        document.setLockCount(screen, document.lockCount(screen) - 1);
    }
    return wasLocked;
}

bool lockRows(SkinDocument& document, int row) {
    if (row < 0 || isLocked(document, row)) {
        return false;
    }
    const int screen = document.currentLayout();
    for (int each = 0; each <= row; ++each) {
        if (!isLocked(document, each)) {
            setLocked(document, each, true);
            document.setRowText(screen, each,
                                std::string(lockPrefix).append(document.rowText(screen, each)));
        }
    }
    document.setLockCount(screen, row + 1);
    return true;
}

bool unlockRows(SkinDocument& document) {
    const int screen = document.currentLayout();
    bool changed = false;
    for (int row = 0; row < document.rowCount(screen); ++row) {
        if (isLocked(document, row)) {
            setLocked(document, row, false);
            document.setRowText(screen, row,
                                document.rowText(screen, row).substr(lockPrefix.size()));
            changed = true;
        }
    }
    if (changed) {
        document.setLockCount(screen, 0);
    }
    return changed;
}

} // namespace tarvel
