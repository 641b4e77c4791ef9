// Box: a filled rectangle with or without a border.
#include "document/kinds/kind_parts.h"
#include "text/number_format.h"

namespace tarvel {

namespace {

constexpr std::string_view opening = R"(<LayoutElement Type="Box">)";

std::string label(const Element& element) {
    std::string text = "Box: Alpha ";
    appendNumber(text, int{element.elementAlpha});
    return text;
}

SkinSize defaultSize(std::optional<SkinSize> /*natural*/) {
    return {120, 80};
}

void read(Element& element, const ElementDescription& description) {
    element.elementControl.kind = ControlKind::box;
    readArea(element, description);
    element.label = label(element);
}

void write(const Element& element, LineWriter& lines) {
    lines.writeLine(opening);
    writeArea(element, lines);
    writeRectangle(element.elementControl, lines);
}

void addForms(const ElementForms& element) {
    element.forms.open(element.layout, opening, element.element);
    addRectangleForm(element);
    addAreaForms(element);
}

void keep(Element& record, const Element& element, const SkinDocument& /*kept*/) {
    keepArea(record, element);
    record.label = label(record);
}

PanelLayout panel(ControlKind /*control*/, PanelValues& /*values*/) {
    PanelLayout layout = areaPanel();
    layout.kindFlag = ElementKind::Box;
    return layout;
}

void show(const Element& element, const std::vector<Resource>& /*resources*/, PanelValues& values) {
    showArea(element, values);
}

void take(const PanelValues& values, const std::vector<Resource>& /*resources*/, Element& element) {
    takeArea(values, element.elementControl);
}

constexpr std::array controls = {NamedControl{ControlKind::box, "box"}};

} // namespace

const KindRules boxKind = {.kind = ElementKind::Box,
                           .typeName = "Box",
                           .controls = controls,
                           .placeForm = PlaceForm::rectangle,
                           .namesResource = false,
                           .label = label,
                           .defaultSize = defaultSize,
                           .readPlace = summedPlace,
                           .read = read,
                           .write = write,
                           .addForms = addForms,
                           .keep = keep,
                           .panel = panel,
                           .show = show,
                           .take = take,
                           .faults = areaFaults};

} // namespace tarvel
