// Makes one button for each tool, and tells which one is chosen or let go.
#include "panels/create_panel.h"

#include "surface/element_looks.h"
#include "widgets/accessible_roles.h"
#include "widgets/control_names.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace tarvel {

CreatePanel::CreatePanel(QWidget* parent)
    : QGroupBox(QStringLiteral("CREATE"), parent) {
    named(this, QStringLiteral("fraCreate"), tr("Create elements"));
    auto* row = new QHBoxLayout(this);
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const KindLook::Tool& tool = kindLooks[i]->tool;
        auto* button = new QToolButton;
        beRadioButton(*button); // before anything about it is told
        button->setObjectName(QLatin1String(tool.name));
        button->setText(QLatin1String(tool.caption));
        button->setAccessibleName(button->text());
        button->setToolTip(QLatin1String(tool.tip));
        button->setIcon(QIcon(QStringLiteral(":/tarvel/%1.png").arg(QLatin1String(tool.icon))));
        button->setIconSize({20, 20});
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, i] { clicked(i); });
        row->addWidget(button);
        buttons_[i] = button;
    }
    row->addStretch();
}

void CreatePanel::clicked(std::size_t index) {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        if (i != index) {
            buttons_[i]->setChecked(false);
        }
    }
    emit toolChosen(tool());
}

std::optional<ElementKind> CreatePanel::tool() const {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        if (buttons_[i]->isChecked()) {
            return elementKinds[i]->kind;
        }
    }
    return std::nullopt;
}

void CreatePanel::releaseTool() {
    for (QToolButton* button : buttons_) {
        button->setChecked(false);
    }
}

} // namespace tarvel
