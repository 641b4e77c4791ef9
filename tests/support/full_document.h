// A document in which everything that a document can hold is set, and to another value each.
#pragma once

#include "document/skin_document.h"

#include <limits>
#include <string>
#include <utility>

namespace tarvel::test {

inline XmlTree nestedModifiers() {
    XmlTree tree;
    const auto first = tree.addChild(XmlTree::top, "Modifier", " kept & <raw> ");
    tree.addAttribute(first, "Type", "Glow");
    tree.addAttribute(first, "Target", "Picture");
    const auto range = tree.addChild(first, "Range");
    tree.addAttribute(range, "X", "20");
    tree.addChild(range, "Below", std::string_view("a\0b", 3));
    tree.addChild(first, "Bounds", "x");
    tree.addChild(XmlTree::top, "Modifier");
    return tree;
}

/// Every field with a value of its own made out of `seed`.
inline Element fullElement(int seed) {
    const auto text = [seed](const char* what) { return what + std::to_string(seed); };
    Element element;
    element.elementKind = static_cast<ElementKind>(seed % 8); // codes beyond the kinds included
    element.textIsConstant = true;
    element.elementAlpha = static_cast<std::int16_t>(-seed);
    element.elementTimers = {seed, -1, std::numeric_limits<std::int32_t>::max(), 7};
    ElementControl& control = element.elementControl;
    control.kind = static_cast<ControlKind>(seed % 7);
    control.fillStyle = FillStyle::solid;
    control.borderStyle = BorderStyle::solid;
    control.alignment = static_cast<TextAlignment>(seed % 3);
    control.picture = static_cast<PictureContent>(seed % 3);
    control.left = 0.1F;
    control.top = 1e30F;
    control.width = std::numeric_limits<float>::denorm_min();
    control.height = std::numeric_limits<float>::infinity();
    control.X1 = -1e30F;
    control.Y1 = 2;
    control.X2 = 3;
    control.Y2 = static_cast<float>(seed);
    control.fillColor = 0xFFFFFFFFU;
    control.borderColor = 0x123456U;
    control.textColor = static_cast<ColorNumber>(seed);
    control.caption = text("caption \n ä\xFF");
    control.file = text("C:\\pics\\");
    control.font = SharedValue(FontChoice{text("Font "), 11.5F, true, true});
    element.label = text("label ");
    element.imageSource = text("::source");
    element.elementCondition = "ItemNext ";
    element.elementModifiers = SharedValue(nestedModifiers());
    element.menuSettings = SharedValue(
        MenuSettings{false, false, 9, 12, true, false, "a", "b", "1", "2", "3", text("colour ")});
    return element;
}

inline SkinSettings fullSettings() {
    SkinSettings settings;
    settings.skinName = "Name <&>";
    settings.information = {{"Author", "A"}, {"R&D", std::string("\0x", 2)}};
    settings.music = {true, true, true, true, {"a.mp3", "b.mp3", ""}, {2, 0, 0}};
    settings.delays = {0.1, -1e300, 3};
    settings.systemColors.boxes = {SampleBox{1, 2}, SampleBox{3, 4}};
    settings.systemColors.texts = {5, 6, 7, 8, 9, 10};
    settings.systemColors.opacityTexts = {"abc", ""};
    settings.background = {true, "back.bmp"};
    settings.resources = {{"r1", "p1", true, true}, {"r2", "<x/>", false, false}};
    return settings;
}

/// Elements on every screen, deleted ones between them, locked rows, rows out of the order of ids,
/// and the last screen shown.
inline SkinDocument fullDocument() {
    SkinDocument document;
    for (int screen = 0; screen < screenCount; ++screen) {
        document.setCurrentLayout(screen);
        for (int i = 0; i < 4; ++i) {
            document.addElement(fullElement(screen * 4 + i));
        }
        document.addElement({}); // one like a new one
        document.moveRow(screen, 0, 3);
        document.delItem(1);
        document.editElement(document.itemData(screen, 0),
                             [](Element& element) { element.elementLocked = true; });
        document.setLockCount(screen, 1);
        document.setScreenElementCount(screen, 70000 + screen);
    }
    document.editSettings([](SkinSettings& settings) { settings = fullSettings(); });
    return document;
}

} // namespace tarvel::test
