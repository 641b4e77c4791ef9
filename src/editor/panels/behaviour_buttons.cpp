// Makes the three behaviour buttons, and marks what the element carries.
#include "panels/behaviour_buttons.h"

#include "widgets/control_names.h"
#include "widgets/wrap_layout.h"

#include <QAction>
#include <QPushButton>

namespace tarvel {

namespace {

constexpr std::array<const char*, BehaviourButtons::count> captions = {"Modifiers", "Timers",
                                                                       "Condition"};

void markEntry(QAction& entry, bool bold) {
    const QString caption = entry.text();
    const bool marked = caption.endsWith(QLatin1Char('*'));
    if (bold && !marked) {
        entry.setText(caption + QLatin1Char('*'));
    } else if (!bold && marked) {
        entry.setText(caption.chopped(1));
    }
}

} // namespace

BehaviourButtons::BehaviourButtons(std::array<QAction*, count> menuEntries, QWidget* parent)
    : QWidget(parent)
    , mnuModifier_(menuEntries) {
    setObjectName(QStringLiteral("fraBehaviour"));
    auto* row = new WrapLayout(WrapLayout::Fill::evenly, this);
    row->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto* button = new QPushButton(QLatin1String(captions[at]));
        named(button, QStringLiteral("cmdModifier(%1)").arg(i),
              tr("%1 of the selected element").arg(button->text()));
        connect(button, &QPushButton::clicked, this, [this, i] { emit cmdModifier_Click(i); });
        connect(menuEntries[at], &QAction::triggered, this,
                [this, i] { emit cmdModifier_Click(i); });
        row->addWidget(button);
        cmdModifier_[at] = button;
    }
}

void BehaviourButtons::setAvailable(bool available) {
    for (QPushButton* button : cmdModifier_) {
        button->setEnabled(available);
    }
}

void BehaviourButtons::setBolds(const BehaviourMarks& marks) {
    const std::array<bool, count> bold = {marks.modifiers, marks.timers, marks.condition};
    for (std::size_t i = 0; i < bold.size(); ++i) {
        QFont font = cmdModifier_[i]->font();
        font.setBold(bold[i]);
        cmdModifier_[i]->setFont(font);
        markEntry(*mnuModifier_[i], bold[i]);
    }
}

} // namespace tarvel
