// Puts a step's name together from what is done and the kind of element.
#include "editing/step_names.h"

#include "document/element_kinds.h"

namespace tarvel {

std::string stepName(std::string_view what, ElementKind kind) {
    return std::string(what).append(" ").append(rulesOf(kind).typeName);
}

std::string stepName(std::string_view what, const SkinDocument& document,
                     const std::vector<int>& ids) {
    if (ids.size() == 1) {
        return stepName(what, document.element(ids.front()));
    }
    return std::string(what).append(" ").append(std::to_string(ids.size())).append(" elements");
}

} // namespace tarvel
