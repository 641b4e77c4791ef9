// Selects all of a text box when it gets the focus.
#include "widgets/field_edit.h"

#include <QFocusEvent>
#include <QMouseEvent>

#include <utility>

namespace tarvel {

void FieldEdit::sel() {
    selectAll();
    clicked_ = false;
}

void FieldEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        sel();
    }
}

void FieldEdit::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    // The press has put the caret somewhere.
    if (event->button() == Qt::LeftButton && !std::exchange(clicked_, true) && !hasSelectedText()) {
        selectAll();
    }
}

} // namespace tarvel
