// Changes an element to what the property panel holds, as Apply does.
#pragma once

#include "document/skin_document.h"
#include "editing/panel_values.h"

#include <string>
#include <vector>

namespace tarvel {

/// Copies the panel into an element of the same kind: colours, text, menu settings or resource, and
/// the opacity, rounded with halves to even and held at -32,768 to 32,767. The label stays.
///
/// An image takes the chosen resource, of `resources` as the skin lists them: its source, its file,
/// and a control of the right kind for the file in the same place. A resource without a file shows
/// the program icon, but leaves a video its file. Without a chosen resource the image stays as it
/// is.
void takePanel(const PanelValues& values, const std::vector<Resource>& resources, Element& element);

/// The text of the element's row as a fresh element of its values has it.
[[nodiscard]] std::string freshLabel(const Element& element);

/// Applies the panel to an element that is on a screen, and renews its row's text, where the prefix
/// of a locked row stays. Checks nothing: empty texts and clear colours are taken as they stand.
/// Does nothing for id 0. Returns whether anything changed; the observer is told only of what did.
bool updateControls(SkinDocument& document, int elementId, const PanelValues& values);

/// Whether the panel holds something else than the element, so that applying would change it; false
/// for id 0.
[[nodiscard]] bool panelDiffers(const SkinDocument& document, int elementId,
                                const PanelValues& values);

} // namespace tarvel
