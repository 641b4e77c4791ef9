// drawScreen: the elements of a screen, one after the other.
#include "skinfile/screen_builder.h"

#include "document/element_factory.h"
#include "document/element_kinds.h"
#include "document/layout_screens.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"

namespace tarvel {

bool drawElement(SkinDocument& document, XmlNode node) {
    const KindRules* rules = kindOfType(getAttrib(node, "Type"));
    const XmlNode posNode = getTag(node, "Pos");
    if (rules == nullptr || !posNode) {
        return false;
    }
    const auto [a, b, c, d] = rules->readPlace(PosTexts(posNode));
    makeElement(document, a, b, c, d, rules->kind, getAttrib(node, "Source"), node);
    return true;
}

void drawScreen(SkinDocument& document, XmlNode layout) {
    document.setCurrentLayout(getLayoutNum(lowerCased(getAttrib(layout, "Screen"))));
    for (const XmlNode node : layout.children()) {
        drawElement(document, node);
    }
}

} // namespace tarvel
