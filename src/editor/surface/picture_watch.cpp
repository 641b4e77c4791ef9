// Listens for the events that tell when pictures' files are worth another look.
#include "surface/picture_watch.h"

#include "surface/picture_cache.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>

namespace tarvel {

PictureWatch::PictureWatch(PictureCache& pictures, QWidget& window)
    : pictures_(pictures)
    , window_(window) {
    QApplication::instance()->installEventFilter(this);
}

void PictureWatch::look() {
    if (!pictures_.refresh()) {
        return;
    }
    // Each for itself: painting a widget leaves out the opaque ones in it.
    const auto widgets = window_.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        widget->update();
    }
    emit changed();
}

bool PictureWatch::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    // Widgets in a window are told of its activation, too.
    const bool activated = type == QEvent::WindowActivate && watched->isWidgetType() &&
                           static_cast<QWidget*>(watched)->isWindow();
    const bool opened =
        type == QEvent::Show && !event->spontaneous() && qobject_cast<QDialog*>(watched) != nullptr;
    if (activated || opened) {
        look();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarvel
