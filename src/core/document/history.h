// The steps in which a document was made, to go back and forth between.
#pragma once

#include "document/kinds/panel_form.h"
#include "document/skin_document.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace tarvel {

/// Where somebody was at work.
struct WorkPlace {
    int screen = 0;            ///< 0 to 5
    std::vector<int> selected; ///< ids of the selected elements, in the order of selection
    int leading = 0;           ///< the one of them that leads; 0 for none
    PanelValues panel;         ///< what the property panel holds
};

/// Who knows where somebody is at work, and can lead there.
class WorkPlaces {
  public:
    virtual ~WorkPlaces() = default;
    [[nodiscard]] virtual WorkPlace place() const = 0;
    /// The document is as it was at that place already.
    virtual void goTo(const WorkPlace& place) = 0;
};

class HistoryObserver {
  public:
    virtual ~HistoryObserver() = default;
    /// What can be undone or redone, how it is called, or isChanged() may be different.
    virtual void historyChanged() = 0;
};

using HistoryWatch = Observers<HistoryObserver>::Watch;

/// Makes a step of each edit of a document that changed it, and keeps a copy of the document for
/// each, which shares what the step did not change. Looking at another screen is no step; going
/// back leads to the screen and the selection that a step was made with.
///
/// Watches the document, which outlives it, as do the places.
class History : private DocumentObserver {
  public:
    /// Beyond so many steps the oldest go.
    static constexpr std::size_t stepLimit = 1000;

    History(SkinDocument& document, WorkPlaces& places);

    /// False while an edit is open, but for a run, which ends by being undone.
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// The name of the step, "move Box"; empty when there is none.
    [[nodiscard]] std::string undoName() const;
    [[nodiscard]] std::string redoName() const;
    /// Do nothing when it cannot be done.
    void undo();
    void redo();

    /// The document as it is now is where all steps begin. `isSaved`: it needs no saving.
    void startOver(bool isSaved);
    /// The document as it is now is what the skin's folder holds.
    void markSaved();
    /// Whether the document differs from what was saved or loaded last; a new one does not.
    [[nodiscard]] bool isChanged() const;

    HistoryWatch watch(HistoryObserver& observer) { return observers_.add(observer); }

  private:
    struct Step {
        std::string name;
        WorkPlace before;
        WorkPlace after;
        SkinDocument document; // after the step
    };

    void documentChanged(const DocumentChange& change) override;
    void editBegan(const std::string& name) override;
    void editEnded(bool takenBack) override;
    [[nodiscard]] SkinDocument& shown();
    [[nodiscard]] bool isRunUnderWay() const { return document_.isRunOpen() && editChanged_; }
    void keepStep();
    void show(const WorkPlace& place);
    void tell() const;

    SkinDocument& document_;
    WorkPlaces& places_;
    SkinDocument first_;     // before all steps
    std::deque<Step> steps_; // in their order, those that were undone at the end
    std::size_t done_ = 0;   // how many of them are shown
    std::optional<SkinDocument> saved_ = SkinDocument();
    Step open_; // but for what is known at its end
    bool editChanged_ = false;
    bool showing_ = false;
    Observers<HistoryObserver> observers_;
    DocumentWatch watch_;
};

} // namespace tarvel
