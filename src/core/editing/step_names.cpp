// Puts a step's name together from what is done and the kind of element.
#include "editing/step_names.h"

#include "document/element_kinds.h"

namespace tarvel {

std::string stepName(std::string_view what, ElementKind kind) {
    return std::string(what).append(" ").append(rulesOf(kind).typeName);
}

} // namespace tarvel
