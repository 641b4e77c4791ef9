// Asks by Qt's message boxes and choosers.
#include "widgets/qt_prompts.h"

#include "widgets/remembered.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace tarvel {

namespace {

QMessageBox::StandardButton show(QWidget* owner, QMessageBox::Icon icon, const QString& text,
                                 QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, QStringLiteral("Tarvel"), text, buttons, owner);
    box.setTextFormat(Qt::PlainText); // names of files and elements may look like markup
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

QString qtFilter(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    QStringList result;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        result << QStringLiteral("%1 (%2)").arg(parts[i], parts[i + 1]);
    }
    return result.join(QStringLiteral(";;"));
}

void QtPrompts::message(QWidget* owner, const QString& text) {
    show(owner, QMessageBox::Information, text, QMessageBox::Ok);
}

Prompts::Answer QtPrompts::question(QWidget* owner, const QString& text) {
    switch (show(owner, QMessageBox::Question, text,
                 QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

bool QtPrompts::confirm(QWidget* owner, const QString& text) {
    return show(owner, QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

QString QtPrompts::input(QWidget* owner, const QString& prompt) {
    return QInputDialog::getText(owner, QStringLiteral("Tarvel"), prompt);
}

QString QtPrompts::lastFolder() const {
    return remembered_ != nullptr ? remembered_->lastFolder() : lastFolder_;
}

void QtPrompts::setLastFolder(const QString& folder) {
    lastFolder_ = folder;
    if (remembered_ != nullptr) {
        remembered_->rememberLastFolder(folder);
    }
}

QString QtPrompts::folder(QWidget* owner, const QString& title) {
    QString chosen = QFileDialog::getExistingDirectory(owner, title, lastFolder());
    if (!chosen.isEmpty()) {
        setLastFolder(chosen);
    }
    return chosen;
}

QStringList QtPrompts::files(QWidget* owner, const QString& filter, bool several) {
    QFileDialog dialog(owner, QStringLiteral("Open"), lastFolder(), qtFilter(filter));
    dialog.setFileMode(several ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    QStringList chosen = dialog.selectedFiles();
    if (!chosen.isEmpty()) {
        // Not the folder that the dialog shows: a path that was typed leads out of it.
        setLastFolder(QFileInfo(chosen.front()).absolutePath());
    }
    return chosen;
}

std::optional<QColor> QtPrompts::color(QWidget* owner, const QColor& initial) {
    const QColor chosen = QColorDialog::getColor(initial, owner);
    return chosen.isValid() ? std::optional(chosen) : std::nullopt;
}

std::optional<QFont> QtPrompts::font(QWidget* owner, const QFont& initial) {
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, initial, owner);
    return accepted ? std::optional(chosen) : std::nullopt;
}

} // namespace tarvel
