// Putting kind and place of an element into words.
#include "editing/element_words.h"

#include "document/element_kinds.h"
#include "document/element_place.h"
#include "text/number_format.h"

namespace tarvel {

std::string elementWords(const Element& element) {
    const Place place = placeOf(element.elementControl);
    const bool ends = hasEnds(element.elementControl);
    std::string words(rulesOf(element.elementKind).typeName);
    const auto add = [&words](std::string_view between, float number) {
        words.append(between);
        appendNumber(words, number);
    };
    add(", ", place[0]);
    add(", ", place[1]);
    add(ends ? " to " : ", ", place[2]);
    add(ends ? ", " : " by ", place[3]);
    if (element.elementLocked) {
        words.append(", locked");
    }
    return words;
}

} // namespace tarvel
