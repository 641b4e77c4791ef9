// Selecting all on focus.
#include "widgets/field_edit.h"

#include <QFocusEvent>
#include <QMouseEvent>

#include <utility>

namespace tarvel {

void FieldEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    focusedByPress_ = event->reason() == Qt::MouseFocusReason;
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        sel();
    }
}

void FieldEdit::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    // The press that brought the focus has put the caret somewhere.
    if (std::exchange(focusedByPress_, false) && !hasSelectedText()) {
        sel();
    }
}

} // namespace tarvel
