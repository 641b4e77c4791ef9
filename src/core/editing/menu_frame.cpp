// Record to frame, frame to record.
#include "editing/menu_frame.h"

#include "editing/list_index.h"

namespace tarvel {

namespace {

ColorNumber colorOf(std::string_view decimal) {
    return static_cast<ColorNumber>(toInt32(val(decimal))) & 0xFFFFFFU;
}

std::string decimalText(ColorNumber color) {
    return numberText(static_cast<int>(color & 0xFFFFFFU));
}

std::int16_t countOf(std::string_view text) {
    const double number = val(text);
    return number == 0 ? std::int16_t{1} : toInt16(number);
}

std::string alignmentText(int position) {
    return std::string(alignmentEntries.at(static_cast<std::size_t>(position)));
}

} // namespace

void showMenuSettings(const MenuSettings& settings, MenuFrame& frame) {
    frame.cmbDescAlign = getListIndex(alignmentEntries, settings.descriptionAlignment);
    frame.chkSelGlow = settings.glowSelected;
    frame.txtNumItems = numberText(int{settings.itemsShown});
    frame.txtScrollFactor = numberText(int{settings.scrollFactor});
    frame.colSelTitle = colorOf(settings.selectedTitleColor);
    frame.colSelDesc = colorOf(settings.selectedDescriptionColor);
    frame.chkShowDesc = settings.showDescription;
    frame.chkSmoothScroll = settings.smoothScroll;
    frame.chkThumbVis = settings.thumbnailsVisible;
    frame.cmbTitleAlign = getListIndex(alignmentEntries, settings.titleAlignment);
    frame.colUnselDesc = colorOf(settings.unselectedDescriptionColor);
    frame.colUnselTitle = colorOf(settings.unselectedTitleColor);
}

MenuSettings menuSettingsOf(const MenuFrame& frame) {
    return {.thumbnailsVisible = frame.chkThumbVis,
            .smoothScroll = frame.chkSmoothScroll,
            .scrollFactor = countOf(frame.txtScrollFactor),
            .itemsShown = countOf(frame.txtNumItems),
            .glowSelected = frame.chkSelGlow,
            .showDescription = frame.chkShowDesc,
            .titleAlignment = alignmentText(frame.cmbTitleAlign),
            .descriptionAlignment = alignmentText(frame.cmbDescAlign),
            .selectedTitleColor = decimalText(frame.colSelTitle),
            .unselectedTitleColor = decimalText(frame.colUnselTitle),
            .selectedDescriptionColor = decimalText(frame.colSelDesc),
            .unselectedDescriptionColor = decimalText(frame.colUnselDesc)};
}

void chooseTitleAlign(MenuFrame& frame, int position) {
    frame.cmbTitleAlign = position;
    frame.titlePreview = static_cast<TextAlignment>(position);
}

void chooseDescAlign(MenuFrame& frame, int position) {
    frame.cmbDescAlign = position;
    frame.descPreview = static_cast<TextAlignment>(position);
}

const MenuSettings* lastMenuAfter(const SkinDocument& document, int elementId) {
    for (int id = document.lastElementId(); id > elementId; --id) {
        const Element& element = document.element(id);
        if (element.elementKind == ElementKind::Menu) {
            return &element.menuSettings.get();
        }
    }
    return nullptr;
}

} // namespace tarvel
