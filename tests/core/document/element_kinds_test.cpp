// The records of the kinds, and the ways to find them.
#include "document/element_kinds.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvel {
namespace {

TEST(ElementKinds, StandAtTheirCodes) {
    int code = 0;
    for (const KindRules* rules : elementKinds) {
        ++code;
        EXPECT_EQ(static_cast<int>(rules->kind), code) << rules->typeName;
        EXPECT_EQ(&rulesOf(rules->kind), rules) << rules->typeName;
    }
    EXPECT_EQ(code, 5);
}

TEST(ElementKinds, CountCodesOfNoKindAsMenu) {
    for (const int code : {-32768, -1, 0, 6, 7, 32767}) {
        EXPECT_EQ(&rulesOf(static_cast<ElementKind>(code)), &menuKind) << code;
    }
}

TEST(ElementKinds, AreFoundByTheirControls) {
    std::size_t count = 0;
    for (const KindRules* rules : elementKinds) {
        for (const NamedControl& control : rules->controls) {
            ++count;
            EXPECT_EQ(&rulesOf(control.kind), rules) << control.name;
            EXPECT_EQ(controlName(control.kind), control.name);
        }
    }
    EXPECT_EQ(count, controlKinds.size());
}

TEST(ElementKinds, AreFoundByTheirTypeInAnyLetterCase) {
    struct Case {
        const char* type;
        const KindRules* rules;
    };
    const Case cases[] = {{"Box", &boxKind},     {"Line", &lineKind}, {"Image", &imageKind},
                          {"Text", &textKind},   {"Menu", &menuKind}, {"bOX", &boxKind},
                          {"IMAGE", &imageKind}, {"Video", nullptr},  {"Box ", nullptr},
                          {"", nullptr}};
    for (const auto& c : cases) {
        EXPECT_EQ(kindOfType(c.type), c.rules) << c.type;
    }
}

TEST(ElementKinds, HaveOneWithEnds) {
    for (const KindRules* rules : elementKinds) {
        const bool isLine = rules == &lineKind;
        for (const NamedControl& control : rules->controls) {
            ElementControl drawn;
            drawn.kind = control.kind;
            EXPECT_EQ(hasEnds(drawn), isLine) << control.name;
        }
    }
}

TEST(Labels, StartWithTheKind) {
    const auto labelOf = [](const KindRules& rules, std::int16_t opacity, const char* text) {
        Element element;
        element.elementAlpha = opacity;
        element.imageSource = text;
        element.elementControl.caption = text;
        return rules.label(element);
    };
    EXPECT_EQ(labelOf(boxKind, 100, ""), "Box: Alpha 100");
    EXPECT_EQ(labelOf(boxKind, 0, ""), "Box: Alpha 0");
    EXPECT_EQ(labelOf(boxKind, -1, ""), "Box: Alpha -1");
    EXPECT_EQ(labelOf(lineKind, 5, "x"), "Line");
    EXPECT_EQ(labelOf(imageKind, 5, "logo"), "Image: logo");
    EXPECT_EQ(labelOf(imageKind, 5, ""), "Image: ");
    EXPECT_EQ(labelOf(textKind, 5, "Time"), "Text: Time");
    EXPECT_EQ(labelOf(menuKind, 5, "x"), "Menu");
}

} // namespace
} // namespace tarvel
