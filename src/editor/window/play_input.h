// Keys and presses in the main window while a screen plays.
#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace tarvel {

/// Takes the keys of playing wherever the focus is in the window, and tells of presses outside of
/// what plays. Keys with Ctrl, Alt or Meta, Tab, F1 and F6 stay what they are; a control of the
/// strips that came to the focus by Tab keeps its keys but for Escape and F5.
class PlayInput : public QObject {
    Q_OBJECT

  public:
    /// The parts of the window, which are not owned and outlive this.
    struct Parts {
        QWidget& window;
        QWidget& room;                ///< where the screen is
        std::vector<QWidget*> strips; ///< what belongs to playing
        QWidget& home;                ///< the part of them that takes no keys of its own
        /// Further controls that are worked with while a screen plays.
        std::vector<QWidget*> usable;
    };

    explicit PlayInput(Parts parts);
    ~PlayInput() override;

    void setActive(bool active);

  signals:
    /// Escape, F5, or a press outside.
    void endWanted();
    void holdWanted();
    /// By tenths of a second.
    void stepWanted(int tenths);
    /// Up is -1, down 1.
    void itemWanted(int step);
    /// Quicker is 1, slower -1.
    void speedWanted(int step);
    /// Any other key, and those of the list: one of the console.
    void keyPressed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool key(const QKeyEvent& event, bool pressed);
    bool playKey(const QKeyEvent& event, bool pressed);
    bool mouse(const QMouseEvent& event);
    bool afterEnd(const QEvent& event);
    void pressEnds();

    Parts parts_;
    bool active_ = false;

    /// How far a press is that ended the playing.
    enum class Ending { none, pressed, clicked };
    Ending ending_ = Ending::none;
};

} // namespace tarvel
