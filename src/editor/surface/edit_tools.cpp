// Moving and sizing.
#include "surface/edit_tools.h"

namespace tarvel {

MoveTool::MoveTool(ToolHost& host, SkinPoint press)
    : host_(host)
    , drag_(host.document(), host.curNum(), press) {}

void MoveTool::move(SkinPoint point, bool /*keepProportions*/) {
    drag_.moveTo(host_.document(), point);
}

void MoveTool::release(SkinPoint /*point*/) {}

void MoveTool::cancel() {
    drag_.takeBack(host_.document());
}

ResizeTool::ResizeTool(ToolHost& host, Handle handle, SkinPoint press)
    : host_(host)
    , drag_(host.document(), host.curNum(), handle, press) {}

void ResizeTool::move(SkinPoint point, bool keepProportions) {
    drag_.moveTo(host_.document(), point, keepProportions);
}

void ResizeTool::release(SkinPoint /*point*/) {}

void ResizeTool::cancel() {
    drag_.takeBack(host_.document());
}

LineEndTool::LineEndTool(ToolHost& host, Handle end, SkinPoint press)
    : host_(host)
    , drag_(host.document(), host.curNum(), end, press) {}

void LineEndTool::move(SkinPoint point, bool /*keepProportions*/) {
    drag_.moveTo(host_.document(), point);
}

void LineEndTool::release(SkinPoint /*point*/) {}

void LineEndTool::cancel() {
    drag_.takeBack(host_.document());
}

} // namespace tarvel
