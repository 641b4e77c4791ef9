// Elements shown in the panel, and the controls that belong to each kind.
#include "document/kinds/panel_texts.h"
#include "editing/panel_values.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace tarvel {
namespace {

using test::boxAt;
using test::elementAt;
using test::lineAt;

constexpr ColorNumber red = makeColor(255, 0, 0);
constexpr ColorNumber green = makeColor(0, 255, 0);
constexpr ColorNumber white = makeColor(255, 255, 255);

const std::vector<Resource> noResources;

// A panel with values that no element here has.
PanelValues oddValues() {
    PanelValues values;
    values.border = {FillStyle::transparent, 11};
    values.fill = {FillStyle::transparent, 12};
    values.opacity = "13";
    values.text = "fourteen";
    values.font = {"Odd", 15, true, true};
    values.resource = 16;
    values.menu.itemsShown = "17";
    values.position = {"18", "19", "20", "21"};
    return values;
}

TEST(PanelTexts, AreFixed) {
    EXPECT_EQ(caption::shared, "Shared");
    EXPECT_EQ(caption::text, "Text");
    EXPECT_EQ(caption::anyBorderColor, "Border Color:");
    EXPECT_EQ(caption::borderColor, "Border Color");
    EXPECT_EQ(caption::lineColor, "Line Color");
    EXPECT_EQ(caption::clearBorder, "clear (no border)");
    EXPECT_EQ(caption::anyFillColor, "Fill Color:");
    EXPECT_EQ(caption::fillColor, "Fill Color");
    EXPECT_EQ(caption::fontColor, "Font Color");
    EXPECT_EQ(caption::clearFill, "clear (no fill)");
    EXPECT_EQ(caption::opacity, "Opacity %");
    EXPECT_EQ(caption::chooseText, "Select predefined text below, or enter custom text:");
    EXPECT_EQ(caption::font, "Font");
    EXPECT_EQ(caption::chooseResource, "Select Resource Below:");
    EXPECT_EQ(caption::resourceManager, "Resource Manager");
    EXPECT_EQ(caption::resourcePreview, "Resource Preview");
    EXPECT_EQ(caption::applyChanges, "Apply Changes");
    EXPECT_EQ(caption::stopVideos, "Stop Vids");
}

TEST(PredefinedTexts, AreTheFieldsOfTheDashboardInOrder) {
    const std::vector<std::string_view> expected = {"DiscTitle",
                                                    "DiscSubTitle",
                                                    "CGTitle",
                                                    "CGDescr",
                                                    "ShortDriveCSize",
                                                    "DriveCSize",
                                                    "ShortDriveESize",
                                                    "DriveESize",
                                                    "ShortDriveFSize",
                                                    "DriveFSize",
                                                    "ShortDriveCFree",
                                                    "DriveCFree",
                                                    "ShortDriveECFree",
                                                    "DriveEFree",
                                                    "ShortDriveFFree",
                                                    "DriveFFree",
                                                    "ActualPath",
                                                    "IP",
                                                    "Time",
                                                    "Date",
                                                    "DateTime",
                                                    "QORVersion",
                                                    "ConfigValue",
                                                    "SkinValue",
                                                    "CGEntryValue",
                                                    "CGEntryValueDWORD",
                                                    "CGEntryMode",
                                                    "MAC",
                                                    "XboxVersion",
                                                    "SerialNumber",
                                                    "VideoStandard",
                                                    "TempSys",
                                                    "TempCPU",
                                                    "TempSysF",
                                                    "TempSysC",
                                                    "TempCPUF",
                                                    "TempCPUC",
                                                    "BIOSMD5",
                                                    "BIOSName",
                                                    "KernelVersion",
                                                    "CurrentSubMenu",
                                                    "TrayState",
                                                    "DVDType",
                                                    "Name",
                                                    "CurrentSong",
                                                    "CurrentSoundtrack",
                                                    "NumFTPUsers",
                                                    "DefaultGateway",
                                                    "SubnetMask",
                                                    "DNS1",
                                                    "DNS2",
                                                    "FlashID",
                                                    "NewsFeed",
                                                    "LaunchMode"};
    EXPECT_EQ(std::vector(predefinedTexts.begin(), predefinedTexts.end()), expected);
    EXPECT_EQ(std::set(expected.begin(), expected.end()).size(), 54U);
}

TEST(PanelValues, StartAsDesigned) {
    const PanelValues values;
    EXPECT_EQ(values.opacity, "100");
    EXPECT_EQ(values.font.family, "Tahoma");
    EXPECT_EQ(values.resource, -1);
    EXPECT_EQ(values.text, "");
    EXPECT_FALSE(values.textIsEntry);
    EXPECT_EQ(values.menu, MenuFrame{});
}

TEST(Swatches, TakeChosenColoursAndAreCleared) {
    PanelValues values;
    values.border.fillStyle = FillStyle::transparent;
    values.opacity = "40";
    chooseColor(values.border, red);
    EXPECT_EQ(values.border, (Swatch{FillStyle::solid, red}));
    chooseColor(values.fill, green);
    EXPECT_EQ(values.fill, (Swatch{FillStyle::solid, green}));

    clearBorder(values);
    EXPECT_EQ(values.border, (Swatch{FillStyle::transparent, red}));
    EXPECT_EQ(values.opacity, "40");
    EXPECT_EQ(values.fill, (Swatch{FillStyle::solid, green}));
    clearFill(values);
    EXPECT_EQ(values.fill, (Swatch{FillStyle::transparent, green}));
    EXPECT_EQ(values.opacity, "100");
}

TEST(EditControls, ShowsWhatBelongsToTheKind) {
    struct Case {
        ControlKind kind;
        PanelLayout layout;
    };
    const Case cases[] = {
        {ControlKind::box,
         {.kindFlag = ElementKind::Box,
          .colors = true,
          .fillPart = true,
          .borderColor = true,
          .fillColor = true,
          .clearFill = true,
          .opacity = true,
          .borderCaption = "Border Color",
          .fillCaption = "Fill Color"}},
        {ControlKind::lin,
         {.kindFlag = ElementKind::Line,
          .colors = true,
          .borderColor = true,
          .borderCaption = "Line Color",
          .fillCaption = {}}},
        {ControlKind::img,
         {.kindFlag = ElementKind::Image,
          .resource = true,
          .borderCaption = {},
          .fillCaption = {}}},
        {ControlKind::vid,
         {.kindFlag = ElementKind::Image,
          .resource = true,
          .borderCaption = {},
          .fillCaption = {}}},
        {ControlKind::png,
         {.kindFlag = {}, .resource = true, .borderCaption = {}, .fillCaption = {}}},
        {ControlKind::txt,
         {.kindFlag = ElementKind::Text,
          .colors = true,
          .fillPart = true,
          .text = true,
          .fillColor = true,
          .opacity = true,
          .borderCaption = {},
          .fillCaption = "Font Color"}},
        {ControlKind::qor,
         {.kindFlag = ElementKind::Menu, .menu = true, .borderCaption = {}, .fillCaption = {}}},
    };
    for (const auto& c : cases) {
        PanelValues values;
        EXPECT_EQ(editControls(c.kind, values), c.layout) << controlName(c.kind);
    }
}

TEST(EditControls, MakesALinesSwatchSolidAndATextsWhite) {
    for (const auto kind : {ControlKind::box, ControlKind::img, ControlKind::png, ControlKind::vid,
                            ControlKind::qor}) {
        PanelValues values = oddValues();
        editControls(kind, values);
        EXPECT_EQ(values, oddValues()) << controlName(kind);
    }
    PanelValues line = oddValues();
    PanelValues expected = line;
    expected.border.fillStyle = FillStyle::solid;
    editControls(ControlKind::lin, line);
    EXPECT_EQ(line, expected);

    PanelValues text = oddValues();
    expected = text;
    expected.fill = {FillStyle::solid, white};
    editControls(ControlKind::txt, text);
    EXPECT_EQ(text, expected);
}

TEST(ShowEditControls, ShowsABox) {
    struct Case {
        FillStyle fill;
        BorderStyle border;
        FillStyle borderSwatch;
    };
    for (const Case& c : {Case{FillStyle::solid, BorderStyle::none, FillStyle::transparent},
                          Case{FillStyle::transparent, BorderStyle::solid, FillStyle::solid}}) {
        Element box = boxAt({1, 2, 3, 4});
        box.elementControl.fillStyle = c.fill;
        box.elementControl.fillColor = red;
        box.elementControl.borderStyle = c.border;
        box.elementControl.borderColor = green;
        box.elementAlpha = 37;
        PanelValues values = oddValues();
        PanelValues expected = values;
        expected.fill = {c.fill, red};
        expected.border = {c.borderSwatch, green};
        expected.opacity = "37";
        expected.position = {"1", "2", "3", "4"};
        EXPECT_EQ(showEditControls(box, noResources, values).kindFlag, ElementKind::Box);
        EXPECT_EQ(values, expected);
    }
}

TEST(ShowEditControls, ShowsALine) {
    Element line = lineAt({1, 2, 3, 4});
    line.elementControl.borderColor = red;
    line.elementAlpha = -5;
    PanelValues values = oddValues();
    PanelValues expected = values;
    expected.border = {FillStyle::solid, red};
    expected.opacity = "-5";
    expected.position = {"1", "2", "3", "4"};
    EXPECT_EQ(showEditControls(line, noResources, values).kindFlag, ElementKind::Line);
    EXPECT_EQ(values, expected);
}

TEST(ShowEditControls, ShowsATextWithAWhiteSwatchAndWithoutItsFont) {
    for (const bool constant : {true, false}) {
        Element text = elementAt(ElementKind::Text, ControlKind::txt, {1, 2, 3, 4});
        text.elementControl.caption = "Time";
        text.elementControl.textColor = red;
        text.elementControl.font.edit() = {"Arial", 20, false, false};
        text.elementAlpha = 37;
        text.textIsConstant = constant;
        PanelValues values = oddValues();
        values.textIsEntry = constant;
        PanelValues expected = values;
        expected.text = "Time";
        expected.textIsEntry = !constant;
        expected.fill = {FillStyle::solid, white};
        expected.opacity = "37";
        expected.position = {"1", "2", "3", "4"};
        EXPECT_EQ(showEditControls(text, noResources, values).kindFlag, ElementKind::Text);
        EXPECT_EQ(values, expected);
    }
}

TEST(ShowEditControls, ShowsAMenu) {
    Element menu = elementAt(ElementKind::Menu, ControlKind::qor, {1, 2, 3, 4});
    menu.menuSettings.edit().itemsShown = 9;
    menu.menuSettings.edit().titleAlignment = "center";
    menu.elementAlpha = 37;
    PanelValues values = oddValues();
    PanelValues expected = values;
    expected.menu.itemsShown = "9";
    expected.menu.titleAlignment = 2;
    expected.position = {"1", "2", "3", "4"};
    EXPECT_EQ(showEditControls(menu, noResources, values).kindFlag, ElementKind::Menu);
    EXPECT_EQ(values, expected);
}

TEST(ShowEditControls, ChoosesTheResourceOfAnImage) {
    const std::vector<Resource> resources = {
        {"Logo", "a.jpg"}, {"intro", "b.wmv"}, {"LOGO", "c.png"}, {"::Sky", "d.jpg"}};
    struct Case {
        std::string source;
        int chosen;
    };
    const Case cases[] = {
        {"intro", 1},   {"INTRO", 1}, {"logo", 2}, // the last of those named alike
        {"removed", 0}, {"", 0},      {"::intro", 1}, {"::removed", 0}, {"::Sky", 3},
    };
    for (const auto kind : {ControlKind::img, ControlKind::png, ControlKind::vid}) {
        for (const auto& c : cases) {
            Element image = elementAt(ElementKind::Image, kind, {1, 2, 3, 4});
            image.imageSource = c.source;
            PanelValues values = oddValues();
            PanelValues expected = values;
            expected.resource = c.chosen;
            expected.position = {"1", "2", "3", "4"};
            showEditControls(image, resources, values);
            EXPECT_EQ(values, expected) << c.source;
        }
    }
    PanelValues values = oddValues();
    showEditControls(elementAt(ElementKind::Image, ControlKind::img, {}), noResources, values);
    EXPECT_EQ(values.resource, -1);
}

} // namespace
} // namespace tarvel
