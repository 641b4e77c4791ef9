// Undo and redo of the main window: the two menu entries, their keys, and what they lead back to.
#pragma once

#include "document/history.h"
#include "document/selection.h"

#include <QObject>

#include <functional>

class QAction;
class QKeyEvent;
class QWidget;

namespace tarvel {

class PropertyPanel;
class SelectionMarks;

/// Owns the history of the document. What it is given is not owned and outlives it.
class WorkHistory : public QObject, private WorkPlaces, private HistoryObserver {
    Q_OBJECT

  public:
    struct Parts {
        SkinDocument& document;
        Selection& selection;
        PropertyPanel& properties;
        SelectionMarks& marks;
        QAction& undo;
        QAction& redo;
        /// False while something lies over the window that has to be closed first.
        std::function<bool()> isOpen;
    };

    explicit WorkHistory(const Parts& parts);

    [[nodiscard]] History& history() { return history_; }
    /// Enables and names the entries for what can be done now.
    void refresh();
    /// A skin was brought into the document, which held the same as `before` until then. What was
    /// there already makes a skin that no folder holds.
    void loaded(const SkinDocument& before);

  signals:
    /// One line on what was undone or redone, for the status line.
    void told(const QString& text);
    /// Whether there are changes that no folder holds may be another thing now.
    void changed();
    /// What was undone or redone is the loading of a skin.
    void loadUndone();
    void loadRedone();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] WorkPlace place() const override;
    void goTo(const WorkPlace& place) override;
    void historyChanged() override;
    [[nodiscard]] bool isOurs(const QKeyEvent& event) const;

    Parts parts_;
    History history_;
    HistoryWatch watch_;
};

} // namespace tarvel
