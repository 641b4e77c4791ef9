// Text: a fixed text, or the name of a text that the dashboard fills in.
#include "document/kinds/kind_parts.h"
#include "document/kinds/panel_texts.h"
#include "text/tag_scanner.h"

#include <cmath>

namespace tarvel {

namespace {

constexpr std::string_view opening = R"(<LayoutElement Type="Text">)";
constexpr std::string_view openingStart = R"(<LayoutElement Type="Text" Source=")";
// Of a text for which the file gives neither a source nor a constant.
constexpr std::string_view defaultCaption = "Text element";

std::string labelFor(std::string_view text) {
    return std::string("Text: ").append(text);
}

std::string label(const Element& element) {
    return labelFor(element.elementControl.caption);
}

SkinSize defaultSize(std::optional<SkinSize> natural) {
    const bool known = natural && natural->width > 0 && natural->height > 0;
    return known ? SkinSize{std::ceil(natural->width), std::ceil(natural->height)}
                 : SkinSize{120, 16};
}

// The colour text: in a Color child of TextColor, or in TextColor itself.
std::string_view colorText(const ElementDescription& description) {
    const XmlNode node = description.textColorNode;
    const auto color = node ? getContent(node, "Color") : std::string_view{};
    return color.empty() ? description.textColor : color;
}

void read(Element& element, const ElementDescription& description) {
    ElementControl& control = element.elementControl;
    control.kind = ControlKind::txt;
    if (!description.source.empty()) {
        control.caption = description.source;
        element.label = labelFor(description.source);
    } else {
        element.textIsConstant = true;
        control.caption = description.hasConstant ? description.constant : defaultCaption;
        element.label = labelFor(description.constant);
    }
    const auto color = colorText(description);
    control.textColor = color.empty() ? white : getColor(color);
    element.elementAlpha = opacityIn(color);
}

void write(const Element& element, LineWriter& lines) {
    const ElementControl& control = element.elementControl;
    if (element.textIsConstant) {
        lines.writeLine(opening);
        lines.tagLine("Constant", control.caption);
    } else {
        lines.line(openingStart, control.caption, R"(">)");
    }
    lines.tagLine("TextColor", AlphaColor{element.elementAlpha, control.textColor});
    writeRectangle(control, lines);
}

void addForms(const ElementForms& element) {
    element.forms.open(element.layout, opening, element.element);
    element.forms.openNamed(element.layout, openingStart, element.element);
    addColorForm(element, "<TextColor>", "</TextColor>");
    element.forms.leaf(element.element, LineForm::Values::text, "<Constant>", "</Constant>");
    addRectangleForm(element);
}

// A text without a constant and without a source has the default caption.
void keep(Element& record, const Element& element, const SkinDocument& /*kept*/) {
    const std::string& caption = element.elementControl.caption;
    record.textIsConstant = element.textIsConstant || caption.empty();
    record.elementControl.kind = ControlKind::txt;
    const bool isNamed = element.textIsConstant || !caption.empty();
    record.elementControl.caption = isNamed ? caption : std::string(defaultCaption);
    const std::string text = fileColor(element.elementAlpha, element.elementControl.textColor);
    record.elementControl.textColor = getColor(text);
    record.elementAlpha = opacityIn(text);
    record.label = label(record);
}

// The font swatch is white whatever colour the text has.
PanelLayout panel(ControlKind /*control*/, PanelValues& values) {
    values.fill = {FillStyle::solid, white};
    PanelLayout layout;
    layout.kindFlag = ElementKind::Text;
    layout.colors = layout.fillPart = layout.text = true;
    layout.fillColor = layout.opacity = true;
    layout.fillCaption = caption::fontColor;
    return layout;
}

void show(const Element& element, const std::vector<Resource>& /*resources*/, PanelValues& values) {
    values.text = element.elementControl.caption;
    values.textIsEntry = !element.textIsConstant;
    values.fill.color = element.elementControl.textColor;
    values.opacity = opacityText(element);
}

void take(const PanelValues& values, const std::vector<Resource>& /*resources*/, Element& element) {
    ElementControl& control = element.elementControl;
    element.textIsConstant = !values.textIsEntry;
    control.caption = values.text;
    control.textColor = values.fill.color;
    if (control.font.get() != values.font) { // elements without a choice of font share the default
        control.font.edit() = values.font;
    }
}

std::vector<std::string_view> faults(const PanelValues& values) {
    if (values.text.empty()) {
        return {message::noText};
    }
    return {};
}

constexpr std::array controls = {NamedControl{ControlKind::txt, "txt"}};

} // namespace

const KindRules textKind = {.kind = ElementKind::Text,
                            .typeName = "Text",
                            .controls = controls,
                            .placeForm = PlaceForm::rectangle,
                            .namesResource = false,
                            .label = label,
                            .defaultSize = defaultSize,
                            .readPlace = joinedPlace,
                            .read = read,
                            .write = write,
                            .addForms = addForms,
                            .keep = keep,
                            .panel = panel,
                            .show = show,
                            .take = take,
                            .faults = faults};

} // namespace tarvel
