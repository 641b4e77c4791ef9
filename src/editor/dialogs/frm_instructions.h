// What to do with a skin once it is saved.
#pragma once

#include <QDialog>

namespace tarvel {

/// Shown modally with exec(). Enter, Escape and the button close it.
class FrmInstructions : public QDialog {
    Q_OBJECT

  public:
    /// `folder` is where the skin was saved to, as the user knows it.
    explicit FrmInstructions(const QString& folder, QWidget* parent = nullptr);
};

} // namespace tarvel
