// drawScreen: which screen a Layout node fills, which of its children become elements, and where.
#include "skinfile/screen_builder.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {
namespace {

using test::parse;
using test::rowIds;
using test::rowTexts;
using Texts = std::vector<std::string>;

void draw(SkinDocument& document, const std::string& layout) {
    const XmlTree tree = parse(layout);
    drawScreen(document, tree.root());
}

SkinDocument drawn(const std::string& layout) {
    SkinDocument document;
    draw(document, layout);
    return document;
}

SkinDocument drawnOnMenu(const std::string& elements) {
    return drawn("<Layout Screen='Menu'>" + elements + "</Layout>");
}

struct Place {
    float a;
    float b;
    float c;
    float d;
    bool operator==(const Place&) const = default;
};

[[maybe_unused]] void PrintTo(const Place& place, std::ostream* out) {
    *out << place.a << ' ' << place.b << ' ' << place.c << ' ' << place.d;
}

Place placeOf(const Element& element) {
    const ElementControl& control = element.elementControl;
    return control.kind == ControlKind::lin
               ? Place{control.X1, control.Y1, control.X2, control.Y2}
               : Place{control.left, control.top, control.width, control.height};
}

TEST(DrawScreen, GoesToTheScreenThatTheNodeNames) {
    struct Case {
        std::string attributes;
        int screen;
    };
    const Case cases[] = {
        {"Screen='Title'", 0},
        {"Screen='Menu'", 1},
        {"Screen='MENU'", 1},
        {"screen='menu'", 1},
        {"SCREEN='Load'", 2},
        {"Screen='saver'", 3},
        {"Screen='JUKEBOX'", 4},
        {"Screen='FileManager'", 5},
        {"Screen='Options'", 0},
        {"Screen=''", 0},
        {"Screen='Menu '", 0},
        {"", 0},
        {"Screen='Title' screen='Load'", 2}, // the last attribute counts
    };
    for (const auto& c : cases) {
        const SkinDocument document =
            drawn("<Layout " + c.attributes + "><E Type='Box'><Pos/></E></Layout>");
        EXPECT_EQ(document.currentLayout(), c.screen) << c.attributes;
        EXPECT_EQ(rowIds(document, c.screen), (std::vector<int>{1})) << c.attributes;
        EXPECT_EQ(document.screenElementCount(c.screen), 1) << c.attributes;
        EXPECT_EQ(document.element(1).elementLayout, c.screen) << c.attributes;
    }
}

TEST(DrawScreen, SelectsTheScreenEvenWithoutElements) {
    SkinDocument expected;
    expected.setCurrentLayout(3);
    EXPECT_EQ(drawn("<Layout Screen='Saver'/>"), expected);
}

TEST(DrawScreen, MakesTheTypesThatItKnowsInAnyLetterCase) {
    struct Case {
        std::string type;
        int kind; // 0: skipped
    };
    const Case cases[] = {
        {"Type='Image'", 3}, {"Type='IMAGE'", 3}, {"Type='image'", 3}, {"Type='Box'", 1},
        {"Type='bOX'", 1},   {"Type='Line'", 2},  {"Type='LINE'", 2},  {"Type='Text'", 4},
        {"Type='TEXT'", 4},  {"Type='Menu'", 5},  {"Type='MENU'", 5},  {"type='box'", 1},
        {"TYPE='Box'", 1},   {"Type='Video'", 0}, {"Type=''", 0},      {"", 0},
        {"Type='Box '", 0},  {"Type='Boxes'", 0}, {"Kind='Box'", 0},
    };
    for (const auto& c : cases) {
        const SkinDocument document =
            drawnOnMenu("<LayoutElement " + c.type + "><Pos X='1'/></LayoutElement>");
        EXPECT_EQ(document.rowCount(1), c.kind == 0 ? 0 : 1) << c.type;
        if (c.kind != 0) {
            EXPECT_EQ(static_cast<int>(document.element(1).elementKind), c.kind) << c.type;
        }
    }
}

TEST(DrawScreen, TakesEveryChildWhateverItsTag) {
    const SkinDocument document =
        drawnOnMenu("<LayoutElement Type='Box'><Pos/></LayoutElement><element Type='Line'><Pos/>"
                    "</element><X Type='Menu'><Pos/></X>");
    EXPECT_EQ(rowTexts(document, 1), (Texts{"Box: Alpha 100", "Line", "Menu"}));
}

TEST(DrawScreen, SkipsChildrenWithoutChildren) {
    for (const std::string type : {"Image", "Box", "Line", "Text", "Menu"}) {
        SkinDocument expected;
        EXPECT_EQ(drawnOnMenu("<E Type='" + type + "'/><E Type='" + type + "'>text</E>"), expected)
            << type;
    }
}

TEST(DrawScreen, AddsTheTwoSpellingsOfAnImagesOrBoxsPlace) {
    struct Case {
        std::string pos;
        Place place;
    };
    const float limit = std::numeric_limits<float>::max();
    const Case cases[] = {
        {"<Pos X='5' Y='6' W='10' H='20'/>", {5, 6, 10, 20}},
        {"<Pos L='5' T='6' W='10' H='20'/>", {5, 6, 10, 20}},
        {"<Pos X='5' L='5' Y='6' T='7' W='10' H='20'/>", {10, 13, 10, 20}},
        {"<Pos X='10' L='20'/>", {30, 0, 0, 0}},
        {"<POS x='1' t='2' w='3' h='4'/>", {1, 2, 3, 4}},
        {"<Pos l='1' y='2' W='3' H='4' A='9' X1='9' Left='9' XL='9'/>", {1, 2, 3, 4}},
        {"<Pos X='1.5' L='-3' Y='2e1' W='abc' H='4px'/>", {-1.5F, 20, 0, 4}},
        {"<Pos X='' L='7'/>", {7, 0, 0, 0}},
        {"<Pos X='1' x='2'/>", {2, 0, 0, 0}},
        {"<Pos X='1e308' L='1e308' Y='-1e308' T='-1e308' W='1e999'/>", {limit, -limit, limit, 0}},
        {"<Pos/>", {0, 0, 0, 0}},
        {"<Pos X='1'/><Pos X='2'/>", {1, 0, 0, 0}},  // the first Pos
        {"<Color>0xFF000000</Color>", {0, 0, 0, 0}}, // the last child stands in
        {"<Color X='1' W='2'>0xFF000000</Color>", {1, 0, 2, 0}},
        {"<Pos2 X='1'/><Color X='5'>0xFF000000</Color>", {5, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        for (const std::string type : {"Image", "Box"}) {
            const SkinDocument document = drawnOnMenu("<E Type='" + type + "'>" + c.pos + "</E>");
            ASSERT_EQ(document.rowCount(1), 1) << type << c.pos;
            EXPECT_EQ(placeOf(document.element(1)), c.place) << type << c.pos;
        }
    }
}

TEST(DrawScreen, JoinsTheTwoSpellingsOfATextsOrMenusPlace) {
    struct Case {
        std::string pos;
        Place place;
    };
    const Case cases[] = {
        {"<Pos L='12' T='34' W='100' H='20'/>", {12, 34, 100, 20}},
        {"<Pos X='12' Y='34' W='100' H='20'/>", {12, 34, 100, 20}},
        {"<Pos X='10' L='20'/>", {1020, 0, 0, 0}},
        {"<Pos L='20' X='10' T='4' Y='3'/>", {1020, 34, 0, 0}},
        {"<Pos x='1' l='.5' y='-' t='7'/>", {1.5F, -7, 0, 0}},
        {"<Pos X='1x' L='5' Y='abc' T='5'/>", {1, 0, 0, 0}},
        {"<Pos X='1 ' L='5'/>", {1, 0, 0, 0}},
        {"<Pos X='1e' L='2'/>", {100, 0, 0, 0}},
        {"<Pos W='1.5' H='2x'/>", {0, 0, 1.5F, 2}},
        {"<Pos/>", {0, 0, 0, 0}},
        {"<Color/>", {0, 0, 0, 0}},
        {"<TextColor L='3' H='4'/>", {3, 0, 0, 4}},
    };
    for (const auto& c : cases) {
        for (const std::string type : {"Text", "Menu"}) {
            const SkinDocument document = drawnOnMenu("<E Type='" + type + "'>" + c.pos + "</E>");
            ASSERT_EQ(document.rowCount(1), 1) << type << c.pos;
            EXPECT_EQ(placeOf(document.element(1)), c.place) << type << c.pos;
        }
    }
}

TEST(DrawScreen, GivesALineItsTwoEnds) {
    struct Case {
        std::string pos;
        Place place;
    };
    const Case cases[] = {
        {"<Pos X1='1' Y1='2' X2='3' Y2='4'/>", {1, 2, 3, 4}},
        {"<pos y2='4' x2='3' y1='2' x1='1'/>", {1, 2, 3, 4}},
        {"<Pos X1='-1.5' Y1='abc' X2='' Y2='4x'/>", {-1.5F, 0, 0, 4}},
        {"<Pos X='1' Y='2' L='3' T='4' W='5' H='6'/>", {0, 0, 0, 0}},
        {"<Color X1='7'>0xFF000000</Color>", {7, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        const SkinDocument document = drawnOnMenu("<E Type='Line'>" + c.pos + "</E>");
        ASSERT_EQ(document.rowCount(1), 1) << c.pos;
        EXPECT_EQ(placeOf(document.element(1)), c.place) << c.pos;
    }
}

TEST(DrawScreen, PassesTheSourceToTheKindsThatHaveOne) {
    const SkinDocument document = drawnOnMenu("<E Type='Image' Source='logo'><Pos/></E>"
                                              "<E Type='Image'><Pos/></E>"
                                              "<E Type='Text' SOURCE='Time'><Pos/></E>"
                                              "<E Type='Text'><Constant>fixed</Constant></E>"
                                              "<E Type='Menu' Source='QOR'><Pos/></E>"
                                              "<E Type='Box' Source='logo'><Pos/></E>"
                                              "<E Type='Line' Source='logo'><Pos/></E>");
    EXPECT_EQ(rowTexts(document, 1), (Texts{"Image: logo", "Image: ", "Text: Time", "Text: fixed",
                                            "Menu", "Box: Alpha 100", "Line"}));
    EXPECT_EQ(document.element(1).imageSource, "logo");
    for (const int id : {2, 3, 4, 5, 6, 7}) {
        EXPECT_EQ(document.element(id).imageSource, "") << id;
    }
    EXPECT_FALSE(document.element(3).textIsConstant);
    EXPECT_TRUE(document.element(4).textIsConstant);
}

TEST(DrawScreen, MakesWholeElementsInTheOrderOfTheFile) {
    const std::string box = "<E Type='Box'><Color>0x80112233</Color><Pos L='1' T='2' W='3' H='4'/>"
                            "<Timer Type='Delay'>500</Timer><Modifier Type='m'/></E>";
    const std::string menu = "<E Type='Menu' Source='QOR'><NumItems>9</NumItems>"
                             "<Pos L='5' T='6' W='7' H='8'/></E>";
    const std::string line = "<E Type='Line'><Pos X1='1' Y1='2' X2='3' Y2='4'/></E>";
    SkinDocument expected;
    makeElement(expected, 1.0, 2.0, 3.0, 4.0, ElementKind::Box, "", parse(box).root());
    makeElement(expected, 5.0, 6.0, 7.0, 8.0, ElementKind::Menu, "QOR", parse(menu).root());
    makeElement(expected, 1.0, 2.0, 3.0, 4.0, ElementKind::Line, "", parse(line).root());
    EXPECT_EQ(drawnOnMenu(box + "<E Type='Video'><Pos/></E>" + menu + "<E Type='Box'/>" + line),
              expected);
}

TEST(DrawScreen, AddsToWhatIsThere) {
    SkinDocument document;
    test::addBox(document, "old");
    document.setLockCount(1, 1);
    const Element old = document.element(1);
    draw(document, "<Layout Screen='Title'><E Type='Line'><Pos/></E></Layout>");
    draw(document, "<Layout Screen='Menu'><E Type='Line'><Pos/></E></Layout>");
    draw(document, "<Layout Screen='Menu'><E Type='Menu'><Pos/></E></Layout>");
    EXPECT_EQ(rowIds(document, 0), (std::vector<int>{2}));
    EXPECT_EQ(rowIds(document, 1), (std::vector<int>{1, 3, 4}));
    EXPECT_EQ(rowTexts(document, 1), (Texts{"old", "Line", "Menu"}));
    EXPECT_EQ(document.screenElementCount(1), 3);
    EXPECT_EQ(document.lockCount(1), 1);
    EXPECT_EQ(document.element(1), old);
    EXPECT_EQ(document.currentLayout(), 1);
}

TEST(DrawScreen, StandsVeryDeepElements) {
    const SkinDocument document =
        drawnOnMenu("<E Type='Box'><Pos X='3'/>" + test::nestedXml(100'000, "") + "</E>");
    EXPECT_EQ(placeOf(document.element(1)), (Place{3, 0, 0, 0}));
    const SkinDocument modified = drawnOnMenu("<E Type='Box'><Pos/><Modifier>" +
                                              test::nestedXml(100'000, "") + "</Modifier></E>");
    EXPECT_EQ(test::depthOf(*modified.element(1).elementModifiers), 100'001);
}

} // namespace
} // namespace tarvel
