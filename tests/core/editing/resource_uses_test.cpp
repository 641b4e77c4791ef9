// Uses of resources, and what follows when a resource gets another name or file, or goes.
#include "document/image_source.h"
#include "editing/resource_rules.h"
#include "editing/resource_uses.h"
#include "editing/stacking.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

namespace tarvel {
namespace {

int addImage(SkinDocument& document, const std::string& source) {
    Element element;
    element.elementKind = ElementKind::Image;
    element.imageSource = source;
    element.label = "Image: " + source;
    attachSource(document, source, element.elementControl);
    return document.addElement(std::move(element));
}

// Resources sky, logo, a shadowed SKY before them; elements on "Menu": 1 sky, 2 a box called sky,
// 3 ::Sky locked with all before it, 4 logo; on "Saver": 5 sky, 6 of nothing, 7 deleted.
SkinDocument someUses() {
    SkinDocument document;
    document.addRes("SKY", "\\p\\shadowed.png");
    document.addRes("sky", "\\p\\sky.png");
    document.addcRes("<File>::Logo</File>", "logo");
    document.addRes("unused", "\\p\\unused.png");
    addImage(document, "sky");
    Element box;
    box.imageSource = "sky";
    document.addElement(std::move(box));
    addImage(document, "::Sky");
    lockRows(document, 2);
    addImage(document, "logo");
    document.setCurrentLayout(3);
    addImage(document, "sky");
    addImage(document, "nothing");
    addImage(document, "sky");
    deleteRow(document, 2);
    document.setCurrentLayout(1);
    return document;
}

constexpr int shadowed = 0;
constexpr int sky = 1;
constexpr int logo = 2;
constexpr int unused = 3;

std::vector<std::string> sourcesOf(const SkinDocument& document) {
    std::vector<std::string> sources;
    for (int id = 1; id <= document.lastElementId(); ++id) {
        sources.push_back(document.element(id).imageSource);
    }
    return sources;
}

TEST(ResourceUses, AreCountedOnAllScreens) {
    EXPECT_EQ(resourceUses(someUses()), (std::vector<int>{0, 3, 1, 0}));
    EXPECT_EQ(resourceUses(SkinDocument()), std::vector<int>());
}

TEST(RenameResource, IsFollowedByEveryUse) {
    SkinDocument document = someUses();
    EXPECT_EQ(renameResource(document, sky, "night"), "");
    EXPECT_EQ(document.settings().resources[sky].name, "night");
    EXPECT_EQ(sourcesOf(document), (std::vector<std::string>{"night", "sky", "::night", "logo",
                                                             "night", "nothing", "sky"}));
    EXPECT_EQ(test::rowTexts(document, 1),
              (std::vector<std::string>{"(L) Image: night", "(L) ", "(L) Image: ::night",
                                        "Image: logo"}));
    EXPECT_EQ(test::rowTexts(document, 3),
              (std::vector<std::string>{"Image: night", "Image: nothing"}));
    EXPECT_EQ(document.element(1).elementControl.file, "\\p\\sky.png");
    EXPECT_EQ(resourceUses(document), (std::vector<int>{0, 3, 1, 0}));
}

TEST(RenameResource, RefusesNamesThatCannotBe) {
    struct Case {
        int resource;
        const char* name;
        std::string_view message;
    };
    for (const auto& [resource, name, message] : std::initializer_list<Case>{
             {logo, "", "Enter a resource name"},
             {logo, "bground", "Use a different resource name"},
             {logo, "Unused", "Enter a unique resource name"},
             {logo, "unused", "Enter a unique resource name"},
             {logo, "logo", ""},
         }) {
        SkinDocument document = someUses();
        EXPECT_EQ(renameResource(document, resource, name), message) << name;
        EXPECT_EQ(document, someUses()) << name;
    }
}

TEST(RenameResource, ChangesTheLetterCaseOfAName) {
    SkinDocument document = someUses();
    EXPECT_EQ(renameResource(document, logo, "LOGO"), "");
    EXPECT_EQ(document.element(4).imageSource, "LOGO");
    EXPECT_EQ(renameResource(document, unused, "Bground"), "");
}

TEST(RenameResource, KeepsAMarkThatIsPartOfTheName) {
    SkinDocument document = someUses();
    EXPECT_EQ(renameResource(document, logo, "::x"), "");
    EXPECT_EQ(document.element(4).imageSource, "::::x");
    EXPECT_EQ(resourceUses(document)[logo], 1);
}

TEST(RenameResource, OfAShadowedOneLeavesTheElements) {
    SkinDocument document = someUses();
    EXPECT_EQ(renameResource(document, shadowed, "old"), "");
    EXPECT_EQ(sourcesOf(document), sourcesOf(someUses()));
}

TEST(ReplaceResourceFile, IsShownByEveryUse) {
    const std::pair<const char*, ControlKind> cases[] = {
        {"\\q\\a.PNG", ControlKind::png},
        {"\\q\\a.jpg", ControlKind::img},
        {"\\q\\a.wmv", ControlKind::vid},
    };
    for (const auto& [path, kind] : cases) {
        SkinDocument document = someUses();
        EXPECT_TRUE(replaceResourceFile(document, sky, path));
        EXPECT_EQ(document.settings().resources[sky], (Resource{"sky", path, true, false}));
        for (const int id : {1, 3, 5}) {
            EXPECT_EQ(document.element(id).elementControl.kind, kind) << path;
            EXPECT_EQ(document.element(id).elementControl.file, path);
        }
        for (const int id : {2, 4, 6, 7}) {
            EXPECT_EQ(document.element(id), someUses().element(id)) << id;
        }
        EXPECT_EQ(test::rowTexts(document, 1), test::rowTexts(someUses(), 1));
    }
}

TEST(ReplaceResourceFile, MakesAFileOfAFragment) {
    SkinDocument document = someUses();
    EXPECT_TRUE(replaceResourceFile(document, logo, "\\q\\a.png"));
    EXPECT_EQ(document.settings().resources[logo], (Resource{"logo", "\\q\\a.png", true, false}));
    EXPECT_EQ(document.element(4).elementControl.picture, PictureContent::file);
    EXPECT_EQ(document.element(4).elementControl.kind, ControlKind::png);
}

TEST(ReplaceResourceFile, TakesABarOff) {
    SkinDocument document;
    document.addRes("a", "\\etc\\a.png", true);
    addImage(document, "a");
    ASSERT_EQ(document.element(1).elementControl.picture, PictureContent::barred);
    EXPECT_TRUE(replaceResourceFile(document, 0, "\\etc\\a.png"));
    EXPECT_EQ(document.element(1).elementControl.picture, PictureContent::file);
}

TEST(ReplaceResourceFile, ChangesNothingForNoOtherFile) {
    SkinDocument document = someUses();
    EXPECT_FALSE(replaceResourceFile(document, sky, ""));
    EXPECT_FALSE(replaceResourceFile(document, sky, "\\p\\sky.png"));
    EXPECT_EQ(document, someUses());
}

TEST(RemoveResource, LeavesOneInUseUnlessAskedOtherwise) {
    SkinDocument document = someUses();
    EXPECT_FALSE(removeResource(document, sky, false));
    EXPECT_EQ(document, someUses());
    EXPECT_TRUE(removeResource(document, unused, false));
    EXPECT_EQ(document.settings().resources.size(), 3U);
    EXPECT_EQ(test::rowIds(document, 1), test::rowIds(someUses(), 1));
    EXPECT_TRUE(removeResource(document, shadowed, false));
    EXPECT_EQ(resourceUses(document), (std::vector<int>{3, 1}));
}

TEST(RemoveResource, TakesItsElementsAlong) {
    SkinDocument document = someUses();
    document.setCurrentLayout(5);
    test::RecordingObserver observer;
    const auto watch = document.watch(observer);
    EXPECT_TRUE(removeResource(document, sky, true));
    EXPECT_EQ(observer.notes, (std::vector<std::string>{"rows 1 -1", "counts 1 -1", "rows 3 -1",
                                                        "counts 3 -1", "settings -1 -1"}));
    EXPECT_EQ(document.settings().resources.size(), 3U);
    EXPECT_EQ(document.settings().resources[1].name, "logo");
    EXPECT_EQ(test::rowIds(document, 1), (std::vector<int>{2, 4}));
    EXPECT_EQ(test::rowIds(document, 3), std::vector<int>{6});
    EXPECT_EQ(document.lockCount(1), 1);
    EXPECT_EQ(document.screenElementCount(1), 2);
    EXPECT_EQ(document.screenElementCount(3), 1);
    EXPECT_EQ(document.currentLayout(), 5);
}

} // namespace
} // namespace tarvel
