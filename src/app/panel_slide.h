// The panels' entrance when the program starts.
#pragma once

#include "app/easing.h"

#include <QObject>

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

    /// Adds a widget that has its final place, and puts it beside the window: off the left edge, or
    /// off the right one.
    void movetoX(QWidget* panel, bool fromLeft);
    void start();
    /// Takes the final places at once, as before the window's layout works anew.
    void finish();

  signals:
    void finished();

  private:
    std::vector<Easing::Move> moves_;
    Easing easing_;
};

} // namespace tarvel
