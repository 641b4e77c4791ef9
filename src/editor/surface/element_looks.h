// How the editor shows the kinds of elements: a record for each with its tool and its painting.
//
// A new kind is its record in a file in looks/, and its lines in the lists below.
#pragma once

#include "document/element_kinds.h"
#include "widgets/icons.h"

#include <QRectF>

#include <array>
#include <optional>

namespace tarvel {

class PictureCache;
class SurfacePass;

struct KindLook {
    /// The button that draws new elements.
    struct Tool {
        const char* name;
        const char* caption;
        IconName icon;
        const char* tip;
    };
    Tool tool;
    /// Paints an element. A rectangle is dirty and has an area; ends may lie anywhere.
    void (*paint)(SurfacePass&, int id, const Element&);
    /// Everything that the control may cover, as elementBounds() tells it.
    QRectF (*bounds)(const ElementControl&);
    /// Size in skin pixels of what an element made from the panel's values would show; nothing
    /// where it has no size of its own, or where it is not known: of videos, of resources without a
    /// file, of files that are not opened or cannot be read.
    std::optional<SkinSize> (*naturalSize)(const PanelValues&, const SkinSettings&, PictureCache&);
};

extern const KindLook boxLook;
extern const KindLook lineLook;
extern const KindLook imageLook;
extern const KindLook textLook;
extern const KindLook menuLook;

/// By the kinds' codes from 1 on.
inline constexpr std::array kindLooks = {&boxLook, &lineLook, &imageLook, &textLook, &menuLook};
static_assert(kindLooks.size() == elementKinds.size());

/// The look of a kind. A code that no kind has counts as Menu.
[[nodiscard]] inline const KindLook& lookOf(ElementKind kind) {
    return *kindLooks[static_cast<std::size_t>(rulesOf(kind).kind) - 1];
}

/// The look of the kind that the control draws.
[[nodiscard]] inline const KindLook& lookOf(const ElementControl& control) {
    return *kindLooks[static_cast<std::size_t>(rulesOf(control.kind).kind) - 1];
}

// What several looks have in common.

/// The bounds of a rectangle.
[[nodiscard]] QRectF rectangleBounds(const ElementControl& control);
/// For kinds whose content has no size of its own.
[[nodiscard]] std::optional<SkinSize>
noNaturalSize(const PanelValues& values, const SkinSettings& settings, PictureCache& pictures);

} // namespace tarvel
