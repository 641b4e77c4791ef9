// A drop-down list that the wheel cannot change in passing.
#pragma once

#include <QComboBox>
#include <QWheelEvent>

namespace tarvel {

/// The wheel changes it only while it has the focus, and does not bring the focus; otherwise the
/// wheel is for what the list stands in.
class DropDown : public QComboBox {
    Q_OBJECT

  public:
    explicit DropDown(QWidget* parent = nullptr)
        : QComboBox(parent) {
        setFocusPolicy(Qt::StrongFocus);
    }

  protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

} // namespace tarvel
