// Builds four boxes that take digits only, and stores what they say as timers.
#include "panels/timer_panel.h"

#include "editing/step_names.h"
#include "widgets/control_names.h"
#include "widgets/field_edit.h"
#include "widgets/icon_label.h"
#include "widgets/qt_text.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int helpLetters = 34; // in a line

// Numbers come out of tables and lines of text with white space around them, which goes: from what
// the keys paste, and from a text that the mouse has put in place of another.
class NumberValidator : public QRegularExpressionValidator {
  public:
    explicit NumberValidator(QObject* parent)
        : QRegularExpressionValidator(QRegularExpression(QStringLiteral("-?[0-9]*")), parent) {}

    State validate(QString& input, int& position) const override {
        const QString number = input.trimmed();
        if (number.isEmpty() && !input.isEmpty()) {
            return Invalid;
        }
        const auto before = static_cast<int>(input.indexOf(number));
        position = std::clamp(position - before, 0, static_cast<int>(number.size()));
        input = number;
        return QRegularExpressionValidator::validate(input, position);
    }
};

// A box that takes digits only. Other text can stand in it when it was set, or pasted as a number.
class TimerEdit : public FieldEdit {
  public:
    TimerEdit() {
        setValidator(new NumberValidator(this));
        setInputMethodHints(Qt::ImhDigitsOnly);
        setAlignment(Qt::AlignRight);
        setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("-2147483648")));
    }

  protected:
    // txtTimer_KeyPress
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Paste)) {
            pasteTrimmed();
            event->accept();
            return;
        }
        const QString typed = event->text();
        const bool shortcut =
            (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
        const bool character = !typed.isEmpty() && typed.front().isPrint() && !shortcut;
        if (character && numsonly(typed.front().unicode()) == 0) {
            event->accept();
            return;
        }
        FieldEdit::keyPressEvent(event);
    }

    // What an input method hands over was typed as well.
    void inputMethodEvent(QInputMethodEvent* event) override {
        QString digits;
        for (const QChar c : event->commitString()) {
            if (c.isPrint() && numsonly(c.unicode()) != 0) {
                digits += c;
            }
        }
        QInputMethodEvent typed(event->preeditString(), event->attributes());
        typed.setCommitString(digits, event->replacementStart(), event->replacementLength());
        FieldEdit::inputMethodEvent(&typed);
        event->setAccepted(typed.isAccepted());
    }

  private:
    void pasteTrimmed() {
        const QString number = QGuiApplication::clipboard()->text().trimmed();
        if (!number.isEmpty()) { // nothing would still take the place of what is selected
            insert(number);
        }
    }
};

} // namespace

TimerPanel::TimerPanel(SkinDocument& document, QWidget* parent)
    : BehaviourPanel(document, step::timers, QStringLiteral("fraModifier(1)"),
                     QStringLiteral("TIMERS:"), parent) {
    setAccessibleName(tr("Timers of the element"));
    rows().addWidget(makeBoxes());
    rows().addWidget(makeMessage());
    addOk(QStringLiteral("cmdTimersOK"), tr("store the timers"));
    setFirstControl(txtTimer_.front());
}

QWidget* TimerPanel::makeBoxes() {
    auto* boxes = new QWidget;
    auto* grid = new QGridLayout(boxes);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(12);
    for (std::size_t slot = 0; slot < timerSlots; ++slot) {
        const int row = static_cast<int>(slot);
        const QString help = qtText(timerTexts[slot].help);
        // What is read out is spelt as the file spells it.
        const QString spoken = slot == static_cast<std::size_t>(TimerSlot::Lifetime)
                                   ? QStringLiteral("Lifetime")
                                   : qtText(timerTexts[slot].caption);
        auto* box = named(new TimerEdit, QStringLiteral("txtTimer(%1)").arg(row),
                          tr("%1 in milliseconds").arg(spoken));
        box->setAccessibleDescription(help);
        connect(box, &QLineEdit::textChanged, this, &TimerPanel::txtTimer_Change);
        auto* caption = new QLabel(qtText(timerTexts[slot].caption));
        caption->setBuddy(box);
        auto* beside = new QLabel(help);
        beside->setWordWrap(true);
        beside->setMinimumWidth(helpLetters * beside->fontMetrics().averageCharWidth());
        grid->addWidget(caption, row, 0);
        grid->addWidget(box, row, 1);
        grid->addWidget(beside, row, 2);
        txtTimer_[slot] = box;
    }
    grid->setColumnStretch(2, 1);
    return boxes;
}

QWidget* TimerPanel::makeMessage() {
    auto* message = new QWidget;
    auto* row = new QHBoxLayout(message);
    row->setContentsMargins(0, 0, 0, 0);
    warningSign_ = new IconLabel(IconName::warning);
    lblTimersMsg_ = new QLabel;
    lblTimersMsg_->setObjectName(QStringLiteral("lblTimersMsg"));
    lblTimersMsg_->setWordWrap(true);
    // Room for the warning is kept, so that nothing moves under the user's hands.
    lblTimersMsg_->setMinimumHeight(2 * lblTimersMsg_->fontMetrics().lineSpacing());
    row->addWidget(warningSign_);
    row->addWidget(lblTimersMsg_, 1);
    return message;
}

void TimerPanel::fill(const Element& element) {
    const TimerBoxes texts = timerBoxes(element.elementTimers);
    for (std::size_t slot = 0; slot < timerSlots; ++slot) {
        txtTimer_[slot]->setText(qtText(texts[slot]));
    }
    txtTimer_Change();
}

void TimerPanel::store(Element& element) const {
    element.elementTimers = timerValues(boxes());
}

TimerBoxes TimerPanel::boxes() const {
    TimerBoxes texts;
    for (std::size_t slot = 0; slot < timerSlots; ++slot) {
        texts[slot] = coreText(txtTimer_[slot]->text());
    }
    return texts;
}

void TimerPanel::txtTimer_Change() {
    const QString message = qtText(timersMessage(boxes()));
    lblTimersMsg_->setText(message);
    warningSign_->setVisible(!message.isEmpty());
}

} // namespace tarvel
