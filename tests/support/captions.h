// What can be read on buttons and entries: their texts without the marks of their letters.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QString>

namespace tarvel::test {

/// Takes the "&" before the underlined letter away; "&&" is a plain one.
inline QString captionOf(const QString& text) {
    QString caption;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && ++i == text.size()) {
            break;
        }
        caption += text[i];
    }
    return caption;
}

inline QString captionOf(const QAbstractButton& button) {
    return captionOf(button.text());
}

inline QString captionOf(const QAction& entry) {
    return captionOf(entry.text());
}

} // namespace tarvel::test
