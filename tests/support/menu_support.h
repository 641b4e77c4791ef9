// Reaching the main window's dialogs as a user does: through its menus.
#pragma once

#include "support/dialog_support.h"
#include "support/editor.h"

#include <QDialog>
#include <QMenuBar>
#include <QPushButton>

#include <functional>

namespace tarvel::test {

using Work = std::function<void(QWidget& dialog)>;

/// The menu of the bar that holds the entry.
inline QMenu* menuOf(Editor& editor, const QAction* entry) {
    for (const QAction* bar : editor.window.menuBar()->actions()) {
        if (bar->menu()->actions().contains(entry)) {
            return bar->menu();
        }
    }
    return nullptr;
}

/// Chooses an entry of the menu bar with the mouse. False when it cannot be reached.
inline bool choose(Editor& editor, const char* name) {
    QAction* entry = editor.entry(name);
    QMenu* menu = menuOf(editor, entry);
    if (menu == nullptr) {
        return false;
    }
    QMenuBar* bar = editor.window.menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    if (!QTest::qWaitFor([&] { return menu->isVisible(); })) {
        return false;
    }
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    return true;
}

/// Does what opens a dialog, works in it and closes it with its OK button. True when it was the
/// dialog of that name and OK closed it.
inline bool inDialog(const std::function<void()>& open, const QString& name, const Work& work) {
    bool done = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        poll.stop();
        if (dialog->objectName() == name && isActive(*dialog)) {
            work(*dialog);
            click(control<QPushButton>(*dialog, "cmdOK"));
            done = !dialog->isVisible();
        }
        if (dialog->isVisible()) {
            dialog->done(0); // it would hold the test up
        }
    });
    poll.start(10);
    open();
    // It may open a moment later.
    return QTest::qWaitFor([&] { return !poll.isActive(); }) && done;
}

inline bool inDialog(Editor& editor, const char* entry, const char* name, const Work& work) {
    return inDialog([&] { choose(editor, entry); }, QLatin1String(name), work);
}

/// The windows that are shown, by name.
inline QStringList shownWindows() {
    QStringList names;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            names << window->objectName();
        }
    }
    names.sort();
    return names;
}

} // namespace tarvel::test
