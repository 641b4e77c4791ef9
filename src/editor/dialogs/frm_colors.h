// The dialog for the colours of the dashboard's message box and system menu.
#pragma once

#include "dialogs/skin_dialog.h"
#include "editing/color_rules.h"

#include <array>
#include <vector>

class QGroupBox;

namespace tarvel {

class ColorSample;
class ColorSwatch;
class FieldEdit;

/// A colour's box is named bColor(i) for the border and fColor(i) for the fill of sample box i,
/// Col(i) for sample text i.
class FrmColors : public SkinDialog {
    Q_OBJECT

  public:
    FrmColors(SkinDocument& document, Prompts& prompts, QWidget* parent = nullptr);

  protected:
    void readDocument() override;
    /// Closes the dialog when both opacities are proper.
    void cmdOK_Click() override;

  private:
    struct Row {
        SystemColor color;
        ColorSwatch* swatch;
    };

    QGroupBox* makeGroup(std::size_t box);
    ColorSwatch* makeSwatch(const SystemColor& color);
    void Col_Click(const Row& row);
    void txtAlpha_Change(std::size_t box);
    void showColors();

    std::vector<Row> rows_;
    std::array<FieldEdit*, 2> txtAlpha_{};
    std::array<ColorSample*, 2> shp_{};
};

} // namespace tarvel
