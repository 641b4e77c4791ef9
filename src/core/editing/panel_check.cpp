// Asks the tool's kind whether the panel's values can make an element of it.
#include "editing/panel_check.h"

#include "document/element_kinds.h"

namespace tarvel {

std::vector<std::string_view> isInvalid(std::optional<ElementKind> tool,
                                        const PanelValues& values) {
    if (!tool) {
        return {};
    }
    return rulesOf(*tool).faults(values);
}

} // namespace tarvel
