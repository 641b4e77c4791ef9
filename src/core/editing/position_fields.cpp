// Shows the place of an element as texts, and moves it by what is typed into them.
#include "editing/position_fields.h"

#include "document/element_kinds.h"
#include "editing/group_places.h"
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

namespace {

// Where a number typed into a field takes an element.
Place entered(const SkinDocument& document, int elementId, PositionField field,
              std::string_view text) {
    const ElementControl& control = document.element(elementId).elementControl;
    const bool isSize =
        !hasEnds(control) && (field == PositionField::W || field == PositionField::H);
    const double number = val(text);
    Place place = placeOf(control);
    place.at(static_cast<std::size_t>(field)) = toSingle(isSize ? std::max(number, 0.0) : number);
    return place;
}

// Where the difference that the leading element made takes another one.
Place followed(const StartPlace& start, const StartPlace& leading, std::size_t field,
               double difference) {
    const bool isLine = start.form == PlaceForm::ends;
    const bool moves = field < 2;
    if (moves && !(isLine && leading.form == PlaceForm::ends)) {
        return movedAlong(start, field == 0 ? Axis::across : Axis::down, difference);
    }
    Place place = start.place;
    const double number = place.at(field) + difference;
    place.at(field) = toSingle(isLine ? number : std::max(number, 0.0));
    return place;
}

} // namespace

bool enterPosition(SkinDocument& document, int elementId, PositionField field,
                   std::string_view text) {
    return isMovable(document, elementId) &&
           placeElement(document, elementId, entered(document, elementId, field, text));
}

bool enterPositions(SkinDocument& document, const std::vector<int>& ids, PositionField field,
                    std::string_view text) {
    if (ids.empty() || !isMovable(document, ids.back())) {
        return false;
    }
    const int leadingId = ids.back();
    const ElementControl& control = document.element(leadingId).elementControl;
    const StartPlace leading{leadingId, rulesOf(control.kind).placeForm, placeOf(control)};
    const Place after = entered(document, leadingId, field, text);
    const auto at = static_cast<std::size_t>(field);
    const double difference = double{after.at(at)} - leading.place.at(at);
    std::vector<StartPlace> places = startPlaces(document, ids);
    for (StartPlace& each : places) {
        each.place = each.elementId == leadingId ? after : followed(each, leading, at, difference);
    }
    return placeAll(document, places);
}

} // namespace tarvel
