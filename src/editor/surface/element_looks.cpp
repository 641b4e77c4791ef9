// The bounds that several looks have in common.
#include "surface/element_looks.h"

#include "surface/surface_pass.h"

namespace tarvel {

QRectF rectangleBounds(const ElementControl& control) {
    return isVisible(control) ? nearSurface(controlRect(control))
                                    .adjusted(-edgeMargin, -edgeMargin, edgeMargin, edgeMargin)
                              : QRectF();
}

std::optional<SkinSize> noNaturalSize(const PanelValues& /*values*/,
                                      const SkinSettings& /*settings*/,
                                      PictureCache& /*pictures*/) {
    return std::nullopt;
}

} // namespace tarvel
