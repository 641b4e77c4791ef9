// A button that starts and stops something.
#pragma once

#include <QPushButton>

namespace tarvel {

/// Reads "Play" with a triangle or "Stop" with a square, in the colours of its text. What is read
/// out follows.
class PlayButton : public QPushButton {
    Q_OBJECT

  public:
    explicit PlayButton(QWidget* parent = nullptr);

    void setPlaying(bool playing);
    [[nodiscard]] bool isPlaying() const { return playing_; }

  private:
    void showState();
    void drawIcon();

    bool playing_ = false;
};

} // namespace tarvel
