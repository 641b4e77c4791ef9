// The tools that draw new elements, one for each kind.
#pragma once

#include "editing/manipulation.h"
#include "surface/canvas_tool.h"

#include <memory>

namespace tarvel {

/// Makes an element of a kind at the press and sizes it with the pointer.
class DrawTool : public CanvasTool {
  public:
    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;

  protected:
    DrawTool(ToolHost& host, ElementKind kind, SkinPoint press);

    /// Size of the element when nothing was dragged, where its content has one.
    [[nodiscard]] virtual std::optional<SkinSize> naturalSize() const { return std::nullopt; }
    [[nodiscard]] ToolHost& host() const { return host_; }

  private:
    void takeBack() override;

    ToolHost& host_;
    DrawDrag drag_;
};

class DrawBoxTool : public DrawTool {
  public:
    DrawBoxTool(ToolHost& host, SkinPoint press)
        : DrawTool(host, ElementKind::Box, press) {}
};

class DrawLineTool : public DrawTool {
  public:
    DrawLineTool(ToolHost& host, SkinPoint press)
        : DrawTool(host, ElementKind::Line, press) {}
};

class DrawImageTool : public DrawTool {
  public:
    DrawImageTool(ToolHost& host, SkinPoint press)
        : DrawTool(host, ElementKind::Image, press) {}

  protected:
    [[nodiscard]] std::optional<SkinSize> naturalSize() const override;
};

class DrawTextTool : public DrawTool {
  public:
    DrawTextTool(ToolHost& host, SkinPoint press)
        : DrawTool(host, ElementKind::Text, press) {}

  protected:
    [[nodiscard]] std::optional<SkinSize> naturalSize() const override;
};

class DrawMenuTool : public DrawTool {
  public:
    DrawMenuTool(ToolHost& host, SkinPoint press)
        : DrawTool(host, ElementKind::Menu, press) {}
};

/// The tool of a kind, with its element made at the press point.
[[nodiscard]] std::unique_ptr<DrawTool> startDrawing(ToolHost& host, ElementKind kind,
                                                     SkinPoint press);

/// Places an element of the kind in the middle of the screen, for those without a mouse.
void placeInTheMiddle(ToolHost& host, ElementKind kind);

} // namespace tarvel
