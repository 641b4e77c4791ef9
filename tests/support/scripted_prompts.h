// Prompts for tests: answers out of a script, and a record of what was asked.
#pragma once

#include "widgets/prompts.h"

#include <QList>

#include <functional>

namespace tarvel::test {

/// Takes each answer from the front of its list; an empty list answers as a cancelled dialog does.
class ScriptedPrompts : public Prompts {
  public:
    QList<Answer> answers;
    QStringList inputs;
    QStringList folders;
    QList<QStringList> fileChoices;
    QList<QColor> colors; ///< an invalid colour cancels
    QList<QFont> fonts;

    // What was asked, in order.
    QStringList messages;
    QStringList questions;
    QStringList inputPrompts;
    QStringList folderTitles;
    QStringList filters;          ///< of the file choosers
    QList<bool> severals;         ///< whether the file choosers took several files
    QList<QColor> initialColors;  ///< of the colour choosers
    QList<QFont> initialFonts;    ///< of the font choosers
    QWidget* lastOwner = nullptr; ///< of whatever was asked last

    /// Called while a message is shown.
    std::function<void()> onMessage;

    void message(QWidget* owner, const QString& text) override {
        lastOwner = owner;
        messages << text;
        if (onMessage) {
            onMessage();
        }
    }
    Answer question(QWidget* owner, const QString& text) override {
        lastOwner = owner;
        questions << text;
        return answers.isEmpty() ? Answer::Cancel : answers.takeFirst();
    }
    bool confirm(QWidget* owner, const QString& text) override {
        lastOwner = owner;
        questions << text;
        return !answers.isEmpty() && answers.takeFirst() == Answer::Yes;
    }
    QString input(QWidget* owner, const QString& prompt) override {
        lastOwner = owner;
        inputPrompts << prompt;
        return inputs.isEmpty() ? QString() : inputs.takeFirst();
    }
    QString folder(QWidget* owner, const QString& title) override {
        lastOwner = owner;
        folderTitles << title;
        return folders.isEmpty() ? QString() : folders.takeFirst();
    }
    QStringList files(QWidget* owner, const QString& filter, bool several) override {
        lastOwner = owner;
        filters << filter;
        severals << several;
        return fileChoices.isEmpty() ? QStringList() : fileChoices.takeFirst();
    }
    std::optional<QColor> color(QWidget* owner, const QColor& initial) override {
        lastOwner = owner;
        initialColors << initial;
        const QColor chosen = colors.isEmpty() ? QColor() : colors.takeFirst();
        return chosen.isValid() ? std::optional(chosen) : std::nullopt;
    }
    std::optional<QFont> font(QWidget* owner, const QFont& initial) override {
        lastOwner = owner;
        initialFonts << initial;
        return fonts.isEmpty() ? std::nullopt : std::optional(fonts.takeFirst());
    }
};

} // namespace tarvel::test
