// Finds a kind by the type in the file, and names the controls that draw the kinds.
#include "document/element_kinds.h"

#include "text/text_case.h"

#include <algorithm>

namespace tarvel {

const KindRules* kindOfType(std::string_view type) {
    const auto found =
        std::find_if(elementKinds.begin(), elementKinds.end(), [type](const KindRules* rules) {
            return equalsIgnoringCase(rules->typeName, type);
        });
    return found == elementKinds.end() ? nullptr : *found;
}

std::string_view controlName(ControlKind kind) {
    const auto controls = rulesOf(kind).controls;
    const auto found =
        std::find_if(controls.begin(), controls.end(),
                     [kind](const NamedControl& control) { return control.kind == kind; });
    return found->name;
}

} // namespace tarvel
