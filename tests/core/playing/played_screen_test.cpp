// Elements of a screen at chosen moments, and what the screen says of itself.
#include "document/element_kinds.h"
#include "playing/played_screen.h"
#include "text/xml_parse.h"

#include <gtest/gtest.h>

namespace tarvel {
namespace {

constexpr int menuScreen = 1;

ModifierCatalogue catalogue() {
    return ModifierCatalogue(
        parseXml("<modifiers><types><Tint>Color</Tint><Fade preview='opacity'>Range</Fade>"
                 "<Pulse preview='scale'>Range</Pulse><Slide preview='move'>Bounds</Slide>"
                 "<Wobble/></types></modifiers>"));
}

Element box() {
    Element element;
    element.elementKind = ElementKind::Box;
    element.label = "Box";
    element.elementAlpha = 80;
    ElementControl& control = element.elementControl;
    control.kind = ControlKind::box;
    control.left = 100;
    control.top = 50;
    control.width = 40;
    control.height = 20;
    control.fillColor = makeColor(1, 2, 3);
    control.borderColor = makeColor(4, 5, 6);
    control.textColor = makeColor(7, 8, 9);
    return element;
}

Element withModifier(Element element, const std::string& modifier) {
    element.elementModifiers = SharedValue(parseXml(modifier));
    return element;
}

// The element alone on "Menu".
struct Played {
    explicit Played(Element element) {
        document.setCurrentLayout(menuScreen);
        id = document.addElement(std::move(element));
    }
    [[nodiscard]] PlayedScreen screen() const { return {document, menuScreen, catalogue()}; }
    [[nodiscard]] std::optional<PlayedElement> at(PlayTime time,
                                                  const PlayChoices& choices = {}) const {
        return screen().at(id, time, choices);
    }

    SkinDocument document;
    int id = 0;
};

TEST(PlayedScreen, ShowsWhatHasNeitherTimersNorModifiersAsItIs) {
    const Played played(box());
    for (const PlayTime time : {PlayTime{0}, PlayTime{700}, PlayTime{1} << 40}) {
        EXPECT_EQ(played.at(time),
                  (PlayedElement{.element = played.document.element(played.id), .opacity = 1}));
    }
    EXPECT_FALSE(played.screen().isMoving());
    EXPECT_EQ(played.screen().nextChange(0), never);
    EXPECT_TRUE(played.screen().still().empty());
}

TEST(PlayedScreen, HidesByTimersAndConditions) {
    Element element = box();
    element.elementTimers = {500, 0, 0, 700};
    element.elementCondition = "ItemSubMenu";
    const Played played(element);
    PlayChoices choices;
    EXPECT_FALSE(played.at(600, choices)); // the first item is a game
    choices.list.selected = 5;             // a folder
    EXPECT_FALSE(played.at(499, choices));
    EXPECT_TRUE(played.at(500, choices));
    EXPECT_FALSE(played.at(1200, choices));
    EXPECT_EQ(played.screen().nextChange(0), 500);
    EXPECT_EQ(played.screen().nextChange(500), 1200);
    EXPECT_EQ(played.screen().nextChange(1200), never);
    choices.forced[4] = false;
    EXPECT_FALSE(played.at(500, choices));
    choices.list.selected = 0;
    choices.forced[4] = true;
    EXPECT_TRUE(played.at(500, choices));
}

TEST(PlayedScreen, PutsTextsInForFields) {
    Element text = box();
    text.elementKind = ElementKind::Text;
    text.elementControl.kind = ControlKind::txt;
    text.elementControl.caption = "CGTitle";
    PlayChoices choices;
    choices.list.selected = 1;
    EXPECT_EQ(Played(text).at(0, choices)->element.elementControl.caption, sampleItems[1].title);
    text.textIsConstant = true;
    EXPECT_EQ(Played(text).at(0, choices)->element.elementControl.caption, "CGTitle");
}

TEST(PlayedScreen, ColorsByTheChannels) {
    const Played played(withModifier(
        box(), "<Modifier Type='Tint'><Alpha Enable='True' Min='0' Max='255' Period='1000'/>"
               "<Red Enable='True' Min='0' Max='200' Period='1000'/><Green/><Blue/></Modifier>"));
    const std::optional<PlayedElement> now = played.at(250);
    ASSERT_TRUE(now);
    const ElementControl& control = now->element.elementControl;
    EXPECT_EQ(control.fillColor, makeColor(100, 2, 3));
    EXPECT_EQ(control.borderColor, makeColor(100, 5, 6));
    EXPECT_EQ(control.textColor, makeColor(100, 8, 9));
    EXPECT_EQ(now->element.elementAlpha, 100); // the channel stands for the element's own
    EXPECT_NEAR(now->opacity, 0.5, 0.01);
    EXPECT_TRUE(played.screen().isMoving());
}

TEST(PlayedScreen, TellsTheScaleAndLeavesThePlace) {
    const Played played(
        withModifier(box(), "<Modifier Type='Pulse'><Range X='50' Y='150'/></Modifier>"));
    EXPECT_EQ(played.at(0)->scale, 0.5);
    EXPECT_EQ(played.at(1000)->scale, 1.5);
    EXPECT_EQ(placeOf(played.at(0)->element.elementControl), (Place{100, 50, 40, 20}));
    EXPECT_TRUE(played.screen().isMoving());
    const Played larger(
        withModifier(box(), "<Modifier Type='Pulse'><Range X='200' Y='200'/></Modifier>"));
    EXPECT_EQ(larger.at(0)->scale, 2);
    EXPECT_FALSE(larger.screen().isMoving()); // it is larger all the time
}

TEST(PlayedScreen, CarriesBothEndsOfALine) {
    Element line = box();
    line.elementKind = ElementKind::Line;
    line.elementControl.kind = ControlKind::lin;
    setPlace(line.elementControl, {10, 20, 30, 60});
    const std::string slide = "<Modifier Type='Slide'><Bounds L='0' T='20' R='640' B='60'/>"
                              "</Modifier>";
    EXPECT_EQ(placeOf(Played(withModifier(line, slide)).at(1000)->element.elementControl),
              (Place{70, 20, 90, 60}));
    EXPECT_EQ(placeOf(Played(withModifier(box(), slide)).at(1000)->element.elementControl),
              (Place{160, 20, 40, 20}));
}

TEST(PlayedScreen, RunsTheClock) {
    Element text = box();
    text.elementKind = ElementKind::Text;
    text.elementControl.kind = ControlKind::txt;
    text.elementControl.caption = "Time";
    PlayChoices choices;
    choices.clock = {.hour = 23, .minute = 59, .second = 58};
    const Played played(text);
    EXPECT_EQ(played.at(999, choices)->element.elementControl.caption, "23:59:58");
    EXPECT_EQ(played.at(2000, choices)->element.elementControl.caption, "00:00:00");
}

TEST(PlayedScreen, TellsOfTheListInAMenu) {
    Element menu = box();
    menu.elementKind = ElementKind::Menu;
    menu.elementControl.kind = ControlKind::qor;
    MenuSettings settings;
    settings.itemsShown = 2;
    settings.scrollFactor = 1; // two items a second
    settings.glowSelected = true;
    menu.menuSettings = SharedValue(settings);
    const Played played(menu);
    const PlayedScreen screen = played.screen();
    ASSERT_NE(screen.menu(), nullptr);
    EXPECT_TRUE(screen.isMoving()); // it glows
    PlayChoices choices;
    choices.itemsShown = itemsShownBy(*screen.menu());
    moveList(choices, 1, screen.menu(), 0);
    EXPECT_EQ(screen.at(played.id, 0, choices)->list,
              (PlayedList{.selected = 1, .first = 0, .glow = 0}));
    moveList(choices, 1, screen.menu(), 100);
    EXPECT_EQ(screen.at(played.id, 100, choices)->list->first, 0);
    EXPECT_EQ(screen.at(played.id, 350, choices)->list, (PlayedList{2, 0.5, 0.7}));
    EXPECT_EQ(screen.at(played.id, 600, choices)->list->first, 1);
    EXPECT_EQ(screen.at(played.id, 50, choices)->list->first, 1); // gone back to before it began
    selectItem(choices, 8);
    EXPECT_EQ(screen.at(played.id, 0, choices)->list,
              (PlayedList{.selected = 8, .first = 7, .glow = 0}));
}

TEST(PlayedScreen, SaysWhatStaysStill) {
    const Played played(withModifier(
        box(), "<Modifiers><Modifier Type='Wobble'/></Modifiers>")); // as a nested root: no type
    EXPECT_EQ(played.screen().still(), (std::vector<PlayedScreen::Still>{{"", "Box"}}));
    const Played wobbling(withModifier(box(), "<Modifier Type='Wobble'/>"));
    EXPECT_EQ(wobbling.screen().still(), (std::vector<PlayedScreen::Still>{{"Wobble", "Box"}}));
    EXPECT_EQ(wobbling.at(300)->element.elementControl, box().elementControl);
}

TEST(PlayedScreen, SaysWhereColorsHaveNothingToColor) {
    const auto tint = [](bool alpha) {
        return std::string("<Modifier Type='Tint'><Alpha Enable='") + (alpha ? "True" : "False") +
               "' Min='0' Max='9' Period='9'/><Red Enable='True' Min='0' Max='255' "
               "Period='1000'/><Green/><Blue/></Modifier>";
    };
    using enum ElementKind;
    for (const ElementKind kind : {Box, Line, Image, Text, Menu}) {
        for (const bool alpha : {false, true}) {
            Element element = box();
            element.elementKind = kind;
            const bool shows = alpha || (kind != Image && kind != Menu);
            const Played played(withModifier(element, tint(alpha)));
            EXPECT_EQ(played.screen().still().empty(), shows)
                << static_cast<int>(kind) << (alpha ? " with" : " without");
        }
    }
}

TEST(PlayedScreen, LeavesTheDocumentAsItIs) {
    const Played played(
        withModifier(box(), "<Modifier Type='Fade'><Range X='0' Y='100'/></Modifier>"));
    const SkinDocument before = played.document;
    const PlayedScreen screen = played.screen();
    for (PlayTime time = 0; time < 3000; time += 100) {
        (void)screen.at(played.id, time, {});
    }
    EXPECT_EQ(played.document, before);
}

} // namespace
} // namespace tarvel
