// Moves and sizes the selected element along with the pointer.
#include "surface/edit_tools.h"

#include "editing/step_names.h"

namespace tarvel {

namespace {

std::string nameOf(std::string_view verb, ToolHost& host) {
    return stepName(verb, host.document().element(host.selection().curNum()));
}

} // namespace

MoveTool::MoveTool(ToolHost& host, SkinPoint press)
    : CanvasTool(host.document(), nameOf(step::move, host))
    , host_(host)
    , drag_(host.document(), host.selection().curNum(), press) {}

void MoveTool::move(SkinPoint point, bool /*keepProportions*/) {
    drag_.moveTo(host_.document(), point);
}

void MoveTool::release(SkinPoint /*point*/) {}

void MoveTool::takeBack() {
    drag_.takeBack(host_.document());
}

ResizeTool::ResizeTool(ToolHost& host, Handle handle, SkinPoint press)
    : CanvasTool(host.document(), nameOf(step::size, host))
    , host_(host)
    , drag_(host.document(), host.selection().curNum(), handle, press) {}

void ResizeTool::move(SkinPoint point, bool keepProportions) {
    drag_.moveTo(host_.document(), point, keepProportions);
}

void ResizeTool::release(SkinPoint /*point*/) {}

void ResizeTool::takeBack() {
    drag_.takeBack(host_.document());
}

LineEndTool::LineEndTool(ToolHost& host, Handle end, SkinPoint press)
    : CanvasTool(host.document(), nameOf(step::moveEnd, host))
    , host_(host)
    , drag_(host.document(), host.selection().curNum(), end, press) {}

void LineEndTool::move(SkinPoint point, bool /*keepProportions*/) {
    drag_.moveTo(host_.document(), point);
}

void LineEndTool::release(SkinPoint /*point*/) {}

void LineEndTool::takeBack() {
    drag_.takeBack(host_.document());
}

} // namespace tarvel
