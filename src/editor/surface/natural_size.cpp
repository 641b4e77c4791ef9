// Measuring texts and pictures for new elements.
#include "surface/natural_size.h"

#include "surface/picture_cache.h"
#include "widgets/qt_text.h"
#include "widgets/skin_fonts.h"

#include <QFontMetricsF>

#include <cmath>

namespace tarvel {

namespace {

SkinSize textSize(const PanelValues& values) {
    const QSizeF size = QFontMetricsF(skinFont(values.font)).size(0, qtText(values.text));
    return {static_cast<float>(std::ceil(size.width()) + 1),
            static_cast<float>(std::ceil(size.height()))};
}

std::optional<SkinSize> pictureSize(int chosen, const std::vector<Resource>& resources,
                                    PictureCache& pictures) {
    if (chosen < 0 || static_cast<std::size_t>(chosen) >= resources.size()) {
        return std::nullopt;
    }
    const Resource& resource = resources[static_cast<std::size_t>(chosen)];
    if (!resource.isFile || resource.outside || isVideoFile(resource.content)) {
        return std::nullopt;
    }
    const QSize size = pictures.pictureSize(resource.content);
    return size.isEmpty() ? std::nullopt
                          : std::optional(SkinSize{static_cast<float>(size.width()),
                                                   static_cast<float>(size.height())});
}

} // namespace

std::optional<SkinSize> naturalSize(ElementKind kind, const PanelValues& values,
                                    const SkinSettings& settings, PictureCache& pictures) {
    switch (kind) {
    case ElementKind::Text:
        return textSize(values);
    case ElementKind::Image:
        return pictureSize(values.resource, settings.resources, pictures);
    case ElementKind::Box:
    case ElementKind::Line:
    case ElementKind::Menu:
        break;
    }
    return std::nullopt;
}

} // namespace tarvel
