// The tools that work on what is selected: moving it, sizing it, moving a line's end.
#pragma once

#include "editing/group_places.h"
#include "editing/manipulation.h"
#include "surface/canvas_tool.h"

namespace tarvel {

class MoveTool : public CanvasTool {
  public:
    MoveTool(ToolHost& host, SkinPoint press);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;
    [[nodiscard]] std::optional<SnapSubject> snapSubject() const override { return snap_; }

  private:
    void takeBack() override;

    ToolHost& host_;
    SnapSubject snap_;
    MoveDrag drag_;
};

class ResizeTool : public CanvasTool {
  public:
    ResizeTool(ToolHost& host, Handle handle, SkinPoint press);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;
    [[nodiscard]] std::optional<SnapSubject> snapSubject() const override { return snap_; }

  private:
    void takeBack() override;

    ToolHost& host_;
    SnapSubject snap_;
    ResizeDrag drag_;
};

/// Moves all selected elements. A press without a drag selects the pressed one alone.
class GroupMoveTool : public CanvasTool {
  public:
    GroupMoveTool(ToolHost& host, int pressedId, SkinPoint press);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;
    [[nodiscard]] std::optional<SnapSubject> snapSubject() const override { return snap_; }

  private:
    void takeBack() override;

    ToolHost& host_;
    int pressedId_;
    SkinPoint press_;
    std::vector<StartPlace> starts_;
    SnapSubject snap_;
    bool moved_ = false;
};

/// Leaves what is selected where it is and moves a copy of it, which is made with the first move
/// and selected then: a press without a drag copies nothing.
class CopyMoveTool : public CanvasTool {
  public:
    CopyMoveTool(ToolHost& host, SkinPoint press);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;
    [[nodiscard]] std::optional<SnapSubject> snapSubject() const override;

  private:
    void takeBack() override;

    ToolHost& host_;
    SkinPoint press_;
    std::vector<int> originals_;
    std::vector<int> copies_; // none before the first move
    std::vector<StartPlace> starts_;
};

/// Scales all selected elements by a handle of the frame around them.
class GroupScaleTool : public CanvasTool {
  public:
    GroupScaleTool(ToolHost& host, Handle handle, SkinPoint press);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;
    [[nodiscard]] std::optional<SnapSubject> snapSubject() const override { return snap_; }

  private:
    void takeBack() override;

    ToolHost& host_;
    Handle handle_;
    SkinPoint press_;
    std::vector<StartPlace> starts_;
    Place frame_;
    SnapSubject snap_;
};

class LineEndTool : public CanvasTool {
  public:
    LineEndTool(ToolHost& host, Handle end, SkinPoint press);

    void move(SkinPoint point, bool keepProportions) override;
    void release(SkinPoint point) override;
    [[nodiscard]] std::optional<SnapSubject> snapSubject() const override { return snap_; }

  private:
    void takeBack() override;

    ToolHost& host_;
    SnapSubject snap_;
    LineEndDrag drag_;
};

} // namespace tarvel
