// Working a behaviour panel in a test: a window around it, and the pointer as the system moves it.
#pragma once

#include "panels/behaviour_panel.h"
#include "support/dialog_support.h"

#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QWidget>
#include <QWindow>

#include <memory>

namespace tarvel::test {

/// A window that shows a panel as the main window does: over whatever else it holds.
class PanelWindow : public QWidget {
  public:
    explicit PanelWindow(BehaviourPanel& panel)
        : panel_(panel) {
        resize(640, 480);
        panel.setParent(this);
    }
    /// The panel goes on without the window.
    ~PanelWindow() override { panel_.setParent(nullptr); }
    PanelWindow(const PanelWindow&) = delete;
    PanelWindow& operator=(const PanelWindow&) = delete;

    /// Shows the window, and in it the panel for an element. True when it takes keys.
    bool openPanel(int elementId) {
        if (!open(*this)) {
            return false;
        }
        panel_.open(elementId);
        panel_.adjustSize();
        panel_.move(10, 10);
        return panel_.isVisible();
    }

  private:
    BehaviourPanel& panel_;
};

/// The pointer, moved and pressed in a window, which finds the control below it.
class Pointer {
  public:
    explicit Pointer(QWidget& window)
        : window_(window) {}

    void moveTo(const QWidget& control, QPoint point) {
        position_ = control.mapTo(&window_, point);
        QTest::mouseMove(window_.windowHandle(), position_);
    }
    void press(Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(window_.windowHandle(), button, {}, position_);
    }
    void release(Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(window_.windowHandle(), button, {}, position_);
    }
    /// Moves to a control's middle, presses, moves by a distance and lets go.
    void dragBy(const QWidget& control, int distance) {
        moveTo(control, control.rect().center());
        press();
        moveTo(control, control.rect().center() + QPoint(distance, 0));
        release();
    }

  private:
    QWidget& window_;
    QPoint position_;
};

/// Drags data over a control without dropping it; true when the control would take it.
inline bool dragOver(QWidget& target, const QMimeData& data) {
    QDragEnterEvent event(target.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    event.ignore();
    QApplication::sendEvent(&target, &event);
    return event.isAccepted();
}

/// Drops data on a control; true when the control took it.
inline bool drop(QWidget& target, const QMimeData& data) {
    if (!dragOver(target, data)) {
        return false;
    }
    QDropEvent event(target.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    event.ignore();
    QApplication::sendEvent(&target, &event);
    return event.isAccepted();
}

/// Chooses a row of a drop-down list by keys.
inline void chooseRow(QComboBox& list, int row) {
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    while (list.currentIndex() < row) {
        QTest::keyClick(&list, Qt::Key_Down);
    }
}

inline QStringList rowTexts(const QComboBox& list) {
    QStringList texts;
    for (int row = 0; row < list.count(); ++row) {
        texts << list.itemText(row);
    }
    return texts;
}

} // namespace tarvel::test
