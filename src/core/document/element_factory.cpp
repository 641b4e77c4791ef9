// What all kinds of elements take of a description; the rest is told by the kind.
#include "document/element_factory.h"

#include "document/element_kinds.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"

namespace tarvel {

namespace {

void takeTimers(Element& element, XmlNode description) {
    constexpr std::array<std::string_view, timerSlots> names = {"Delay", "CycleOn", "CycleOff",
                                                                "Lifetime"};
    for (std::size_t slot = 0; slot < timerSlots; ++slot) {
        element.elementTimers[slot] =
            toInt32(val(getContentInTag(description, names[slot], ElementDescription::timerTag)));
    }
}

// All Modifier children, in file order, under the one spelling of the tag that is written.
void takeModifiers(Element& element, XmlNode description) {
    XmlTree tree;
    for (const XmlNode child : description.children()) {
        if (equalsIgnoringCase(child.tag(), ElementDescription::modifierTag)) {
            const auto copy = tree.addCopy(XmlTree::top, child);
            if (child.tag() != ElementDescription::modifierTag) {
                tree.setTag(copy, ElementDescription::modifierTag);
            }
        }
    }
    tree.shrinkToFit();
    element.elementModifiers = SharedValue(std::move(tree));
}

} // namespace

int makeElement(SkinDocument& document, double a, double b, double c, double d, ElementKind kind,
                std::string_view source, XmlNode description) {
    const ElementDescription told(document, source, description);
    Element element;
    element.elementKind = kind;
    rulesOf(kind).read(element, told);
    element.elementCondition = told.condition;
    if (told.timers) {
        takeTimers(element, description);
    }
    if (told.modifiers) {
        takeModifiers(element, description);
    }
    setPlace(element.elementControl, {toSingle(a), toSingle(b), toSingle(c), toSingle(d)});
    return document.addElement(std::move(element));
}

int makeElement(SkinDocument& document, std::string_view a, std::string_view b, std::string_view c,
                std::string_view d, ElementKind kind, std::string_view source,
                XmlNode description) {
    return makeElement(document, val(a), val(b), val(c), val(d), kind, source, description);
}

} // namespace tarvel
