// Lays the strip out in rows that wrap, and draws the marks of the conditions.
#include "panels/play_panel.h"

#include "widgets/control_names.h"
#include "widgets/drop_down.h"
#include "widgets/elided_label.h"
#include "widgets/icons.h"
#include "widgets/qt_text.h"
#include "widgets/tick_label.h"
#include "widgets/wrap_layout.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace tarvel {

namespace {

struct Speed {
    int quarters;
    const char* caption;
};
constexpr std::array speeds = {Speed{1, "1/4"}, Speed{2, "1/2"}, Speed{4, "1"}, Speed{8, "2"},
                               Speed{16, "4"}};

// Six stand in a row beside a screen of its own size: without the room that others have at their
// sides.
class ConditionButton : public QToolButton {
  public:
    [[nodiscard]] QSize sizeHint() const override {
        constexpr int sides = 6;
        return QToolButton::sizeHint() - QSize(sides, 0);
    }
};

// Mouse users keep the keys for the screen that plays; Tab still comes here.
template <class Control> Control* withoutClickFocus(Control* control) {
    control->setFocusPolicy(Qt::TabFocus);
    return control;
}

template <class Button = QToolButton>
Button* button(const QString& name, const QString& caption, const QString& accessible,
               const QString& tip) {
    auto* made = withoutClickFocus(named(new Button, name, accessible));
    made->setText(caption);
    made->setToolTip(tip);
    return made;
}

} // namespace

QString playTimeText(PlayTime time) {
    constexpr PlayTime tenth = 100;
    constexpr PlayTime perSecond = 10;
    constexpr PlayTime perMinute = 60 * perSecond;
    const PlayTime tenths = time / tenth;
    const PlayTime minutes = tenths / perMinute;
    const QString seconds = QString::number(tenths / perSecond % 60);
    const QString rest = QString::number(tenths % perSecond);
    return minutes == 0 ? QStringLiteral("%1.%2 s").arg(seconds, rest)
                        : QStringLiteral("%1:%2.%3 min")
                              .arg(QString::number(minutes), seconds.rightJustified(2, u'0'), rest);
}

PlayPanel::PlayPanel(QWidget* parent)
    : QWidget(parent) {
    named(this, QStringLiteral("fraPlay"), tr("Play"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeTransport());
    column->addWidget(makeConditions());
    // Its line stays free for it: the screen is not to jump from one to the next.
    lblNotShown_ = new ElidedLabel(Qt::ElideRight);
    lblNotShown_->setObjectName(QStringLiteral("lblNotShown"));
    column->addWidget(lblNotShown_);
}

QWidget* PlayPanel::makeTransport() {
    auto* row = new QWidget;
    auto* layout = new WrapLayout(WrapLayout::Fill::none, row);
    layout->setContentsMargins(0, 0, 0, 0);
    cmdHold_ = button(QStringLiteral("cmdHold"), tr("Hold"), tr("Hold the time"),
                      tr("Hold the time (Space)"));
    cmdHold_->setCheckable(true);
    cmdHold_->setIcon(icon(IconName::hold));
    cmdHold_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(cmdHold_, &QToolButton::clicked, this, [this] { emit holdClicked(); });
    auto* back = button(QStringLiteral("cmdStepBack"), {}, tr("Back by a tenth of a second"),
                        tr("Back by a tenth of a second (Left; with Shift a second)"));
    back->setIcon(icon(IconName::stepBack));
    connect(back, &QToolButton::clicked, this, [this] { emit stepped(-1); });
    auto* on = button(QStringLiteral("cmdStepOn"), {}, tr("On by a tenth of a second"),
                      tr("On by a tenth of a second (Right; with Shift a second)"));
    on->setIcon(icon(IconName::stepOn));
    connect(on, &QToolButton::clicked, this, [this] { emit stepped(1); });
    auto* end = button(QStringLiteral("cmdEndPlay"), tr("End"), tr("End playing"),
                       tr("End playing (Escape, F5)"));
    end->setIcon(icon(IconName::stop));
    end->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(end, &QToolButton::clicked, this, &PlayPanel::endClicked);
    lblTime_ = new TickLabel(QStringLiteral("000:00.0 min"));
    lblTime_->setObjectName(QStringLiteral("lblTime"));
    lblTime_->setAccessibleDescription(tr("Time of the screen")); // its text is its name
    lblRun_ = new TickLabel(tr("Menu: saver in 000:00.0 min"));
    lblRun_->setObjectName(QStringLiteral("lblRun"));
    lblRun_->setAccessibleDescription(tr("The screen that plays"));
    layout->addTogether({cmdHold_, back, on});
    makeSpeed();
    layout->addTogether({new QLabel(tr("Speed")), cboSpeed_});
    layout->addWidget(end);
    layout->addWidget(lblTime_);
    layout->addWidget(lblRun_);
    return row;
}

void PlayPanel::makeSpeed() {
    cboSpeed_ =
        withoutClickFocus(named(new DropDown, QStringLiteral("cboSpeed"), tr("Speed of the time")));
    for (const Speed& speed : speeds) {
        cboSpeed_->addItem(QLatin1String(speed.caption), speed.quarters);
    }
    cboSpeed_->setToolTip(tr("How quick the time is (Plus and Minus)"));
    connect(cboSpeed_, &QComboBox::activated, this,
            [this] { emit speedChosen(cboSpeed_->currentData().toInt()); });
}

QWidget* PlayPanel::makeConditions() {
    auto* row = new QWidget;
    auto* layout = new WrapLayout(WrapLayout::Fill::none, row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (int i = 1; i < static_cast<int>(conditionRows.size()); ++i) {
        layout->addWidget(makeCondition(i));
    }
    return row;
}

QToolButton* PlayPanel::makeCondition(int row) {
    const auto index = static_cast<std::size_t>(row);
    const ConditionRow& condition = conditionRows.at(index);
    const QString name = qtText(condition.text).trimmed();
    auto* made = button<ConditionButton>(
        QStringLiteral("cmdCondition(%1)").arg(row), name, name,
        tr("%1.\nA click forces it on, another one off, and a third leaves it to the list.")
            .arg(qtText(condition.description)));
    made->setCheckable(true);
    made->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    made->setAutoRaise(true);
    connect(made, &QToolButton::clicked, this, [this, index, row] {
        showCondition(index); // which a click has turned over
        emit conditionClicked(row);
    });
    cmdCondition_.at(index) = made;
    showCondition(index);
    return made;
}

void PlayPanel::showCondition(std::size_t row) {
    QToolButton& shown = *cmdCondition_.at(row);
    const auto& [holds, forced] = conditions_.at(row);
    shown.setChecked(forced.has_value());
    shown.setIcon(icon(holds ? IconName::holds : IconName::holdsNot));
    const QString state = holds ? tr("holds") : tr("does not hold");
    shown.setAccessibleDescription(forced ? tr("%1, forced").arg(state) : state);
}

void PlayPanel::setTime(PlayTime time) {
    lblTime_->setText(playTimeText(time));
}

void PlayPanel::setRun(const QString& text) {
    lblRun_->setText(text);
}

void PlayPanel::setHeld(bool held) {
    cmdHold_->setChecked(held);
}

void PlayPanel::setSpeed(int quarters) {
    cboSpeed_->setCurrentIndex(cboSpeed_->findData(quarters));
}

void PlayPanel::setConditions(const Conditions& conditions) {
    for (std::size_t row = 1; row < conditions.size(); ++row) {
        if (conditions.at(row) != conditions_.at(row)) {
            conditions_.at(row) = conditions.at(row);
            showCondition(row);
        }
    }
}

void PlayPanel::setNotShown(const QString& text, const QString& all) {
    lblNotShown_->setText(text);
    lblNotShown_->setToolTip(plainToolTip(all));
}

} // namespace tarvel
