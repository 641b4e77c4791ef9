// Applies what the property panel holds to an element, and renews the text of its row.
#include "editing/element_update.h"

#include "document/element_kinds.h"
#include "editing/stacking.h"
#include "text/text_case.h"

#include <utility>

namespace tarvel {

void takePanel(const PanelValues& values, const std::vector<Resource>& resources,
               Element& element) {
    rulesOf(element.elementControl.kind).take(values, resources, element);
    element.elementAlpha = toInt16(val(values.opacity));
}

std::string freshLabel(const Element& element) {
    return rulesOf(element.elementControl.kind).label(element);
}

namespace {

Element updated(const SkinDocument& document, int elementId, const PanelValues& values) {
    const Element& before = document.element(elementId);
    Element after = before;
    takePanel(values, document.settings().resources, after);
    after.label = freshLabel(after);
    if (before.label.starts_with(lockPrefix)) {
        after.label.insert(0, lockPrefix);
    }
    return after;
}

} // namespace

namespace {

// The panel spells alignments in its own letter case, which shows nowhere.
void foldAlignments(Element& element) {
    const MenuSettings& settings = element.menuSettings.get();
    const std::string title = lowerCased(settings.titleAlignment);
    const std::string description = lowerCased(settings.descriptionAlignment);
    if (title != settings.titleAlignment || description != settings.descriptionAlignment) {
        MenuSettings& folded = element.menuSettings.edit();
        folded.titleAlignment = title;
        folded.descriptionAlignment = description;
    }
}

} // namespace

bool panelDiffers(const SkinDocument& document, int elementId, const PanelValues& values) {
    if (elementId <= 0) {
        return false;
    }
    Element before = document.element(elementId);
    Element after = before;
    takePanel(values, document.settings().resources, after);
    foldAlignments(before);
    foldAlignments(after);
    return after != before;
}

bool updateControls(SkinDocument& document, int elementId, const PanelValues& values) {
    if (elementId <= 0) {
        return false;
    }
    Element after = updated(document, elementId, values);
    const Element& before = document.element(elementId);
    const int screen = before.elementLayout;
    std::string label = std::exchange(after.label, before.label);
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
