// Working a window by keys alone: they go where the focus is.
#pragma once

#include <QApplication>
#include <QTest>

namespace tarvel::test {

/// The name of what has the focus.
inline QString focusName() {
    const QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? QString() : widget->objectName();
}

/// Presses a key wherever the keys go: an open menu before all else.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* target = QApplication::activePopupWidget();
    target = target != nullptr ? target : QApplication::focusWidget();
    QVERIFY(target != nullptr);
    QTest::keyClick(target, key, modifiers);
}

} // namespace tarvel::test
