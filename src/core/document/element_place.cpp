// Reads and sets the four numbers of an element's place, by the kind of its control.
#include "document/element_place.h"

#include "document/element_kinds.h"

namespace tarvel {

Place placeOf(const ElementControl& control) {
    if (hasEnds(control)) {
        return {control.X1, control.Y1, control.X2, control.Y2};
    }
    return {control.left, control.top, control.width, control.height};
}

void setPlace(ElementControl& control, const Place& place) {
    const auto [a, b, c, d] = place;
    if (hasEnds(control)) {
        control.X1 = a;
        control.Y1 = b;
        control.X2 = c;
        control.Y2 = d;
    } else {
        control.left = a;
        control.top = b;
        control.width = c;
        control.height = d;
    }
}

bool isMovable(const SkinDocument& document, int elementId) {
    return elementId > 0 && !document.element(elementId).elementLocked;
}

bool placeElement(SkinDocument& document, int elementId, const Place& place) {
    if (!isMovable(document, elementId) ||
        placeOf(document.element(elementId).elementControl) == place) {
        return false;
    }
    document.editElement(elementId,
                         [&](Element& element) { setPlace(element.elementControl, place); });
    return true;
}

} // namespace tarvel
