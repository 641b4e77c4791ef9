// Applying the panel, kind by kind.
#include "editing/element_update.h"

#include "document/element_factory.h"
#include "editing/stacking.h"
#include "text/text_case.h"

#include <string_view>
#include <utility>

namespace tarvel {

namespace {

constexpr std::string_view referenceMark = "::";

bool isProgramFile(std::string_view file) {
    constexpr std::string_view ending = "xbe";
    return file.size() >= ending.size() &&
           equalsIgnoringCase(file.substr(file.size() - ending.size()), ending);
}

PictureContent pictureOf(const Resource& resource) {
    if (resource.outside) {
        return PictureContent::barred;
    }
    return isProgramFile(resource.content) ? PictureContent::programIcon : PictureContent::file;
}

void showResource(const Resource& resource, ElementControl& control) {
    if (resource.isFile) {
        control.kind = imageControl(resource.content);
        control.file = resource.content;
        control.picture = pictureOf(resource);
    } else if (control.kind != ControlKind::vid) {
        control.kind = ControlKind::img;
        control.file.clear();
        control.picture = PictureContent::programIcon;
    }
}

// A source that names the resource with the mark in front keeps it.
bool names(std::string_view source, std::string_view resource) {
    return source.starts_with(referenceMark) &&
           equalsIgnoringCase(source.substr(referenceMark.size()), resource);
}

void takeImage(int chosen, const std::vector<Resource>& resources, Element& element) {
    if (chosen < 0 || static_cast<std::size_t>(chosen) >= resources.size()) {
        return;
    }
    const Resource& resource = resources[static_cast<std::size_t>(chosen)];
    if (!names(element.imageSource, resource.name)) {
        element.imageSource = resource.name;
    }
    showResource(resource, element.elementControl);
}

void takeBox(const PanelValues& values, ElementControl& control) {
    control.fillStyle = values.fill.fillStyle;
    control.fillColor = values.fill.color;
    control.borderStyle =
        values.border.fillStyle == FillStyle::solid ? BorderStyle::solid : BorderStyle::none;
    control.borderColor = values.border.color;
}

void takeText(const PanelValues& values, Element& element) {
    ElementControl& control = element.elementControl;
    control.caption = values.text;
    control.textColor = values.fill.color;
    if (control.font.get() != values.font) { // elements without a choice of font share the default
        control.font.edit() = values.font;
    }
    element.textIsConstant = !values.textIsEntry;
}

} // namespace

void takePanel(const PanelValues& values, const std::vector<Resource>& resources,
               Element& element) {
    switch (element.elementControl.kind) {
    case ControlKind::lin:
        element.elementControl.borderColor = values.border.color;
        break;
    case ControlKind::box:
        takeBox(values, element.elementControl);
        break;
    case ControlKind::txt:
        takeText(values, element);
        break;
    case ControlKind::qor:
        element.menuSettings.edit() = menuSettingsOf(values.menu);
        break;
    case ControlKind::img:
    case ControlKind::vid:
    case ControlKind::png:
        takeImage(values.resource, resources, element);
        break;
    }
    element.elementAlpha = toInt16(val(values.opacity));
}

std::string freshLabel(const Element& element) {
    switch (element.elementControl.kind) {
    case ControlKind::box:
        return boxLabel(element.elementAlpha);
    case ControlKind::lin:
        return "Line";
    case ControlKind::txt:
        return textLabel(element.elementControl.caption);
    case ControlKind::qor:
        return "Menu";
    case ControlKind::img:
    case ControlKind::vid:
    case ControlKind::png:
        break;
    }
    return imageLabel(element.imageSource);
}

bool updateControls(SkinDocument& document, int elementId, const PanelValues& values) {
    if (elementId <= 0) {
        return false;
    }
    const Element& before = document.element(elementId);
    Element after = before;
    takePanel(values, document.settings().resources, after);
    std::string label = freshLabel(after);
    if (before.label.starts_with(lockPrefix)) {
        label.insert(0, lockPrefix);
    }
    const int screen = before.elementLayout;
    const bool recordChanged = after != before;
    const bool labelChanged = label != before.label;
    if (recordChanged) {
        document.editElement(elementId, [&](Element& element) { element = std::move(after); });
    }
    if (labelChanged) {
        document.setRowText(screen, document.rowOf(screen, elementId), std::move(label));
    }
    return recordChanged || labelChanged;
}

} // namespace tarvel
