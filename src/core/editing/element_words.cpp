// Putting kind and place of an element into words.
#include "editing/element_words.h"

#include "document/element_place.h"
#include "document/element_kinds.h"
#include "text/number_format.h"

namespace tarvel {

std::string elementWords(const Element& element) {
    const Place place = placeOf(element.elementControl);
    const bool isLine = element.elementControl.kind == ControlKind::lin;
    std::string words(rulesOf(element.elementKind).typeName);
    const auto add = [&words](std::string_view between, float number) {
        words.append(between);
        appendNumber(words, number);
    };
    add(", ", place[0]);
    add(", ", place[1]);
    add(isLine ? " to " : ", ", place[2]);
    add(isLine ? ", " : " by ", place[3]);
    if (element.elementLocked) {
        words.append(", locked");
    }
    return words;
}

} // namespace tarvel
