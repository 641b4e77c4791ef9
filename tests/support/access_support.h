// What is read out of the controls of a window, and where that is not what can be seen.
#pragma once

#include "support/captions.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QPixmap>
#include <QStringList>

namespace tarvel::test {

inline QString readOut(QWidget& widget, QAccessible::Text what = QAccessible::Name) {
    const auto* spoken = QAccessible::queryAccessibleInterface(&widget);
    return spoken != nullptr ? spoken->text(what) : QString();
}

/// The buttons of a window that show a caption.
inline QList<QAbstractButton*> captionedButtons(const QWidget& window) {
    QList<QAbstractButton*> buttons = window.findChildren<QAbstractButton*>();
    buttons.removeIf([](const QAbstractButton* button) { return button->text().isEmpty(); });
    return buttons;
}

/// The buttons that are not read out by what can be seen on them first.
inline QStringList buttonsReadOutOtherwise(const QWidget& window) {
    QStringList wrong;
    for (QAbstractButton* button : captionedButtons(window)) {
        if (!readOut(*button).startsWith(captionOf(*button))) {
            wrong << captionOf(*button) + QLatin1String(" is ") + readOut(*button);
        }
    }
    return wrong;
}

/// Labels whose text cannot be heard, because something else is read out in its place.
inline QStringList unheardLabels(const QWidget& window) {
    QStringList unheard;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        const QString name = label->accessibleName();
        const bool isText = label->pixmap().isNull() && label->focusPolicy() == Qt::NoFocus;
        if (isText && !name.isEmpty() &&
            (label->text().isEmpty() || !name.startsWith(label->text()))) {
            unheard << label->objectName() + QLatin1String(" is ") + name;
        }
    }
    return unheard;
}

/// Focusable controls of which the same is said twice: by name and description, or by name and
/// frame; and those of which the label says one thing and the name another.
inline QStringList saidTwice(const QWidget& window) {
    // Captions that are misspelt for good are read out as the words that they mean.
    const QStringList misspelt = {QStringLiteral("Boder Color"), QStringLiteral("Liftime")};
    QStringList twice;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() != nullptr) {
            continue;
        }
        const QString name = widget->accessibleName();
        const auto* frame = qobject_cast<QGroupBox*>(widget->parentWidget());
        const bool byFrame = frame != nullptr && frame->accessibleName() == name;
        if (!name.isEmpty() && (byFrame || readOut(*widget, QAccessible::Description) == name)) {
            twice << widget->objectName() + QLatin1String(" is twice ") + name;
        }
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy() == nullptr || misspelt.contains(label->text())) {
            continue;
        }
        QString caption = label->text().simplified();
        caption.remove(QLatin1Char(':'));
        if (!label->buddy()->accessibleName().contains(caption, Qt::CaseInsensitive)) {
            twice << caption + QLatin1String(" is ") + label->buddy()->accessibleName();
        }
    }
    return twice;
}

} // namespace tarvel::test
