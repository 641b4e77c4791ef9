// The main window for tests of the behaviour panels: with a catalogue, and elements to work on.
#pragma once

#include "support/menu_support.h"
#include "support/panel_support.h"

#include <QListWidget>

namespace tarvel::test {

inline constexpr int panelCount = 3;

/// The window with the starter catalogue and boxes on "Menu".
class BehaviourEditor : public Editor {
  public:
    explicit BehaviourEditor(int boxes = 1) {
        if (!QFile::copy(QStringLiteral("%1/modifiers.xml").arg(TARVEL_ASSETS_DIR),
                         path("modifiers.xml"))) {
            qFatal("no catalogue");
        }
        for (int i = 0; i < boxes; ++i) {
            add(boxAt(20 + 120 * static_cast<float>(i), 20, 100, 50));
        }
        show();
    }
    template <class Widget> Widget& at(const QString& name) {
        return tarvel::test::control<Widget>(window, name);
    }
    QWidget& panel(int index) { return at<QWidget>(QStringLiteral("fraModifier(%1)").arg(index)); }
    QPushButton& button(int index) {
        return at<QPushButton>(QStringLiteral("cmdModifier(%1)").arg(index));
    }
    QAction& mnuModifier(int index) {
        return at<QAction>(QStringLiteral("mnuModifier(%1)").arg(index));
    }
    QPushButton& okOf(int index) {
        const QStringList names = {"cmdModifierOK", "cmdTimersOK", "cmdConditionOK"};
        return at<QPushButton>(names[index]);
    }
    /// The panels that are shown.
    QList<int> shown() {
        QList<int> result;
        for (int index = 0; index < panelCount; ++index) {
            if (panel(index).isVisible()) {
                result << index;
            }
        }
        return result;
    }
    bool openPanel(int index) {
        tarvel::test::click(button(index));
        return shown() == QList<int>({index});
    }
    void ok(int index) { tarvel::test::click(okOf(index)); }
    QRect inWindow(const QWidget& widget) {
        return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
    }
    /// Which of the buttons are bold; a menu entry has a mark where its button is bold.
    QList<int> marked() {
        const QStringList plain = {"Modifiers", "Timers", "Condition"};
        QList<int> result;
        for (int index = 0; index < panelCount; ++index) {
            const bool bold = button(index).font().bold();
            if (bold) {
                result << index;
            }
            const QString wanted = plain[index] + (bold ? "*" : "");
            if (captionOf(mnuModifier(index)) != wanted) {
                qWarning("entry reads %s", qPrintable(mnuModifier(index).text()));
                result << -1;
            }
        }
        return result;
    }
    /// Presses the mouse where a control stands in the window, whatever that hits.
    void clickAt(const QWidget& widget) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, inWindow(widget).center());
    }
    /// Presses a key wherever the focus is.
    void keyInFocus(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focus = window.focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &window, key, modifiers);
    }
    /// Fills the panels of the selected element through its controls.
    void attachModifier(const QString& type, int target) {
        QVERIFY(openPanel(0));
        auto& mods = at<QComboBox>("lstMods");
        chooseRow(mods, mods.findText(type));
        QCOMPARE(mods.currentText(), type);
        chooseRow(at<QComboBox>("lstTargets"), target);
    }
};

} // namespace tarvel::test
