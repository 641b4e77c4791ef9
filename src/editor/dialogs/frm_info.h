// The dialog for the skin's name and its optional information.
#pragma once

#include "dialogs/skin_dialog.h"

namespace tarvel {

class FieldEdit;
class FieldsFrame;

/// Fields can be added, but not removed.
class FrmInfo : public SkinDialog {
    Q_OBJECT

  public:
    FrmInfo(SkinDocument& document, Prompts& prompts, QWidget* parent = nullptr);

  protected:
    void readDocument() override;

  private:
    void cmdAdd_Click();
    void listFields();

    FieldEdit* txtName_;
    FieldsFrame* fields_;
};

} // namespace tarvel
