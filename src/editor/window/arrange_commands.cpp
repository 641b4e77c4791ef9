// Makes the entries from a table, and carries each out as one step.
#include "window/arrange_commands.h"

#include "document/open_edit.h"
#include "editing/stacking.h"
#include "editing/step_names.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace tarvel {

namespace {

struct Entry {
    ArrangeCommand command;
    const char* name;
    const char* caption;
    bool opensGroup = false; // a separator stands before it
};

constexpr std::array<Entry, arrangeCommands> table = {{
    {ArrangeCommand::alignLeft, "mnuAlignLeft", "Align Left"},
    {ArrangeCommand::alignCentre, "mnuAlignCentre", "Align Centre"},
    {ArrangeCommand::alignRight, "mnuAlignRight", "Align Right"},
    {ArrangeCommand::alignTop, "mnuAlignTop", "Align Top", true},
    {ArrangeCommand::alignMiddle, "mnuAlignMiddle", "Align Middle"},
    {ArrangeCommand::alignBottom, "mnuAlignBottom", "Align Bottom"},
    {ArrangeCommand::distributeAcross, "mnuDistributeAcross", "Distribute Across", true},
    {ArrangeCommand::distributeDown, "mnuDistributeDown", "Distribute Down"},
    {ArrangeCommand::sameWidth, "mnuSameWidth", "Same Width", true},
    {ArrangeCommand::sameHeight, "mnuSameHeight", "Same Height"},
    {ArrangeCommand::sameSize, "mnuSameSize", "Same Size"},
    {ArrangeCommand::centreAcross, "mnuCentreAcross", "Centre on the Screen Across", true},
    {ArrangeCommand::centreDown, "mnuCentreDown", "Centre on the Screen Down"},
    {ArrangeCommand::fillScreen, "mnuFillScreen", "Fill the Screen"},
    {ArrangeCommand::wholePixels, "mnuWholePixels", "Whole Pixels"},
}};

// Commands that ask for equally many elements; the last one is told of all that follow.
constexpr std::array<std::pair<ArrangeCommand, ArrangeCommand>, 4> alike = {{
    {ArrangeCommand::alignLeft, ArrangeCommand::alignBottom},
    {ArrangeCommand::distributeAcross, ArrangeCommand::distributeDown},
    {ArrangeCommand::sameWidth, ArrangeCommand::sameSize},
    {ArrangeCommand::centreAcross, ArrangeCommand::wholePixels},
}};

} // namespace

ArrangeCommands::ArrangeCommands(const Parts& parts)
    : parts_(parts)
    , watch_(parts.document, parts.selection, parts.gate, [this] { refresh(); }) {
    fillMenu();
    refresh();
}

void ArrangeCommands::fillMenu() {
    for (const Entry& entry : table) {
        if (entry.opensGroup) {
            parts_.menu.addSeparator();
        }
        QAction* action = parts_.menu.addAction(QLatin1String(entry.caption));
        action->setObjectName(QLatin1String(entry.name));
        connect(action, &QAction::triggered, this,
                [this, command = entry.command] { carryOut(command); });
        entries_.at(static_cast<std::size_t>(entry.command)) = action;
    }
    parts_.menu.addSeparator();
    parts_.menu.addActions(parts_.stacking);
    parts_.menu.addSeparator();
    parts_.menu.addAction(&parts_.lock);
    connect(&parts_.menu, &QMenu::aboutToShow, this, &ArrangeCommands::refresh);
}

// Asked once for commands that are possible together, because the answer takes time with many.
void ArrangeCommands::refresh() {
    const std::vector<int>& ids = parts_.selection.ids();
    const int leading = parts_.selection.curNum();
    const bool mayWork = watch_.mayWork();
    for (const auto& [first, last] : alike) {
        const bool possible = mayWork && isPossible(parts_.document, ids, leading, first);
        for (auto at = static_cast<std::size_t>(first); at <= static_cast<std::size_t>(last);
             ++at) {
            entries_.at(at)->setEnabled(possible);
        }
    }
    const bool isAnySelected = mayWork && !ids.empty();
    for (QAction* entry : std::as_const(parts_.stacking)) {
        entry->setEnabled(isAnySelected);
    }
    parts_.lock.setEnabled(isAnySelected);
    parts_.lock.setChecked(!ids.empty() && parts_.document.element(leading).elementLocked);
}

void ArrangeCommands::carryOut(ArrangeCommand command) {
    const std::vector<int>& ids = parts_.selection.ids();
    const OpenEdit edit(parts_.document, stepName(arrangeStep(command), parts_.document, ids));
    arrange(parts_.document, ids, parts_.selection.curNum(), command);
}

void ArrangeCommands::reorder(int before) {
    if (watch_.mayWork()) {
        const OpenEdit edit(parts_.document,
                            stepName(step::reorder, parts_.document, parts_.selection.ids()));
        moveRows(parts_.document, parts_.selection.rows(), before);
    }
}

} // namespace tarvel
