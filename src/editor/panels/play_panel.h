// The strip below the surface while a screen plays: its time, and the conditions of its elements.
#pragma once

#include "document/conditions.h"
#include "playing/timer_play.h"

#include <QWidget>

#include <array>
#include <optional>

class QComboBox;
class QToolButton;

namespace tarvel {

class ElidedLabel;
class TickLabel;

/// Shows what it is told, and tells what the user wants. A condition that holds has a
/// filled mark, one that does not a hollow one, and one that is forced is pressed in.
class PlayPanel : public QWidget {
    Q_OBJECT

  public:
    explicit PlayPanel(QWidget* parent = nullptr);

    /// Milliseconds since the screen was activated.
    void setTime(PlayTime time);
    /// Which screen shows, and for how long still.
    void setRun(const QString& text);
    void setHeld(bool held);
    /// In quarters of the usual speed: 1, 2, 4, 8 or 16.
    void setSpeed(int quarters);

    struct Condition {
        bool holds = false;
        std::optional<bool> forced;

        bool operator==(const Condition&) const = default;
    };
    /// By the rows of conditionRows; "None" is not shown.
    using Conditions = std::array<Condition, conditionRows.size()>;
    void setConditions(const Conditions& conditions);
    /// What is not shown, in words, and all of it for a tool tip; empty for nothing.
    void setNotShown(const QString& text, const QString& all);

  signals:
    void holdClicked();
    /// Back or on by a tenth of a second.
    void stepped(int tenths);
    void speedChosen(int quarters);
    /// A condition is to be forced on, then off, and then left to the list again.
    void conditionClicked(int row);
    void endClicked();

  private:
    QWidget* makeTransport();
    void makeSpeed();
    QWidget* makeConditions();
    QToolButton* makeCondition(int row);
    void showCondition(std::size_t row);

    TickLabel* lblTime_ = nullptr;
    TickLabel* lblRun_ = nullptr;
    ElidedLabel* lblNotShown_ = nullptr;
    QToolButton* cmdHold_ = nullptr;
    QComboBox* cboSpeed_ = nullptr;
    std::array<QToolButton*, conditionRows.size()> cmdCondition_{}; // the first is none
    Conditions conditions_{};
};

/// A time as it is shown: seconds with tenths, and minutes before them from one minute on.
[[nodiscard]] QString playTimeText(PlayTime time);

} // namespace tarvel
