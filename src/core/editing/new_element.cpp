// Makes a new element of a template, the panel and a place, and gives it a label and a row.
#include "editing/new_element.h"

#include "document/element_kinds.h"
#include "document/kinds/panel_texts.h"
#include "editing/element_update.h"
#include "editing/manipulation.h"

#include <utility>

namespace tarvel {

ControlKind newControl(ElementKind kind) {
    return rulesOf(kind).controls.front().kind;
}

int makeNewElement(SkinDocument& document, ElementKind kind, const PanelValues& values,
                   SkinPoint press) {
    Element element;
    element.elementKind = kind;
    element.elementControl.kind = newControl(kind);
    PanelValues chosen = values;
    // The panel may still show the unknown source of another element, which nobody chose for this.
    chosen.textIsEntry = values.textIsEntry && isPredefinedText(values.text);
    takePanel(chosen, document.settings().resources, element);
    const auto [x, y] = wholePoint(press);
    const bool ends = hasEnds(element.elementControl);
    setPlace(element.elementControl, {x, y, ends ? x : 0, ends ? y : 0});
    element.label = freshLabel(element);
    return document.addElement(std::move(element));
}

} // namespace tarvel
