// The tool that is chosen, what it needs of the window, and when it is let go.
#pragma once

#include "document/selection.h"
#include "surface/canvas_tool.h"

#include <QObject>

namespace tarvel {

class CreatePanel;
class Pic;
class PictureCache;
class Prompts;
class PropertyPanel;
class SelectionMarks;
class SelectionViews;
class SurfaceController;
class SurfaceCover;

/// Gives the surface its tool, and keeps tool and panel of one kind: selecting an element lets the
/// tool go. Owns the surface's controller and its cover. What it is given is not owned and outlives
/// it, but for the views, which come after it. A tool that is kept stays
/// chosen after an element was drawn.
class ToolChoice : public QObject, private ToolHost, private SelectionObserver {
    Q_OBJECT

  public:
    struct Parts {
        SkinDocument& document;
        Selection& selection;
        Pic& surface;
        SelectionMarks& marks;
        CreatePanel& tools;
        PropertyPanel& properties;
        PictureCache& pictures;
        Prompts& prompts;
    };

    explicit ToolChoice(const Parts& parts);
    ~ToolChoice() override;
    /// Who shows the selection when a tool is let go.
    void setViews(SelectionViews& views) { views_ = &views; }

    [[nodiscard]] SurfaceController& controller() { return *controller_; }
    /// Whether Escape has something to end: the pointer is at work or a tool is chosen.
    [[nodiscard]] bool isBusy() const;
    /// Takes back what the pointer is doing, or else lets the chosen tool go.
    void giveUp();
    /// Takes back what the pointer is doing.
    void cancelWork();
    /// Ends it where it stands.
    void endWork();

  private:
    // What the surface's tools see.
    [[nodiscard]] SkinDocument& document() override { return parts_.document; }
    [[nodiscard]] Selection& selection() override { return parts_.selection; }
    [[nodiscard]] PanelValues panelValues() const override;
    [[nodiscard]] std::optional<SkinSize> naturalSize(ElementKind kind) override;
    void drawingEnded() override;

    void selectionChanged() override;
    void chooseTool(std::optional<ElementKind> kind);
    void letGo();
    void giveToolUp();
    void refuseInvalid(ElementKind kind, bool& refuse);

    Parts parts_;
    SelectionViews* views_ = nullptr;
    PanelValues drawnWith_;
    SelectionWatch watch_;
    std::unique_ptr<SurfaceController> controller_;
    std::unique_ptr<SurfaceCover> cover_;
};

} // namespace tarvel
