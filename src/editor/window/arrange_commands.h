// The menu "Arrange": its entries, when they can be chosen, and what they do.
#pragma once

#include "editing/arrange.h"
#include "window/command_watch.h"

#include <QList>

#include <array>

class QAction;
class QMenu;

namespace tarvel {

inline constexpr std::size_t arrangeCommands = 15;

/// Fills the menu, whose entries belong to it. What it is given is not owned and outlives it.
class ArrangeCommands : public QObject {
    Q_OBJECT

  public:
    struct Parts {
        SkinDocument& document;
        Selection& selection;
        WindowGate& gate;
        QMenu& menu;
        /// Entries of the context menu that stand here too, in this order.
        QList<QAction*> stacking;
        QAction& lock; ///< checked while the leading element is locked
    };

    explicit ArrangeCommands(const Parts& parts);

    /// Brings the selected rows before another one, as moveRows() does.
    void reorder(int before);

  private:
    void fillMenu();
    void refresh();
    void carryOut(ArrangeCommand command);

    Parts parts_;
    std::array<QAction*, arrangeCommands> entries_{}; // by command
    CommandWatch watch_;
};

} // namespace tarvel
