// Chooses the letters by a matching: a caption gives its letter up for another one of its own when
// a later caption would be left without.
#include "widgets/mnemonics.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QMap>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSet>

#include <algorithm>

namespace tarvel {

namespace {

// Where the mnemonic's "&" stands; "&&" is a plain one.
qsizetype markOf(const QString& caption) {
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&')) {
            if (caption[i + 1] != QLatin1Char('&')) {
                return i;
            }
            ++i;
        }
    }
    return -1;
}

struct Letter {
    QChar letter; // in lower case
    qsizetype at;
};

// Letters and digits that can be typed, first those that begin a word.
QList<Letter> lettersOf(const QString& caption) {
    QList<Letter> first;
    QList<Letter> rest;
    bool inWord = false;
    for (qsizetype i = 0; i < caption.size() && caption[i] != QLatin1Char('\t'); ++i) {
        const bool isLetter = caption[i].isLetterOrNumber() && caption[i].unicode() < 128;
        if (isLetter) {
            (inWord ? rest : first).append({caption[i].toLower(), i});
        }
        inWord = isLetter;
    }
    return first + rest;
}

class Matching {
  public:
    Matching(const QStringList& captions, const QString& taken) {
        for (const QChar letter : taken) {
            holders_[letter] = fixed;
        }
        for (const QString& caption : captions) {
            const QChar own = mnemonicOf(caption);
            if (!own.isNull()) {
                holders_[own] = fixed;
            }
            letters_.append(own.isNull() ? lettersOf(caption) : QList<Letter>());
        }
        for (qsizetype caption = 0; caption < letters_.size(); ++caption) {
            QSet<QChar> tried;
            find(caption, tried);
        }
    }

    // Where its letter stands; -1 when it has none.
    [[nodiscard]] qsizetype placeFor(qsizetype caption) const {
        for (const Letter& letter : letters_[caption]) {
            if (holders_.value(letter.letter, nobody) == caption) {
                return letter.at;
            }
        }
        return -1;
    }

  private:
    static constexpr qsizetype nobody = -1;
    static constexpr qsizetype fixed = -2;

    bool find(qsizetype caption, QSet<QChar>& tried) {
        for (const Letter& letter : letters_[caption]) {
            if (!holders_.contains(letter.letter)) {
                holders_[letter.letter] = caption;
                return true;
            }
        }
        for (const Letter& letter : letters_[caption]) {
            const qsizetype holder = holders_.value(letter.letter);
            if (holder == fixed || tried.contains(letter.letter)) {
                continue;
            }
            tried.insert(letter.letter);
            if (holder == caption || find(holder, tried)) {
                holders_[letter.letter] = caption;
                return true;
            }
        }
        return false;
    }

    QList<QList<Letter>> letters_;   // by caption
    QMap<QChar, qsizetype> holders_; // of letters
};

bool lacksMnemonic(const QString& caption) {
    return mnemonicOf(caption).isNull() && !lettersOf(caption).isEmpty();
}

} // namespace

QChar mnemonicOf(const QString& caption) {
    const qsizetype mark = markOf(caption);
    return mark < 0 ? QChar() : caption[mark + 1].toLower();
}

QStringList withMnemonics(QStringList captions, const QString& taken) {
    const Matching matching(captions, taken);
    for (qsizetype i = 0; i < captions.size(); ++i) {
        const qsizetype at = matching.placeFor(i);
        if (at >= 0) {
            captions[i].insert(at, QLatin1Char('&'));
        }
    }
    return captions;
}

void giveMnemonics(const QList<QAction*>& entries) {
    QList<QAction*> named = entries;
    named.removeIf([](const QAction* entry) { return entry->isSeparator(); });
    QStringList captions;
    std::transform(named.begin(), named.end(), std::back_inserter(captions),
                   [](const QAction* entry) { return entry->text(); });
    if (std::none_of(captions.begin(), captions.end(), lacksMnemonic)) {
        return; // every change of an entry comes here
    }
    captions = withMnemonics(captions);
    for (qsizetype i = 0; i < named.size(); ++i) {
        named[i]->setText(captions[i]);
    }
}

QString giveMnemonics(const QList<QAbstractButton*>& buttons, const QString& taken) {
    QStringList captions;
    std::transform(buttons.begin(), buttons.end(), std::back_inserter(captions),
                   [](const QAbstractButton* button) { return button->text(); });
    captions = withMnemonics(captions, taken);
    QString all = taken;
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        if (buttons[i]->text() != captions[i]) {
            buttons[i]->setText(captions[i]);
        }
        all += mnemonicOf(captions[i]).isNull() ? QString() : QString(mnemonicOf(captions[i]));
    }
    return all;
}

MnemonicKeeper::MnemonicKeeper(QObject* parent)
    : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

MnemonicKeeper::~MnemonicKeeper() {
    QCoreApplication::instance()->removeEventFilter(this);
}

bool MnemonicKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ActionChanged && !giving_) {
        if (const auto* menu = qobject_cast<QMenu*>(watched)) {
            const QScopedValueRollback giving(giving_, true);
            giveMnemonics(menu->actions());
        }
    } else if (event->type() == QEvent::Show) {
        if (const auto* dialog = qobject_cast<QDialog*>(watched)) {
            auto buttons = dialog->findChildren<QAbstractButton*>();
            buttons.removeIf([&](const QAbstractButton* each) { return each->window() != dialog; });
            giveMnemonics(buttons);
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarvel
