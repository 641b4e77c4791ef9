// The mark of the element whose row is below the pointer.
#pragma once

#include "document/skin_document.h"

#include <QRectF>
#include <QWidget>

namespace tarvel {

class Pic;

/// A frame on the surface, whose child it is; lets the pointer through.
class HoverMark : public QWidget {
    Q_OBJECT

  public:
    explicit HoverMark(Pic& surface);

    /// Puts the frame around an element; 0 for none. Nothing for places that are not finite.
    void mark(const SkinDocument& document, int elementId);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void placeAnew();

    const Pic& surface_;
    QRectF covered_; // by the element, in skin pixels
};

} // namespace tarvel
