// Skins of any size for the benchmarks.
#include "skins.h"

#include "document/element_factory.h"
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"

#include <cstdlib>
#include <initializer_list>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace tarvel::bench {

namespace {

Element elementOf(int number) {
    static constexpr std::array<ElementKind, 5> kinds = {ElementKind::Box, ElementKind::Text,
                                                         ElementKind::Image, ElementKind::Line,
                                                         ElementKind::Text};
    Element element;
    element.elementKind =
        number % 500 == 499 ? ElementKind::Menu : kinds[static_cast<std::size_t>(number) % 5];
    ElementControl& control = element.elementControl;
    control.left = static_cast<float>(number * 7 % 600);
    control.top = static_cast<float>(number * 13 % 440) + 0.5F;
    control.width = static_cast<float>(10 + number % 90);
    control.height = static_cast<float>(5 + number % 60);
    control.X1 = control.left;
    control.Y1 = control.top;
    control.X2 = 640 - control.left;
    control.Y2 = control.top;
    control.fillStyle = FillStyle::solid;
    control.fillColor = static_cast<ColorNumber>(number) * 2654435U & 0xFFFFFFU;
    control.borderStyle = number % 2 == 0 ? BorderStyle::solid : BorderStyle::none;
    control.textColor = makeColor(255, 255, 255);
    control.caption = "Caption number " + std::to_string(number);
    element.textIsConstant = number % 5 == 1;
    element.imageSource = "picture" + std::to_string(number % 8);
    element.elementAlpha = static_cast<std::int16_t>(1 + number % 100);
    if (number % 4 == 0) {
        element.elementCondition = "ItemEntry";
        element.elementTimers = {500, 0, 0, 9000};
    }
    return element;
}

using Values = std::initializer_list<std::pair<std::string_view, std::string_view>>;

void addPart(XmlTree& tree, XmlTree::Index parent, std::string_view tag, const Values& values) {
    const auto part = tree.addChild(parent, tag);
    for (const auto& [name, value] : values) {
        tree.addAttribute(part, name, value);
    }
}

XmlTree modifierOf(int number) {
    XmlTree tree;
    const auto modifier = tree.addChild(XmlTree::top, "Modifier");
    tree.addAttribute(modifier, "Type", "Glow");
    tree.addAttribute(modifier, "Target", "Picture");
    switch (number % 3) {
    case 0:
        for (const std::string_view color : {"Alpha", "Red", "Green", "Blue"}) {
            addPart(tree, modifier, color,
                    {{"Enable", "True"}, {"Min", "120"}, {"Max", "255"}, {"Period", "2400"}});
        }
        break;
    case 1:
        addPart(tree, modifier, "Bounds", {{"L", "170"}, {"T", "480"}, {"R", "470"}, {"B", "664"}});
        break;
    default:
        addPart(tree, modifier, "Range", {{"X", "20"}, {"Y", "78"}});
    }
    return tree;
}

} // namespace

SkinDocument mixedSkin(int count, const SkinKind& kind) {
    SkinDocument document;
    document.editSettings([](SkinSettings& settings) {
        settings.skinName = "Benchmark";
        for (int i = 0; i < 8; ++i) {
            settings.resources.push_back(
                {"picture" + std::to_string(i), "<File>::SkyTile</File>", false, false});
        }
    });
    for (int number = 0; number < count; ++number) {
        document.setCurrentLayout(
            kind.menuOnly ? menuScreen
                          : static_cast<int>(std::int64_t{number} * screenCount / count));
        Element element = elementOf(number);
        if (kind.boxesOnly) {
            element.elementKind = ElementKind::Box;
        }
        if (kind.modifiers) {
            element.elementModifiers.edit() = modifierOf(number);
        }
        document.addElement(std::move(element));
    }
    document.setCurrentLayout(menuScreen);
    return document;
}

SkinDocument imagesSkin(int count) {
    SkinDocument document;
    document.editSettings([](SkinSettings& settings) { settings.skinName = "Benchmark"; });
    for (int number = 0; number < count; ++number) {
        const std::string name = "picture" + std::to_string(number);
        document.addRes(name, "\\nowhere\\" + name + ".png");
        Element element = elementOf(number);
        element.elementKind = ElementKind::Image;
        element.imageSource = name;
        document.addElement(std::move(element));
    }
    return document;
}

TemporaryFolder::TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tarvel-bench-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no temporary folder");
    }
    path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path saveInto(const std::filesystem::path& folder, SkinDocument& document) {
    SkinWriter writer(folder);
    if (!saveSkin(document, writer, folder, {}).succeeded()) {
        throw std::runtime_error("the benchmark's skin cannot be saved");
    }
    return skinFilePath(folder);
}

std::filesystem::path writeInto(const std::filesystem::path& folder, const SkinDocument& document) {
    SkinWriter writer;
    SkinDocument copy = document;
    writer.generateXML(copy);
    writeFile(folder / skinFileName, skinFileBytes(writer.xmlText()));
    std::filesystem::create_directory(folder / "Media");
    return folder / skinFileName;
}

} // namespace tarvel::bench
