// What a press on the drawing surface starts: one small class for each kind of work.
#pragma once

#include "document/element_place.h"
#include "document/open_edit.h"
#include "document/selection.h"
#include "editing/panel_values.h"
#include "editing/snap_drag.h"

#include <optional>

namespace tarvel {

/// What a tool sees of the window.
class ToolHost {
  public:
    ToolHost() = default;
    virtual ~ToolHost() = default;
    ToolHost(const ToolHost&) = delete;
    ToolHost& operator=(const ToolHost&) = delete;

    [[nodiscard]] virtual SkinDocument& document() = 0;
    [[nodiscard]] virtual Selection& selection() = 0;
    /// What the property panel holds.
    [[nodiscard]] virtual PanelValues panelValues() const = 0;
    /// Size of what a new element of the kind would show, where it is known.
    [[nodiscard]] virtual std::optional<SkinSize> naturalSize(ElementKind kind) = 0;
    /// A new element is finished, or given up: its tool is let go.
    virtual void drawingEnded() = 0;
};

/// Lives from a press of the left button to its release, or until it is cancelled: one edit of the
/// document, under the name that the class gives it.
class CanvasTool {
  public:
    CanvasTool(SkinDocument& document, std::string editName)
        : edit_(document, std::move(editName)) {}
    virtual ~CanvasTool() = default;
    CanvasTool(const CanvasTool&) = delete;
    CanvasTool& operator=(const CanvasTool&) = delete;

    /// The pointer moved with the button held. `keepProportions` while Shift is held.
    virtual void move(SkinPoint point, bool keepProportions) = 0;
    virtual void release(SkinPoint point) = 0;
    /// What the pointer drags, for snapping; nothing where nothing snaps.
    [[nodiscard]] virtual std::optional<SnapSubject> snapSubject() const { return std::nullopt; }
    /// Takes back what was done since the press.
    void cancel() {
        takeBack();
        edit_.takeBack();
    }

  private:
    virtual void takeBack() = 0;

    OpenEdit edit_;
};

} // namespace tarvel
