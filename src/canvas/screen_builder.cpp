// drawScreen: the geometry of each kind of element as the file gives it.
#include "canvas/screen_builder.h"

#include "behaviour/layout_screens.h"
#include "document/element_factory.h"
#include "skinfile/tag_scanner.h"
#include "skinfile/text_case.h"

#include <array>
#include <optional>
#include <string>

namespace tarvel {

namespace {

std::optional<ElementKind> kindOfType(std::string_view type) {
    struct TypeName {
        std::string_view name;
        ElementKind kind;
    };
    constexpr std::array<TypeName, 5> types = {{{"image", ElementKind::Image},
                                                {"box", ElementKind::Box},
                                                {"line", ElementKind::Line},
                                                {"text", ElementKind::Text},
                                                {"menu", ElementKind::Menu}}};
    for (const auto& [name, kind] : types) {
        if (equalsIgnoringCase(type, name)) {
            return kind;
        }
    }
    return std::nullopt;
}

double number(XmlNode pos, std::string_view name) {
    return val(getAttrib(pos, name));
}

// Two spellings of one coordinate, read as one text: "10" and "20" are 1020.
double joinedNumber(XmlNode pos, std::string_view first, std::string_view second) {
    const auto a = getAttrib(pos, first);
    const auto b = getAttrib(pos, second);
    if (a.empty() || b.empty()) {
        return val(a.empty() ? b : a);
    }
    return val(std::string(a).append(b));
}

void drawElement(SkinDocument& document, XmlNode node) {
    const auto kind = kindOfType(getAttrib(node, "Type"));
    const XmlNode pos = getTag(node, "Pos");
    if (!kind || !pos) {
        return;
    }
    switch (*kind) {
    case ElementKind::Image:
    case ElementKind::Box: {
        const auto source =
            *kind == ElementKind::Image ? getAttrib(node, "Source") : std::string_view{};
        makeElement(document, number(pos, "x") + number(pos, "l"),
                    number(pos, "y") + number(pos, "t"), number(pos, "w"), number(pos, "h"), *kind,
                    source, node);
        break;
    }
    case ElementKind::Line:
        makeElement(document, number(pos, "X1"), number(pos, "Y1"), number(pos, "X2"),
                    number(pos, "Y2"), *kind, {}, node);
        break;
    case ElementKind::Text:
    case ElementKind::Menu:
        makeElement(document, joinedNumber(pos, "X", "L"), joinedNumber(pos, "Y", "T"),
                    number(pos, "W"), number(pos, "H"), *kind, getAttrib(node, "Source"), node);
        break;
    }
}

} // namespace

void drawScreen(SkinDocument& document, XmlNode layout) {
    document.setCurrentLayout(getLayoutNum(lowerCased(getAttrib(layout, "Screen"))));
    for (const XmlNode node : layout.children()) {
        drawElement(document, node);
    }
}

} // namespace tarvel
