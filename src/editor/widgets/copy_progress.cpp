// Shows the progress dialog of a save once it has lasted a moment.
#include "widgets/copy_progress.h"

#include "widgets/qt_text.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLocale>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int steps = 1000;    // of the bar
constexpr int turnMs = 30;     // between two looks at pending events
constexpr int nameWidth = 300; // of a file's name, in pixels; the dialog would grow with it

} // namespace

CopyProgress::CopyProgress(QWidget* parent)
    : QProgressDialog(parent)
    , label_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmProgress"));
    setWindowTitle(tr("Saving"));
    setWindowModality(Qt::ApplicationModal);
    setAutoReset(false);
    setAutoClose(false);
    setRange(0, steps);
    setMinimumDuration(24 * 60 * 60 * 1000); // it is shown by step() alone
    setMinimumWidth(420);
    label_->setTextFormat(Qt::PlainText); // names of files may look like markup
    label_->setAlignment(Qt::AlignCenter);
    setLabel(label_);
    setLabelText(tr("Copying"));
    since_.start();
    lastTurn_.start();
}

bool CopyProgress::step(std::string_view file, std::uintmax_t done, std::uintmax_t total) {
    if (!isVisible() && since_.elapsed() >= delayMs && !wasCanceled()) {
        show();
    } else if (lastTurn_.elapsed() < turnMs) {
        return !wasCanceled();
    }
    if (isVisible()) {
        const QLocale locale;
        const QString name =
            label_->fontMetrics().elidedText(qtText(file), Qt::ElideMiddle, nameWidth);
        setLabelText(tr("Copying %1\n%2 of %3")
                         .arg(name, locale.formattedDataSize(static_cast<qint64>(done)),
                              locale.formattedDataSize(static_cast<qint64>(total))));
        const double part = total == 0 ? 1 : static_cast<double>(done) / static_cast<double>(total);
        setValue(static_cast<int>(std::min(part, 1.0) * steps));
        QCoreApplication::processEvents();
    }
    lastTurn_.restart();
    return !wasCanceled();
}

} // namespace tarvel
