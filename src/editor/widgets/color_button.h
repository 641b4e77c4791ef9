// A button that shows a colour.
#pragma once

#include <QAbstractButton>

class QPainter;

namespace tarvel {

/// Base of the boxes that show a chosen colour and are pressed to choose another: a rounded frame
/// that tells focus and pointer, round what the derived class paints.
class ColorButton : public QAbstractButton {
    Q_OBJECT

  protected:
    explicit ColorButton(QWidget* parent);

    /// Tells the colour by tool tip and to screen readers, and repaints.
    void describe(const QString& valueText);
    /// Fills the whole of rect(); corners are cut off by the caller.
    virtual void paintInside(QPainter& painter) = 0;

    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

} // namespace tarvel
