// Element to panel.
#include "editing/panel_values.h"

#include "editing/list_index.h"
#include "editing/panel_texts.h"
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
    values.lColor.fillStyle = FillStyle::transparent;
}

void clearFill(PanelValues& values) {
    values.fColor.fillStyle = FillStyle::transparent;
    values.txtAlpha = "100";
}

PanelLayout editControls(ControlKind kind, PanelValues& values) {
    PanelLayout layout;
    switch (kind) {
    case ControlKind::box:
        layout.kindFlag = ElementKind::Box;
        layout.fraShared = layout.fraBox = true;
        layout.borderColor = layout.fillColor = layout.cmdClearF = layout.alpha = true;
        layout.lblBorderColor = caption::borderColor;
        layout.lblFillColor = caption::fillColor;
        break;
    case ControlKind::lin:
        layout.kindFlag = ElementKind::Line;
        layout.fraShared = layout.borderColor = true;
        layout.lblBorderColor = caption::lineColor;
        values.lColor.fillStyle = FillStyle::solid;
        break;
    case ControlKind::img:
    case ControlKind::vid:
        layout.kindFlag = ElementKind::Image;
        layout.fraImg = true;
        break;
    case ControlKind::png:
        layout.fraImg = true;
        break;
    case ControlKind::txt:
        layout.kindFlag = ElementKind::Text;
        layout.fraShared = layout.fraBox = layout.fraText = true;
        layout.fillColor = layout.alpha = true;
        layout.lblFillColor = caption::fontColor;
        chooseColor(values.fColor, whiteSwatch);
        break;
    case ControlKind::qor:
        layout.kindFlag = ElementKind::Menu;
        layout.fraQor = true;
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
        values.lColor.color = control.borderColor;
        values.txtAlpha = numberText(int{element.elementAlpha});
        break;
    case ControlKind::box:
        values.fColor = {control.fillStyle, control.fillColor};
        values.lColor = {control.borderStyle == BorderStyle::none ? FillStyle::transparent
                                                                  : FillStyle::solid,
                         control.borderColor};
        values.txtAlpha = numberText(int{element.elementAlpha});
        break;
    case ControlKind::txt:
        values.txtText = control.caption;
        values.textIsEntry = !element.textIsConstant;
        values.fColor.color = control.textColor;
        values.txtAlpha = numberText(int{element.elementAlpha});
        break;
    case ControlKind::qor:
        showMenuSettings(element.menuSettings.get(), values.fraQor);
        break;
    case ControlKind::img:
    case ControlKind::vid:
    case ControlKind::png:
        values.lstR = resourceIndex(resources, element.imageSource);
        break;
    }
    return editControls(control.kind, values);
}

} // namespace tarvel
