// The frame "Text": what a text shows, and its font.
#pragma once

#include "editing/several_values.h"

#include <QGroupBox>

class QComboBox;
class QLabel;

namespace tarvel {

class FontButton;
class Prompts;

/// Shows text and font of the values, and puts into them what the user does. The values and
/// prompts are not owned.
class TextFrame : public QGroupBox {
    Q_OBJECT

  public:
    TextFrame(PanelValues& values, Prompts& prompts, QWidget* parent = nullptr);

    /// Shows the values.
    void refresh();
    /// What no text means: that several elements have various ones.
    void setVarious(const VariousParts& various);

  signals:
    /// The user changed a value.
    void changed();

  private:
    void buildText();
    void cmdFont_Click();
    void showText();
    void showFont();

    PanelValues& values_;
    Prompts& prompts_;
    QComboBox* txtText_ = nullptr;
    FontButton* cmdFont_ = nullptr;
    QLabel* fontName_ = nullptr;
};

} // namespace tarvel
