// Makes the buttons of the screens, bold for those that hold elements.
#include "panels/layout_panel.h"

#include "widgets/control_names.h"
#include "widgets/faint_text.h"
#include "widgets/qt_text.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

namespace tarvel {

LayoutPanel::LayoutPanel(const SkinDocument& document, QWidget* parent)
    : QGroupBox(QStringLiteral("CURRENT SCREEN"), parent)
    , document_(document)
    , watch_(document.watch(*this)) {
    named(this, QStringLiteral("fraLayout"), QStringLiteral("Current screen"));
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(2);
    grid->setVerticalSpacing(3);
    grid->setRowStretch(screenCount, 1);
    grid->setColumnStretch(1, 1); // the notes stay beside their captions
    for (int screen = 0; screen < screenCount; ++screen) {
        const LayoutScreen& shown = layoutScreens[static_cast<std::size_t>(screen)];
        auto* button = named(new QRadioButton(qtText(shown.caption)),
                             QStringLiteral("optScreen(%1)").arg(screen),
                             QStringLiteral("%1 screen").arg(qtText(shown.caption)));
        // Bold captions are wider: without the room the panel would jump.
        QFont bold = button->font();
        bold.setBold(true);
        button->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(button->text()) + 26);
        connect(button, &QRadioButton::clicked, this,
                [this, screen] { emit screenClicked(screen); });
        grid->addWidget(button, screen, 0);
        if (!shown.note.empty()) {
            auto* note = new QLabel(qtText(shown.note));
            grid->addWidget(note, screen, 1);
            notes_.push_back(note);
        }
        optScreen_[static_cast<std::size_t>(screen)] = button;
    }
    setCurrent();
    setLayoutBolds();
    colorNotes();
}

void LayoutPanel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange ||
        event->type() == QEvent::ApplicationPaletteChange) {
        colorNotes();
    }
    QGroupBox::changeEvent(event);
}

void LayoutPanel::colorNotes() {
    for (QLabel* note : notes_) {
        QPalette colors = palette();
        const QColor faint = faintText(colors);
        colors.setColor(QPalette::Active, QPalette::WindowText, faint);
        colors.setColor(QPalette::Inactive, QPalette::WindowText, faint);
        note->setPalette(colors);
    }
}

void LayoutPanel::documentChanged(const DocumentChange& change) {
    switch (change.what) {
    case DocumentChange::What::everything:
    case DocumentChange::What::currentLayout:
        setCurrent();
        setLayoutBolds();
        break;
    case DocumentChange::What::counts:
        setLayoutBolds();
        break;
    case DocumentChange::What::settings:
    case DocumentChange::What::rows:
    case DocumentChange::What::rowText:
    case DocumentChange::What::element:
    case DocumentChange::What::elements:
    case DocumentChange::What::rowTexts:
        break;
    }
}

void LayoutPanel::setCurrent() {
    QRadioButton* current = optScreen_.at(static_cast<std::size_t>(document_.currentLayout()));
    current->setChecked(true);
    // Coming in by Tab leads to the one that is checked; arrow keys lead to the others.
    for (QRadioButton* button : optScreen_) {
        button->setFocusPolicy(button == current ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

int LayoutPanel::current() const {
    int checked = document_.currentLayout();
    for (int screen = 0; screen < screenCount; ++screen) {
        if (optScreen_[static_cast<std::size_t>(screen)]->isChecked()) {
            checked = screen;
        }
    }
    return checked;
}

void LayoutPanel::setLayoutBolds() {
    for (int screen = 0; screen < screenCount; ++screen) {
        QRadioButton* button = optScreen_[static_cast<std::size_t>(screen)];
        QFont font = button->font();
        font.setBold(isLayoutBold(document_, screen));
        button->setFont(font);
    }
}

} // namespace tarvel
