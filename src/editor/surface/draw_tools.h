// The tool that draws new elements.
#pragma once

#include "editing/manipulation.h"
#include "surface/canvas_tool.h"

#include <memory>

namespace tarvel {

/// Makes an element of a kind at the press and sizes it with the pointer.
class DrawTool : public CanvasTool {
  public:
    /// `zoom` in pixels of the window a skin pixel: a press that hardly moves draws nothing.
    DrawTool(ToolHost& host, ElementKind kind, SkinPoint press, double zoom);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;
    [[nodiscard]] std::optional<SnapSubject> snapSubject() const override;

  private:
    void takeBack() override;

    ToolHost& host_;
    ElementKind kind_;
    SkinPoint press_;
    double zoom_;
    DrawDrag drag_;
};

/// The tool of a kind, with its element made at the press point.
[[nodiscard]] std::unique_ptr<DrawTool> startDrawing(ToolHost& host, ElementKind kind,
                                                     SkinPoint press, double zoom);

/// Places an element of the kind in the middle of the screen, for those without a mouse.
void placeInTheMiddle(ToolHost& host, ElementKind kind);

} // namespace tarvel
