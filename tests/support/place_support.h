// Elements at places, for tests of the surface.
#pragma once

#include "document/element_place.h"
#include "document/skin_document.h"
#include "editing/hit_test.h"
#include "support/document_support.h"

#include <ostream>
#include <utility>

namespace tarvel {

inline void PrintTo(const SkinPoint& point, std::ostream* out) {
    *out << '(' << point.x << ", " << point.y << ')';
}

inline void PrintTo(const SkinSize& size, std::ostream* out) {
    *out << size.width << " x " << size.height;
}

inline void PrintTo(Handle handle, std::ostream* out) {
    *out << "handle " << static_cast<int>(handle);
}

} // namespace tarvel

namespace tarvel::test {

/// An element of any kind, its place in the numbers of its control.
inline Element elementAt(ElementKind kind, ControlKind control, const Place& place) {
    Element element;
    element.elementKind = kind;
    element.elementControl.kind = control;
    setPlace(element.elementControl, place);
    return element;
}

inline Element boxAt(const Place& place) {
    return elementAt(ElementKind::Box, ControlKind::box, place);
}

inline Element lineAt(const Place& ends) {
    return elementAt(ElementKind::Line, ControlKind::lin, ends);
}

/// Adds the element to the current screen.
inline int add(SkinDocument& document, Element element) {
    return document.addElement(std::move(element));
}

inline Place placeOf(const SkinDocument& document, int id) {
    return tarvel::placeOf(document.element(id).elementControl);
}

inline void setLocked(SkinDocument& document, int id, bool locked) {
    document.editElement(id, [&](Element& element) { element.elementLocked = locked; });
}

} // namespace tarvel::test
