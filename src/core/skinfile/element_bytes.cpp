// Each part of an element is written by one function and read by one beside it, fields in one
// order.
#include "skinfile/element_bytes.h"

#include "document/skin_document.h"

#include <utility>

namespace tarvel {

namespace {

// The least that one of these takes.
constexpr std::size_t textBytes = 4;
constexpr std::size_t nodeBytes = 2 * textBytes + 8;

// Trees

void writeNode(ByteWriter& out, XmlNode node) {
    out.text(node.tag());
    out.text(node.content());
    out.count(node.attributeCount());
    for (std::size_t i = 0; i < node.attributeCount(); ++i) {
        out.text(node.attributeName(i));
        out.text(node.attributeValue(i));
    }
    out.count(node.childCount());
}

// Parents before their children, without recursion: a tree may be deeper than the stack.
void writeTree(ByteWriter& out, const XmlTree& tree) {
    out.count(tree.document().childCount());
    std::vector<XmlNode> next{tree.root()};
    while (!next.empty()) {
        const XmlNode node = next.back();
        if (!node) {
            next.pop_back();
            continue;
        }
        writeNode(out, node);
        next.back() = node.nextSibling();
        next.push_back(node.firstChild());
    }
}

XmlTree::Index readNode(ByteReader& in, XmlTree& tree, XmlTree::Index parent) {
    const auto tag = in.text();
    const XmlTree::Index node = tree.addChild(parent, tag, in.text());
    for (std::size_t left = in.count(2 * textBytes); left > 0; --left) {
        const auto name = in.text();
        tree.addAttribute(node, name, in.text());
    }
    return node;
}

XmlTree readTree(ByteReader& in) {
    struct Open {
        XmlTree::Index node;
        std::size_t childrenLeft;
    };
    XmlTree tree;
    std::vector<Open> open{{XmlTree::top, in.count(nodeBytes)}};
    while (!open.empty()) {
        Open& parent = open.back();
        if (parent.childrenLeft == 0) {
            open.pop_back();
            continue;
        }
        --parent.childrenLeft;
        const XmlTree::Index node = readNode(in, tree, parent.node);
        open.push_back({node, in.count(nodeBytes)});
    }
    tree.shrinkToFit();
    return tree;
}

// Elements

void writeFont(ByteWriter& out, const FontChoice& font) {
    out.text(font.family);
    out.value(font.size);
    out.value(font.bold);
    out.value(font.underline);
}

FontChoice readFont(ByteReader& in) {
    FontChoice font;
    font.family = in.text();
    font.size = in.value<float>();
    font.bold = in.truth();
    font.underline = in.truth();
    return font;
}

template <class Settings, class Field> void forMenuFlags(Settings& settings, Field&& field) {
    field(settings.thumbnailsVisible);
    field(settings.smoothScroll);
    field(settings.glowSelected);
    field(settings.showDescription);
}

template <class Settings, class Field> void forMenuTexts(Settings& settings, Field&& field) {
    field(settings.titleAlignment);
    field(settings.descriptionAlignment);
    field(settings.selectedTitleColor);
    field(settings.unselectedTitleColor);
    field(settings.selectedDescriptionColor);
    field(settings.unselectedDescriptionColor);
}

void writeMenu(ByteWriter& out, const MenuSettings& settings) {
    forMenuFlags(settings, [&](bool flag) { out.value(flag); });
    out.value(settings.scrollFactor);
    out.value(settings.itemsShown);
    forMenuTexts(settings, [&](const std::string& text) { out.text(text); });
}

MenuSettings readMenu(ByteReader& in) {
    MenuSettings settings;
    forMenuFlags(settings, [&](bool& flag) { flag = in.truth(); });
    settings.scrollFactor = in.value<std::int16_t>();
    settings.itemsShown = in.value<std::int16_t>();
    forMenuTexts(settings, [&](std::string& text) { text = in.text(); });
    return settings;
}

// Most elements have the font, modifiers and menu settings of a new one, which take one byte.
template <class T, class Write>
void writeShared(ByteWriter& out, const SharedValue<T>& shared, Write&& write) {
    const bool own = !(shared == SharedValue<T>{});
    out.value(own);
    if (own) {
        write(out, *shared);
    }
}

template <class T, class Read>
void readShared(ByteReader& in, SharedValue<T>& shared, Read&& read) {
    if (in.truth()) {
        shared.edit() = read(in);
    }
}

template <class Control, class Field> void forPlaces(Control& control, Field&& field) {
    for (auto* place : {&control.left, &control.top, &control.width, &control.height, &control.X1,
                        &control.Y1, &control.X2, &control.Y2}) {
        field(*place);
    }
}

void writeControl(ByteWriter& out, const ElementControl& control) {
    out.value(control.kind);
    out.value(control.fillStyle);
    out.value(control.borderStyle);
    out.value(control.alignment);
    out.value(control.picture);
    forPlaces(control, [&](float place) { out.value(place); });
    out.value(control.fillColor);
    out.value(control.borderColor);
    out.value(control.textColor);
    out.text(control.caption);
    out.text(control.file);
    writeShared(out, control.font, writeFont);
}

constexpr auto lastControl = static_cast<ControlKind>(controlKinds.size() - 1);

void readControl(ByteReader& in, ElementControl& control) {
    control.kind = in.enumerator(lastControl);
    control.fillStyle = in.enumerator(FillStyle::transparent);
    control.borderStyle = in.enumerator(BorderStyle::solid);
    control.alignment = in.enumerator(TextAlignment::center);
    control.picture = in.enumerator(PictureContent::barred);
    forPlaces(control, [&](float& place) { place = in.value<float>(); });
    control.fillColor = in.value<ColorNumber>();
    control.borderColor = in.value<ColorNumber>();
    control.textColor = in.value<ColorNumber>();
    control.caption = in.text();
    control.file = in.text();
    readShared(in, control.font, readFont);
}

} // namespace

void writeElement(ByteWriter& out, const Element& element) {
    out.value(element.elementKind);
    out.value(element.elementLocked);
    out.value(element.textIsConstant);
    out.value(element.elementLayout);
    out.value(element.elementAlpha);
    for (const std::int32_t timer : element.elementTimers) {
        out.value(timer);
    }
    writeControl(out, element.elementControl);
    out.text(element.label);
    out.text(element.imageSource);
    out.text(element.elementCondition);
    writeShared(out, element.elementModifiers, writeTree);
    writeShared(out, element.menuSettings, writeMenu);
}

Element readElement(ByteReader& in) {
    Element element;
    element.elementKind =
        static_cast<ElementKind>(in.value<std::int16_t>()); // any code is possible
    element.elementLocked = in.truth();
    element.textIsConstant = in.truth();
    element.elementLayout = in.value<std::int16_t>();
    if (element.elementLayout < 0 || element.elementLayout >= screenCount) {
        ByteReader::damaged();
    }
    element.elementAlpha = in.value<std::int16_t>();
    for (std::int32_t& timer : element.elementTimers) {
        timer = in.value<std::int32_t>();
    }
    readControl(in, element.elementControl);
    element.label = in.text();
    element.imageSource = in.text();
    element.elementCondition = in.text();
    readShared(in, element.elementModifiers, readTree);
    readShared(in, element.menuSettings, readMenu);
    return element;
}

void writeResources(ByteWriter& out, const std::vector<Resource>& resources) {
    out.count(resources.size());
    for (const Resource& resource : resources) {
        out.text(resource.name);
        out.text(resource.content);
        out.value(resource.isFile);
        out.value(resource.outside);
    }
}

void readResources(ByteReader& in, std::vector<Resource>& resources) {
    for (std::size_t left = in.count(2 * textBytes + 2); left > 0; --left) {
        Resource resource;
        resource.name = in.text();
        resource.content = in.text();
        resource.isFile = in.truth();
        resource.outside = in.truth();
        resources.push_back(std::move(resource));
    }
}

} // namespace tarvel
