// Shows the settings of an item menu in the frame, and makes settings of what it shows.
#include "document/kinds/menu_frame.h"

#include "text/list_index.h"

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
    frame.descriptionAlignment = getListIndex(alignmentEntries, settings.descriptionAlignment);
    frame.glowSelected = settings.glowSelected;
    frame.itemsShown = numberText(int{settings.itemsShown});
    frame.scrollFactor = numberText(int{settings.scrollFactor});
    frame.selectedTitleColor = colorOf(settings.selectedTitleColor);
    frame.selectedDescriptionColor = colorOf(settings.selectedDescriptionColor);
    frame.showDescription = settings.showDescription;
    frame.smoothScroll = settings.smoothScroll;
    frame.thumbnailsVisible = settings.thumbnailsVisible;
    frame.titleAlignment = getListIndex(alignmentEntries, settings.titleAlignment);
    frame.unselectedDescriptionColor = colorOf(settings.unselectedDescriptionColor);
    frame.unselectedTitleColor = colorOf(settings.unselectedTitleColor);
}

MenuSettings menuSettingsOf(const MenuFrame& frame) {
    return {.thumbnailsVisible = frame.thumbnailsVisible,
            .smoothScroll = frame.smoothScroll,
            .scrollFactor = countOf(frame.scrollFactor),
            .itemsShown = countOf(frame.itemsShown),
            .glowSelected = frame.glowSelected,
            .showDescription = frame.showDescription,
            .titleAlignment = alignmentText(frame.titleAlignment),
            .descriptionAlignment = alignmentText(frame.descriptionAlignment),
            .selectedTitleColor = decimalText(frame.selectedTitleColor),
            .unselectedTitleColor = decimalText(frame.unselectedTitleColor),
            .selectedDescriptionColor = decimalText(frame.selectedDescriptionColor),
            .unselectedDescriptionColor = decimalText(frame.unselectedDescriptionColor)};
}

void chooseTitleAlign(MenuFrame& frame, int position) {
    frame.titleAlignment = position;
    frame.titlePreview = static_cast<TextAlignment>(position);
}

void chooseDescAlign(MenuFrame& frame, int position) {
    frame.descriptionAlignment = position;
    frame.descPreview = static_cast<TextAlignment>(position);
}

} // namespace tarvel
