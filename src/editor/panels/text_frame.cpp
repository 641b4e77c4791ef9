// Lets a text be typed or a field of the dashboard chosen, and its font.
#include "panels/text_frame.h"

#include "document/kinds/panel_texts.h"
#include "widgets/control_names.h"
#include "widgets/drop_down.h"
#include "widgets/font_button.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace tarvel {

namespace {

constexpr int rowsOfPopup = 18;

} // namespace

TextFrame::TextFrame(PanelValues& values, Prompts& prompts, QWidget* parent)
    : QGroupBox(qtText(caption::text), parent)
    , values_(values)
    , prompts_(prompts) {
    named(this, QStringLiteral("fraText"), tr("Text and font"));
    auto* column = new QVBoxLayout(this);
    buildText();
    auto* lblText = new QLabel(qtText(caption::chooseText));
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    lblText->setBuddy(txtText_);
    column->addWidget(lblText);
    column->addWidget(txtText_);
    auto* row = new QHBoxLayout;
    cmdFont_ = named(new FontButton(qtText(caption::font)), QStringLiteral("cmdFont"));
    connect(cmdFont_, &FontButton::clicked, this, &TextFrame::cmdFont_Click);
    fontName_ = new QLabel;
    fontName_->setObjectName(QStringLiteral("fontName"));
    fontName_->setTextFormat(Qt::PlainText);
    fontName_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(cmdFont_);
    row->addWidget(fontName_, 1);
    column->addLayout(row);
    refresh();
}

void TextFrame::buildText() {
    txtText_ = named(new DropDown, QStringLiteral("txtText"),
                     tr("Select predefined text below, or enter custom text"));
    for (const std::string_view entry : predefinedTexts) {
        txtText_->addItem(qtText(entry));
    }
    txtText_->setEditable(true);
    txtText_->setInsertPolicy(QComboBox::NoInsert);
    // What is typed stays as it is: neither completed, nor turned into an entry that is spelt the
    // same when the typing ends.
    txtText_->setCompleter(nullptr);
    disconnect(txtText_->lineEdit(), &QLineEdit::editingFinished, txtText_, nullptr);
    txtText_->lineEdit()->setAccessibleName(txtText_->accessibleName());
    txtText_->view()->setAccessibleName(tr("Fields of the dashboard"));
    txtText_->setMaxVisibleItems(rowsOfPopup);
    txtText_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(txtText_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        values_.text = coreText(text);
        values_.textIsEntry = false;
        emit changed();
    });
    connect(txtText_, &QComboBox::activated, this, [this](int index) {
        if (static_cast<std::size_t>(index) >= predefinedTexts.size()) {
            return;
        }
        values_.text = predefinedTexts.at(static_cast<std::size_t>(index));
        values_.textIsEntry = true;
        emit changed();
    });
}

void TextFrame::cmdFont_Click() {
    if (const auto chosen = prompts_.font(window(), fontOf(values_.font))) {
        values_.font = choiceOf(*chosen);
        showFont();
        emit changed();
    }
}

void TextFrame::refresh() {
    showText();
    showFont();
}

void TextFrame::showText() {
    const QString text = qtText(values_.text);
    const int entry = values_.textIsEntry
                          ? txtText_->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive)
                          : -1;
    if (txtText_->currentText() == text && txtText_->currentIndex() == entry) {
        return;
    }
    const QSignalBlocker silence(txtText_);
    txtText_->setCurrentIndex(entry);
    txtText_->setEditText(text);
    txtText_->lineEdit()->setCursorPosition(0);
}

void TextFrame::setVarious(const VariousParts& various) {
    txtText_->lineEdit()->setPlaceholderText(various.text ? qtText(variousText) : QString());
}

void TextFrame::showFont() {
    const bool various = isVarious(values_.font);
    cmdFont_->setChoice(various ? FontChoice() : values_.font);
    fontName_->setText(various ? qtText(variousText) : describeFont(values_.font));
    fontName_->setToolTip(fontName_->text());
}

} // namespace tarvel
