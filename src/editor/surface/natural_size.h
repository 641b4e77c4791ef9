// How large what a new element shows is by itself.
#pragma once

#include "document/element_place.h"
#include "document/skin_settings.h"
#include "editing/panel_values.h"

#include <optional>

namespace tarvel {

class PictureCache;

/// Size in skin pixels of the text or the picture that an element made from the panel's values
/// would show; nothing where it has no size of its own, or where it is not known: of videos, of
/// resources without a file, of files that are not opened or cannot be read.
[[nodiscard]] std::optional<SkinSize> naturalSize(ElementKind kind, const PanelValues& values,
                                                  const SkinSettings& settings,
                                                  PictureCache& pictures);

} // namespace tarvel
