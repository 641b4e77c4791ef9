// Moves and sizes what is selected along with the pointer.
#include "surface/edit_tools.h"

#include "editing/group_scale.h"
#include "editing/paste.h"
#include "editing/stacking.h"
#include "editing/step_names.h"

namespace tarvel {

namespace {

std::string nameOf(std::string_view verb, ToolHost& host) {
    return stepName(verb, host.document(), host.selection().ids());
}

// The selected element's rectangle, dragged from the press.
SnapSubject subjectOf(ToolHost& host, SnapSubject::What what, SkinPoint press,
                      Handle handle = Handle::none) {
    const int id = host.selection().curNum();
    return {.what = what,
            .start = placeOf(host.document().element(id).elementControl),
            .press = press,
            .handle = handle,
            .ids = {id}};
}

SnapSubject subjectOf(const std::vector<StartPlace>& starts, SnapSubject::What what,
                      SkinPoint press, const std::vector<int>& ids, Handle handle = Handle::none) {
    return {
        .what = what, .start = commonFrame(starts), .press = press, .handle = handle, .ids = ids};
}

} // namespace

MoveTool::MoveTool(ToolHost& host, SkinPoint press)
    : CanvasTool(host.document(), nameOf(step::move, host))
    , host_(host)
    , snap_(subjectOf(host, SnapSubject::What::whole, press))
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
    , snap_(subjectOf(host, SnapSubject::What::handle, press, handle))
    , drag_(host.document(), host.selection().curNum(), handle, press) {}

void ResizeTool::move(SkinPoint point, bool keepProportions) {
    drag_.moveTo(host_.document(), point, keepProportions);
}

void ResizeTool::release(SkinPoint /*point*/) {}

void ResizeTool::takeBack() {
    drag_.takeBack(host_.document());
}

GroupMoveTool::GroupMoveTool(ToolHost& host, int pressedId, SkinPoint press)
    : CanvasTool(host.document(), nameOf(step::move, host))
    , host_(host)
    , pressedId_(pressedId)
    , press_(press)
    , starts_(startPlaces(host.document(), host.selection().ids()))
    , snap_(subjectOf(starts_, SnapSubject::What::whole, press, host.selection().ids())) {}

void GroupMoveTool::move(SkinPoint point, bool /*keepProportions*/) {
    moved_ = moved_ || point != press_;
    (void)moveAll(host_.document(), starts_, double{point.x} - press_.x,
                  double{point.y} - press_.y);
}

void GroupMoveTool::release(SkinPoint /*point*/) {
    if (!moved_) {
        const SkinDocument& document = host_.document();
        host_.selection().select(document.rowOf(document.currentLayout(), pressedId_));
    }
}

void GroupMoveTool::takeBack() {
    (void)placeAll(host_.document(), starts_);
}

CopyMoveTool::CopyMoveTool(ToolHost& host, SkinPoint press)
    : CanvasTool(host.document(), nameOf(step::copy, host))
    , host_(host)
    , press_(press)
    , originals_(host.selection().ids())
    , starts_(startPlaces(host.document(), originals_)) {}

void CopyMoveTool::move(SkinPoint point, bool /*keepProportions*/) {
    SkinDocument& document = host_.document();
    if (copies_.empty()) {
        if (point == press_) {
            return;
        }
        copies_ = pasteElements(document, copyElements(document, originals_), {0, 0});
        host_.selection().selectIds(copies_);
        starts_ = startPlaces(document, copies_);
    }
    (void)moveAll(document, starts_, double{point.x} - press_.x, double{point.y} - press_.y);
}

void CopyMoveTool::release(SkinPoint /*point*/) {}

// Copies snap to what they are copied from.
std::optional<SnapSubject> CopyMoveTool::snapSubject() const {
    return subjectOf(starts_, SnapSubject::What::whole, press_, copies_);
}

void CopyMoveTool::takeBack() {
    if (!copies_.empty()) {
        const std::vector<int> rows = host_.selection().rows(); // those of the copies
        deleteRows(host_.document(), rows);
        host_.selection().selectIds(originals_);
    }
}

GroupScaleTool::GroupScaleTool(ToolHost& host, Handle handle, SkinPoint press)
    : CanvasTool(host.document(), nameOf(step::size, host))
    , host_(host)
    , handle_(handle)
    , press_(press)
    , starts_(startPlaces(host.document(), host.selection().ids()))
    , frame_(commonFrame(starts_))
    , snap_(subjectOf(starts_, SnapSubject::What::handle, press, host.selection().ids(), handle)) {}

void GroupScaleTool::move(SkinPoint point, bool keepProportions) {
    const Place frame =
        resized(frame_, handle_, point.x - press_.x, point.y - press_.y, keepProportions);
    (void)scaleAll(host_.document(), starts_, frame_, frame);
}

void GroupScaleTool::release(SkinPoint /*point*/) {}

void GroupScaleTool::takeBack() {
    (void)placeAll(host_.document(), starts_);
}

LineEndTool::LineEndTool(ToolHost& host, Handle end, SkinPoint press)
    : CanvasTool(host.document(), nameOf(step::moveEnd, host))
    , host_(host)
    , snap_(subjectOf(host, SnapSubject::What::lineEnd, press))
    , drag_(host.document(), host.selection().curNum(), end, press) {}

void LineEndTool::move(SkinPoint point, bool /*keepProportions*/) {
    drag_.moveTo(host_.document(), point);
}

void LineEndTool::release(SkinPoint /*point*/) {}

void LineEndTool::takeBack() {
    drag_.takeBack(host_.document());
}

} // namespace tarvel
