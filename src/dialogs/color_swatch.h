// A box that shows a colour and can be pressed to choose another one.
#pragma once

#include "skinfile/value_encodings.h"

#include <QAbstractButton>

namespace tarvel {

/// A text of the button is written on the colour in black or white, whichever is easier to read.
class ColorSwatch : public QAbstractButton {
    Q_OBJECT

  public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    void setColor(ColorNumber color);
    [[nodiscard]] ColorNumber color() const { return color_; }

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    ColorNumber color_ = 0;
};

} // namespace tarvel
