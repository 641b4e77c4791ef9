// The check of the tool's kind.
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
