// Colours the frame by whether the focus is within it.
#include "widgets/focus_frame.h"

#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>

namespace tarvel {

FocusFrame::FocusFrame(QWidget& inside, QWidget* parent)
    : QFrame(parent) {
    setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&inside);
    inside.installEventFilter(this);
    showFocus(false);
}

bool FocusFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        showFocus(event->type() == QEvent::FocusIn);
    }
    return QFrame::eventFilter(watched, event);
}

void FocusFrame::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange) {
        showFocus(isAncestorOf(QApplication::focusWidget()));
    }
    QFrame::changeEvent(event);
}

void FocusFrame::showFocus(bool focused) {
    // Of the frame's line alone: what is inside keeps the window's colours.
    QPalette colors = QApplication::palette(this);
    colors.setColor(QPalette::WindowText,
                    colors.color(focused ? QPalette::Highlight : QPalette::Mid));
    setPalette(colors);
}

} // namespace tarvel
