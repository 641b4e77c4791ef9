// From the source of an image to its resource, and from the resource to what is shown.
#include "document/image_source.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvel {
namespace {

TEST(ResourceName, DropsOneWholeMarkAtTheFront) {
    struct Case {
        const char* source;
        const char* name;
    };
    for (const Case& c :
         {Case{"logo", "logo"}, Case{"::logo", "logo"}, Case{"::::logo", "::logo"},
          Case{":logo", ":logo"}, Case{" ::logo", " ::logo"}, Case{"::", ""}, Case{"", ""}}) {
        EXPECT_EQ(resourceName(c.source), c.name) << c.source;
    }
}

TEST(RefersTo, AsksForTheMark) {
    EXPECT_TRUE(refersTo("::logo", "LOGO"));
    EXPECT_FALSE(refersTo("logo", "logo"));
    EXPECT_FALSE(refersTo("::logo", "::logo"));
    EXPECT_FALSE(refersTo("::logo", "log"));
}

TEST(ResourceOf, IsTheLastOfTheName) {
    SkinDocument document;
    document.addRes("logo", "a.png");
    document.addRes("LOGO", "b.png");
    document.addRes("::sky", "c.png");
    const auto& resources = document.settings().resources;
    EXPECT_EQ(resourceOf(document, "::Logo"), &resources[1]);
    EXPECT_EQ(resourceOf(document, "Logo"), &resources[1]);
    EXPECT_EQ(resourceOf(document, "::sky"), nullptr); // names "sky"
    EXPECT_EQ(resourceOf(document, "::::sky"), &resources[2]);
}

// Unlike a look-up, a list to choose from goes by the whole source first.
TEST(ResourceIndex, GoesByTheWholeSourceFirst) {
    const std::vector<Resource> resources = {{"sky", "a.png"}, {"::sky", "b.png"}, {"moon", ""}};
    EXPECT_EQ(resourceIndex(resources, "::sky"), 1);
    EXPECT_EQ(resourceIndex(resources, "sky"), 0);
    EXPECT_EQ(resourceIndex(resources, "::moon"), 2);
    EXPECT_EQ(resourceIndex(resources, "none"), 0);
    EXPECT_EQ(resourceIndex({}, "sky"), -1);
}

TEST(ShowResource, GivesControlFileAndContent) {
    struct Case {
        Resource resource;
        ControlKind kind;
        PictureContent picture;
        const char* file;
    };
    const Case cases[] = {
        {{"a", "a.png"}, ControlKind::png, PictureContent::file, "a.png"},
        {{"a", "a.WMV"}, ControlKind::vid, PictureContent::file, "a.WMV"},
        {{"a", "a.jpeg"}, ControlKind::img, PictureContent::file, "a.jpeg"},
        {{"a", "a.XBE"}, ControlKind::img, PictureContent::programIcon, "a.XBE"},
        {{"a", "a.xbe", true, true}, ControlKind::img, PictureContent::barred, "a.xbe"},
        {{"a", "a.png", true, true}, ControlKind::png, PictureContent::barred, "a.png"},
        {{"a", "<File>a.png</File>", false}, ControlKind::img, PictureContent::programIcon, ""},
    };
    for (const auto& c : cases) {
        ElementControl control;
        control.file = "before.jpg";
        control.picture = PictureContent::barred;
        showResource(c.resource, control);
        EXPECT_EQ(control.kind, c.kind) << c.resource.content;
        EXPECT_EQ(control.picture, c.picture) << c.resource.content;
        EXPECT_EQ(control.file, c.file) << c.resource.content;
    }
}

TEST(ShowResource, LeavesAVideoItsFileForAPreset) {
    ElementControl video;
    video.kind = ControlKind::vid;
    video.file = "a.wmv";
    const ElementControl before = video;
    showResource({"preset", "<File>::Logo</File>", false}, video);
    EXPECT_EQ(video, before);
}

} // namespace
} // namespace tarvel
