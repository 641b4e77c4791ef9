// What a drag has snapped to, and the grid, drawn over the surface.
#pragma once

#include "editing/snap_drag.h"

#include <QPixmap>
#include <QWidget>

#include <vector>

namespace tarvel {

class Pic;

/// Lies over the whole surface, whose child it is, and lets the pointer through.
class GuideMarks : public QWidget {
    Q_OBJECT

  public:
    explicit GuideMarks(Pic& surface);

    /// Shows lines and gaps; none hides them.
    void showGuides(const std::vector<Guide>& guides);
    [[nodiscard]] const std::vector<Guide>& guides() const { return guides_; }
    /// Shows the grid of so many skin pixels; 0 hides it.
    void showGrid(int grid);
    [[nodiscard]] int grid() const { return grid_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void showOrHide();
    void paintGrid(QPainter& painter, const QRect& part) const;
    void paintGuide(QPainter& painter, const Guide& guide) const;

    const Pic& surface_;
    std::vector<Guide> guides_;
    int grid_ = 0;
};

} // namespace tarvel
