// What a paste makes of copied elements and of resources whose names meet.
#include "document/image_source.h"
#include "editing/paste.h"
#include "editing/stacking.h"
#include "support/document_support.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <numeric>

namespace tarvel {

static void PrintTo(const Resource& resource, std::ostream* out) {
    *out << resource.name << '=' << resource.content << ' ' << resource.isFile << resource.outside;
}

namespace {

using Resources = std::vector<Resource>;

Resource file(std::string name, std::string path) {
    return {std::move(name), std::move(path), true, false};
}

Resource fragment(std::string name, std::string content) {
    return {std::move(name), std::move(content), false, false};
}

Element image(const std::string& source) {
    Element element;
    element.elementKind = ElementKind::Image;
    element.elementControl.kind = ControlKind::img;
    element.imageSource = source;
    return element;
}

SkinDocument with(const Resources& resources, const std::vector<std::string>& sources = {}) {
    SkinDocument document;
    document.editSettings([&](SkinSettings& settings) { settings.resources = resources; });
    for (const std::string& source : sources) {
        Element element = image(source);
        if (const Resource* resource = resourceOf(document, source)) {
            element.elementControl.kind = ControlKind::png;
            element.elementControl.file = resource->content;
        }
        element.label = "Image: " + source;
        document.addElement(std::move(element));
    }
    return document;
}

std::vector<int> allIds(const SkinDocument& document) {
    std::vector<int> ids(static_cast<std::size_t>(document.lastElementId()));
    std::iota(ids.begin(), ids.end(), 1);
    return ids;
}

TEST(Paste, PutsEverythingOnTopOfTheCurrentScreen) {
    SkinDocument document = test::fourBoxes();
    document.editElement(2, [](Element& element) {
        element.elementControl.font.edit().bold = true;
        element.elementAlpha = 7;
        element.elementCondition = "ItemNext";
        element.elementTimers = {1, 2, 3, 4};
        element.elementModifiers.edit().addChild(XmlTree::top, "Modifier");
        element.elementControl.left = 5;
        element.elementControl.top = 6;
    });
    lockRows(document, 1);
    const ClipboardContent content = copyElements(document, {3, 2});
    SkinDocument before = document;
    document.setCurrentLayout(4);
    EXPECT_EQ(pasteElements(document, content, {10, 20}), (std::vector<int>{5, 6}));

    Element expected = before.element(2);
    expected.elementLocked = false;
    expected.elementLayout = 4;
    expected.label = "Box: Alpha 7";
    expected.elementControl.left = 15;
    expected.elementControl.top = 26;
    EXPECT_EQ(document.element(5), expected);
    EXPECT_EQ(test::rowIds(document, 4), (std::vector<int>{5, 6}));
    EXPECT_EQ(document.screenElementCount(4), 2);
    EXPECT_EQ(document.lockCount(4), 0);
    EXPECT_EQ(test::rowIds(document, 1), test::rowIds(before, 1));
    EXPECT_EQ(document.settings(), before.settings());
}

TEST(Paste, ShiftsBothEndsOfALine) {
    SkinDocument document;
    Element line;
    line.elementKind = ElementKind::Line;
    line.elementControl.kind = ControlKind::lin;
    line.elementControl.X1 = 1;
    line.elementControl.Y1 = 2;
    line.elementControl.X2 = 3;
    line.elementControl.Y2 = 4;
    document.addElement(std::move(line));
    pasteElements(document, copyElements(document, {1}), {10, -20});
    EXPECT_EQ(placeOf(document.element(2).elementControl), (Place{11, -18, 13, -16}));
    EXPECT_EQ(document.element(2).elementControl.left, 0);
}

TEST(Paste, TellsTheSettingsOnceAndOnlyWhenTheyChange) {
    SkinDocument document = test::fourBoxes();
    test::RecordingObserver observer;
    const auto watch = document.watch(observer);
    pasteElements(document, copyElements(document, {1}), {});
    EXPECT_EQ(observer.notes, (std::vector<std::string>{"rows 1 5", "counts 1 -1"}));
    EXPECT_EQ(pasteElements(document, {}, {}), std::vector<int>());
    EXPECT_EQ(observer.notes.size(), 2U);
}

TEST(Paste, BringsResourcesAndNamesThemAnewWhereTheyMeet) {
    struct Case {
        const char* what;
        Resources brought;
        Resources own;
        std::vector<std::string> sources;
        Resources after;
        std::vector<std::string> sourcesAfter;
    };
    const Case cases[] = {
        {"missing", {file("a", "\\p\\a.png")}, {}, {"a"}, {file("a", "\\p\\a.png")}, {"a"}},
        {"unused", {file("a", "\\p\\a.png")}, {}, {"b"}, {}, {"b"}},
        {"shared",
         {file("A", "\\p\\a.png")},
         {file("a", "\\p\\a.png")},
         {"A"},
         {file("a", "\\p\\a.png")},
         {"A"}},
        {"shared fragment",
         {fragment("a", "<x/>")},
         {fragment("a", "<x/>")},
         {"::a"},
         {fragment("a", "<x/>")},
         {"::a"}},
        {"taken",
         {file("a", "\\p\\a.png")},
         {file("A", "\\q\\a.png")},
         {"::a", "a"},
         {file("A", "\\q\\a.png"), file("a 2", "\\p\\a.png")},
         {"::a 2", "a 2"}},
        {"taken by a fragment",
         {file("a", "<x/>")},
         {fragment("a", "<x/>")},
         {"a"},
         {fragment("a", "<x/>"), file("a 2", "<x/>")},
         {"a 2"}},
        {"taken twice",
         {file("a", "\\p\\a.png")},
         {file("a", "1"), file("A 2", "2")},
         {"a"},
         {file("a", "1"), file("A 2", "2"), file("a 3", "\\p\\a.png")},
         {"a 3"}},
        {"pasted before",
         {file("a", "\\p\\a.png")},
         {file("a", "1"), file("a 2", "2"), file("a 3", "\\p\\a.png")},
         {"a"},
         {file("a", "1"), file("a 2", "2"), file("a 3", "\\p\\a.png")},
         {"a 3"}},
        {"a new name that comes along too",
         {file("a", "\\p\\a.png"), file("a 2", "\\p\\b.png")},
         {file("a", "1")},
         {"a", "a 2"},
         {file("a", "1"), file("a 3", "\\p\\a.png"), file("a 2", "\\p\\b.png")},
         {"a 3", "a 2"}},
        {"the last of a name",
         {file("a", "1"), file("A", "2")},
         {},
         {"a"},
         {file("A", "2")},
         {"a"}},
        {"reserved",
         {file("bground", "1")},
         {},
         {"bground"},
         {file("bground 2", "1")},
         {"bground 2"}},
        {"reserved and shared",
         {file("bground", "1")},
         {file("bground", "1")},
         {"bground"},
         {file("bground", "1")},
         {"bground"}},
    };
    for (const Case& each : cases) {
        SkinDocument document = with(each.own);
        ClipboardContent content{{}, each.brought};
        for (const std::string& source : each.sources) {
            content.elements.push_back(image(source));
        }
        const std::vector<int> ids = pasteElements(document, content, {});
        EXPECT_EQ(document.settings().resources, each.after) << each.what;
        std::vector<std::string> sources;
        for (const int id : ids) {
            const Element& element = document.element(id);
            sources.push_back(element.imageSource);
            EXPECT_EQ(element.label, "Image: " + element.imageSource) << each.what;
            const Resource* shown = resourceOf(document, element.imageSource);
            EXPECT_EQ(element.elementControl.file,
                      shown != nullptr && shown->isFile ? shown->content : "")
                << each.what;
        }
        EXPECT_EQ(sources, each.sourcesAfter) << each.what;
    }
}

TEST(Paste, SharesOneFileUnderTwoSpellings) {
    const TemporaryFolder folder;
    folder.file("Media/a.png", "x");
    const Resources own = {file("a", folder.document("Media/a.png"))};
    SkinDocument document = with(own);
    ClipboardContent content{{image("a")}, {file("a", folder.document("MEDIA\\.\\A.png"))}};
    pasteElements(document, content, {});
    EXPECT_EQ(document.settings().resources, own);
    content.resources[0].outside = true; // is not looked at
    pasteElements(document, content, {});
    EXPECT_EQ(document.settings().resources.size(), 2U);
}

TEST(Paste, LeavesBarredFilesBarred) {
    SkinDocument document;
    pasteElements(document, {{image("a")}, {{"a", "\\etc\\a.png", true, true}}}, {});
    EXPECT_TRUE(document.settings().resources.at(0).outside);
    EXPECT_EQ(document.element(1).elementControl.picture, PictureContent::barred);
}

TEST(Paste, ShowsWhatTheSkinHasOfAnotherName) {
    SkinDocument document = with({file("sky", "\\p\\sky.png")});
    pasteElements(document, {{image("Sky"), image("none")}, {}}, {});
    EXPECT_EQ(document.element(1).elementControl.kind, ControlKind::png);
    EXPECT_EQ(document.element(1).elementControl.file, "\\p\\sky.png");
    EXPECT_EQ(document.element(2).elementControl, image("none").elementControl);
    EXPECT_EQ(document.settings().resources.size(), 1U);
}

TEST(Paste, OfACopyGivesTheSameElements) {
    SkinDocument document =
        with({file("sky", "\\p\\sky.png"), file("b", "\\p\\b.png")}, {"sky", "::B", "gone"});
    const SkinDocument before = document;
    pasteElements(document, copyElements(document, allIds(document)), {});
    for (int id = 1; id <= 3; ++id) {
        EXPECT_EQ(document.element(id + 3), before.element(id));
    }
    EXPECT_EQ(document.settings(), before.settings());
}

// Every name is taken by another file, and so are the names that would come next.
TEST(Paste, TakesManyResourcesInTime) {
    constexpr int count = 20'000;
    Resources own;
    ClipboardContent content;
    for (int i = 0; i < count; ++i) {
        const std::string name = "a " + std::to_string(i + 2);
        own.push_back(file(name, "\\own\\" + name));
        content.resources.push_back(file(name, "\\other\\" + name));
        content.elements.push_back(image(name));
    }
    own.push_back(file("a", "\\own\\a"));
    content.resources.push_back(file("a", "\\other\\a"));
    content.elements.push_back(image("a"));
    SkinDocument document = with(own);
    const std::vector<int> ids = pasteElements(document, content, {});
    EXPECT_EQ(document.settings().resources.size(), 2U * (count + 1));
    EXPECT_EQ(document.element(ids.front()).imageSource, "a 2 2");
    EXPECT_EQ(document.element(ids.back()).imageSource, "a " + std::to_string(count + 2));
}

} // namespace
} // namespace tarvel
