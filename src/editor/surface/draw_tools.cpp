// Draws new elements between a press and a release.
#include "surface/draw_tools.h"

#include "editing/new_element.h"
#include "editing/step_names.h"

namespace tarvel {

namespace {

// The new element is the last row, and selected from the start: its place shows in the fields.
int makeSelected(ToolHost& host, ElementKind kind, SkinPoint press) {
    SkinDocument& document = host.document();
    const int id = makeNewElement(document, kind, host.panelValues(), press);
    host.selection().select(document.rowCount(document.currentLayout()) - 1);
    return id;
}

} // namespace

DrawTool::DrawTool(ToolHost& host, ElementKind kind, SkinPoint press, double zoom)
    : CanvasTool(host.document(), stepName(step::draw, kind))
    , host_(host)
    , kind_(kind)
    , press_(press)
    , zoom_(zoom)
    , drag_(makeSelected(host, kind, press), press) {}

void DrawTool::move(SkinPoint point, bool /*keepProportions*/) {
    drag_.moveTo(host_.document(), point);
}

void DrawTool::release(SkinPoint point) {
    drag_.finish(host_.document(), point, host_.naturalSize(kind_), zoom_);
    host_.drawingEnded();
}

std::optional<SnapSubject> DrawTool::snapSubject() const {
    return SnapSubject{.what = kind_ == ElementKind::Line ? SnapSubject::What::lineEnd
                                                          : SnapSubject::What::corner,
                       .press = press_,
                       .ids = {host_.selection().curNum()}};
}

void DrawTool::takeBack() {
    host_.selection().clear();
    drag_.takeBack(host_.document());
    host_.drawingEnded();
}

std::unique_ptr<DrawTool> startDrawing(ToolHost& host, ElementKind kind, SkinPoint press,
                                       double zoom) {
    return std::make_unique<DrawTool>(host, kind, press, zoom);
}

void placeInTheMiddle(ToolHost& host, ElementKind kind) {
    const OpenEdit edit(host.document(), stepName(step::draw, kind));
    const Place place = middlePlace(kind, host.naturalSize(kind));
    const int id = makeSelected(host, kind, {place[0], place[1]});
    placeElement(host.document(), id, place);
    host.drawingEnded();
}

} // namespace tarvel
