// The panel "ELEMENTS (Z-ORDER)": one list for each layout screen, the current one in front.
#pragma once

#include "document/skin_document.h"

#include <QGroupBox>

#include <array>

class QListView;
class QStackedLayout;

namespace tarvel {

class ElementListModel;

/// The document is not owned and outlives the panel.
class ElementsPanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit ElementsPanel(const SkinDocument& document, QWidget* parent = nullptr);

    /// Brings a screen's list to the front.
    void showScreen(int screen);
    /// The selected row of a screen's list; -1 for none.
    [[nodiscard]] int listIndex(int screen) const;
    /// Selects a row, -1 for none, as a click on it would.
    void setListIndex(int screen, int row);
    /// Brings the lists into line with the document.
    void documentChanged(const DocumentChange& change);

    [[nodiscard]] QListView* lst(int screen) const {
        return lst_.at(static_cast<std::size_t>(screen));
    }

  signals:
    /// Another row, or none, is selected in the screen's list.
    void listIndexChanged(int screen);
    /// The right button asks for a menu; `onElement` when a row is selected.
    void menuWanted(QPoint globalPosition, bool onElement);

  private:
    std::array<ElementListModel*, screenCount> models_{};
    std::array<QListView*, screenCount> lst_{};
    QStackedLayout* stack_;
};

} // namespace tarvel
