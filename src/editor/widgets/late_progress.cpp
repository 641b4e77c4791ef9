// Decides when a progress dialog comes, and when it looks at what the user did.
#include "widgets/late_progress.h"

#include <QCoreApplication>
#include <QLabel>

namespace tarvel {

namespace {

constexpr int turnMs = 30; // between two looks at pending events

} // namespace

LateProgress::LateProgress(const QString& title, const QString& label, int delay, QWidget* parent)
    : QProgressDialog(parent)
    , label_(new QLabel(this))
    , delay_(delay) {
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal);
    setAutoReset(false);
    setAutoClose(false);
    setMinimumDuration(24 * 60 * 60 * 1000); // it is shown by take() alone
    setMinimumWidth(420);
    label_->setTextFormat(Qt::PlainText); // names of files may look like markup
    label_->setAlignment(Qt::AlignCenter);
    setLabel(label_);
    setLabelText(label);
    since_.start();
    lastTurn_.start();
}

bool LateProgress::isTime() {
    if (!isVisible() && since_.elapsed() >= delay_ && !wasCanceled()) {
        show();
        return true;
    }
    return lastTurn_.elapsed() >= turnMs;
}

bool LateProgress::finishTurn() {
    if (isVisible()) {
        QCoreApplication::processEvents();
    }
    lastTurn_.restart();
    return !wasCanceled();
}

} // namespace tarvel
