// What shows the selected element: marks, position fields, behaviour buttons, property panel, and
// the surface at a zoom.
#pragma once

#include "document/selection.h"

namespace tarvel {

class BehaviourButtons;
class CreatePanel;
class PositionPanel;
class PropertyPanel;
class SelectionMarks;
class SurfaceRoom;

/// Keeps them in line with document and selection. Owns nothing; all outlive it.
class SelectionViews : private DocumentObserver, private SelectionObserver {
  public:
    struct Views {
        SelectionMarks& marks;
        SurfaceRoom& room;
        PositionPanel& position;
        BehaviourButtons& behaviours;
        PropertyPanel& properties;
        /// While a tool is chosen and nothing selected, the panel is the tool's.
        const CreatePanel& tools;
    };

    SelectionViews(const SkinDocument& document, Selection& selection, const Views& views);

    /// All of them, from the document.
    void showSelection();
    /// Hides the marks until the selection is made or its element changes anew.
    void hideMarks();
    /// Marks and position fields.
    void setCurrentSel();
    /// Whether the property panel differs from the selected element.
    void showDifference();
    /// Marks the behaviours that the selected element carries.
    void setBolds();

  private:
    void documentChanged(const DocumentChange& change) override;
    void selectionChanged() override;

    const SkinDocument& document_;
    const Selection& selection_;
    Views views_;
    DocumentWatch documentWatch_;
    SelectionWatch selectionWatch_;
};

} // namespace tarvel
