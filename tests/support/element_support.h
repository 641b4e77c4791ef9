// Elements out of literal descriptions, and what they are compared with.
#pragma once

#include "support/document_support.h"

#include <string>
#include <string_view>
#include <utility>

namespace tarvel::test {

/// Makes an element in `document` at 1, 2 with size 3 x 4 and gives its record.
inline Element made(SkinDocument& document, ElementKind kind, const std::string& xml,
                    std::string_view source = {}) {
    const XmlTree description = parse(xml);
    const int id = makeElement(document, 1.0, 2.0, 3.0, 4.0, kind, source, description.root());
    return document.element(id);
}

inline Element made(ElementKind kind, const std::string& xml, std::string_view source = {}) {
    SkinDocument document;
    return made(document, kind, xml, source);
}

/// What `made` gives for a description that says nothing.
inline Element plain(ElementKind kind, ControlKind control, std::string label) {
    Element element;
    element.elementKind = kind;
    element.elementLayout = 1;
    element.label = std::move(label);
    element.elementControl.kind = control;
    if (control == ControlKind::lin) {
        element.elementControl.X1 = 1;
        element.elementControl.Y1 = 2;
        element.elementControl.X2 = 3;
        element.elementControl.Y2 = 4;
    } else {
        element.elementControl.left = 1;
        element.elementControl.top = 2;
        element.elementControl.width = 3;
        element.elementControl.height = 4;
    }
    return element;
}

} // namespace tarvel::test
