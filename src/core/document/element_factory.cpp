// makeElement and what it reads of a description, kind by kind.
#include "document/element_factory.h"

#include "text/number_format.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"

namespace tarvel {

namespace {

constexpr std::string_view referenceMark = "::";

// The children that the kinds look for, found in one walk: loading makes thousands of elements. Of
// contents the last counts, of nodes the first.
struct CommonTags {
    std::string_view color;
    std::string_view borderColor;
    std::string_view condition;
    std::string_view constant;
    bool hasConstant = false;
    std::string_view textColor;
    XmlNode textColorNode;
    bool timers = false;
    bool modifiers = false;
};

constexpr std::string_view modifierTag = "Modifier";
constexpr std::string_view timerTag = "Timer";

void takeTag(CommonTags& tags, XmlNode child) {
    const auto tag = child.tag();
    const auto is = [tag](std::string_view name) { return equalsIgnoringCase(tag, name); };
    switch (tag.size()) { // the cheapest thing in which the names differ
    case 5:
        if (is("Color")) {
            tags.color = child.content();
        } else if (is(timerTag)) {
            tags.timers = true;
        }
        break;
    case 8:
        if (is("Constant")) {
            tags.constant = child.content();
            tags.hasConstant = true;
        } else if (is(modifierTag)) {
            tags.modifiers = true;
        }
        break;
    case 9:
        if (is("TextColor")) {
            tags.textColor = child.content();
            tags.textColorNode = tags.textColorNode ? tags.textColorNode : child;
        } else if (is("Condition")) {
            tags.condition = child.content();
        }
        break;
    case 11:
        if (is("BorderColor")) {
            tags.borderColor = child.content();
        }
        break;
    default:
        break;
    }
}

CommonTags commonTags(XmlNode description) {
    CommonTags tags;
    for (const XmlNode child : description.children()) {
        takeTag(tags, child);
    }
    return tags;
}

void makeBox(Element& element, const CommonTags& tags) {
    const auto color = tags.color;
    const auto border = tags.borderColor;
    ElementControl& control = element.elementControl;
    control.kind = ControlKind::box;
    if (!color.empty()) {
        control.fillStyle = FillStyle::solid;
        control.fillColor = getColor(color);
    }
    if (!border.empty()) {
        control.borderStyle = BorderStyle::solid;
        control.borderColor = getColor(border);
    }
    element.elementAlpha = static_cast<std::int16_t>(getAlpha(color));
    element.label = boxLabel(element.elementAlpha);
}

void makeLine(Element& element, const CommonTags& tags) {
    const auto color = tags.color;
    element.elementControl.kind = ControlKind::lin;
    element.elementControl.borderColor = color.empty() ? white : getColor(color);
    element.elementAlpha = static_cast<std::int16_t>(getAlpha(color));
    element.label = "Line";
}

void makeImage(Element& element, const SkinDocument& document, std::string_view source,
               const CommonTags& tags) {
    element.imageSource = source;
    element.label = imageLabel(source);
    element.elementAlpha = static_cast<std::int16_t>(getAlpha(tags.color));
    attachSource(document, source, element.elementControl);
}

// The colour text of a Text element: in a Color child of TextColor, or in TextColor itself.
std::string_view textColorText(const CommonTags& tags) {
    return childTagged(tags.textColorNode, "Color") ? getContent(tags.textColorNode, "Color")
                                                    : tags.textColor;
}

void makeText(Element& element, std::string_view source, const CommonTags& tags) {
    ElementControl& control = element.elementControl;
    control.kind = ControlKind::txt;
    if (!source.empty()) {
        control.caption = source;
        element.label = textLabel(source);
    } else {
        element.textIsConstant = true;
        control.caption = tags.hasConstant ? tags.constant : defaultCaption;
        element.label = textLabel(tags.constant);
    }
    const auto color = textColorText(tags);
    control.textColor = color.empty() ? white : getColor(color);
    element.elementAlpha = static_cast<std::int16_t>(getAlpha(color));
}

void takeText(std::string& target, std::string_view text) {
    if (!text.empty()) {
        target = text;
    }
}

void takeNumber(std::int16_t& target, std::string_view text) {
    if (!text.empty()) {
        target = toInt16(val(text));
    }
}

// Menu colours are kept as the decimal text of their number.
void takeColor(std::string& target, std::string_view text) {
    if (!text.empty()) {
        target.clear();
        appendNumber(target, getColor(text));
    }
}

// The colours of a menu's selected or unselected items.
void takeItemColors(XmlNode items, std::string& title, std::string& description) {
    if (!items) {
        return;
    }
    takeColor(title, getContent(items, "TextColor"));
    if (const XmlNode secondary = childTagged(items, "Secondary")) {
        takeColor(description, getContent(secondary, "TextColor"));
    }
}

void makeMenu(Element& element, XmlNode description, const CommonTags& tags) {
    element.elementControl.kind = ControlKind::qor;
    element.label = "Menu";
    element.elementAlpha = static_cast<std::int16_t>(getAlpha(tags.color));
    MenuSettings& settings = element.menuSettings.edit();
    takeNumber(settings.itemsShown, getContent(description, "NumItems"));
    takeNumber(settings.scrollFactor, getContent(description, "ScrollFactor"));
    settings.smoothScroll = reverseBool(getContent(description, "SmoothScroll"));
    settings.showDescription = reverseBool(getContent(description, "DrawSecondary"));
    settings.thumbnailsVisible = reverseBool(getContent(description, "Thumbnails"));
    if (const XmlNode primary = childTagged(description, "Primary")) {
        takeText(settings.titleAlignment, getContent(primary, "JustifyX"));
    }
    if (const XmlNode secondary = childTagged(description, "Secondary")) {
        takeText(settings.descriptionAlignment, getContent(secondary, "JustifyX"));
    }
    const XmlNode selection = childTagged(description, "Selection");
    settings.glowSelected = selection && reverseBool(getContent(selection, "DoGlow"));
    takeItemColors(selection, settings.selectedTitleColor, settings.selectedDescriptionColor);
    takeItemColors(childTagged(description, "UnSelItem"), settings.unselectedTitleColor,
                   settings.unselectedDescriptionColor);
}

void takeTimers(Element& element, XmlNode description) {
    constexpr std::array<std::string_view, timerSlots> names = {"Delay", "CycleOn", "CycleOff",
                                                                "Lifetime"};
    for (std::size_t slot = 0; slot < timerSlots; ++slot) {
        element.elementTimers[slot] =
            toInt32(val(getContentInTag(description, names[slot], timerTag)));
    }
}

// All Modifier children, in file order, under the one spelling of the tag that is written.
void takeModifiers(Element& element, XmlNode description) {
    XmlTree tree;
    for (const XmlNode child : description.children()) {
        if (equalsIgnoringCase(child.tag(), modifierTag)) {
            const auto copy = tree.addCopy(XmlTree::top, child);
            if (child.tag() != modifierTag) {
                tree.setTag(copy, modifierTag);
            }
        }
    }
    tree.shrinkToFit();
    element.elementModifiers = SharedValue(std::move(tree));
}

void takeGeometry(ElementControl& control, double a, double b, double c, double d) {
    if (control.kind == ControlKind::lin) {
        control.X1 = toSingle(a);
        control.Y1 = toSingle(b);
        control.X2 = toSingle(c);
        control.Y2 = toSingle(d);
    } else {
        control.left = toSingle(a);
        control.top = toSingle(b);
        control.width = toSingle(c);
        control.height = toSingle(d);
    }
}

} // namespace

ControlKind imageControl(std::string_view file) {
    if (isVideoFile(file)) {
        return ControlKind::vid;
    }
    return isPngFile(file) ? ControlKind::png : ControlKind::img;
}

void attachSource(const SkinDocument& document, std::string_view source, ElementControl& control) {
    if (source.starts_with(referenceMark)) {
        source.remove_prefix(referenceMark.size());
    }
    const Resource* resource = findResource(document, source);
    if (resource == nullptr) {
        control.kind = ControlKind::img;
        return;
    }
    control.kind = imageControl(resource->content);
    if (!resource->isFile) {
        control.picture = PictureContent::programIcon;
        return;
    }
    control.file = resource->content;
    const bool isProgram = control.file.size() >= 3 &&
                           equalsIgnoringCase(control.file.substr(control.file.size() - 3), "xbe");
    if (resource->outside) {
        control.picture = PictureContent::barred;
    } else if (isProgram) {
        control.picture = PictureContent::programIcon;
    }
}

std::string boxLabel(int opacity) {
    std::string label = "Box: Alpha ";
    appendNumber(label, opacity);
    return label;
}

std::string imageLabel(std::string_view source) {
    return std::string("Image: ").append(source);
}

std::string textLabel(std::string_view text) {
    return std::string("Text: ").append(text);
}

int makeElement(SkinDocument& document, double a, double b, double c, double d, ElementKind kind,
                std::string_view source, XmlNode description) {
    const CommonTags tags = commonTags(description);
    Element element;
    element.elementKind = kind;
    switch (kind) {
    case ElementKind::Box:
        makeBox(element, tags);
        break;
    case ElementKind::Line:
        makeLine(element, tags);
        break;
    case ElementKind::Image:
        makeImage(element, document, source, tags);
        break;
    case ElementKind::Text:
        makeText(element, source, tags);
        break;
    case ElementKind::Menu:
        makeMenu(element, description, tags);
        break;
    }
    element.elementCondition = tags.condition;
    if (tags.timers) {
        takeTimers(element, description);
    }
    if (tags.modifiers) {
        takeModifiers(element, description);
    }
    takeGeometry(element.elementControl, a, b, c, d);
    return document.addElement(std::move(element));
}

int makeElement(SkinDocument& document, std::string_view a, std::string_view b, std::string_view c,
                std::string_view d, ElementKind kind, std::string_view source,
                XmlNode description) {
    return makeElement(document, val(a), val(b), val(c), val(d), kind, source, description);
}

} // namespace tarvel
