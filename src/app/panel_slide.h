// The panels' entrance when the program starts.
#pragma once

#include <QObject>
#include <QTimer>

#include <vector>

class QWidget;

namespace tarvel {

/// Slides widgets to the places that their layout gave them, all together, fast at first. Each step
/// covers one fifteenth of what is left; within 3 pixels the place is taken exactly. Takes less
/// than 400 ms and never holds up events. Owns none of the widgets; they outlive it.
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
    struct Sliding {
        QWidget* panel;
        int target; // left edge
        double left;
    };
    void stepFrame();

    std::vector<Sliding> panels_;
    QTimer frames_;
};

} // namespace tarvel
