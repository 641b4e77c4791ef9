// How an element is shown in the property panel, and what the panel's buttons do to its values.
#pragma once

#include "document/kinds/panel_form.h"
#include "document/skin_document.h"

#include <vector>

namespace tarvel {

/// The user chose a colour for a swatch.
void chooseColor(Swatch& swatch, ColorNumber color);
/// Clears the border, or the fill and with it the opacity.
void clearBorder(PanelValues& values);
void clearFill(PanelValues& values);

/// The parts for a kind of control. Of the values it changes swatches: a line's is solid, and a
/// text's font swatch always solid white, whatever colour the text has.
PanelLayout editControls(ControlKind kind, PanelValues& values);

/// Shows an element in the panel, then calls editControls() for it. The font is not read back.
/// `resources` are those of the skin; an image whose resource is not among them shows the first.
PanelLayout showEditControls(const Element& element, const std::vector<Resource>& resources,
                             PanelValues& values);

/// The settings of the last menu that was made after an element, as when a skin was loaded; nullptr
/// when none was. Good until the document changes.
[[nodiscard]] const MenuSettings* lastMenuAfter(const SkinDocument& document, int elementId);

} // namespace tarvel
