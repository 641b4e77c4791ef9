// Image elements: the control and the picture that a source leads to.
#include "document/image_source.h"
#include "support/element_support.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvel {
namespace {

using test::made;
using test::plain;

TEST(MakeImage, TakesTheControlThatItsFileAsksFor) {
    struct Case {
        const char* file;
        ControlKind kind;
        PictureContent picture;
    };
    constexpr auto file = PictureContent::file;
    const Case cases[] = {
        {"C:\\s\\a.png", ControlKind::png, file},
        {"C:\\s\\a.PNG", ControlKind::png, file},
        {"C:\\s\\a.wmv", ControlKind::vid, file},
        {"C:\\s\\a.WmV", ControlKind::vid, file},
        {"C:\\s\\a.jpg", ControlKind::img, file},
        {"C:\\s\\a.jpeg", ControlKind::img, file},
        {"C:\\s\\a.wmvx", ControlKind::img, file},
        {"C:\\s\\a", ControlKind::img, file},
        {"a", ControlKind::img, file},
        {"", ControlKind::img, file},
        {"C:\\s\\default.xbe", ControlKind::img, PictureContent::programIcon},
        {"C:\\s\\DEFAULT.XBE", ControlKind::img, PictureContent::programIcon},
        {"C:\\s\\a.xbe.png", ControlKind::png, file},
    };
    for (const auto& c : cases) {
        SkinDocument document;
        document.addRes("other", "C:\\s\\other.png");
        document.addRes("Logo", c.file);
        Element expected = plain(ElementKind::Image, c.kind, "Image: logo");
        expected.imageSource = "logo";
        expected.elementControl.file = c.file;
        expected.elementControl.picture = c.picture;
        EXPECT_EQ(made(document, ElementKind::Image, "<e/>", "logo"), expected) << c.file;
        EXPECT_EQ(imageControl(c.file), c.kind) << c.file;
    }
}

TEST(MakeImage, ShowsTheProgramIconForASourceNamedLikeAProgram) {
    SkinDocument document;
    document.addRes("default.xbe", "C:\\s\\Media\\default.xbe");
    const Element element = made(document, ElementKind::Image, "<e/>", "default.xbe");
    EXPECT_EQ(element.elementControl.picture, PictureContent::programIcon);
    EXPECT_EQ(element.label, "Image: default.xbe");
}

TEST(MakeImage, ShowsTheProgramIconForAPreset) {
    SkinDocument document;
    document.addcRes("<File>::GameIcon</File>", "icon");
    Element expected = plain(ElementKind::Image, ControlKind::img, "Image: icon");
    expected.imageSource = "icon";
    expected.elementControl.picture = PictureContent::programIcon;
    EXPECT_EQ(made(document, ElementKind::Image, "<e/>", "icon"), expected);

    document.addcRes("", "empty");
    expected.label = "Image: empty";
    expected.imageSource = "empty";
    EXPECT_EQ(made(document, ElementKind::Image, "<e/>", "empty"), expected);
}

TEST(MakeImage, DropsTheReferenceMarkForTheLookUpOnly) {
    SkinDocument document;
    document.addRes("logo", "C:\\s\\a.png");
    Element expected = plain(ElementKind::Image, ControlKind::png, "Image: ::LOGO");
    expected.imageSource = "::LOGO";
    expected.elementControl.file = "C:\\s\\a.png";
    EXPECT_EQ(made(document, ElementKind::Image, "<e/>", "::LOGO"), expected);

    // One mark is dropped, at the front, and only if it is whole.
    for (const char* source : {"::::logo", ":logo", "logo::", " ::logo"}) {
        EXPECT_EQ(made(document, ElementKind::Image, "<e/>", source).elementControl.file, "")
            << source;
    }
}

TEST(MakeImage, IsMadeWithoutAFileWhenItsSourceIsUnknown) {
    for (const char* source : {"missing", "missing.png", "::missing", ""}) {
        Element expected =
            plain(ElementKind::Image, ControlKind::img, std::string("Image: ") + source);
        expected.imageSource = source;
        EXPECT_EQ(made(ElementKind::Image, "<e/>", source), expected) << source;
    }
}

TEST(MakeImage, TakesTheLastResourceOfTheName) {
    SkinDocument document;
    document.addRes("logo", "C:\\s\\a.png");
    document.addRes("LOGO", "C:\\s\\b.wmv");
    const Element element = made(document, ElementKind::Image, "<e/>", "logo");
    EXPECT_EQ(element.elementControl.kind, ControlKind::vid);
    EXPECT_EQ(element.elementControl.file, "C:\\s\\b.wmv");
}

TEST(MakeImage, BarsFilesOutsideTheFolder) {
    SkinDocument document;
    document.addRes("logo", "..\\a.png", true);
    document.addRes("game", "..\\b.xbe", true);
    Element expected = plain(ElementKind::Image, ControlKind::png, "Image: logo");
    expected.imageSource = "logo";
    expected.elementControl.file = "..\\a.png";
    expected.elementControl.picture = PictureContent::barred;
    EXPECT_EQ(made(document, ElementKind::Image, "<e/>", "logo"), expected);
    EXPECT_EQ(made(document, ElementKind::Image, "<e/>", "game").elementControl.picture,
              PictureContent::barred);
}

TEST(MakeImage, TakesItsOpacityFromAColor) {
    EXPECT_EQ(made(ElementKind::Image, "<e><Color>0x80FFFFFF</Color></e>").elementAlpha, 50);
    EXPECT_EQ(made(ElementKind::Image, "<e/>").elementAlpha, 100);
}

TEST(AttachSource, LeavesEverythingElseOfTheControlAlone) {
    SkinDocument document;
    document.addRes("a", "a.png");
    ElementControl control = made(ElementKind::Image, "<e/>").elementControl;
    ElementControl expected = control;
    attachSource(document, "a", control);
    expected.kind = ControlKind::png;
    expected.file = "a.png";
    EXPECT_EQ(control, expected);
}

} // namespace
} // namespace tarvel
