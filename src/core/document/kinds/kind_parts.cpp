// Reads, writes and shows the rectangles and colours that several kinds have.
#include "document/kinds/kind_parts.h"

#include "document/kinds/panel_texts.h"
#include "text/number_format.h"

namespace tarvel {

namespace {

// Looks at the number that the caption beside the opacity begins with. It begins with none, which
// counts as 0, so the caption in use never fails.
bool isBadAlpha(std::string_view captionText) {
    constexpr double largestByte = 255;
    const double alpha = val(captionText);
    return alpha < 0 || alpha > largestByte;
}

} // namespace

std::int16_t opacityIn(std::string_view color) {
    return static_cast<std::int16_t>(getAlpha(color));
}

std::string fileColor(std::int16_t opacity, ColorNumber color) {
    return std::string("0x").append(makeAlpha(opacity)).append(rgbHex(color));
}

bool isClear(const Swatch& swatch) {
    return swatch.fillStyle == FillStyle::transparent;
}

bool isBadOpacity(std::string_view text) {
    constexpr double opaquePercent = 100;
    const double opacity = val(text);
    return (text != "0" && opacity == 0) || opacity > opaquePercent;
}

std::string opacityText(const Element& element) {
    return numberText(int{element.elementAlpha});
}

void writeRectangle(const ElementControl& control, LineWriter& lines) {
    lines.line(R"(<Pos L=")", control.left, R"(" T=")", control.top, R"(" W=")", control.width,
               R"(" H=")", control.height, R"("/>)");
}

void addRectangleForm(const ElementForms& element) {
    element.forms.add(element.element, LineForm::Action::single, LineForm::Values::number,
                      {R"(<Pos L=")", R"(" T=")", R"(" W=")", R"(" H=")", R"("/>)"});
}

void addColorForm(const ElementForms& element, std::string_view start, std::string_view end) {
    element.forms.leaf(element.element, LineForm::Values::color, start, end);
}

void readArea(Element& element, const ElementDescription& description) {
    ElementControl& control = element.elementControl;
    if (!description.color.empty()) {
        control.fillStyle = FillStyle::solid;
        control.fillColor = getColor(description.color);
    }
    if (!description.borderColor.empty()) {
        control.borderStyle = BorderStyle::solid;
        control.borderColor = getColor(description.borderColor);
    }
    element.elementAlpha = opacityIn(description.color);
}

void writeArea(const Element& element, LineWriter& lines) {
    const ElementControl& control = element.elementControl;
    if (control.fillStyle == FillStyle::solid) {
        lines.tagLine("Color", AlphaColor{element.elementAlpha, control.fillColor});
    }
    if (control.borderStyle == BorderStyle::solid) {
        lines.colorLine("BorderColor", control.borderColor);
    }
}

void addAreaForms(const ElementForms& element) {
    addColorForm(element, "<Color>", "</Color>");
    addColorForm(element, "<BorderColor>", "</BorderColor>");
}

void keepArea(Element& record, const Element& element) {
    const ElementControl& control = element.elementControl;
    record.elementControl.fillStyle = control.fillStyle;
    record.elementControl.borderStyle = control.borderStyle;
    if (control.fillStyle == FillStyle::solid) {
        const std::string text = fileColor(element.elementAlpha, control.fillColor);
        record.elementControl.fillColor = getColor(text);
        record.elementAlpha = opacityIn(text);
    }
    if (control.borderStyle == BorderStyle::solid) {
        record.elementControl.borderColor = keptColor(control.borderColor);
    }
}

PanelLayout areaPanel() {
    PanelLayout layout;
    layout.colors = layout.fillPart = true;
    layout.borderColor = layout.fillColor = layout.clearFill = layout.opacity = true;
    layout.borderCaption = caption::borderColor;
    layout.fillCaption = caption::fillColor;
    return layout;
}

void showArea(const Element& element, PanelValues& values) {
    const ElementControl& control = element.elementControl;
    const bool hasBorder = control.borderStyle != BorderStyle::none;
    values.fill = {control.fillStyle, control.fillColor};
    values.border = {hasBorder ? FillStyle::solid : FillStyle::transparent, control.borderColor};
    values.opacity = opacityText(element);
}

void takeArea(const PanelValues& values, ElementControl& control) {
    control.fillStyle = values.fill.fillStyle;
    control.fillColor = values.fill.color;
    control.borderStyle = isClear(values.border) ? BorderStyle::none : BorderStyle::solid;
    control.borderColor = values.border.color;
}

std::vector<std::string_view> areaFaults(const PanelValues& values) {
    std::vector<std::string_view> faults;
    if (isClear(values.border) && isClear(values.fill)) {
        faults.push_back(message::noBoxColor);
    }
    if (isBadOpacity(values.opacity)) {
        faults.push_back(message::badOpacity);
    }
    if (isBadAlpha(caption::opacity)) {
        faults.push_back(message::badAlpha);
    }
    return faults;
}

} // namespace tarvel
