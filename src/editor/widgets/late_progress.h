// What the dialogs for work that may take long have in common.
#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

class QLabel;

namespace tarvel {

/// A modal dialog that appears once the work has lasted a while, and keeps the rest of the program
/// alive from then on.
class LateProgress : public QProgressDialog {
    Q_OBJECT

  public:
    static constexpr int delayMs = 500; ///< the usual while

  protected:
    LateProgress(const QString& title, const QString& label, int delay, QWidget* parent);

    /// Calls show() where it is time to show a step, and lets pending events run. False once the
    /// user has cancelled.
    template <class Show> bool take(Show&& showStep) {
        if (!isTime()) {
            return !wasCanceled();
        }
        if (isVisible()) {
            showStep();
        }
        return finishTurn();
    }
    [[nodiscard]] QLabel& label() const { return *label_; }

  private:
    bool isTime();
    bool finishTurn();

    QLabel* label_; // child
    int delay_;
    QElapsedTimer since_;
    QElapsedTimer lastTurn_;
};

} // namespace tarvel
