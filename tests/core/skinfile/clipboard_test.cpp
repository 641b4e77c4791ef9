// Copied elements through their bytes: everything comes along, and nothing that is not whole does.
#include "skinfile/clipboard.h"
#include "support/document_support.h"
#include "support/full_document.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <limits>
#include <numeric>

namespace tarvel {
namespace {

Element imageOf(const std::string& source) {
    Element image;
    image.elementKind = ElementKind::Image;
    image.elementControl.kind = ControlKind::img;
    image.imageSource = source;
    image.label = "Image: " + source;
    return image;
}

// Everything of an element set that a skin can give it.
Element richText() {
    Element element = test::fullElement(4);
    element.elementKind = ElementKind::Text;
    element.elementControl.kind = ControlKind::txt;
    element.elementControl.height = 3;
    element.label = "Text: " + element.elementControl.caption;
    return element;
}

SkinDocument withResources() {
    SkinDocument document;
    document.addRes("Sky", "\\pics\\sky.png");
    document.addRes("unused", "\\pics\\unused.png");
    document.addcRes("<File>::Logo</File>", "logo");
    document.addRes("sky", "\\pics\\later.png", true);
    document.addElement(imageOf("::LOGO")); // 1
    document.addElement(richText());        // 2
    document.addElement(imageOf("SKY"));    // 3
    document.addElement(imageOf("none"));   // 4
    document.setCurrentLayout(4);
    document.addElement(imageOf("logo")); // 5
    return document;
}

std::string problemOf(std::string_view bytes) {
    try {
        static_cast<void>(readClipboardBytes(bytes));
        return "none";
    } catch (const SealedBytesError& error) {
        return error.what();
    }
}

TEST(CopyElements, TakesThemInStackingOrderWithWhatTheyUse) {
    SkinDocument document = withResources();
    document.moveRow(1, 2, 0);
    const ClipboardContent content = copyElements(document, {4, 2, 3, 2});
    EXPECT_EQ(content.elements, (std::vector<Element>{document.element(3), document.element(2),
                                                      document.element(4)}));
    const auto& resources = document.settings().resources;
    EXPECT_EQ(content.resources, std::vector<Resource>{resources[3]});
    EXPECT_EQ(copyElements(document, {5, 3, 1}).resources,
              (std::vector<Resource>{resources[2], resources[3]}));
}

TEST(CopyElements, LeavesOutWhatIsOnNoScreen) {
    SkinDocument document = withResources();
    document.setCurrentLayout(1);
    document.delItem(1);
    const ClipboardContent content = copyElements(document, {2, -1, 0, 6, 1});
    EXPECT_EQ(content.elements, std::vector<Element>{document.element(1)});
    EXPECT_EQ(copyElements(document, {}), ClipboardContent{});
}

TEST(CopyElements, TakesNoLocks) {
    SkinDocument document = withResources();
    const Element before = document.element(2);
    document.editElement(2, [](Element& element) {
        element.elementLocked = true;
        element.label = "(L) what stood there";
    });
    EXPECT_EQ(copyElements(document, {2}).elements, std::vector<Element>{before});
}

TEST(ClipboardBytes, BringEverythingBack) {
    const SkinDocument document = withResources();
    for (const std::vector<int>& ids : {std::vector<int>{}, {1, 2, 3, 4, 5}, {2}}) {
        const ClipboardContent content = copyElements(document, ids);
        EXPECT_EQ(readClipboardBytes(clipboardBytes(content)), content);
    }
}

TEST(ClipboardBytes, TellEveryDamage) {
    const std::string bytes = clipboardBytes(copyElements(withResources(), {1, 2}));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::string damaged = bytes;
        damaged[i] = static_cast<char>(damaged[i] ^ 1);
        EXPECT_NE(problemOf(damaged), "none") << i;
        EXPECT_NE(problemOf(std::string_view(bytes).substr(0, i)), "none") << i;
    }
    EXPECT_EQ(problemOf(bytes + "x"), "The file is damaged");
    EXPECT_EQ(problemOf("text"), "The file is of another kind");
}

TEST(ClipboardBytes, FitNoOtherKindOfFile) {
    std::string bytes = clipboardBytes({});
    EXPECT_NE(bytes.substr(0, 8), std::string("\x89TARVEL\n"));
    const std::string content(unsealed(clipboardSeal, bytes));
    const Seal later{.magic = clipboardSeal.magic, .version = clipboardSeal.version + 1};
    EXPECT_EQ(problemOf(sealed(later, content)), "The file is of another version of Tarvel");
    EXPECT_EQ(problemOf(sealed(clipboardSeal, content + "x")), "The file is damaged");
}

TEST(ClipboardBytes, RefuseWhatNoSkinHas) {
    const std::function<void(Element&)> changes[] = {
        [](Element& e) { e.elementControl.left = std::numeric_limits<float>::quiet_NaN(); },
        [](Element& e) { e.elementControl.Y2 = std::numeric_limits<float>::infinity(); },
        [](Element& e) {
            e.elementControl.font.edit().size = -std::numeric_limits<float>::infinity();
        },
        [](Element& e) {
            auto node = XmlTree::top;
            for (int i = 0; i < 2000; ++i) {
                node = e.elementModifiers.edit().addChild(node, "Modifier");
            }
        },
    };
    for (const auto& change : changes) {
        ClipboardContent content{{Element{}}, {}};
        ASSERT_EQ(problemOf(clipboardBytes(content)), "none");
        change(content.elements[0]);
        EXPECT_EQ(problemOf(clipboardBytes(content)), "The file is damaged");
    }
}

TEST(ClipboardBytes, BringNoLocksAndNoRowTexts) {
    ClipboardContent content{{Element{}}, {}};
    content.elements[0].elementLocked = true;
    content.elements[0].label = "(L) x";
    const Element back = readClipboardBytes(clipboardBytes(content)).elements.at(0);
    EXPECT_FALSE(back.elementLocked);
    EXPECT_EQ(back.label, "Box: Alpha 100");
}

} // namespace
} // namespace tarvel
