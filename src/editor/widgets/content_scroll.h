// A part of a window that scrolls where the window is too small for it.
#pragma once

#include <QScrollArea>

namespace tarvel {

/// Asks for the room of its content, with the content's ground and no frame, and lets it scroll in
/// less. It is never narrower than the content where it scrolls only up and down.
class ContentScroll : public QScrollArea {
    Q_OBJECT

  public:
    enum class Ways { down, both };

    /// Takes the content in. That measures it, so content of many parts is quicker filled
    /// afterwards.
    ContentScroll(QWidget* content, Ways ways, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Ways ways_;
};

} // namespace tarvel
