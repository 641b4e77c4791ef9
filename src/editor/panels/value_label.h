// A number that is changed by dragging over it.
#pragma once

#include <QLabel>

namespace tarvel {

/// Shows a number and tells of the pointer, the wheel and the keys; what they do to the number is
/// for the owner to say. Takes the focus. With it, the wheel and the arrow keys count as steps of
/// one, Page Up and Page Down as steps of ten.
class ValueLabel : public QLabel {
    Q_OBJECT

  public:
    /// Has room for that many digits; longer numbers are cut, and told whole in a tool tip.
    explicit ValueLabel(int digits, QWidget* parent = nullptr);

    [[nodiscard]] double value() const { return value_; }
    void setValue(double value);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    /// The pointer moved to x, in pixels from the left edge; `held` with the left button down.
    void mouseMoved(int x, bool held);
    void stepped(double steps);
    /// An assistive program asks for a number.
    void valueAsked(double value);

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    int digits_;
    double value_ = 0;
    int wheelRest_ = 0; // of a step, in eighths of a degree
};

} // namespace tarvel
