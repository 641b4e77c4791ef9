// Brings a settings dialog into line with the document when it opens, and makes its OK button.
#include "dialogs/skin_dialog.h"

#include "widgets/control_names.h"

#include <QPushButton>
#include <QShowEvent>

namespace tarvel {

SkinDialog::SkinDialog(const QString& name, const QString& title, SkinDocument& document,
                       Prompts& prompts, QWidget* parent)
    : QDialog(parent)
    , document_(document)
    , prompts_(prompts) {
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
}

void SkinDialog::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        readDocument(); // first, since the size may depend on it and the place on the size
    }
    QDialog::showEvent(event);
}

QPushButton* SkinDialog::makeOk() {
    auto* button = named(new QPushButton(tr("OK")), QStringLiteral("cmdOK"), tr("OK: close"));
    button->setDefault(true);
    button->setToolTip(tr("Close the dialog. What was changed is in the skin already (Escape)."));
    connect(button, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    return button;
}

} // namespace tarvel
