// The marks of several selected elements: a thin frame for each, and one with handles around them
// all.
#pragma once

#include "editing/group_places.h"

#include <QList>
#include <QRect>
#include <QWidget>

#include <vector>

namespace tarvel {

class Pic;

/// Lies over the whole surface, whose child it is, and lets the pointer through.
class GroupMarks : public QWidget {
    Q_OBJECT

  public:
    explicit GroupMarks(Pic& surface);

    /// Shows frames around the elements, but for the one that leads, which has its own marks; and
    /// the frame around all of them.
    void show(const std::vector<StartPlace>& elements, int leading);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void placeAnew();

    const Pic& surface_;
    QList<QRectF> covered_; // in skin pixels
    QList<QRect> frames_;   // the same in pixels of the widget
    Place around_{};        // in skin pixels
};

} // namespace tarvel
