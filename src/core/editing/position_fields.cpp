// Shows the place of an element as texts, and moves it by what is typed into them.
#include "editing/position_fields.h"

#include "document/element_kinds.h"
#include "text/number_format.h"

#include <algorithm>

namespace tarvel {

const std::array<std::string_view, positionFields>& positionCaptions(ControlKind kind) {
    static constexpr std::array<std::string_view, positionFields> rectangle = {"L", "T", "W", "H"};
    static constexpr std::array<std::string_view, positionFields> line = {"X1", "Y1", "X2", "Y2"};
    return rulesOf(kind).placeForm == PlaceForm::ends ? line : rectangle;
}

PositionTexts positionTexts(const ElementControl& control) {
    const auto [a, b, c, d] = placeOf(control);
    return {numberText(a), numberText(b), numberText(c), numberText(d)};
}

bool enterPosition(SkinDocument& document, int elementId, PositionField field,
                   std::string_view text) {
    if (!isMovable(document, elementId)) {
        return false;
    }
    const ElementControl& control = document.element(elementId).elementControl;
    const bool isSize =
        !hasEnds(control) && (field == PositionField::W || field == PositionField::H);
    const double number = val(text);
    Place place = placeOf(control);
    place.at(static_cast<std::size_t>(field)) = toSingle(isSize ? std::max(number, 0.0) : number);
    return placeElement(document, elementId, place);
}

} // namespace tarvel
