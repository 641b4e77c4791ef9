// A new element: template, panel, place, label, row.
#include "editing/new_element.h"

#include "editing/element_update.h"
#include "editing/manipulation.h"

#include <utility>

namespace tarvel {

ControlKind newControl(ElementKind kind) {
    switch (kind) {
    case ElementKind::Box:
        return ControlKind::box;
    case ElementKind::Line:
        return ControlKind::lin;
    case ElementKind::Image:
        return ControlKind::img;
    case ElementKind::Text:
        return ControlKind::txt;
    case ElementKind::Menu:
        break;
    }
    return ControlKind::qor;
}

int makeNewElement(SkinDocument& document, ElementKind kind, const PanelValues& values,
                   SkinPoint press) {
    Element element;
    element.elementKind = kind;
    element.elementControl.kind = newControl(kind);
    takePanel(values, document.settings().resources, element);
    const auto [x, y] = wholePoint(press);
    const bool isLine = kind == ElementKind::Line;
    setPlace(element.elementControl, {x, y, isLine ? x : 0, isLine ? y : 0});
    element.label = freshLabel(element);
    return document.addElement(std::move(element));
}

} // namespace tarvel
