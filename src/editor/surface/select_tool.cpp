// Shows the rubber band, and keeps the selection in step with it.
#include "surface/select_tool.h"

#include "editing/select_rules.h"
#include "editing/step_names.h"
#include "surface/pic.h"

#include <utility>

namespace tarvel {

SelectTool::SelectTool(ToolHost& host, Pic& surface, SkinPoint press, std::vector<int> before,
                       bool adds)
    : CanvasTool(host.document(), std::string(step::select))
    , host_(host)
    , surface_(surface)
    , press_(press)
    , before_(std::move(before))
    , kept_(adds ? before_ : std::vector<int>())
    , band_(std::make_unique<QRubberBand>(QRubberBand::Rectangle, &surface)) {
    band_->setObjectName(QStringLiteral("selectBand"));
    host_.selection().selectIds(kept_);
}

// The frontmost of what is touched leads.
void SelectTool::move(SkinPoint point, bool /*keepProportions*/) {
    const ViewMapping& mapping = surface_.mapping();
    const QRectF band = QRectF(QPointF(press_.x, press_.y), QPointF(point.x, point.y)).normalized();
    const QRect visible = mapping.toWidget(band).toAlignedRect() & surface_.rect();
    band_->setGeometry(visible);
    band_->setVisible(!visible.isEmpty());
    const SkinDocument& document = host_.document();
    std::vector<int> ids = kept_;
    for (const int row : rowsTouched(document, {press_, point})) {
        ids.push_back(document.itemData(document.currentLayout(), row));
    }
    if (ids != host_.selection().ids()) {
        host_.selection().selectIds(ids);
    }
}

void SelectTool::release(SkinPoint /*point*/) {}

void SelectTool::takeBack() {
    host_.selection().selectIds(before_);
}

} // namespace tarvel
