// Element to panel.
#include "editing/panel_values.h"

#include "document/kinds/panel_texts.h"
#include "editing/position_fields.h"
#include "text/list_index.h"
#include "text/text_case.h"

namespace tarvel {

namespace {

constexpr ColorNumber whiteSwatch = makeColor(255, 255, 255);
constexpr std::string_view referenceMark = "::";

// An image can name its resource with the mark in front, which is no part of the resource's name.
int resourceIndex(const std::vector<Resource>& resources, std::string_view source) {
    if (resources.empty()) {
        return -1;
    }
    std::vector<std::string_view> names;
    names.reserve(resources.size());
    for (const Resource& resource : resources) {
        names.emplace_back(resource.name);
    }
    const int index = getListIndex(names, source);
    const bool found = equalsIgnoringCase(names[static_cast<std::size_t>(index)], source);
    return !found && source.starts_with(referenceMark)
               ? getListIndex(names, source.substr(referenceMark.size()))
               : index;
}

} // namespace

void chooseColor(Swatch& swatch, ColorNumber color) {
    swatch = {FillStyle::solid, color};
}

void clearBorder(PanelValues& values) {
    values.border.fillStyle = FillStyle::transparent;
}

void clearFill(PanelValues& values) {
    values.fill.fillStyle = FillStyle::transparent;
    values.opacity = "100";
}

PanelLayout editControls(ControlKind kind, PanelValues& values) {
    PanelLayout layout;
    switch (kind) {
    case ControlKind::box:
        layout.kindFlag = ElementKind::Box;
        layout.colors = layout.fillPart = true;
        layout.borderColor = layout.fillColor = layout.clearFill = layout.opacity = true;
        layout.borderCaption = caption::borderColor;
        layout.fillCaption = caption::fillColor;
        break;
    case ControlKind::lin:
        layout.kindFlag = ElementKind::Line;
        layout.colors = layout.borderColor = true;
        layout.borderCaption = caption::lineColor;
        values.border.fillStyle = FillStyle::solid;
        break;
    case ControlKind::img:
    case ControlKind::vid:
        layout.kindFlag = ElementKind::Image;
        layout.resource = true;
        break;
    case ControlKind::png:
        layout.resource = true;
        break;
    case ControlKind::txt:
        layout.kindFlag = ElementKind::Text;
        layout.colors = layout.fillPart = layout.text = true;
        layout.fillColor = layout.opacity = true;
        layout.fillCaption = caption::fontColor;
        chooseColor(values.fill, whiteSwatch);
        break;
    case ControlKind::qor:
        layout.kindFlag = ElementKind::Menu;
        layout.menu = true;
        break;
    }
    return layout;
}

PanelLayout showEditControls(const Element& element, const std::vector<Resource>& resources,
                             PanelValues& values) {
    const ElementControl& control = element.elementControl;
    values.position = positionTexts(control);
    switch (control.kind) {
    case ControlKind::lin:
        values.border.color = control.borderColor;
        values.opacity = numberText(int{element.elementAlpha});
        break;
    case ControlKind::box:
        values.fill = {control.fillStyle, control.fillColor};
        values.border = {control.borderStyle == BorderStyle::none ? FillStyle::transparent
                                                                  : FillStyle::solid,
                         control.borderColor};
        values.opacity = numberText(int{element.elementAlpha});
        break;
    case ControlKind::txt:
        values.text = control.caption;
        values.textIsEntry = !element.textIsConstant;
        values.fill.color = control.textColor;
        values.opacity = numberText(int{element.elementAlpha});
        break;
    case ControlKind::qor:
        showMenuSettings(element.menuSettings.get(), values.menu);
        break;
    case ControlKind::img:
    case ControlKind::vid:
    case ControlKind::png:
        values.resource = resourceIndex(resources, element.imageSource);
        break;
    }
    return editControls(control.kind, values);
}

} // namespace tarvel
