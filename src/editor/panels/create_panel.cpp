// Tool buttons.
#include "panels/create_panel.h"

#include "widgets/accessible_roles.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace tarvel {

namespace {

struct Tool {
    ElementKind kind;
    const char* name;
    const char* caption;
    const char* icon;
    const char* tip;
};

constexpr std::array<Tool, 5> tools = {
    {{ElementKind::Box, "optBox", "Box", "tool-box", "Draw a filled box or a frame"},
     {ElementKind::Line, "optLine", "Line", "tool-line", "Draw a line"},
     {ElementKind::Image, "optImg", "Image/Video", "tool-image",
      "Place a picture or a video of the skin's resources"},
     {ElementKind::Text, "optText", "Text", "tool-text",
      "Place a text: your own, or one that the dashboard fills in"},
     {ElementKind::Menu, "optQor", "Game List (QOR Menu)", "tool-menu",
      "Place the list of games"}}};

} // namespace

CreatePanel::CreatePanel(QWidget* parent)
    : QGroupBox(QStringLiteral("CREATE"), parent) {
    setObjectName(QStringLiteral("fraCreate"));
    setAccessibleName(tr("Create elements"));
    auto* row = new QHBoxLayout(this);
    for (std::size_t i = 0; i < tools.size(); ++i) {
        const Tool& tool = tools[i];
        auto* button = new QToolButton;
        button->setObjectName(QLatin1String(tool.name));
        button->setText(QLatin1String(tool.caption));
        button->setAccessibleName(button->text());
        button->setToolTip(QLatin1String(tool.tip));
        button->setIcon(QIcon(QStringLiteral(":/tarvel/%1.png").arg(QLatin1String(tool.icon))));
        button->setIconSize({20, 20});
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setCheckable(true);
        beRadioButton(*button);
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
            return tools[i].kind;
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
