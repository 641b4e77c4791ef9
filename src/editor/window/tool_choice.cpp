// Chooses tools and lets them go, together with what the panel and the surface show of them.
#include "window/tool_choice.h"

#include "editing/panel_check.h"
#include "panels/create_panel.h"
#include "panels/property_panel.h"
#include "surface/element_looks.h"
#include "surface/pic.h"
#include "surface/selection_marks.h"
#include "surface/surface_controller.h"
#include "surface/surface_cover.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"
#include "window/selection_views.h"

namespace tarvel {

ToolChoice::ToolChoice(const Parts& parts)
    : parts_(parts)
    , watch_(parts.selection.watch(*this)) {
    ToolHost& host = *this;
    controller_ = std::make_unique<SurfaceController>(parts_.surface, host, parts_.marks);
    cover_ = std::make_unique<SurfaceCover>(parts_.surface);
    connect(cover_.get(), &SurfaceCover::aboutToCover, &parts_.marks, &SelectionMarks::hideSels);
    connect(controller_.get(), &SurfaceController::pressed, &parts_.properties,
            &PropertyPanel::stopPreview);
    connect(controller_.get(), &SurfaceController::aboutToDraw, this, &ToolChoice::refuseInvalid);
    connect(controller_.get(), &SurfaceController::toolGivenUp, this, [this] {
        if (parts_.tools.tool()) {
            giveToolUp();
        } else {
            parts_.selection.clear();
        }
    });
    connect(&parts_.tools, &CreatePanel::toolChosen, this, [this](std::optional<ElementKind> kind) {
        chooseTool(kind);
        if (!kind) {
            views_->showSelection();
        }
    });
}

ToolChoice::~ToolChoice() = default;

PanelValues ToolChoice::panelValues() const {
    return parts_.properties.values();
}

std::optional<SkinSize> ToolChoice::naturalSize(ElementKind kind) {
    return lookOf(kind).naturalSize(panelValues(), parts_.document.settings(), parts_.pictures);
}

bool ToolChoice::isBusy() const {
    return controller_->isWorking() || parts_.tools.tool();
}

void ToolChoice::giveUp() {
    if (controller_->isWorking()) {
        controller_->cancelWork();
    } else {
        giveToolUp();
    }
}

void ToolChoice::cancelWork() {
    controller_->cancelWork();
}

void ToolChoice::endWork() {
    controller_->endWork();
}

void ToolChoice::drawingEnded() {
    // A drawing that was given up has left nothing selected, and a tool is kept until Escape only.
    const bool keeps = parts_.tools.isKept() && !parts_.selection.isEmpty();
    if (!keeps) {
        giveToolUp();
        return;
    }
    views_->showSelection();
    parts_.properties.takeValues(drawnWith_); // the next element gets what this one got
    views_->showDifference();
}

void ToolChoice::giveToolUp() {
    letGo();
    views_->showSelection();
}

// What is being drawn is selected too, and keeps its tool.
void ToolChoice::selectionChanged() {
    if (!parts_.selection.isEmpty() && parts_.tools.tool() && !controller_->isMaking()) {
        letGo(); // the views are told after this
    }
}

void ToolChoice::letGo() {
    chooseTool(std::nullopt);
    parts_.tools.releaseTool();
}

void ToolChoice::chooseTool(std::optional<ElementKind> kind) {
    controller_->cancelWork();
    controller_->setTool(kind);
    if (!kind) {
        cover_->uncover();
        return;
    }
    parts_.selection.clear();
    cover_->cover([this, kind] {
        if (parts_.tools.tool() == kind) {
            parts_.properties.showKind(*kind);
        }
    });
}

void ToolChoice::refuseInvalid(ElementKind kind, bool& refuse) {
    cover_->hurry(); // what is drawn takes what the tool's panel shows
    drawnWith_ = panelValues();
    const auto faults = isInvalid(kind, drawnWith_);
    for (const std::string_view text : faults) {
        parts_.prompts.message(parts_.surface.window(), qtText(text));
    }
    if (!faults.empty()) {
        refuse = true;
        parts_.properties.focusFault(faults.front());
    }
}

} // namespace tarvel
