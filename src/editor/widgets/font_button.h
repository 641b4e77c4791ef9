// The button that shows the font of new texts.
#pragma once

#include "document/element.h"

#include <QPushButton>

namespace tarvel {

/// Its own font is the chosen one. Very small and very large fonts are shown at a readable size
/// without changing the size of the button.
class FontButton : public QPushButton {
    Q_OBJECT

  public:
    explicit FontButton(const QString& text, QWidget* parent = nullptr);

    void setChoice(const FontChoice& choice);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The choice that a font stands for. Its slant and strike-through are not part of one.
[[nodiscard]] FontChoice choiceOf(const QFont& font);
/// The font of a choice, in points.
[[nodiscard]] QFont fontOf(const FontChoice& choice);
/// Family, size and style in a few words.
[[nodiscard]] QString describeFont(const FontChoice& choice);

} // namespace tarvel
