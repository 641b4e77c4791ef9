// The panel "CREATE": the tools that draw new elements.
#pragma once

#include "document/element_kinds.h"

#include <QGroupBox>

#include <array>
#include <optional>

class QToolButton;

namespace tarvel {

/// At most one tool is chosen; a click on the chosen one lets it go. A double click, or Shift and
/// Space, chooses one to be kept for several elements, which its underlined caption shows.
class CreatePanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit CreatePanel(QWidget* parent = nullptr);

    /// The kind that the chosen tool draws; nothing when none is chosen.
    [[nodiscard]] std::optional<ElementKind> tool() const;
    /// Whether the chosen tool is kept after an element was drawn.
    [[nodiscard]] bool isKept() const { return isKept_; }
    /// Lets the chosen tool go, without toolChosen().
    void releaseTool();

  signals:
    /// The user chose a tool, or let it go.
    void toolChosen(std::optional<tarvel::ElementKind> kind);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void clicked(std::size_t index);
    void keep(std::size_t index);
    void showKept();

    std::array<QToolButton*, elementKinds.size()> buttons_{}; // by kind
    bool isKept_ = false;
};

} // namespace tarvel
