// The dialog for the display delays.
#pragma once

#include "dialogs/skin_dialog.h"

namespace tarvel {

class FieldsFrame;

/// Delays are in milliseconds.
class FrmDelays : public SkinDialog {
    Q_OBJECT

  public:
    FrmDelays(SkinDocument& document, Prompts& prompts, QWidget* parent = nullptr);

  protected:
    void readDocument() override;

  private:
    FieldsFrame* fields_;
};

} // namespace tarvel
