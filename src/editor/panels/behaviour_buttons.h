// The buttons "Modifiers", "Timers" and "Condition", bold for what the selected element carries.
#pragma once

#include "document/layout_screens.h"

#include <QWidget>

#include <array>

class QAction;
class QPushButton;

namespace tarvel {

class BehaviourButtons : public QWidget {
    Q_OBJECT

  public:
    static constexpr int count = 3;

    /// `menuEntries` are mnuModifier(0..2), whose captions get a "*" where a button is bold.
    explicit BehaviourButtons(std::array<QAction*, count> menuEntries, QWidget* parent = nullptr);

    void setBolds(const BehaviourMarks& marks);
    /// Whether there is an element whose behaviours they could open.
    void setAvailable(bool available);

  signals:
    /// A button was pressed: 0 modifiers, 1 timers, 2 condition.
    void cmdModifier_Click(int index);

  private:
    std::array<QPushButton*, count> cmdModifier_{};
    std::array<QAction*, count> mnuModifier_;
};

} // namespace tarvel
