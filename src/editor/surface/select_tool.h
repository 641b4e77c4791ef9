// Selecting what a rubber band touches.
#pragma once

#include "surface/canvas_tool.h"

#include <QRubberBand>

#include <memory>
#include <vector>

namespace tarvel {

class Pic;

/// Draws a rubber band from a press on an empty place, and selects what it touches meanwhile.
class SelectTool : public CanvasTool {
  public:
    /// `before` was selected at the press; `adds` keeps it so.
    SelectTool(ToolHost& host, Pic& surface, SkinPoint press, std::vector<int> before, bool adds);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;

  private:
    void takeBack() override;

    ToolHost& host_;
    Pic& surface_;
    SkinPoint press_;
    std::vector<int> before_;
    std::vector<int> kept_; // of these, what stays selected
    std::unique_ptr<QRubberBand> band_;
};

} // namespace tarvel
