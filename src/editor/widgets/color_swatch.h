// A box that shows a colour and can be pressed to choose another one.
#pragma once

#include "text/value_encodings.h"
#include "widgets/color_button.h"

namespace tarvel {

/// A text of the button is written on the colour in black or white, whichever is easier to read.
class ColorSwatch : public ColorButton {
    Q_OBJECT

  public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    void setColor(ColorNumber color);
    [[nodiscard]] ColorNumber color() const { return color_; }

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintInside(QPainter& painter) override;

  private:
    ColorNumber color_ = 0;
};

} // namespace tarvel
