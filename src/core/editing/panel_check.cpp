// The checks, kind by kind.
#include "editing/panel_check.h"

#include "document/kinds/panel_texts.h"

namespace tarvel {

namespace {

bool isClear(const Swatch& swatch) {
    return swatch.fillStyle == FillStyle::transparent;
}

// An exact "0" and negative numbers pass.
bool isBadOpacity(std::string_view text) {
    constexpr double opaque = 100;
    const double opacity = val(text);
    return (text != "0" && opacity == 0) || opacity > opaque;
}

// Looks at the number that the caption beside the opacity begins with. It begins with none, which
// counts as 0, so the caption in use never fails.
bool isBadAlpha(std::string_view captionText) {
    constexpr double largestByte = 255;
    const double alpha = val(captionText);
    return alpha < 0 || alpha > largestByte;
}

std::vector<std::string_view> boxFaults(const PanelValues& values) {
    std::vector<std::string_view> faults;
    if (isClear(values.border) && isClear(values.fill)) {
        faults.push_back(message::noBoxColor);
    }
    if (isBadOpacity(values.opacity)) {
        faults.push_back(message::badOpacity);
    }
    if (isBadAlpha(caption::opacity)) {
        faults.push_back(message::badAlpha);
    }
    return faults;
}

} // namespace

std::vector<std::string_view> isInvalid(std::optional<ElementKind> tool,
                                        const PanelValues& values) {
    if (tool == ElementKind::Box) {
        return boxFaults(values);
    }
    if (tool == ElementKind::Line && isClear(values.border)) {
        return {message::noLineColor};
    }
    if (tool == ElementKind::Image && values.resource < 0) {
        return {message::noResource};
    }
    if (tool == ElementKind::Text && values.text.empty()) {
        return {message::noText};
    }
    return {};
}

} // namespace tarvel
