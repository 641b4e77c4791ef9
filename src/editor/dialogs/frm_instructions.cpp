// Shows the text of the instructions and the button that closes them.
#include "dialogs/frm_instructions.h"

#include "widgets/control_names.h"
#include "widgets/path_label.h"
#include "widgets/style/heading.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

namespace tarvel {

namespace {

constexpr int iconSize = 32; // pixels at 100 %

QString instructions() {
    return QStringLiteral(
        "The skin files have been generated in the folder you selected\n"
        "-Copy the skin folder into the QOR Skins folder on your Xbox\n"
        "-Restart QOR, and select your skin\n"
        "-Use QOR safe mode with default skin if the skin doesn't work as expected");
}

// Read-only, and exactly as large as its lines.
QPlainTextEdit* makeText(QWidget* parent) {
    auto* text = named(new QPlainTextEdit(parent), "txtIns", QObject::tr("Instructions"));
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
    text->setFixedSize(width, height);
    return text;
}

QLayout* makeHeading(QWidget* parent) {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    if (const QIcon icon = QApplication::windowIcon(); !icon.isNull()) {
        auto* picture = new QLabel(parent);
        picture->setPixmap(icon.pixmap(QSize(iconSize, iconSize), parent->devicePixelRatioF()));
        row->addWidget(picture);
    }
    auto* heading = new QLabel(QObject::tr("Your skin is saved"), parent);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.25);
    heading->setFont(headingFont(font));
    row->addWidget(heading, 1);
    return row;
}

// Which of their folders "the folder you selected" was.
QLayout* makeFolder(const QString& folder, QWidget* parent) {
    auto* row = new QHBoxLayout;
    auto* path = new PathLabel(parent);
    path->setObjectName("lblFolder");
    path->setPath(QDir::toNativeSeparators(folder));
    row->addWidget(new QLabel(QObject::tr("Folder:"), parent));
    row->addWidget(path, 1);
    return row;
}

QPushButton* makeButton(QWidget* parent) {
    auto* button = named(new QPushButton(QObject::tr("OK"), parent), QStringLiteral("Command1"),
                         QObject::tr("OK: close the instructions"));
    button->setDefault(true);
    button->setToolTip(QObject::tr("Close the instructions (Return or Escape)"));
    return button;
}

} // namespace

FrmInstructions::FrmInstructions(const QString& folder, QWidget* parent)
    : QDialog(parent) {
    setObjectName("frmInstructions");
    setWindowTitle(tr("Instructions"));

    QPushButton* button = makeButton(this);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 18, 20, 16);
    column->setSpacing(14);
    column->addLayout(makeHeading(this));
    column->addLayout(makeFolder(folder, this));
    column->addWidget(makeText(this));
    column->addWidget(button, 0, Qt::AlignRight);
    column->setSizeConstraint(QLayout::SetFixedSize);
    button->setFocus();
}

} // namespace tarvel
