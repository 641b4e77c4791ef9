// The panel "CURRENT SCREEN": one option button for each layout screen.
#pragma once

#include "document/layout_screens.h"

#include <QGroupBox>

#include <array>

class QRadioButton;

namespace tarvel {

class LayoutPanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit LayoutPanel(QWidget* parent = nullptr);

    /// Checks a screen's button, without clicked().
    void setCurrent(int screen);
    /// Index of the checked button.
    [[nodiscard]] int current() const;
    /// Draws the buttons of the screens that hold elements bold.
    void setLayoutBolds(const SkinDocument& document);

  signals:
    /// The user chose a screen.
    void screenClicked(int screen);

  private:
    std::array<QRadioButton*, screenCount> optScreen_{};
};

} // namespace tarvel
