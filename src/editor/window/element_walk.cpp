// Takes the Tab key before the surface gives its focus away.
#include "window/element_walk.h"

#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace tarvel {

ElementWalk::ElementWalk(QWidget& surface, SkinDocument& document, Selection& selection,
                         std::function<Hand()> hand)
    : QObject(&surface)
    , document_(document)
    , selection_(selection)
    , hand_(std::move(hand)) {
    surface.installEventFilter(this);
}

bool ElementWalk::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool isFurther = (key.modifiers() & ~Qt::ShiftModifier) == 0;
        if (isFurther && key.key() == Qt::Key_Tab && walk(1)) {
            return true;
        }
        if (isFurther && key.key() == Qt::Key_Backtab && walk(-1)) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

// False when the focus is to leave.
bool ElementWalk::walk(int step) {
    const Hand hand = hand_();
    if (hand != Hand::free) {
        return hand == Hand::holding;
    }
    const int rows = document_.rowCount(document_.currentLayout());
    const int from = selection_.isEmpty() ? (step > 0 ? -1 : rows) : selection_.leadingRow();
    const int row = rowFrom(from + step, step);
    if (row < 0) {
        return false;
    }
    selection_.select(row);
    return true;
}

// The first row without a lock from there on; -1 when there is none.
int ElementWalk::rowFrom(int row, int step) const {
    const int screen = document_.currentLayout();
    for (; row >= 0 && row < document_.rowCount(screen); row += step) {
        if (!document_.element(document_.itemData(screen, row)).elementLocked) {
            return row;
        }
    }
    return -1;
}

} // namespace tarvel
