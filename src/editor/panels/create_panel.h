// The panel "CREATE": the tools that draw new elements.
#pragma once

#include "document/element_kinds.h"

#include <QGroupBox>

#include <array>
#include <optional>

class QToolButton;

namespace tarvel {

/// At most one tool is chosen; a click on the chosen one lets it go.
class CreatePanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit CreatePanel(QWidget* parent = nullptr);

    /// The kind that the chosen tool draws; nothing when none is chosen.
    [[nodiscard]] std::optional<ElementKind> tool() const;
    /// Lets the chosen tool go, without toolChosen().
    void releaseTool();

  signals:
    /// The user chose a tool, or let it go.
    void toolChosen(std::optional<tarvel::ElementKind> kind);

  private:
    void clicked(std::size_t index);

    std::array<QToolButton*, elementKinds.size()> buttons_{}; // by kind
};

} // namespace tarvel
