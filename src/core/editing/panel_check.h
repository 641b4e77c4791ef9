// Whether the panel's values can make an element.
#pragma once

#include "document/element.h"
#include "editing/panel_values.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tarvel {

/// The messages to show, one after the other, before an element of the tool's kind is drawn; none
/// when the values will do. Without a tool, and for menus, everything will do. Applying values to
/// an element that exists needs no check.
[[nodiscard]] std::vector<std::string_view> isInvalid(std::optional<ElementKind> tool,
                                                      const PanelValues& values);

} // namespace tarvel
