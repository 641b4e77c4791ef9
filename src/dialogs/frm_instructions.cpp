// The Instructions dialog.
#include "dialogs/frm_instructions.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTextDocument>
#include <QVBoxLayout>

namespace tarvel {

namespace {

QString instructions() {
    return QStringLiteral(
        "The skin files have been generated in the folder you selected\n"
        "-Copy the skin folder into the QOR Skins folder on your Xbox\n"
        "-Restart QOR, and select your skin\n"
        "-Use QOR safe mode with default skin if the skin doesn't work as expected");
}

// Read-only, and exactly as large as its lines.
QPlainTextEdit* makeText(QWidget* parent) {
    auto* text = new QPlainTextEdit(parent);
    text->setObjectName("txtIns");
    text->setAccessibleName(QObject::tr("Instructions"));
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->document()->setDocumentMargin(8);
    text->setPlainText(instructions());

    const QFontMetrics metrics(text->font());
    const int margins = 2 * (text->frameWidth() + qRound(text->document()->documentMargin()));
    const QSize lines = metrics.size(0, instructions());
    const int width = lines.width() + margins + metrics.averageCharWidth();
    const int height = text->document()->blockCount() * metrics.lineSpacing() + margins + 2;
    text->setMinimumSize(width, height);
    return text;
}

} // namespace

FrmInstructions::FrmInstructions(QWidget* parent)
    : QDialog(parent) {
    setObjectName("frmInstructions");
    setWindowTitle(tr("Instructions"));

    auto* icon = new QLabel(this);
    const int iconSize = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(style()
                        ->standardIcon(QStyle::SP_MessageBoxInformation, nullptr, this)
                        .pixmap(QSize(iconSize, iconSize), devicePixelRatioF()));
    auto* heading = new QLabel(tr("Your skin is saved"), this);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.25);
    font.setBold(true);
    heading->setFont(font);
    auto* headingRow = new QHBoxLayout;
    headingRow->setSpacing(12);
    headingRow->addWidget(icon);
    headingRow->addWidget(heading, 1);

    auto* button = new QPushButton(tr("OK"), this);
    button->setObjectName("Command1");
    button->setAccessibleName(tr("Close the instructions"));
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addStretch(1);
    buttonRow->addWidget(button);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 18, 20, 16);
    column->setSpacing(14);
    column->addLayout(headingRow);
    column->addWidget(makeText(this));
    column->addLayout(buttonRow);
    column->setSizeConstraint(QLayout::SetFixedSize);
    button->setFocus();
}

} // namespace tarvel
