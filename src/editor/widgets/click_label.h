// A label that can be clicked.
#pragma once

#include <QLabel>
#include <QMouseEvent>

namespace tarvel {

/// Reports presses of the left button that are released on the label.
class ClickLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ClickLabel(QWidget* parent = nullptr)
        : QLabel(parent) {
        setCursor(Qt::PointingHandCursor);
    }

  signals:
    void clicked();

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        event->setAccepted(event->button() == Qt::LeftButton);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
            emit clicked();
        }
    }
};

} // namespace tarvel
