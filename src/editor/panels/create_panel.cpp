// Makes one button for each tool, and tells which one is chosen or let go.
#include "panels/create_panel.h"

#include "surface/element_looks.h"
#include "widgets/accessible_roles.h"
#include "widgets/control_names.h"
#include "widgets/wrap_layout.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolButton>

#include <algorithm>

namespace tarvel {

namespace {

bool asksToKeep(const QEvent& event) {
    if (event.type() == QEvent::MouseButtonDblClick) {
        return static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
    }
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_Space && key.modifiers() == Qt::ShiftModifier;
}

} // namespace

CreatePanel::CreatePanel(QWidget* parent)
    : QGroupBox(QStringLiteral("CREATE"), parent) {
    named(this, QStringLiteral("fraCreate"), tr("Create elements"));
    auto* row = new WrapLayout(WrapLayout::Fill::none, this);
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const KindLook::Tool& tool = kindLooks[i]->tool;
        auto* button = new QToolButton;
        beRadioButton(*button); // before anything about it is told
        button->setObjectName(QLatin1String(tool.name));
        button->setText(QLatin1String(tool.caption));
        button->setAccessibleName(button->text());
        button->setToolTip(tr("%1.\nReturn puts one into the middle; a double click, or "
                              "Shift+Space, keeps the tool.")
                               .arg(QLatin1String(tool.tip)));
        button->setIcon(icon(tool.icon));
        button->setIconSize({toolIcon, toolIcon});
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->installEventFilter(this);
        connect(button, &QToolButton::clicked, this, [this, i] { clicked(i); });
        row->addWidget(button);
        buttons_[i] = button;
    }
}

void CreatePanel::clicked(std::size_t index) {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        if (i != index) {
            buttons_[i]->setChecked(false);
        }
    }
    isKept_ = false;
    showKept();
    emit toolChosen(tool());
}

// The first click of a double click has chosen the tool, or let it go.
void CreatePanel::keep(std::size_t index) {
    if (!buttons_.at(index)->isChecked()) {
        buttons_.at(index)->setChecked(true);
        clicked(index);
    }
    isKept_ = true;
    showKept();
}

void CreatePanel::showKept() {
    for (QToolButton* button : buttons_) {
        const bool isKept = isKept_ && button->isChecked();
        QFont font = button->font();
        font.setUnderline(isKept); // which leaves all buttons in their places
        button->setFont(font);
        button->setAccessibleDescription(isKept ? tr("Kept until Escape") : QString());
    }
}

bool CreatePanel::eventFilter(QObject* watched, QEvent* event) {
    const auto found = std::find(buttons_.begin(), buttons_.end(), watched);
    if (found == buttons_.end() || !(*found)->isEnabled() || !asksToKeep(*event)) {
        return QGroupBox::eventFilter(watched, event);
    }
    keep(static_cast<std::size_t>(found - buttons_.begin()));
    return true; // to the button it would be one more click
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
    isKept_ = false;
    showKept();
}

} // namespace tarvel
