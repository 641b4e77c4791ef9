// The panel "ELEMENTS (Z-ORDER)": one list for each layout screen, the current one in front.
#pragma once

#include "document/selection.h"

#include <QGroupBox>

#include <array>

class QListView;
class QStackedLayout;

namespace tarvel {

class ElementListModel;
class ElementListView;
class ElementRowDelegate;
class PictureCache;

/// Shows the selection in the current screen's list, and takes what is chosen there to it.
/// Document, selection and pictures are not owned and outlive the panel.
class ElementsPanel : public QGroupBox, private DocumentObserver, private SelectionObserver {
    Q_OBJECT

  public:
    ElementsPanel(const SkinDocument& document, Selection& selection, PictureCache& pictures,
                  QWidget* parent = nullptr);

    /// Marks the row of the current screen whose element the pointer is over; -1 for none.
    void markRow(int row);
    /// Picture files may have other content.
    void picturesChanged();

    /// Whether rows are being dragged.
    [[nodiscard]] bool isDragging() const;
    void cancelDrag();

  signals:
    /// The selected rows were dropped before a row.
    void rowsDropped(int before);
    /// The pointer came over the row of an element, or its place may be another one; 0 when it is
    /// over none any more.
    void elementHovered(int elementId);
    /// The right button asks for a menu.
    void menuWanted(QPoint globalPosition);

  private:
    void documentChanged(const DocumentChange& change) override;
    void showChange(const DocumentChange& change);
    void selectionChanged() override;
    void hover(int row);
    void repaintRow(int elementId);
    [[nodiscard]] ElementListView& current() const;
    ElementListView* makeList(int screen);
    void lst_Click(int screen);
    void askForMenu(const QListView& list, QPoint point);
    [[nodiscard]] ElementListModel& model(int screen) const {
        return *models_.at(static_cast<std::size_t>(screen));
    }

    const SkinDocument& document_;
    Selection& selection_;
    std::array<ElementListModel*, screenCount> models_{};
    std::array<ElementListView*, screenCount> lst_{};
    QStackedLayout* stack_;
    ElementRowDelegate* rows_;
    int hovered_ = 0;        // element whose row is below the pointer
    bool following_ = false; // the lists change by the document, not by a hand
    DocumentWatch documentWatch_;
    SelectionWatch selectionWatch_;
};

} // namespace tarvel
