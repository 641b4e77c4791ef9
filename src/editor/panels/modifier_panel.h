// The panel for an element's modifier.
#pragma once

#include "editing/modifier_editor.h"
#include "panels/behaviour_panel.h"

#include <filesystem>
#include <string>
#include <vector>

class QComboBox;
class QGroupBox;
class QLineEdit;
class QStackedWidget;

namespace tarvel {

class ColorFrame;
class Prompts;

/// fraModifier(0). Reads the catalogue anew each time it is opened. `prompts` is not owned and
/// outlives the panel; it tells when a stored modifier cannot be shown.
class ModifierPanel : public BehaviourPanel {
    Q_OBJECT

  public:
    /// `programFolder` is where the catalogue is looked for.
    ModifierPanel(SkinDocument& document, Prompts& prompts, std::filesystem::path programFolder,
                  QWidget* parent = nullptr);

  protected:
    void fill(const Element& element) override;
    void store(Element& element) const override;
    [[nodiscard]] bool suits(ElementKind kind) const override;

  private:
    /// A box and the text that it shows, which belongs to the editor.
    struct TextBox {
        QLineEdit* edit;
        std::string* text;
    };

    void addLists();
    void addFrames();
    QGroupBox* makeRange();
    QGroupBox* makeBounds();
    QWidget* makeColorPage();
    QLineEdit* makeTextBox(const QString& name, const QString& accessibleName, std::string& text);
    void lstMods_Click(int row);
    void lstTargets_Click(int row);
    void refreshLists();
    void refreshFrames();

    Prompts& prompts_;
    std::filesystem::path programFolder_;
    ModifierEditor editor_;
    std::vector<std::string> carried_; // types of the element's modifiers when the panel opened

    QComboBox* lstMods_;
    QLabel* lblTargets_;
    QComboBox* lstTargets_;
    QStackedWidget* frames_; // one page for each ParameterPanel, in its order
    QLabel* lblNoValues_;
    ColorFrame* fraColor_;
    std::vector<TextBox> textBoxes_;
};

} // namespace tarvel
