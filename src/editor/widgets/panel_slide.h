// The panels' entrance when the program starts.
#pragma once

#include "widgets/easing.h"

#include <QObject>

#include <map>
#include <vector>

class QWidget;

namespace tarvel {

/// Slides widgets to the places that their layout gave them, all together, fast at first. Each step
/// covers one fifteenth of what is left; within 3 pixels the place is taken exactly. Owns none of
/// the widgets; they outlive it.
class PanelSlide : public QObject {
    Q_OBJECT

  public:
    explicit PanelSlide(QObject* parent = nullptr);

    /// Adds a hidden widget that has its final place. It comes from beside the window: off the left
    /// edge, or off the right one.
    void movetoX(QWidget* panel, bool fromLeft);
    /// Shows the widgets where they come from and lets them slide.
    void start();
    /// Takes the final places at once, as before the window's layout works anew.
    void finish();

  signals:
    void finished();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::vector<Easing::Move> moves_;
    std::map<QWidget*, int> lefts_; // where each panel is on its way
    Easing easing_;
};

} // namespace tarvel
