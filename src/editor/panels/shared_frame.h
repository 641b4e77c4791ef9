// The frame "Shared": the colours and the opacity of boxes, lines and texts.
#pragma once

#include "editing/several_values.h"

#include <QGroupBox>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tarvel {

class ClickLabel;
class ColorWell;
class Prompts;

/// Shows border, fill and opacity of the values, and puts into them what the user does. The
/// values and prompts are not owned.
class SharedFrame : public QGroupBox {
    Q_OBJECT

  public:
    SharedFrame(PanelValues& values, Prompts& prompts, QWidget* parent = nullptr);

    /// Shows the values.
    void refresh();
    /// What an opacity without a text means: that several elements have various ones.
    void setVarious(const VariousParts& various);
    /// Shows the controls of a kind, with its captions, and the values.
    void refresh(const PanelLayout& layout);

  signals:
    /// The user changed a value.
    void changed();

  private:
    // A colour: its caption, its box, its value in words, and the button that clears it.
    struct Row {
        QLabel* caption = nullptr;
        ColorWell* well = nullptr;
        ClickLabel* value = nullptr;
        QPushButton* clear = nullptr;

        void setVisible(bool visible) const;
        void show(const Swatch& swatch) const;
    };

    Row borderRow();
    Row fillRow();
    void addRow(QBoxLayout& column, Row& row);
    QBoxLayout* alphaRow();
    void alignRows();
    void ask(Swatch& swatch);

    PanelValues& values_;
    Prompts& prompts_;
    Row border_;
    Row fill_;
    QWidget* fraBox_ = nullptr;
    QLabel* lblAlpha_ = nullptr;
    QLineEdit* txtAlpha_ = nullptr;
};

} // namespace tarvel
