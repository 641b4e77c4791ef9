// Image: a picture or a video among the skin's resources. The file decides which of three controls
// shows it.
#include "document/image_source.h"
#include "document/kinds/kind_parts.h"
#include "document/kinds/panel_texts.h"

namespace tarvel {

namespace {

constexpr std::string_view openingStart = R"(<LayoutElement Type="Image" Source=")";
constexpr std::string_view scaling = R"(<Scaling X="True" Y="True"/>)";

std::string label(const Element& element) {
    return std::string("Image: ").append(element.imageSource);
}

SkinSize defaultSize(std::optional<SkinSize> natural) {
    const bool fits = natural && natural->width > 0 && natural->height > 0 &&
                      natural->width <= skinWidth && natural->height <= skinHeight;
    return fits ? *natural : SkinSize{160, 120};
}

void read(Element& element, const ElementDescription& description) {
    element.imageSource = description.source;
    element.label = label(element);
    element.elementAlpha = opacityIn(description.color);
    attachSource(description.document, description.source, element.elementControl);
}

void write(const Element& element, LineWriter& lines) {
    lines.line(openingStart, element.imageSource, R"(">)");
    lines.writeLine(scaling);
    writeRectangle(element.elementControl, lines);
}

void addForms(const ElementForms& element) {
    element.forms.openNamed(element.layout, openingStart, element.element);
    element.forms.add(element.element, LineForm::Action::single, LineForm::Values::none, {scaling});
    addRectangleForm(element);
}

void keep(Element& record, const Element& element, const SkinDocument& kept) {
    record.imageSource = element.imageSource;
    record.label = label(record);
    attachSource(kept, record.imageSource, record.elementControl);
}

// A png control notes no kind.
PanelLayout panel(ControlKind control, PanelValues& /*values*/) {
    PanelLayout layout;
    if (control != ControlKind::png) {
        layout.kindFlag = ElementKind::Image;
    }
    layout.resource = true;
    return layout;
}

void show(const Element& element, const std::vector<Resource>& resources, PanelValues& values) {
    values.resource = resourceIndex(resources, element.imageSource);
}

// A source that refers to the resource with the mark in front keeps it.
void take(const PanelValues& values, const std::vector<Resource>& resources, Element& element) {
    if (values.resource < 0 || static_cast<std::size_t>(values.resource) >= resources.size()) {
        return;
    }
    const Resource& resource = resources[static_cast<std::size_t>(values.resource)];
    if (!refersTo(element.imageSource, resource.name)) {
        element.imageSource = resource.name;
    }
    showResource(resource, element.elementControl);
}

std::vector<std::string_view> faults(const PanelValues& values) {
    if (values.resource < 0) {
        return {message::noResource};
    }
    return {};
}

constexpr std::array controls = {NamedControl{ControlKind::img, "img"},
                                 NamedControl{ControlKind::png, "png"},
                                 NamedControl{ControlKind::vid, "vid"}};

} // namespace

const KindRules imageKind = {.kind = ElementKind::Image,
                             .typeName = "Image",
                             .controls = controls,
                             .placeForm = PlaceForm::rectangle,
                             .namesResource = true,
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
                             .faults = faults};

} // namespace tarvel
