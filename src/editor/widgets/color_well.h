// A box that shows a chosen colour, or that none is chosen, and can be pressed to choose another.
#pragma once

#include "editing/panel_values.h"
#include "widgets/color_button.h"

#include <optional>

namespace tarvel {

class Prompts;

/// Pressed by mouse, Space or Enter. A clear swatch shows a checkerboard with a stroke.
class ColorWell : public ColorButton {
    Q_OBJECT

  public:
    explicit ColorWell(QWidget* parent = nullptr);

    void setSwatch(const Swatch& swatch);
    [[nodiscard]] const Swatch& swatch() const { return swatch_; }
    /// "#" and six hexadecimal digits, or "none".
    [[nodiscard]] QString valueText() const;

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintInside(QPainter& painter) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Swatch swatch_;
};

/// The user's choice in the colour chooser over the window of `control`; none when cancelled.
[[nodiscard]] std::optional<ColorNumber> askColor(Prompts& prompts, const QWidget& control,
                                                  ColorNumber initial);

} // namespace tarvel
