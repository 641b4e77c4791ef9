// drawScreen: the geometry of each kind of element as the file gives it.
#include "skinfile/screen_builder.h"

#include "document/element_factory.h"
#include "document/layout_screens.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"

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

// The attributes of a Pos node; of one given twice, in whatever letter case, the last.
struct PosTexts {
    std::string_view x, l, y, t, w, h; // every kind but Line
    std::string_view x1, y1, x2, y2;   // Line
};

std::string_view* memberNamed(PosTexts& pos, std::string_view name) {
    constexpr char caseBit = 0x20;
    const auto letter = static_cast<char>(name.empty() ? 0 : name.front() | caseBit);
    if (name.size() == 1) {
        switch (letter) {
        case 'l':
            return &pos.l;
        case 't':
            return &pos.t;
        case 'w':
            return &pos.w;
        case 'h':
            return &pos.h;
        case 'x':
            return &pos.x;
        case 'y':
            return &pos.y;
        default:
            return nullptr;
        }
    }
    if (name.size() != 2 || (letter != 'x' && letter != 'y')) {
        return nullptr;
    }
    switch (name.back()) {
    case '1':
        return letter == 'x' ? &pos.x1 : &pos.y1;
    case '2':
        return letter == 'x' ? &pos.x2 : &pos.y2;
    default:
        return nullptr;
    }
}

PosTexts posTexts(XmlNode node) {
    PosTexts pos;
    for (std::size_t i = 0; i < node.attributeCount(); ++i) {
        if (auto* member = memberNamed(pos, node.attributeName(i))) {
            *member = node.attributeValue(i);
        }
    }
    return pos;
}

// Two spellings of one coordinate, read as one text: "10" and "20" are 1020.
double joinedNumber(std::string_view first, std::string_view second) {
    if (first.empty() || second.empty()) {
        return val(first.empty() ? second : first);
    }
    return val(std::string(first).append(second));
}

void drawElement(SkinDocument& document, XmlNode node) {
    const auto kind = kindOfType(getAttrib(node, "Type"));
    const XmlNode posNode = getTag(node, "Pos");
    if (!kind || !posNode) {
        return;
    }
    const PosTexts pos = posTexts(posNode);
    switch (*kind) {
    case ElementKind::Image:
    case ElementKind::Box:
        makeElement(document, val(pos.x) + val(pos.l), val(pos.y) + val(pos.t), val(pos.w),
                    val(pos.h), *kind,
                    *kind == ElementKind::Image ? getAttrib(node, "Source") : std::string_view{},
                    node);
        break;
    case ElementKind::Line:
        makeElement(document, pos.x1, pos.y1, pos.x2, pos.y2, *kind, {}, node);
        break;
    case ElementKind::Text:
    case ElementKind::Menu:
        makeElement(document, joinedNumber(pos.x, pos.l), joinedNumber(pos.y, pos.t), val(pos.w),
                    val(pos.h), *kind, getAttrib(node, "Source"), node);
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
