// The Tab key on the drawing surface: from element to element, and on to the next control.
#pragma once

#include "document/selection.h"

#include <QObject>

#include <functional>

class QWidget;

namespace tarvel {

/// Tab selects the next unlocked element of the screen's list, Shift+Tab the one before; past the
/// last one the focus leaves the surface as it leaves any control. What it is given is not owned
/// and outlives it.
class ElementWalk : public QObject {
    Q_OBJECT

  public:
    enum class Hand {
        free,    ///< elements are picked
        holding, ///< the pointer is drawing or dragging: Tab does nothing
        drawing  ///< a tool is chosen: Tab leaves the surface
    };

    ElementWalk(QWidget& surface, SkinDocument& document, Selection& selection,
                std::function<Hand()> hand);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool walk(int step);
    [[nodiscard]] int rowFrom(int row, int step) const;

    SkinDocument& document_;
    Selection& selection_;
    std::function<Hand()> hand_;
};

} // namespace tarvel
