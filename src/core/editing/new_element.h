// Makes the elements that the user draws, out of what the property panel holds.
#pragma once

#include "document/element_place.h"
#include "document/skin_document.h"
#include "editing/panel_values.h"

namespace tarvel {

/// The control that a new element of the kind starts with; the resource of an image decides anew.
[[nodiscard]] ControlKind newControl(ElementKind kind);

/// Adds an element without extent at the press point, in whole numbers, to the current screen, as
/// its last row, and returns its id. Values are not checked; see isInvalid().
int makeNewElement(SkinDocument& document, ElementKind kind, const PanelValues& values,
                   SkinPoint press);

} // namespace tarvel
