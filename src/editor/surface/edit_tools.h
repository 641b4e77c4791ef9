// The tools that work on the selected element: moving it, sizing it, moving a line's end.
#pragma once

#include "editing/manipulation.h"
#include "surface/canvas_tool.h"

namespace tarvel {

class MoveTool : public CanvasTool {
  public:
    MoveTool(ToolHost& host, SkinPoint press);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;

  private:
    void takeBack() override;

    ToolHost& host_;
    MoveDrag drag_;
};

class ResizeTool : public CanvasTool {
  public:
    ResizeTool(ToolHost& host, Handle handle, SkinPoint press);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;

  private:
    void takeBack() override;

    ToolHost& host_;
    ResizeDrag drag_;
};

class LineEndTool : public CanvasTool {
  public:
    LineEndTool(ToolHost& host, Handle end, SkinPoint press);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;

  private:
    void takeBack() override;

    ToolHost& host_;
    LineEndDrag drag_;
};

} // namespace tarvel
