// Works out which parts of the surface a change of the document touches.
#pragma once

#include "document/skin_document.h"

#include <QRectF>

#include <unordered_map>
#include <vector>

namespace tarvel {

/// What has to be painted again.
struct Damage {
    bool whole = false;
    std::vector<QRectF> rects; ///< skin pixels; may overlap and reach beyond the screen

    [[nodiscard]] bool empty() const { return !whole && rects.empty(); }
};

/// Remembers where the elements of the shown screen were when it was last looked at.
class SurfaceDamage {
  public:
    /// Compares with the screen's rows as they are now, and remembers them. Takes time in
    /// proportion to the number of rows, so callers gather several changes first.
    [[nodiscard]] Damage rowsChanged(const SkinDocument& document, int screen);

    /// The old and the new place of one element; empty for an element that is not on the screen
    /// last given to rowsChanged().
    [[nodiscard]] Damage elementChanged(const SkinDocument& document, int elementId);

    /// Where the element was when it was last looked at; empty for an element not shown.
    [[nodiscard]] QRectF placeOf(int elementId) const;

  private:
    // What changed from an earlier look to this one.
    [[nodiscard]] Damage since(const SurfaceDamage& before) const;

    int screen_ = -1;
    std::vector<int> rows_;
    std::unordered_map<int, QRectF> places_;
};

} // namespace tarvel
