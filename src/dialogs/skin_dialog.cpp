// Opening and closing of the settings dialogs.
#include "dialogs/skin_dialog.h"

#include <QPushButton>
#include <QShowEvent>

namespace tarvel {

QColor faintText(const QPalette& palette) {
    QColor color = palette.color(QPalette::Text);
    color.setAlphaF(0.6F);
    return color;
}

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
    connect(button, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    return button;
}

} // namespace tarvel
