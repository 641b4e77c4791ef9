// Elements made by drawing: the record, row and count of each kind.
#include "document/image_source.h"
#include "editing/manipulation.h"
#include "editing/new_element.h"
#include "editing/panel_check.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace tarvel {
namespace {

using test::rowIds;
using test::rowTexts;
using Texts = std::vector<std::string>;

constexpr int menu = 1;
constexpr ColorNumber red = makeColor(255, 0, 0);
constexpr ColorNumber green = makeColor(0, 255, 0);

// A document with a picture, a video, a PNG, a preset and a program file as resources.
SkinDocument withResources() {
    SkinDocument document;
    document.addRes("logo", "C:\\art\\logo.jpg");
    document.addRes("intro", "C:\\art\\intro.WMV");
    document.addRes("glass", "C:\\art\\glass.Png");
    document.addcRes("<Entry>default.xbe</Entry>", "GameIcon");
    document.addRes("game", "C:\\games\\default.xbe");
    return document;
}

TEST(MakeNewElement, MakesABoxOfThePanelsColours) {
    SkinDocument document;
    PanelValues values;
    values.fill = {FillStyle::solid, red};
    values.border = {FillStyle::transparent, green};
    values.opacity = "80";
    EXPECT_EQ(makeNewElement(document, ElementKind::Box, values, {10, 20}), 1);

    Element expected;
    expected.elementKind = ElementKind::Box;
    expected.elementLayout = menu;
    expected.elementAlpha = 80;
    expected.label = "Box: Alpha 80";
    expected.elementControl.fillStyle = FillStyle::solid;
    expected.elementControl.fillColor = red;
    expected.elementControl.borderStyle = BorderStyle::none;
    expected.elementControl.borderColor = green;
    setPlace(expected.elementControl, {10, 20, 0, 0});
    EXPECT_EQ(document.element(1), expected);
}

TEST(MakeNewElement, MakesALineFromThePointToThePoint) {
    SkinDocument document;
    PanelValues values;
    values.border = {FillStyle::solid, green};
    const int id = makeNewElement(document, ElementKind::Line, values, {10.5F, 20.4F});
    const Element& line = document.element(id);
    EXPECT_EQ(line.elementKind, ElementKind::Line);
    EXPECT_EQ(line.elementControl.kind, ControlKind::lin);
    EXPECT_EQ(line.elementControl.borderColor, green);
    EXPECT_EQ(line.label, "Line");
    EXPECT_EQ(placeOf(line.elementControl), (Place{10, 20, 10, 20}));
    EXPECT_EQ(line.elementControl.left, 0);
}

TEST(MakeNewElement, MakesTheControlThatTheResourceNeeds) {
    struct Case {
        int resource;
        ControlKind control;
        std::string label;
        std::string file;
        PictureContent picture;
    };
    const Case cases[] = {
        {0, ControlKind::img, "Image: logo", "C:\\art\\logo.jpg", PictureContent::file},
        {1, ControlKind::vid, "Image: intro", "C:\\art\\intro.WMV", PictureContent::file},
        {2, ControlKind::png, "Image: glass", "C:\\art\\glass.Png", PictureContent::file},
        {3, ControlKind::img, "Image: GameIcon", "", PictureContent::programIcon},
        {4, ControlKind::img, "Image: game", "C:\\games\\default.xbe", PictureContent::programIcon},
    };
    for (const auto& c : cases) {
        SkinDocument document = withResources();
        PanelValues values;
        values.resource = c.resource;
        const int id = makeNewElement(document, ElementKind::Image, values, {3, 4});
        const Element& image = document.element(id);
        EXPECT_EQ(image.elementKind, ElementKind::Image);
        EXPECT_EQ(image.elementControl.kind, c.control) << c.label;
        EXPECT_EQ(image.label, c.label);
        EXPECT_EQ("Image: " + image.imageSource, c.label);
        EXPECT_EQ(image.elementControl.file, c.file);
        EXPECT_EQ(image.elementControl.picture, c.picture) << c.label;
        EXPECT_EQ(placeOf(image.elementControl), (Place{3, 4, 0, 0}));
    }
}

TEST(MakeNewElement, MakesImagesLikeTheFactory) {
    for (int resource = 0; resource < 5; ++resource) {
        SkinDocument document = withResources();
        PanelValues values;
        values.resource = resource;
        makeNewElement(document, ElementKind::Image, values, {3, 4});
        ElementControl loaded;
        attachSource(document, document.element(1).imageSource, loaded);
        setPlace(loaded, {3, 4, 0, 0});
        EXPECT_EQ(document.element(1).elementControl, loaded) << resource;
    }
}

TEST(MakeNewElement, MakesATextOfTheTextAndTheFont) {
    struct Case {
        bool entry;
        bool constant;
    };
    for (const Case& c : {Case{true, false}, Case{false, true}}) {
        SkinDocument document;
        PanelValues values;
        values.text = "Time";
        values.textIsEntry = c.entry;
        values.fill = {FillStyle::solid, red};
        values.font = {"Arial", 12, true, true};
        values.opacity = "50";
        const int id = makeNewElement(document, ElementKind::Text, values, {3, 4});
        const Element& text = document.element(id);
        EXPECT_EQ(text.elementKind, ElementKind::Text);
        EXPECT_EQ(text.elementControl.kind, ControlKind::txt);
        EXPECT_EQ(text.elementControl.caption, "Time");
        EXPECT_EQ(text.label, "Text: Time");
        EXPECT_EQ(text.textIsConstant, c.constant);
        EXPECT_EQ(text.elementControl.textColor, red);
        EXPECT_EQ(*text.elementControl.font, (FontChoice{"Arial", 12, true, true}));
        EXPECT_EQ(text.elementAlpha, 50);
    }
}

TEST(MakeNewElement, MakesAMenuOfTheFramesSettings) {
    SkinDocument document;
    PanelValues values;
    values.menu.itemsShown = "7";
    values.menu.titleAlignment = 2;
    const int id = makeNewElement(document, ElementKind::Menu, values, {3, 4});
    const Element& element = document.element(id);
    EXPECT_EQ(element.elementKind, ElementKind::Menu);
    EXPECT_EQ(element.elementControl.kind, ControlKind::qor);
    EXPECT_EQ(element.label, "Menu");
    EXPECT_EQ(element.menuSettings->itemsShown, 7);
    EXPECT_EQ(element.menuSettings->titleAlignment, "Center");
}

TEST(MakeNewElement, MakesWhatADragThenSizes) {
    struct Case {
        ElementKind kind;
        Place place;
    };
    const Case cases[] = {
        {ElementKind::Box, {60, 100, 40, 30}},   {ElementKind::Line, {100, 100, 60, 130}},
        {ElementKind::Image, {60, 100, 40, 30}}, {ElementKind::Text, {60, 100, 40, 30}},
        {ElementKind::Menu, {60, 100, 40, 30}},
    };
    for (const auto& c : cases) {
        SkinDocument document = withResources();
        PanelValues values;
        values.resource = 2;
        const SkinPoint press{100.25F, 99.75F};
        const int id = makeNewElement(document, c.kind, values, press);
        DrawDrag drag(id, press);
        drag.moveTo(document, {150, 150});
        drag.finish(document, {60, 130}, {});
        EXPECT_EQ(test::placeOf(document, id), c.place) << static_cast<int>(c.kind);
    }
}

TEST(MakeNewElement, AddsTheLastRowOfTheCurrentScreen) {
    SkinDocument document;
    PanelValues values;
    makeNewElement(document, ElementKind::Box, values, {});
    document.setCurrentLayout(0);
    makeNewElement(document, ElementKind::Line, values, {});
    makeNewElement(document, ElementKind::Menu, values, {});
    EXPECT_EQ(rowIds(document, 0), (std::vector<int>{2, 3}));
    EXPECT_EQ(rowTexts(document, 0), (Texts{"Line", "Menu"}));
    EXPECT_EQ(rowTexts(document, menu), (Texts{"Box: Alpha 100"}));
    EXPECT_EQ(document.screenElementCount(0), 2);
    EXPECT_EQ(document.screenElementCount(menu), 1);
    EXPECT_EQ(document.lastElementId(), 3);
}

TEST(NewElements, AreValidWithThePanelAsItStarts) {
    const PanelValues values;
    EXPECT_TRUE(isInvalid(ElementKind::Box, values).empty());
    EXPECT_TRUE(isInvalid(ElementKind::Line, values).empty());
    SkinDocument document;
    makeNewElement(document, ElementKind::Box, values, {});
    EXPECT_EQ(document.element(1).elementControl.borderStyle, BorderStyle::solid);
    makeNewElement(document, ElementKind::Menu, values, {});
    MenuSettings fresh;
    fresh.titleAlignment = "Left";
    fresh.descriptionAlignment = "Right";
    EXPECT_EQ(*document.element(2).menuSettings, fresh);
}

TEST(NewControl, IsTheTemplateOfTheKind) {
    const std::array<std::pair<ElementKind, ControlKind>, 5> kinds = {
        {{ElementKind::Box, ControlKind::box},
         {ElementKind::Line, ControlKind::lin},
         {ElementKind::Image, ControlKind::img},
         {ElementKind::Text, ControlKind::txt},
         {ElementKind::Menu, ControlKind::qor}}};
    for (const auto& [kind, control] : kinds) {
        EXPECT_EQ(newControl(kind), control);
    }
}

} // namespace
} // namespace tarvel
