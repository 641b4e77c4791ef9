// Which view follows which change of the selected element.
#include "window/selection_views.h"

#include "document/element_kinds.h"
#include "document/layout_screens.h"
#include "editing/element_update.h"
#include "editing/element_words.h"
#include "panels/behaviour_buttons.h"
#include "panels/create_panel.h"
#include "panels/position_panel.h"
#include "panels/property_panel.h"
#include "surface/pic.h"
#include "surface/selection_marks.h"
#include "surface/surface_room.h"

namespace tarvel {

SelectionViews::SelectionViews(const SkinDocument& document, Selection& selection,
                               const Views& views)
    : document_(document)
    , selection_(selection)
    , views_(views)
    , documentWatch_(document.watch(*this))
    , selectionWatch_(selection.watch(*this)) {}

void SelectionViews::documentChanged(const DocumentChange& change) {
    const bool itsOwn =
        change.what == DocumentChange::What::element && selection_.contains(change.elementId);
    if (itsOwn || change.what == DocumentChange::What::elements) {
        setCurrentSel();
        setBolds();
        showDifference();
    }
}

void SelectionViews::selectionChanged() {
    showSelection();
    if (!selection_.isEmpty()) { // by the list or by keys it may be one that is scrolled away
        views_.room.reveal(Pic::elementBounds(document_.element(selection_.curNum())));
    }
}

void SelectionViews::hideMarks() {
    views_.marks.hideSels();
}

void SelectionViews::showSelection() {
    setCurrentSel();
    setBolds();
    views_.behaviours.setAvailable(!selection_.isEmpty());
    if (selection_.size() > 1) {
        views_.properties.showElements(selection_.ids());
    } else if (!selection_.isEmpty()) {
        views_.properties.showElement(document_.element(selection_.curNum()));
    } else if (!views_.tools.tool()) {
        views_.properties.showNothing();
    }
    showDifference();
}

void SelectionViews::showDifference() {
    const PropertyPanel& panel = views_.properties;
    views_.properties.setDiffers(
        selection_.size() > 1 ? !(panel.valuesNow() == panel.valuesBefore())
                              : panelDiffers(document_, selection_.curNum(), panel.values()));
}

void SelectionViews::setCurrentSel() {
    if (selection_.isEmpty()) {
        views_.marks.hideSels();
        views_.marks.describe("nothing selected");
        views_.position.clear();
        return;
    }
    const Element& element = document_.element(selection_.curNum());
    if (selection_.size() > 1) {
        views_.marks.setSeveral(document_, selection_.ids());
        views_.marks.describe(std::to_string(selection_.size()) + " elements selected, " +
                              elementWords(element) + " leads");
    } else {
        views_.marks.setCurrentSel(element);
        views_.marks.describe(elementWords(element) + ", selected");
    }
    if (hasEnds(element.elementControl)) {
        views_.position.setPosLine(element.elementControl);
    } else {
        views_.position.setPos(element.elementControl);
    }
    views_.position.setEditable(!element.elementLocked);
}

void SelectionViews::setBolds() {
    views_.behaviours.setBolds(behaviourMarks(document_.element(selection_.curNum())));
}

} // namespace tarvel
