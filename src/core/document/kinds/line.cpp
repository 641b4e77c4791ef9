// Line: from one end to another, in one opaque colour.
#include "document/kinds/kind_parts.h"
#include "document/kinds/panel_texts.h"

namespace tarvel {

namespace {

constexpr std::string_view opening = R"(<LayoutElement Type="Line">)";

std::string label(const Element& /*element*/) {
    return "Line";
}

SkinSize defaultSize(std::optional<SkinSize> /*natural*/) {
    return {120, 0};
}

void read(Element& element, const ElementDescription& description) {
    const auto color = description.color;
    element.elementControl.kind = ControlKind::lin;
    element.elementControl.borderColor = color.empty() ? white : getColor(color);
    element.elementAlpha = opacityIn(color);
    element.label = label(element);
}

void write(const Element& element, LineWriter& lines) {
    const ElementControl& control = element.elementControl;
    lines.writeLine(opening);
    lines.line(R"(<Pos X1=")", control.X1, R"(" Y1=")", control.Y1, R"(" X2=")", control.X2,
               R"(" Y2=")", control.Y2, R"("/>)");
    lines.colorLine("Color", control.borderColor);
}

void addForms(const ElementForms& element) {
    element.forms.open(element.layout, opening, element.element);
    element.forms.add(element.element, LineForm::Action::single, LineForm::Values::number,
                      {R"(<Pos X1=")", R"(" Y1=")", R"(" X2=")", R"(" Y2=")", R"("/>)"});
    addColorForm(element, "<Color>", "</Color>");
}

void keep(Element& record, const Element& element, const SkinDocument& /*kept*/) {
    record.elementControl.kind = ControlKind::lin;
    record.elementControl.borderColor = keptColor(element.elementControl.borderColor);
    record.label = label(record);
}

PanelLayout panel(ControlKind /*control*/, PanelValues& values) {
    values.border.fillStyle = FillStyle::solid;
    PanelLayout layout;
    layout.kindFlag = ElementKind::Line;
    layout.colors = layout.borderColor = true;
    layout.borderCaption = caption::lineColor;
    return layout;
}

void show(const Element& element, const std::vector<Resource>& /*resources*/, PanelValues& values) {
    values.border.color = element.elementControl.borderColor;
    values.opacity = opacityText(element);
}

void take(const PanelValues& values, const std::vector<Resource>& /*resources*/, Element& element) {
    element.elementControl.borderColor = values.border.color;
}

std::vector<std::string_view> faults(const PanelValues& values) {
    if (isClear(values.border)) {
        return {message::noLineColor};
    }
    return {};
}

constexpr std::array controls = {NamedControl{ControlKind::lin, "lin"}};

} // namespace

const KindRules lineKind = {.kind = ElementKind::Line,
                            .typeName = "Line",
                            .controls = controls,
                            .placeForm = PlaceForm::ends,
                            .namesResource = false,
                            .label = label,
                            .defaultSize = defaultSize,
                            .readPlace = endsPlace,
                            .read = read,
                            .write = write,
                            .addForms = addForms,
                            .keep = keep,
                            .panel = panel,
                            .show = show,
                            .take = take,
                            .faults = faults};

} // namespace tarvel
