// Fills the panel's values from an element, and tells which controls its kind has.
#include "editing/panel_values.h"

#include "document/element_kinds.h"
#include "editing/position_fields.h"

namespace tarvel {

void chooseColor(Swatch& swatch, ColorNumber color) {
    swatch = {FillStyle::solid, color};
}

void clearBorder(PanelValues& values) {
    values.border.fillStyle = FillStyle::transparent;
}

void clearFill(PanelValues& values) {
    values.fill.fillStyle = FillStyle::transparent;
    values.opacity = "100";
}

PanelLayout editControls(ControlKind kind, PanelValues& values) {
    return rulesOf(kind).panel(kind, values);
}

PanelLayout showEditControls(const Element& element, const std::vector<Resource>& resources,
                             PanelValues& values) {
    const ElementControl& control = element.elementControl;
    values.position = positionTexts(control);
    rulesOf(control.kind).show(element, resources, values);
    return editControls(control.kind, values);
}

const MenuSettings* lastMenuAfter(const SkinDocument& document, int elementId) {
    for (int id = document.lastElementId(); id > elementId; --id) {
        const Element& element = document.element(id);
        if (element.elementKind == ElementKind::Menu) {
            return &element.menuSettings.get();
        }
    }
    return nullptr;
}

} // namespace tarvel
