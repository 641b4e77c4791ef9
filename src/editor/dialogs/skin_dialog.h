// What the dialogs for skin-wide settings have in common.
#pragma once

#include "document/skin_document.h"

#include <QDialog>
#include <QString>

class QPushButton;

namespace tarvel {

class Prompts;

/// A modal dialog over settings of the document, which it shows when it is opened and changes with
/// every change of a control. It lives hidden until exec() and may be shown again and again. Escape
/// and the close button do what OK does. Document and prompts are not owned and outlive the dialog.
class SkinDialog : public QDialog {
    Q_OBJECT

  public:
    void reject() override { cmdOK_Click(); }

  protected:
    SkinDialog(const QString& name, const QString& title, SkinDocument& document, Prompts& prompts,
               QWidget* parent);

    /// Brings the controls into line with the document.
    virtual void readDocument() = 0;
    /// Closes the dialog.
    virtual void cmdOK_Click() { accept(); }

    void showEvent(QShowEvent* event) override;

    /// A new default button that runs cmdOK_Click.
    QPushButton* makeOk();

    [[nodiscard]] SkinDocument& document() const { return document_; }
    [[nodiscard]] Prompts& prompts() const { return prompts_; }

  private:
    SkinDocument& document_;
    Prompts& prompts_;
};

} // namespace tarvel
