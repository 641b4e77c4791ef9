// Refreshes as seldom as will do: a drag of thousands of elements changes them with every move.
#include "window/command_watch.h"

#include "window/window_gate.h"

#include <utility>

namespace tarvel {

CommandWatch::CommandWatch(SkinDocument& document, Selection& selection, WindowGate& gate,
                           std::function<void()> refresh)
    : document_(document)
    , gate_(gate)
    , refresh_(std::move(refresh))
    , documentWatch_(document.watch(*this))
    , selectionWatch_(selection.watch(*this)) {
    connect(&gate_, &WindowGate::changed, this, &CommandWatch::refresh);
}

bool CommandWatch::mayWork() const {
    return !gate_.isClosed() && (!document_.isEditOpen() || document_.isRunOpen());
}

void CommandWatch::refresh() {
    mightWork_ = mayWork();
    refresh_();
}

// That an edit is a run shows only after it began.
void CommandWatch::documentChanged(const DocumentChange& change) {
    const bool isOfElements = change.what == DocumentChange::What::element ||
                              change.what == DocumentChange::What::elements ||
                              change.what == DocumentChange::What::rowText ||
                              change.what == DocumentChange::What::rowTexts;
    if (mayWork() && (!isOfElements || !mightWork_)) {
        refresh();
    }
}

void CommandWatch::editBegan(const std::string& /*name*/) {
    refresh();
}

void CommandWatch::editEnded(bool /*takenBack*/) {
    refresh();
}

void CommandWatch::selectionChanged() {
    if (mayWork()) {
        refresh();
    }
}

} // namespace tarvel
