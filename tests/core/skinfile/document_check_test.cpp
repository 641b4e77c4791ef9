// What a check finds in an open document: fields, pictures, hidden elements, and where they are.
#include "skinfile/document_check.h"
#include "skinfile/picture_check.h"
#include "support/document_support.h"
#include "support/picture_heads.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvel {

static void PrintTo(const Finding& finding, std::ostream* out) {
    *out << finding.text << " | " << finding.screen.value_or(-1) << ' '
         << finding.elementId.value_or(0);
}

namespace {

using Findings = std::vector<Finding>;

class DocumentCheckTest : public testing::Test {
  protected:
    DocumentCheckTest() {
        document_.editSettings([](SkinSettings& settings) { settings.skinName = "Nova"; });
    }

    int addImage(const std::string& source, float width, float height) {
        Element image;
        image.elementKind = ElementKind::Image;
        image.elementControl.kind = ControlKind::png;
        image.elementControl.width = width;
        image.elementControl.height = height;
        image.imageSource = source;
        image.label = "Image: " + source;
        return document_.addElement(std::move(image));
    }

    int addText(const std::string& caption, bool constant = false) {
        Element text;
        text.elementKind = ElementKind::Text;
        text.elementControl.kind = ControlKind::txt;
        text.elementControl.width = 50;
        text.elementControl.height = 10;
        text.elementControl.caption = caption;
        text.textIsConstant = constant;
        text.label = "Text: " + caption;
        return document_.addElement(std::move(text));
    }

    void addPicture(const std::string& name, std::uint32_t width, std::uint32_t height) {
        folder_.file("Media/" + name + ".png", test::pngHead(width, height));
        document_.addRes(name, folder_.document("Media/" + name + ".png"));
    }

    Findings check() { return checkDocument(document_, folder_.path()); }

    TemporaryFolder folder_;
    SkinDocument document_;
};

TEST_F(DocumentCheckTest, UnknownFields) {
    addText("Time");
    addText("tIME"); // may be one to the dashboard
    addText("Tiem", true);
    addText("");
    document_.setCurrentLayout(5);
    const int unknown = addText("Tiem");
    EXPECT_EQ(check(), (Findings{{"FileManager, element 1 (Text: Tiem): its source \"Tiem\" names "
                                  "no field of the dashboard",
                                  5, unknown}}));
}

TEST_F(DocumentCheckTest, HiddenElements) {
    addText("Time");
    Element box;
    box.elementControl.fillStyle = FillStyle::solid;
    box.elementControl.width = box.elementControl.height = 60;
    box.label = "Box: Alpha 100";
    document_.addElement(std::move(box));
    EXPECT_EQ(check(), (Findings{{"Menu, element 1 (Text: Time): is hidden completely behind "
                                  "element 2 (Box: Alpha 100)",
                                  1, 1}}));
}

TEST_F(DocumentCheckTest, PicturesMuchLargerThanShown) {
    addPicture("sky", 401, 301);
    addPicture("other", 10, 10);
    addImage("other", 10, 10);
    document_.setCurrentLayout(2);
    addImage("sky", 100, 150);
    const int largest = addImage("::SKY", 200, 100);
    EXPECT_EQ(check(),
              (Findings{{"Load, element 2 (Image: ::SKY): its picture Media\\sky.png of 401 by 301 "
                         "pixels is more than twice as wide and high as it is shown anywhere, and "
                         "takes 482804 bytes when decoded",
                         2, largest},
                        {"All pictures together take 483204 bytes when decoded", {}, {}}}));
}

TEST_F(DocumentCheckTest, PicturesThatFitTheirPlaces) {
    struct Case {
        std::uint32_t width, height;
        float shownWidth, shownHeight;
        bool large;
    };
    const Case cases[] = {
        {201, 201, 100, 100, true},   {200, 999, 100, 100, false}, {999, 200, 100, 100, false},
        {201, 201, 100.5, 1, false},  {999, 999, 0, 100, false},   {999, 999, 100, -1, false},
        {4000, 4000, 640, 480, true},
    };
    for (const auto& [width, height, shownWidth, shownHeight, large] : cases) {
        document_ = SkinDocument();
        addPicture("a", width, height);
        addImage("a", shownWidth, shownHeight);
        FileFinder files;
        EXPECT_EQ(checkPictures(document_, files).large.size(), large ? 1U : 0U)
            << width << ' ' << height << ' ' << shownWidth;
    }
}

TEST_F(DocumentCheckTest, PicturesCountOncePerFile) {
    addPicture("a", 10, 10);
    document_.addRes("again", folder_.document("Media/a.png"));
    document_.addRes("text", documentPath(folder_.file("text.png", "text")));
    document_.addRes("gone", folder_.document("gone.png"));
    document_.addRes("outside", documentPath(folder_.file("out.png", test::pngHead(9, 9))), true);
    document_.addcRes("<File>::Logo</File>", "preset");
    folder_.file("back.bmp", test::bmpHead(20, 10));
    document_.editSettings([&](SkinSettings& settings) {
        settings.background = {true, folder_.document("back.bmp")};
    });
    FileFinder files;
    EXPECT_EQ(checkPictures(document_, files).decodedBytes, 4U * (100 + 200));
}

TEST_F(DocumentCheckTest, ADocumentWithoutAFolder) {
    document_.addRes("gone", "\\elsewhere\\gone.png");
    document_.editSettings([](SkinSettings& settings) {
        settings.information = {{"Author", "\u4E2D\n"}};
    });
    EXPECT_EQ(checkDocument(document_, {}),
              (Findings{{"Resource \"gone\": \\elsewhere\\gone.png is missing", {}, {}},
                        {"Characters outside Windows-1252 in <Author>\u4E2D </Author>", {}, {}}}));
}

TEST_F(DocumentCheckTest, SkinsSayWhichElementIsMeant) {
    const int first = addImage("zz", 10, 10);
    document_.setCurrentLayout(0);
    const int second = addText("Time");
    document_.editElement(second, [](Element& element) { element.elementControl.left = 640; });
    EXPECT_EQ(
        check(),
        (Findings{
            {"Title, element 1 (Text: Time): lies wholly off the 640 by 480 screen", 0, second},
            {"Menu, element 1 (Image: zz): its source \"zz\" names no resource", 1, first}}));
}

TEST_F(DocumentCheckTest, FindingsTellHowBadTheyAre) {
    addImage("nothing", 10, 10);
    addText("NoSuchField");
    addPicture("big", 640, 480);
    addImage("big", 10, 10);
    std::vector<std::pair<bool, Severity>> seen; // of an element?
    for (const Finding& finding : check()) {
        seen.emplace_back(finding.elementId.has_value(), finding.severity);
    }
    const std::vector<std::pair<bool, Severity>> expected = {{true, Severity::error},
                                                             {true, Severity::warning},
                                                             {true, Severity::note},
                                                             {false, Severity::note}};
    EXPECT_EQ(seen, expected);
}

} // namespace
} // namespace tarvel
