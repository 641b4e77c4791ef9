// What a press on the drawing surface starts: one small class for each kind of work.
#pragma once

#include "document/element_place.h"
#include "editing/panel_values.h"

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
    /// Id of the selected element; 0 for none.
    [[nodiscard]] virtual int curNum() const = 0;
    /// Row of the selected element in the current screen's list; -1 for none.
    [[nodiscard]] virtual int selectedRow() const = 0;
    /// Selects a row of the current screen's list; -1 for none.
    virtual void selectRow(int row) = 0;
    /// What the property panel holds.
    [[nodiscard]] virtual PanelValues panelValues() const = 0;
    /// Size of what a new element of the kind would show, where it is known.
    [[nodiscard]] virtual std::optional<SkinSize> naturalSize(ElementKind kind) const = 0;
    /// A new element is finished, or given up: its tool is let go.
    virtual void drawingEnded() = 0;
};

/// Lives from a press of the left button to its release, or until it is cancelled.
class CanvasTool {
  public:
    CanvasTool() = default;
    virtual ~CanvasTool() = default;
    CanvasTool(const CanvasTool&) = delete;
    CanvasTool& operator=(const CanvasTool&) = delete;

    /// The pointer moved with the button held. `keepProportions` while Shift is held.
    virtual void move(SkinPoint point, bool keepProportions) = 0;
    virtual void release(SkinPoint point) = 0;
    /// Takes back what was done since the press.
    virtual void cancel() = 0;
};

} // namespace tarvel
