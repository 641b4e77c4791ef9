// Keeps a version of the document for each step, and shows one or another of them.
#include "document/history.h"

#include <utility>

namespace tarvel {

History::History(SkinDocument& document, WorkPlaces& places)
    : document_(document)
    , places_(places)
    , first_(document)
    , watch_(document.watch(*this)) {}

bool History::canUndo() const {
    return document_.isEditOpen() ? isRunUnderWay() : done_ > 0;
}

bool History::canRedo() const {
    return !document_.isEditOpen() && done_ < steps_.size();
}

std::string History::undoName() const {
    if (!canUndo()) {
        return {};
    }
    return isRunUnderWay() ? open_.name : steps_[done_ - 1].name;
}

std::string History::redoName() const {
    return canRedo() ? steps_[done_].name : std::string();
}

void History::undo() {
    document_.endRun();
    if (canUndo()) {
        --done_;
        show(steps_[done_].before);
    }
}

void History::redo() {
    if (canRedo()) {
        ++done_;
        show(steps_[done_ - 1].after);
    }
}

void History::startOver(bool isSaved) {
    document_.endRun();
    first_ = document_;
    steps_.clear();
    done_ = 0;
    saved_.reset();
    if (isSaved) {
        saved_ = document_;
    }
    tell();
}

void History::markSaved() {
    saved_ = document_;
    tell();
}

bool History::isChanged() const {
    return !saved_ || !document_.holdsTheSame(*saved_);
}

void History::documentChanged(const DocumentChange& change) {
    if (showing_ || change.what == DocumentChange::What::currentLayout) {
        return;
    }
    if (document_.isEditOpen() && !std::exchange(editChanged_, true)) {
        tell(); // a run can be undone from its first change on
    }
}

void History::editBegan(const std::string& name) {
    open_ = {name, places_.place(), {}, document_};
    shown() = document_; // what was changed without an edit is no part of the next one
    editChanged_ = false;
    tell();
}

void History::editEnded(bool takenBack) {
    if (editChanged_ && !takenBack && !document_.holdsTheSame(open_.document)) {
        keepStep();
    }
    open_ = {}; // gives up what only its copy of the document held
    editChanged_ = false;
    tell();
}

// Drops what was undone: another future begins here.
void History::keepStep() {
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
    open_.after = places_.place();
    open_.document = document_;
    steps_.push_back(std::move(open_));
    if (steps_.size() > stepLimit) {
        first_ = std::move(steps_.front().document);
        steps_.pop_front();
    }
    done_ = steps_.size();
}

SkinDocument& History::shown() {
    return done_ == 0 ? first_ : steps_[done_ - 1].document;
}

void History::show(const WorkPlace& place) {
    showing_ = true;
    document_.showVersion(shown(), place.screen);
    places_.goTo(place);
    showing_ = false;
    tell();
}

void History::tell() const {
    observers_.each([](HistoryObserver& observer) { observer.historyChanged(); });
}

} // namespace tarvel
