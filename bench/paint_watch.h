// The end of a start: the first painting.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace tarvel::bench {

/// Ends the program after the next whole painting of a widget.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            // Not quit(), which asks the window whether it may.
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
        }
        return false;
    }
};

} // namespace tarvel::bench
