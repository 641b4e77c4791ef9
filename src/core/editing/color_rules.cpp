// Reads and sets system colours by use and index, and finds opacities that are not proper.
#include "editing/color_rules.h"

namespace tarvel {

ColorNumber colorOf(const SystemColors& colors, const SystemColor& which) {
    switch (which.use) {
    case ColorUse::border:
        return colors.boxes.at(which.index).borderColor;
    case ColorUse::fill:
        return colors.boxes.at(which.index).fillColor;
    case ColorUse::text:
        break;
    }
    return colors.texts.at(which.index);
}

void setColor(SystemColors& colors, const SystemColor& which, ColorNumber value) {
    switch (which.use) {
    case ColorUse::border:
        colors.boxes.at(which.index).borderColor = value;
        return;
    case ColorUse::fill:
        colors.boxes.at(which.index).fillColor = value;
        return;
    case ColorUse::text:
        colors.texts.at(which.index) = value;
    }
}

bool isProperOpacity(std::string_view text) {
    return text == "0" || val(text) != 0;
}

int firstImproperOpacity(const SystemColors& colors) {
    for (std::size_t box = 0; box < colors.opacityTexts.size(); ++box) {
        if (!isProperOpacity(colors.opacityTexts[box])) {
            return static_cast<int>(box);
        }
    }
    return -1;
}

} // namespace tarvel
