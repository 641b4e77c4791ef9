// The panel for an element's visibility condition.
#pragma once

#include "panels/behaviour_panel.h"

class QListWidget;

namespace tarvel {

/// fraModifier(2). A list of conditions and what the selected one means.
class ConditionPanel : public BehaviourPanel {
    Q_OBJECT

  public:
    explicit ConditionPanel(SkinDocument& document, QWidget* parent = nullptr);

  protected:
    void fill(const Element& element) override;
    void store(Element& element) const override;

  private:
    void lstCond_Click(int row);
    void keepRowSelected();

    QListWidget* lstCond_;
    QLabel* lblConditionDesc_;
};

} // namespace tarvel
