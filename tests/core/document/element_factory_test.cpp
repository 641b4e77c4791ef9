// makeElement: each kind of element out of its description, defaults and quirks included.
#include "document/element_factory.h"
#include "support/element_support.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tarvel {
namespace {

constexpr ColorNumber white = makeColor(255, 255, 255);

using test::made;
using test::parse;
using test::plain;
using test::rowIds;
using test::rowTexts;
using Texts = std::vector<std::string>;

Element plainBox(std::string label = "Box: Alpha 100") {
    return plain(ElementKind::Box, ControlKind::box, std::move(label));
}

Element plainText(std::string caption, bool constant) {
    Element element = plain(ElementKind::Text, ControlKind::txt, "Text: " + caption);
    element.textIsConstant = constant;
    element.elementControl.caption = std::move(caption);
    element.elementControl.textColor = makeColor(255, 255, 255);
    return element;
}

Element plainMenu() {
    Element element = plain(ElementKind::Menu, ControlKind::qor, "Menu");
    MenuSettings& settings = element.menuSettings.edit();
    settings.smoothScroll = settings.showDescription = settings.thumbnailsVisible = false;
    return element;
}

TEST(MakeBox, FillsWithItsColorAndDrawsItsBorder) {
    struct Case {
        std::string xml;
        std::string label;
        int alpha;
        FillStyle fill;
        ColorNumber fillColor;
        BorderStyle border;
        ColorNumber borderColor;
    };
    constexpr auto solid = FillStyle::solid;
    constexpr auto transparent = FillStyle::transparent;
    constexpr auto none = BorderStyle::none;
    constexpr auto drawn = BorderStyle::solid;
    const Case cases[] = {
        {"<e/>", "Box: Alpha 100", 100, transparent, 0, none, 0},
        {"<e><Color>0x80102030</Color></e>", "Box: Alpha 50", 50, solid,
         makeColor(0x10, 0x20, 0x30), none, 0},
        {"<e><BorderColor>0xFF405060</BorderColor></e>", "Box: Alpha 100", 100, transparent, 0,
         drawn, makeColor(0x40, 0x50, 0x60)},
        {"<e><COLOR>0x00FFFFFF</COLOR><bordercolor>0x80405060</bordercolor></e>", "Box: Alpha 0", 0,
         solid, makeColor(255, 255, 255), drawn, makeColor(0x40, 0x50, 0x60)},
        {"<e><Color/><BorderColor></BorderColor></e>", "Box: Alpha 100", 100, transparent, 0, none,
         0},
        {"<e><Color>0x03000000</Color></e>", "Box: Alpha 1", 1, solid, 0, none, 0},
        {"<e><Color>0xFF111111</Color><Color>0x33222222</Color></e>", "Box: Alpha 20", 20, solid,
         makeColor(0x22, 0x22, 0x22), none, 0},
        {"<e><Color>red</Color></e>", "Box: Alpha 5", 5, solid, 0, none, 0}, // alpha digit D
        {"<e><x><Color>0xFF111111</Color></x></e>", "Box: Alpha 100", 100, transparent, 0, none, 0},
    };
    for (const auto& c : cases) {
        Element expected = plainBox(c.label);
        expected.elementAlpha = static_cast<std::int16_t>(c.alpha);
        expected.elementControl.fillStyle = c.fill;
        expected.elementControl.fillColor = c.fillColor;
        expected.elementControl.borderStyle = c.border;
        expected.elementControl.borderColor = c.borderColor;
        EXPECT_EQ(made(ElementKind::Box, c.xml), expected) << c.xml;
    }
}

TEST(MakeBox, IgnoresASource) {
    EXPECT_EQ(made(ElementKind::Box, "<e/>", "logo"), plainBox());
}

TEST(MakeLine, IsWhiteUnlessColored) {
    Element expected = plain(ElementKind::Line, ControlKind::lin, "Line");
    expected.elementControl.borderColor = makeColor(255, 255, 255);
    EXPECT_EQ(made(ElementKind::Line, "<e/>"), expected);
    EXPECT_EQ(made(ElementKind::Line, "<e><Color/></e>"), expected);

    expected.elementControl.borderColor = makeColor(1, 2, 3);
    expected.elementAlpha = 50;
    EXPECT_EQ(made(ElementKind::Line, "<e><Color>0x80010203</Color></e>"), expected);
}

TEST(MakeText, ShowsItsSourceOrItsConstant) {
    struct Case {
        std::string xml;
        std::string_view source;
        std::string caption;
        bool constant;
    };
    const Case cases[] = {
        {"<e/>", "Time", "Time", false},
        {"<e><constant>fixed</constant></e>", "Time", "Time", false}, // the source wins
        {"<e><Constant>fixed</Constant></e>", "", "fixed", true},
        {"<e><constant>fixed</constant></e>", "", "fixed", true},
        {"<e><CONSTANT>fixed</CONSTANT></e>", "", "fixed", true},
        {"<e><Constant>  padded  </Constant></e>", "", "  padded  ", true},
        {"<e><Constant>one</Constant><constant>two</constant></e>", "", "two", true},
        {"<e><Constant/></e>", "", "", true},
        {"<e><Constant></Constant></e>", "", "", true},
        {"<e/>", "::x", "::x", false},
        {"<e/>", " ", " ", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(made(ElementKind::Text, c.xml, c.source), plainText(c.caption, c.constant))
            << c.xml;
    }
}

TEST(MakeText, HasACaptionEvenWithoutSourceAndConstant) {
    Element expected = plainText("", true);
    expected.elementControl.caption = "Text element";
    EXPECT_EQ(made(ElementKind::Text, "<e/>"), expected);
    EXPECT_EQ(made(ElementKind::Text, "<e><x><Constant>no</Constant></x></e>"), expected);
}

TEST(MakeText, TakesColorAndOpacityFromTheSameText) {
    struct Case {
        std::string xml;
        ColorNumber color;
        int alpha;
    };
    constexpr ColorNumber red = makeColor(255, 0, 0);
    const Case cases[] = {
        {"<e><TextColor>0x80FF0000</TextColor></e>", red, 50},
        {"<e><textcolor>0x80FF0000</textcolor></e>", red, 50},
        {"<e><TextColor><Color>0x80FF0000</Color></TextColor></e>", red, 50},
        {"<e><TextColor>0x20123456<Color>0x80FF0000</Color></TextColor></e>", red, 50},
        {"<e><TextColor><COLOR>0xFF000000</COLOR><color>0x80FF0000</color></TextColor></e>", red,
         50},
        {"<e><TextColor>0x20123456</TextColor><TextColor>0x80FF0000</TextColor></e>", red, 50},
        {"<e><TextColor><Color>0x80FF0000</Color></TextColor>"
         "<TextColor><Color>0x20123456</Color></TextColor></e>",
         red, 50},
        {"<e><TextColor>0x80FF0000<Other/></TextColor></e>", red, 50},
        // Of two forms the Color child counts, and the other where that is empty.
        {"<e><textcolor>0X80123456</textcolor>\n<TextColor>\n<Color>0x80FF0000</Color>\n</"
         "TextColor>"
         "</e>",
         red, 50},
        {"<e><TextColor><Color>0x80FF0000</Color></TextColor><textcolor>0X20123456</textcolor></e>",
         red, 50},
        {"<e><TextColor>0x80FF0000</TextColor><TextColor><Color/></TextColor></e>", red, 50},
        {"<e><TextColor><Color/></TextColor><TextColor>0x80FF0000</TextColor></e>", red, 50},
        {"<e/>", white, 100},
        {"<e><TextColor/></e>", white, 100},
        {"<e><TextColor><Color/></TextColor></e>", white, 100},
        {"<e><Color>0x80FF0000</Color></e>", white, 100}, // no colour of a text
    };
    for (const auto& c : cases) {
        Element expected = plainText("Time", false);
        expected.elementControl.textColor = c.color;
        expected.elementAlpha = static_cast<std::int16_t>(c.alpha);
        EXPECT_EQ(made(ElementKind::Text, c.xml, "Time"), expected) << c.xml;
    }
}

TEST(MakeMenu, HasItsDefaults) {
    EXPECT_EQ(made(ElementKind::Menu, "<e/>"), plainMenu());
    EXPECT_EQ(made(ElementKind::Menu, "<e/>", "QOR"), plainMenu());
    // Present but empty is the same as missing.
    EXPECT_EQ(made(ElementKind::Menu,
                   "<e><NumItems/><ScrollFactor/><SmoothScroll/><DrawSecondary/><Thumbnails/>"
                   "<Primary><JustifyX/></Primary><Secondary><JustifyX/></Secondary>"
                   "<Selection><DoGlow/><TextColor/><Secondary><TextColor/></Secondary></Selection>"
                   "<UnSelItem><TextColor/><Secondary><TextColor/></Secondary></UnSelItem></e>"),
              plainMenu());
    // Values one level too low or too high do not count.
    EXPECT_EQ(made(ElementKind::Menu, "<e><JustifyX>Center</JustifyX><DoGlow>True</DoGlow>"
                                      "<TextColor>0xFF112233</TextColor>"
                                      "<Primary><x><JustifyX>Center</JustifyX></x></Primary></e>"),
              plainMenu());
}

TEST(MakeMenu, ReadsAllItsSettings) {
    Element expected = plainMenu();
    expected.elementAlpha = 50;
    MenuSettings& settings = expected.menuSettings.edit();
    settings.thumbnailsVisible = settings.smoothScroll = settings.showDescription = true;
    settings.glowSelected = true;
    settings.itemsShown = 8;
    settings.scrollFactor = 12;
    settings.titleAlignment = "Center";
    settings.descriptionAlignment = "Left";
    settings.selectedTitleColor = "255";
    settings.selectedDescriptionColor = "65280";
    settings.unselectedTitleColor = "16711680";
    settings.unselectedDescriptionColor = "0";
    const std::string xml =
        "<e><Thumbnails Align='Left'>True</Thumbnails>"
        "<Primary Source='Title'><OffsetY>0</OffsetY><JustifyX>Center</JustifyX></Primary>"
        "<Secondary Source='Descr'><OffsetY>0</OffsetY><JustifyX>Left</JustifyX></Secondary>"
        "<Selection><DoGlow>True</DoGlow><TextColor>0xFFFF0000</TextColor>"
        "<Secondary><TextColor>0xFF00FF00</TextColor></Secondary></Selection>"
        "<UnSelItem><TextColor>0x000000FF</TextColor>"
        "<Secondary><TextColor>0xFF000000</TextColor></Secondary></UnSelItem>"
        "<NumItems>8</NumItems><SelPos>0</SelPos><ScrollFactor>12</ScrollFactor>"
        "<SmoothScroll>True</SmoothScroll><DrawSecondary>True</DrawSecondary>"
        "<Color>0x80000000</Color></e>";
    EXPECT_EQ(made(ElementKind::Menu, xml, "QOR"), expected);

    std::string capitals = xml;
    for (const std::string_view name :
         {"Thumbnails", "Primary", "JustifyX", "Secondary", "Selection", "DoGlow", "TextColor",
          "UnSelItem", "NumItems", "ScrollFactor", "SmoothScroll", "DrawSecondary"}) {
        std::string upper(name);
        for (char& c : upper) {
            c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        }
        for (auto at = capitals.find(name); at != std::string::npos; at = capitals.find(name)) {
            capitals.replace(at, name.size(), upper);
        }
    }
    EXPECT_EQ(made(ElementKind::Menu, capitals, "QOR"), expected);
}

TEST(MakeMenu, ReadsNumbersLenientlyAndWordsStrictly) {
    struct Case {
        std::string number;
        int stored;
    };
    const Case numbers[] = {{"0", 0},   {"-3", -3},       {"2.5", 2},
                            {"3.5", 4}, {"99999", 32767}, {"7 items", 7},
                            {"x", 0},   {" 4 ", 4},       {"-99999", -32768}};
    for (const auto& c : numbers) {
        const Element element =
            made(ElementKind::Menu, "<e><NumItems>" + c.number + "</NumItems><ScrollFactor>" +
                                        c.number + "</ScrollFactor></e>");
        EXPECT_EQ(element.menuSettings->itemsShown, c.stored) << c.number;
        EXPECT_EQ(element.menuSettings->scrollFactor, c.stored) << c.number;
    }
    for (const char* word : {"1", "yes", "On", " True", "-1"}) {
        EXPECT_EQ(made(ElementKind::Menu, std::string("<e><SmoothScroll>") + word +
                                              "</SmoothScroll><Thumbnails>" + word +
                                              "</Thumbnails></e>"),
                  plainMenu())
            << word;
    }
}

TEST(MakeElement, KeepsTheConditionAsItStands) {
    struct Case {
        std::string xml;
        std::string condition;
    };
    const Case cases[] = {
        {"<e/>", ""},
        {"<e><Condition/></e>", ""},
        {"<e><Condition>MenuOpen</Condition></e>", "MenuOpen"},
        {"<e><condition>ItemNext </condition></e>", "ItemNext "},
        {"<e><Condition>None</Condition></e>", "None"},
        {"<e><Condition>a</Condition><Condition>b</Condition></e>", "b"},
    };
    for (const auto& c : cases) {
        Element expected = plainBox();
        expected.elementCondition = c.condition;
        EXPECT_EQ(made(ElementKind::Box, c.xml), expected) << c.xml;
    }
}

TEST(MakeElement, TakesItsFourTimers) {
    struct Case {
        std::string xml;
        std::array<std::int32_t, timerSlots> timers;
    };
    const Case cases[] = {
        {"<e/>", {0, 0, 0, 0}},
        {"<e><Timer Type='Delay'>500</Timer></e>", {500, 0, 0, 0}},
        {"<e><Timer Type='Lifetime'>4</Timer><Timer Type='CycleOff'>3</Timer>"
         "<Timer Type='CycleOn'>2</Timer><Timer Type='Delay'>1</Timer></e>",
         {1, 2, 3, 4}},
        {"<e><TIMER type='DELAY'>1</TIMER><timer TYPE='cycleon'>2</timer></e>", {1, 2, 0, 0}},
        {"<e><Timer Type='Delay'>1</Timer><Timer Type='Delay'>9</Timer></e>", {9, 0, 0, 0}},
        {"<e><Timer Type='Delay'>-7</Timer></e>", {-7, 0, 0, 0}},
        {"<e><Timer Type='Delay'>2.5</Timer><Timer Type='CycleOn'>3.5</Timer></e>", {2, 4, 0, 0}},
        {"<e><Timer Type='Delay'>99999999999</Timer><Timer Type='CycleOn'>-99999999999</Timer></e>",
         {2147483647, -2147483647 - 1, 0, 0}},
        {"<e><Timer Type='Delay'>5 ms</Timer><Timer Type='CycleOn'>soon</Timer></e>", {5, 0, 0, 0}},
        {"<e><Timer Unit='ms' Type='Delay'>5</Timer></e>", {0, 0, 0, 0}},
        {"<e><Timer><Delay>5</Delay></Timer></e>", {0, 0, 0, 0}},
        {"<e><Timer Type='Other'>5</Timer></e>", {0, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        Element expected = plainBox();
        expected.elementTimers = c.timers;
        EXPECT_EQ(made(ElementKind::Box, c.xml), expected) << c.xml;
    }
}

TEST(MakeElement, KeepsAllModifiersUnderOneSpelling) {
    struct Case {
        std::string xml;
        std::string modifiers;
    };
    const Case cases[] = {
        {"<e><Modifier/></e>", "<Modifier/>"},
        {"<e><Modifier Type='Fade' Target='[Alpha]'><Min>0</Min><Max>1</Max></Modifier></e>",
         "<Modifier Type='Fade' Target='[Alpha]'><Min>0</Min><Max>1</Max></Modifier>"},
        {"<e><MODIFIER Type='a'/><Color/><modifier Type='b'><x/></modifier>"
         "<Modifier Type='c'>t</Modifier></e>",
         "<Modifier Type='a'/><Modifier Type='b'><x/></Modifier><Modifier Type='c'>t</Modifier>"},
        {"<e>\n <Modifier>\n  <x> 1 </x>\n </Modifier>\n</e>", "<Modifier><x> 1 </x></Modifier>"},
        {"<e><modifier><modifier/></modifier></e>", "<Modifier><modifier/></Modifier>"},
    };
    for (const auto& c : cases) {
        Element expected = made(ElementKind::Box, "<e/>");
        expected.elementModifiers = SharedValue(parse(c.modifiers));
        EXPECT_EQ(made(ElementKind::Box, c.xml), expected) << c.xml;
    }
    for (const char* none : {"<e/>", "<e><Modifiers/></e>", "<e><x><Modifier/></x></e>"}) {
        EXPECT_TRUE(made(ElementKind::Box, none).elementModifiers->empty()) << none;
    }
}

TEST(MakeElement, GivesEveryKindItsBehaviour) {
    const std::string xml = "<e><Condition>MenuOpen</Condition><Timer Type='CycleOn'>3</Timer>"
                            "<Modifier Type='m'/></e>";
    for (const auto kind : {ElementKind::Box, ElementKind::Line, ElementKind::Image,
                            ElementKind::Text, ElementKind::Menu}) {
        Element expected = made(kind, "<e/>", "source");
        expected.elementCondition = "MenuOpen";
        expected.elementTimers[1] = 3;
        expected.elementModifiers = SharedValue(parse("<Modifier Type='m'/>"));
        EXPECT_EQ(made(kind, xml, "source"), expected);
    }
}

TEST(MakeElement, ReadsItsPlaceAsNumbersOrText) {
    const XmlTree description = parse("<e/>");
    SkinDocument document;
    const int box = makeElement(document, "-1.5", " 2e1x", "", "1e99", ElementKind::Box, "",
                                description.root());
    const int line =
        makeElement(document, "0.1", "-3", "abc", "640", ElementKind::Line, "", description.root());
    ElementControl expected = plainBox().elementControl;
    expected.left = -1.5F;
    expected.top = 20;
    expected.width = 0;
    expected.height = std::numeric_limits<float>::max();
    EXPECT_EQ(document.element(box).elementControl, expected);

    expected = made(ElementKind::Line, "<e/>").elementControl;
    expected.X1 = 0.1F;
    expected.Y1 = -3;
    expected.X2 = 0;
    expected.Y2 = 640;
    EXPECT_EQ(document.element(line).elementControl, expected);
}

TEST(MakeElement, AppendsToTheCurrentScreen) {
    SkinDocument document;
    made(document, ElementKind::Box, "<e/>");
    made(document, ElementKind::Box, "<e><Color>0x80000000</Color></e>");
    document.setCurrentLayout(0);
    made(document, ElementKind::Text, "<e/>", "Time");
    EXPECT_EQ(rowIds(document, 1), (std::vector<int>{1, 2}));
    EXPECT_EQ(rowTexts(document, 1), (Texts{"Box: Alpha 100", "Box: Alpha 50"}));
    EXPECT_EQ(rowIds(document, 0), (std::vector<int>{3}));
    EXPECT_EQ(rowTexts(document, 0), (Texts{"Text: Time"}));
    EXPECT_EQ(document.screenElementCount(1), 2);
    EXPECT_EQ(document.screenElementCount(0), 1);
    EXPECT_EQ(document.element(3).elementLayout, 0);
}

TEST(MakeElement, IsToldAsOneNewRow) {
    SkinDocument document;
    test::RecordingObserver observer;
    const auto watch = document.watch(observer);
    made(document, ElementKind::Text, "<e><Modifier/></e>", "Time");
    EXPECT_EQ(observer.notes, (Texts{"rows 1 1", "counts 1 -1"}));
}

TEST(MakeElement, LeavesTheDescriptionAndOtherElementsAlone) {
    const XmlTree description = parse("<e><modifier x='1'/></e>");
    const XmlTree before = description;
    SkinDocument document;
    makeElement(document, 0.0, 0.0, 0.0, 0.0, ElementKind::Box, "", description.root());
    const Element first = document.element(1);
    makeElement(document, 9.0, 9.0, 9.0, 9.0, ElementKind::Menu, "", description.root());
    EXPECT_EQ(description, before);
    EXPECT_EQ(document.element(1), first);
}

} // namespace
} // namespace tarvel
