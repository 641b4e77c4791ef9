// Which elements can never be seen, and that finding them stays cheap.
#include "skinfile/hidden_elements.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarvel {

static void PrintTo(const HiddenElement& hidden, std::ostream* out) {
    *out << hidden.row << " behind " << hidden.coverRow;
}

namespace {

using Hidden = std::vector<HiddenElement>;

Element rectangle(float left, float top, float width, float height) {
    Element element;
    element.elementControl.left = left;
    element.elementControl.top = top;
    element.elementControl.width = width;
    element.elementControl.height = height;
    return element;
}

Element opaqueBox(float left, float top, float width, float height) {
    Element box = rectangle(left, top, width, height);
    box.elementControl.fillStyle = FillStyle::solid;
    return box;
}

Element ofKind(ElementKind kind, ControlKind control) {
    Element element = rectangle(100, 100, 50, 50);
    element.elementKind = kind;
    element.elementControl.kind = control;
    return element;
}

Element line(float x1, float y1, float x2, float y2) {
    Element element;
    element.elementKind = ElementKind::Line;
    element.elementControl.kind = ControlKind::lin;
    element.elementControl.X1 = x1;
    element.elementControl.Y1 = y1;
    element.elementControl.X2 = x2;
    element.elementControl.Y2 = y2;
    return element;
}

Hidden hiddenOf(const std::vector<Element>& elements) {
    SkinDocument document;
    for (Element element : elements) {
        document.addElement(std::move(element));
    }
    return hiddenElements(document, document.currentLayout());
}

TEST(HiddenElements, LieWhollyBehindAnOpaqueBox) {
    const Element cover = opaqueBox(100, 100, 50, 50);
    const std::pair<Element, bool> cases[] = {
        {rectangle(100, 100, 50, 50), true},
        {rectangle(120, 149, 1, 1), true},
        {rectangle(99.5F, 100, 50, 50), false},
        {rectangle(100, 99, 50, 50), false},
        {rectangle(100, 100, 50.5F, 50), false},
        {rectangle(100, 100, 50, 51), false},
        {rectangle(100, 100, 0, 50), false}, // it shows nothing anyway
        {ofKind(ElementKind::Image, ControlKind::png), true},
        {ofKind(ElementKind::Image, ControlKind::vid), true},
        {ofKind(ElementKind::Text, ControlKind::txt), true},
        {ofKind(ElementKind::Menu, ControlKind::qor), true},
        {line(149, 100, 100, 149), true},
        {line(100, 100, 150, 149), false}, // the pixel at its end
        {line(100, 100, 149, 150), false},
        {line(99, 100, 149, 149), false},
    };
    for (const auto& [element, isHidden] : cases) {
        EXPECT_EQ(hiddenOf({element, cover}), isHidden ? (Hidden{{0, 1}}) : Hidden())
            << testing::PrintToString(element);
        EXPECT_EQ(hiddenOf({cover, element}), Hidden()) << testing::PrintToString(element);
    }
}

TEST(HiddenElements, AreHiddenOnlyByWhatSurelyCovers) {
    const std::function<void(Element&)> changes[] = {
        [](Element& e) { e.elementControl.fillStyle = FillStyle::transparent; },
        [](Element& e) { e.elementAlpha = 99; },
        [](Element& e) { e.elementAlpha = 101; },
        [](Element& e) { e.elementCondition = "ItemNext"; },
        [](Element& e) { e.elementTimers[2] = 5; },
        [](Element& e) { e.elementModifiers.edit().addChild(XmlTree::top, "Modifier"); },
        [](Element& e) { e.elementKind = ElementKind::Image; },
        [](Element& e) { e.elementKind = ElementKind::Menu; },
    };
    for (const auto& change : changes) {
        Element cover = opaqueBox(0, 0, 640, 480);
        change(cover);
        EXPECT_EQ(hiddenOf({rectangle(1, 1, 2, 2), cover}), Hidden());
    }
    Element cover = opaqueBox(0, 0, 640, 480);
    cover.elementCondition = "none";
    EXPECT_EQ(hiddenOf({rectangle(1, 1, 2, 2), cover}), (Hidden{{0, 1}}));
}

TEST(HiddenElements, MayMoveButNotAppear) {
    Element moving = rectangle(1, 1, 2, 2);
    moving.elementModifiers.edit().addChild(XmlTree::top, "Modifier");
    Element blinking = rectangle(1, 1, 2, 2);
    blinking.elementTimers[1] = 5;
    blinking.elementCondition = "ItemNext";
    EXPECT_EQ(hiddenOf({moving, blinking, opaqueBox(0, 0, 9, 9)}), (Hidden{{1, 2}}));
}

TEST(HiddenElements, CountByWhatTheScreenShows) {
    EXPECT_EQ(hiddenOf({rectangle(-50, -50, 60, 60), opaqueBox(0, 0, 10, 10)}), (Hidden{{0, 1}}));
    EXPECT_EQ(hiddenOf({rectangle(630, 470, 90, 90), opaqueBox(630, 470, 10, 10)}),
              (Hidden{{0, 1}}));
    EXPECT_EQ(hiddenOf({rectangle(700, 0, 10, 10), opaqueBox(0, 0, 900, 900)}), Hidden());
}

TEST(HiddenElements, NameTheFrontmostCover) {
    EXPECT_EQ(hiddenOf({opaqueBox(40, 40, 10, 10), opaqueBox(30, 30, 100, 100),
                        opaqueBox(20, 20, 300, 300), opaqueBox(300, 300, 60, 60)}),
              (Hidden{{0, 2}, {1, 2}}));
}

TEST(HiddenElements, AreThoseOfTheScreenAskedFor) {
    SkinDocument document;
    document.addElement(rectangle(1, 1, 2, 2));
    document.setCurrentLayout(3);
    document.addElement(rectangle(1, 1, 2, 2));
    document.addElement(opaqueBox(0, 0, 9, 9));
    EXPECT_EQ(hiddenElements(document, 1), Hidden());
    EXPECT_EQ(hiddenElements(document, 3), (Hidden{{0, 1}}));
}

// None of the large boxes lies within another, and only the rearmost reaches down to the element.
TEST(HiddenElements, AreLookedForBehindFiveHundredLargeOnes) {
    for (const auto& [count, isFound] : {std::pair{500, true}, std::pair{501, false}}) {
        std::vector<Element> elements{rectangle(5, 399.5F, 1, 0.5F)};
        for (int i = 0; i < count; ++i) {
            const auto step = static_cast<float>(i);
            elements.push_back(opaqueBox(0, 0, 500 + step * 0.25F, 400 - step / 64));
        }
        EXPECT_EQ(hiddenOf(elements), isFound ? (Hidden{{0, 1}}) : Hidden()) << count;
        elements.push_back(opaqueBox(0, 399, 9, 9)); // the frontmost always counts
        EXPECT_EQ(hiddenOf(elements), (Hidden{{0, count + 1}})) << count;
    }
}

} // namespace
} // namespace tarvel
