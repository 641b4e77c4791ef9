// Working a dialog in a test as a user does: by mouse and keys, controls found by name.
#pragma once

#include "support/settle.h"

#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QTest>
#include <QUrl>

namespace tarvel::test {

/// The control of that name; ends the test program when there is none of that type.
template <class Control> Control& control(const QWidget& window, const QString& name) {
    auto* found = window.findChild<Control*>(name);
    if (found == nullptr) {
        qFatal("no control %s of the type wanted", qPrintable(name));
    }
    return *found;
}

/// Waits until a window takes keys.
inline bool isActive(QWidget& window) {
    // The application knows a little later than the window system.
    return QTest::qWaitForWindowActive(&window) &&
           QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; });
}

/// Brings a window to the front and waits until it takes keys.
inline bool activate(QWidget& window) {
    window.activateWindow();
    return isActive(window);
}

/// Shows a window and waits until it takes keys.
inline bool open(QWidget& window) {
    window.show();
    return activate(window);
}

/// Closes a window and waits until the application has dealt with that. Opened again at once, the
/// window would lose its selection and focus to what is still under way; no user is that quick.
inline bool close(QWidget& window) {
    if (!window.close() ||
        !QTest::qWaitFor([&] { return QApplication::activeWindow() != &window; })) {
        return false;
    }
    settle(); // text boxes look at the focus once more a turn later
    return true;
}

inline void click(QWidget& control) {
    QTest::mouseClick(&control, Qt::LeftButton);
}

inline void clickRow(QListWidget& list, int row, Qt::MouseButton button = Qt::LeftButton) {
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), button, {}, list.visualItemRect(list.item(row)).center());
}

/// Clicks into a text box and types over what is in it.
inline void typeOver(QLineEdit& edit, const QString& text) {
    click(edit);
    edit.selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(&edit, Qt::Key_Delete);
    }
    QTest::keyClicks(&edit, text);
}

inline QStringList rowTexts(const QListWidget& list) {
    QStringList texts;
    for (int row = 0; row < list.count(); ++row) {
        texts << list.item(row)->text();
    }
    return texts;
}

/// Drags addresses over the middle of a widget and drops them there. False when they are not taken.
inline bool dropUrls(QWidget& target, const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    data.setText(QUrl::toStringList(urls).join(QLatin1Char('\n'))); // as file managers do
    const QPoint at = target.rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &move);
    QDropEvent drop(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&target, &drop);
    // A move would let the other side delete the file.
    return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
}

inline bool dropFiles(QWidget& target, const QStringList& files) {
    QList<QUrl> urls;
    for (const QString& file : files) {
        urls << QUrl::fromLocalFile(file);
    }
    return dropUrls(target, urls);
}

/// The focusable controls of a window that have no accessible name.
inline QStringList withoutAccessibleName(const QWidget& window) {
    QStringList nameless;
    const auto controls = window.findChildren<QWidget*>();
    for (const QWidget* each : controls) {
        const bool own = !each->objectName().startsWith(QStringLiteral("qt_"));
        if (own && each->focusPolicy() != Qt::NoFocus && each->accessibleName().isEmpty()) {
            nameless << each->objectName() + QLatin1Char(' ') +
                            QLatin1String(each->metaObject()->className());
        }
    }
    return nameless;
}

} // namespace tarvel::test
