// Step names.
#include "editing/step_names.h"

namespace tarvel {

namespace {

std::string_view noun(ElementKind kind) {
    switch (kind) {
    case ElementKind::Box:
        return "Box";
    case ElementKind::Line:
        return "Line";
    case ElementKind::Image:
        return "Image";
    case ElementKind::Text:
        return "Text";
    case ElementKind::Menu:
        break;
    }
    return "Menu";
}

} // namespace

std::string stepName(std::string_view what, ElementKind kind) {
    return std::string(what).append(" ").append(noun(kind));
}

} // namespace tarvel
