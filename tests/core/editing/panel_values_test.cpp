// Elements shown in the panel, and the controls that belong to each kind.
#include "editing/panel_texts.h"
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
    values.lColor = {FillStyle::transparent, 11};
    values.fColor = {FillStyle::transparent, 12};
    values.txtAlpha = "13";
    values.txtText = "fourteen";
    values.cmdFont = {"Odd", 15, true, true};
    values.lstR = 16;
    values.fraQor.txtNumItems = "17";
    values.position = {"18", "19", "20", "21"};
    return values;
}

TEST(PanelTexts, AreFixed) {
    EXPECT_EQ(caption::fraShared, "Shared");
    EXPECT_EQ(caption::fraText, "Text");
    EXPECT_EQ(caption::lblBorderColor, "Border Color:");
    EXPECT_EQ(caption::borderColor, "Border Color");
    EXPECT_EQ(caption::lineColor, "Line Color");
    EXPECT_EQ(caption::cmdClearL, "clear (no border)");
    EXPECT_EQ(caption::lblFillColor, "Fill Color:");
    EXPECT_EQ(caption::fillColor, "Fill Color");
    EXPECT_EQ(caption::fontColor, "Font Color");
    EXPECT_EQ(caption::cmdClearF, "clear (no fill)");
    EXPECT_EQ(caption::lblAlpha, "Opacity %");
    EXPECT_EQ(caption::lblText, "Select predefined text below, or enter custom text:");
    EXPECT_EQ(caption::cmdFont, "Font");
    EXPECT_EQ(caption::lblRes, "Select Resource Below:");
    EXPECT_EQ(caption::cmdAddRes, "Resource Manager");
    EXPECT_EQ(caption::lblPreview, "Resource Preview");
    EXPECT_EQ(caption::cmdApply, "Apply Changes");
    EXPECT_EQ(caption::cmdStop, "Stop Vids");
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
    EXPECT_EQ(values.txtAlpha, "100");
    EXPECT_EQ(values.cmdFont.family, "Tahoma");
    EXPECT_EQ(values.lstR, -1);
    EXPECT_EQ(values.txtText, "");
    EXPECT_FALSE(values.textIsEntry);
    EXPECT_EQ(values.fraQor, MenuFrame{});
}

TEST(Swatches, TakeChosenColoursAndAreCleared) {
    PanelValues values;
    values.lColor.fillStyle = FillStyle::transparent;
    values.txtAlpha = "40";
    chooseColor(values.lColor, red);
    EXPECT_EQ(values.lColor, (Swatch{FillStyle::solid, red}));
    chooseColor(values.fColor, green);
    EXPECT_EQ(values.fColor, (Swatch{FillStyle::solid, green}));

    clearBorder(values);
    EXPECT_EQ(values.lColor, (Swatch{FillStyle::transparent, red}));
    EXPECT_EQ(values.txtAlpha, "40");
    EXPECT_EQ(values.fColor, (Swatch{FillStyle::solid, green}));
    clearFill(values);
    EXPECT_EQ(values.fColor, (Swatch{FillStyle::transparent, green}));
    EXPECT_EQ(values.txtAlpha, "100");
}

TEST(EditControls, ShowsWhatBelongsToTheKind) {
    struct Case {
        ControlKind kind;
        PanelLayout layout;
    };
    const Case cases[] = {
        {ControlKind::box,
         {.kindFlag = ElementKind::Box,
          .fraShared = true,
          .fraBox = true,
          .borderColor = true,
          .fillColor = true,
          .cmdClearF = true,
          .alpha = true,
          .lblBorderColor = "Border Color",
          .lblFillColor = "Fill Color"}},
        {ControlKind::lin,
         {.kindFlag = ElementKind::Line,
          .fraShared = true,
          .borderColor = true,
          .lblBorderColor = "Line Color",
          .lblFillColor = {}}},
        {ControlKind::img,
         {.kindFlag = ElementKind::Image,
          .fraImg = true,
          .lblBorderColor = {},
          .lblFillColor = {}}},
        {ControlKind::vid,
         {.kindFlag = ElementKind::Image,
          .fraImg = true,
          .lblBorderColor = {},
          .lblFillColor = {}}},
        {ControlKind::png,
         {.kindFlag = {}, .fraImg = true, .lblBorderColor = {}, .lblFillColor = {}}},
        {ControlKind::txt,
         {.kindFlag = ElementKind::Text,
          .fraShared = true,
          .fraBox = true,
          .fraText = true,
          .fillColor = true,
          .alpha = true,
          .lblBorderColor = {},
          .lblFillColor = "Font Color"}},
        {ControlKind::qor,
         {.kindFlag = ElementKind::Menu, .fraQor = true, .lblBorderColor = {}, .lblFillColor = {}}},
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
    expected.lColor.fillStyle = FillStyle::solid;
    editControls(ControlKind::lin, line);
    EXPECT_EQ(line, expected);

    PanelValues text = oddValues();
    expected = text;
    expected.fColor = {FillStyle::solid, white};
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
        expected.fColor = {c.fill, red};
        expected.lColor = {c.borderSwatch, green};
        expected.txtAlpha = "37";
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
    expected.lColor = {FillStyle::solid, red};
    expected.txtAlpha = "-5";
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
        expected.txtText = "Time";
        expected.textIsEntry = !constant;
        expected.fColor = {FillStyle::solid, white};
        expected.txtAlpha = "37";
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
    expected.fraQor.txtNumItems = "9";
    expected.fraQor.cmbTitleAlign = 2;
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
            expected.lstR = c.chosen;
            expected.position = {"1", "2", "3", "4"};
            showEditControls(image, resources, values);
            EXPECT_EQ(values, expected) << c.source;
        }
    }
    PanelValues values = oddValues();
    showEditControls(elementAt(ElementKind::Image, ControlKind::img, {}), noResources, values);
    EXPECT_EQ(values.lstR, -1);
}

} // namespace
} // namespace tarvel
