// Applying the panel to elements: each kind, the controls of images, labels, and what is told.
#include "editing/element_update.h"
#include "editing/stacking.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvel {
namespace {

using test::add;
using test::boxAt;
using test::elementAt;
using test::lineAt;
using test::RecordingObserver;
using Notes = std::vector<std::string>;

constexpr ColorNumber red = makeColor(255, 0, 0);
constexpr ColorNumber green = makeColor(0, 255, 0);
constexpr ColorNumber white = makeColor(255, 255, 255);

const std::vector<Resource> resources = {
    {"logo", "C:\\art\\logo.jpg", true, false},
    {"intro", "C:\\art\\intro.WMV", true, false},
    {"glass", "C:\\art\\glass.PNG", true, false},
    {"GameIcon", "<Entry>default.xbe</Entry>", false, false},
    {"game", "C:\\games\\default.XBE", true, false},
    {"afar", "..\\afar.bmp", true, true},
    {"odd", "xbe", true, false},
};

PanelValues fullPanel() {
    PanelValues values;
    values.border = {FillStyle::transparent, green};
    values.fill = {FillStyle::solid, red};
    values.opacity = "40";
    values.text = "Hello";
    values.font = {"Arial", 12, true, false};
    values.resource = 0;
    values.menu.itemsShown = "7";
    return values;
}

TEST(TakePanel, ColoursABox) {
    Element box = boxAt({1, 2, 3, 4});
    Element expected = box;
    expected.elementControl.fillStyle = FillStyle::solid;
    expected.elementControl.fillColor = red;
    expected.elementControl.borderStyle = BorderStyle::none;
    expected.elementControl.borderColor = green;
    expected.elementAlpha = 40;
    takePanel(fullPanel(), resources, box);
    EXPECT_EQ(box, expected);

    PanelValues values = fullPanel();
    values.border.fillStyle = FillStyle::solid;
    values.fill.fillStyle = FillStyle::transparent;
    takePanel(values, resources, box);
    EXPECT_EQ(box.elementControl.borderStyle, BorderStyle::solid);
    EXPECT_EQ(box.elementControl.fillStyle, FillStyle::transparent);
}

TEST(TakePanel, ColoursALine) {
    Element line = lineAt({1, 2, 3, 4});
    Element expected = line;
    expected.elementControl.borderColor = green;
    expected.elementAlpha = 40;
    takePanel(fullPanel(), resources, line);
    EXPECT_EQ(line, expected);
}

TEST(TakePanel, WritesAText) {
    for (const bool entry : {true, false}) {
        Element text = elementAt(ElementKind::Text, ControlKind::txt, {1, 2, 3, 4});
        text.textIsConstant = entry;
        Element expected = text;
        expected.elementControl.caption = "Hello";
        expected.elementControl.textColor = red;
        expected.elementControl.font.edit() = {"Arial", 12, true, false};
        expected.textIsConstant = !entry;
        expected.elementAlpha = 40;
        PanelValues values = fullPanel();
        values.textIsEntry = entry;
        takePanel(values, resources, text);
        EXPECT_EQ(text, expected) << entry;
    }
}

TEST(TakePanel, SetsAMenu) {
    Element menu = elementAt(ElementKind::Menu, ControlKind::qor, {1, 2, 3, 4});
    Element expected = menu;
    MenuSettings& settings = expected.menuSettings.edit();
    settings.itemsShown = 7;
    settings.titleAlignment = "Left";
    settings.descriptionAlignment = "Right";
    expected.elementAlpha = 40;
    takePanel(fullPanel(), resources, menu);
    EXPECT_EQ(menu, expected);
}

TEST(TakePanel, RoundsTheOpacityToSixteenBits) {
    struct Case {
        std::string text;
        std::int16_t alpha;
    };
    const Case cases[] = {
        {"100", 100}, {"0", 0},       {"-5", -5},       {"abc", 0},  {"", 0},      {"2.5", 2},
        {"3.5", 4},   {"1e9", 32767}, {"-1e9", -32768}, {"50%", 50}, {"101", 101}, {" 12x", 12},
    };
    for (const auto& c : cases) {
        PanelValues values = fullPanel();
        values.opacity = c.text;
        for (Element element :
             {boxAt({}), lineAt({}), elementAt(ElementKind::Image, ControlKind::img, {}),
              elementAt(ElementKind::Text, ControlKind::txt, {}),
              elementAt(ElementKind::Menu, ControlKind::qor, {})}) {
            element.elementAlpha = 77;
            takePanel(values, resources, element);
            EXPECT_EQ(element.elementAlpha, c.alpha) << c.text;
        }
    }
}

// What an image control shows.
struct Shown {
    ControlKind kind;
    std::string file;
    PictureContent picture;

    bool operator==(const Shown&) const = default;
};

TEST(TakePanel, GivesAnImageTheControlThatTheFileNeeds) {
    using enum PictureContent;
    const Shown logo{ControlKind::img, "C:\\art\\logo.jpg", file};
    const Shown intro{ControlKind::vid, "C:\\art\\intro.WMV", file};
    const Shown glass{ControlKind::png, "C:\\art\\glass.PNG", file};
    const Shown preset{ControlKind::img, "", programIcon};
    const Shown program{ControlKind::img, "C:\\games\\default.XBE", programIcon};
    const Shown afar{ControlKind::img, "..\\afar.bmp", barred};
    struct Case {
        Shown before;
        int chosen;
        Shown after;
    };
    const Case cases[] = {
        {logo, 0, logo},    {logo, 1, intro},   {logo, 2, glass},
        {logo, 3, preset},  {logo, 4, program}, {logo, 5, afar},
        {intro, 0, logo},   {intro, 2, glass},  {intro, 4, program},
        {glass, 0, logo},   {glass, 1, intro},  {glass, 3, preset},
        {preset, 0, logo},  {preset, 1, intro}, {preset, 2, glass},
        {program, 0, logo}, {afar, 0, logo},    {logo, 6, {ControlKind::img, "xbe", programIcon}},
        {intro, 3, intro}, // a video keeps its file
    };
    for (const auto& c : cases) {
        Element image = elementAt(ElementKind::Image, c.before.kind, {1, 2, 3, 4});
        image.elementControl.file = c.before.file;
        image.elementControl.picture = c.before.picture;
        image.imageSource = "before";
        PanelValues values = fullPanel();
        values.resource = c.chosen;
        takePanel(values, resources, image);
        const ElementControl& control = image.elementControl;
        EXPECT_EQ((Shown{control.kind, control.file, control.picture}), c.after)
            << c.before.file << " to " << c.chosen;
        EXPECT_EQ(image.imageSource, resources[static_cast<std::size_t>(c.chosen)].name);
        EXPECT_EQ(placeOf(control), (Place{1, 2, 3, 4}));
        EXPECT_EQ(image.elementAlpha, 40);
    }
}

TEST(TakePanel, LeavesAnImageWithoutAChosenResource) {
    for (const int chosen : {-1, static_cast<int>(resources.size())}) {
        Element image = elementAt(ElementKind::Image, ControlKind::vid, {1, 2, 3, 4});
        image.elementControl.file = "a.wmv";
        image.imageSource = "before";
        Element expected = image;
        expected.elementAlpha = 40;
        PanelValues values = fullPanel();
        values.resource = chosen;
        takePanel(values, resources, image);
        EXPECT_EQ(image, expected) << chosen;
    }
}

TEST(TakePanel, TakesTheResourceByItsPosition) {
    const std::vector<Resource> alike = {{"logo", "a.jpg"}, {"LOGO", "b.jpg"}};
    Element image = elementAt(ElementKind::Image, ControlKind::img, {});
    takePanel(fullPanel(), alike, image);
    EXPECT_EQ(image.elementControl.file, "a.jpg");
    EXPECT_EQ(image.imageSource, "logo");
}

TEST(TakePanel, KeepsTheMarkOfASourceThatNamesTheResource) {
    Element image = elementAt(ElementKind::Image, ControlKind::img, {});
    image.imageSource = "::Logo";
    takePanel(fullPanel(), resources, image);
    EXPECT_EQ(image.imageSource, "::Logo");
    image.imageSource = "::other";
    takePanel(fullPanel(), resources, image);
    EXPECT_EQ(image.imageSource, "logo");
}

TEST(FreshLabel, IsThatOfTheKind) {
    Element box = boxAt({});
    box.elementAlpha = 80;
    EXPECT_EQ(freshLabel(box), "Box: Alpha 80");
    EXPECT_EQ(freshLabel(lineAt({})), "Line");
    EXPECT_EQ(freshLabel(elementAt(ElementKind::Menu, ControlKind::qor, {})), "Menu");
    for (const auto kind : {ControlKind::img, ControlKind::png, ControlKind::vid}) {
        Element image = elementAt(ElementKind::Image, kind, {});
        image.imageSource = "::logo";
        EXPECT_EQ(freshLabel(image), "Image: ::logo");
    }
    Element text = elementAt(ElementKind::Text, ControlKind::txt, {});
    text.elementControl.caption = "Time";
    EXPECT_EQ(freshLabel(text), "Text: Time");
}

TEST(UpdateControls, ChangesTheRecordAndTheLabel) {
    SkinDocument document;
    document.addRes("logo", "C:\\art\\logo.jpg");
    Element image = elementAt(ElementKind::Image, ControlKind::img, {1, 2, 3, 4});
    image.imageSource = "before";
    image.label = "Image: before";
    const int id = add(document, image);
    RecordingObserver observer;
    const auto watch = document.watch(observer);

    EXPECT_TRUE(updateControls(document, id, fullPanel()));
    EXPECT_EQ(document.element(id).imageSource, "logo");
    EXPECT_EQ(document.element(id).elementControl.file, "C:\\art\\logo.jpg");
    EXPECT_EQ(document.rowText(1, 0), "Image: logo");
    EXPECT_EQ(observer.notes, (Notes{"element 1 1", "rowText 1 1"}));

    EXPECT_FALSE(updateControls(document, id, fullPanel()));
    EXPECT_EQ(observer.notes.size(), 2U);
}

TEST(UpdateControls, TellsOnlyOfWhatChanged) {
    SkinDocument document;
    const int line = add(document, lineAt({1, 2, 3, 4}));
    document.setRowText(1, 0, "Line");
    RecordingObserver observer;
    const auto watch = document.watch(observer);
    PanelValues values = fullPanel();
    EXPECT_TRUE(updateControls(document, line, values));
    EXPECT_EQ(observer.notes, (Notes{"element 1 1"}));
    document.setRowText(1, 0, "Renamed");
    observer.notes.clear();
    EXPECT_TRUE(updateControls(document, line, values));
    EXPECT_EQ(observer.notes, (Notes{"rowText 1 1"}));
    EXPECT_EQ(document.rowText(1, 0), "Line");
}

TEST(UpdateControls, KeepsThePrefixOfALockedRow) {
    SkinDocument document;
    Element box = boxAt({1, 2, 3, 4});
    box.label = "Box: Alpha 100";
    add(document, box);
    lockRows(document, 0);
    ASSERT_EQ(document.rowText(1, 0), "(L) Box: Alpha 100");
    EXPECT_TRUE(updateControls(document, 1, fullPanel()));
    EXPECT_EQ(document.rowText(1, 0), "(L) Box: Alpha 40");
    EXPECT_TRUE(document.element(1).elementLocked);
    unlockRows(document);
    EXPECT_EQ(document.rowText(1, 0), "Box: Alpha 40");
}

TEST(UpdateControls, FindsTheRowOnItsOwnScreen) {
    SkinDocument document;
    add(document, boxAt({}));
    const int id = add(document, boxAt({1, 2, 3, 4}));
    document.setCurrentLayout(0);
    updateControls(document, id, fullPanel());
    EXPECT_EQ(document.rowText(1, 1), "Box: Alpha 40");
}

TEST(UpdateControls, DoesNothingWithoutASelection) {
    SkinDocument document;
    add(document, boxAt({1, 2, 3, 4}));
    const SkinDocument before = document;
    EXPECT_FALSE(updateControls(document, 0, fullPanel()));
    EXPECT_EQ(document, before);
}

TEST(UpdateControls, TakesAnEmptyTextAsItStands) {
    SkinDocument document;
    Element text = elementAt(ElementKind::Text, ControlKind::txt, {1, 2, 3, 4});
    text.elementControl.caption = "before";
    const int id = add(document, text);
    PanelValues values = fullPanel();
    values.text = "";
    EXPECT_TRUE(updateControls(document, id, values));
    EXPECT_EQ(document.element(id).elementControl.caption, "");
    EXPECT_EQ(document.rowText(1, 0), "Text: ");
}

TEST(UpdateControls, MakesASelectedTextWhite) {
    SkinDocument document;
    Element text = elementAt(ElementKind::Text, ControlKind::txt, {1, 2, 3, 4});
    text.elementControl.textColor = red;
    text.elementControl.caption = "Time";
    text.textIsConstant = false;
    const int id = add(document, text);
    PanelValues values;
    showEditControls(document.element(id), document.settings().resources, values);
    updateControls(document, id, values);
    EXPECT_EQ(document.element(id).elementControl.textColor, white);
    EXPECT_EQ(document.element(id).elementControl.caption, "Time");
    EXPECT_FALSE(document.element(id).textIsConstant);
}

TEST(UpdateControls, LeavesOtherKindsAsTheyAreShown) {
    SkinDocument document;
    document.addRes("logo", "C:\\art\\logo.jpg");
    Element box = boxAt({1, 2, 3, 4});
    box.elementControl.fillStyle = FillStyle::solid;
    box.elementControl.fillColor = green;
    box.elementControl.borderStyle = BorderStyle::solid;
    box.elementControl.borderColor = red;
    box.elementAlpha = 33;
    Element line = lineAt({1, 2, 3, 4});
    line.elementControl.borderColor = red;
    line.elementAlpha = 100;
    Element image = elementAt(ElementKind::Image, ControlKind::img, {1, 2, 3, 4});
    image.imageSource = "logo";
    image.elementControl.file = "C:\\art\\logo.jpg";
    Element menu = elementAt(ElementKind::Menu, ControlKind::qor, {1, 2, 3, 4});
    menu.menuSettings.edit().titleAlignment = "Center";
    menu.menuSettings.edit().descriptionAlignment = "Left";
    for (Element element : {box, line, image, menu}) {
        element.label = freshLabel(element);
        const int id = add(document, element);
        PanelValues values;
        showEditControls(document.element(id), document.settings().resources, values);
        EXPECT_FALSE(updateControls(document, id, values)) << element.label;
    }
}

TEST(PanelDiffers, TellsWhetherApplyingWouldChangeTheElement) {
    SkinDocument document;
    Element box = boxAt({1, 2, 3, 4});
    box.elementAlpha = 33;
    box.label = "a text of its own";
    const int id = add(document, box);
    PanelValues values;
    showEditControls(document.element(id), document.settings().resources, values);
    EXPECT_FALSE(panelDiffers(document, id, values));
    EXPECT_FALSE(panelDiffers(document, 0, values));
    values.opacity = "34";
    EXPECT_TRUE(panelDiffers(document, id, values));
    values.opacity = "33 percent";
    EXPECT_FALSE(panelDiffers(document, id, values));
    values.fill = {FillStyle::solid, green};
    EXPECT_TRUE(panelDiffers(document, id, values));

    const int menu = add(document, elementAt(ElementKind::Menu, ControlKind::qor, {1, 2, 3, 4}));
    values = PanelValues();
    showEditControls(document.element(menu), document.settings().resources, values);
    EXPECT_FALSE(panelDiffers(document, menu, values)); // "left" against the panel's "Left"
    values.menu.glowSelected = !values.menu.glowSelected;
    EXPECT_TRUE(panelDiffers(document, menu, values));
}

} // namespace
} // namespace tarvel
