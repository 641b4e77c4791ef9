// The panel for an element's four timers.
#pragma once

#include "document/timers.h"
#include "panels/behaviour_panel.h"

#include <array>

class QLineEdit;

namespace tarvel {

/// fraModifier(1). Shows a warning below the boxes where values look like seconds.
class TimerPanel : public BehaviourPanel {
    Q_OBJECT

  public:
    explicit TimerPanel(SkinDocument& document, QWidget* parent = nullptr);

  protected:
    void fill(const Element& element) override;
    void store(Element& element) const override;

  private:
    QWidget* makeBoxes();
    QWidget* makeMessage();
    [[nodiscard]] TimerBoxes boxes() const;
    void txtTimer_Change();

    std::array<QLineEdit*, timerSlots> txtTimer_{};
    QLabel* lblTimersMsg_ = nullptr;
    QWidget* warningSign_ = nullptr;
};

} // namespace tarvel
