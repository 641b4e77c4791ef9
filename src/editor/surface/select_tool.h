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
    /// `adds` keeps what is selected already.
    SelectTool(ToolHost& host, Pic& surface, SkinPoint press, bool adds);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;

  private:
    void takeBack() override;

    ToolHost& host_;
    Pic& surface_;
    SkinPoint press_;
    std::vector<int> before_; // selected at the press
    std::vector<int> kept_;   // of these, what stays selected
    std::unique_ptr<QRubberBand> band_;
};

} // namespace tarvel
