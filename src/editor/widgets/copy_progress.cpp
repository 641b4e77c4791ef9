// Says which file is copied, and how much of all is done.
#include "widgets/copy_progress.h"

#include "widgets/qt_text.h"

#include <QLabel>
#include <QLocale>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int steps = 1000;    // of the bar
constexpr int nameWidth = 300; // of a file's name, in pixels; the dialog would grow with it

} // namespace

CopyProgress::CopyProgress(QWidget* parent)
    : LateProgress(tr("Saving"), tr("Copying"), delayMs, parent) {
    setObjectName(QStringLiteral("frmProgress"));
    setRange(0, steps);
}

bool CopyProgress::step(std::string_view file, std::uintmax_t done, std::uintmax_t total) {
    return take([&] { showStep(file, done, total); });
}

void CopyProgress::showStep(std::string_view file, std::uintmax_t done, std::uintmax_t total) {
    const QLocale locale;
    const QString name = label().fontMetrics().elidedText(qtText(file), Qt::ElideMiddle, nameWidth);
    setLabelText(tr("Copying %1\n%2 of %3")
                     .arg(name, locale.formattedDataSize(static_cast<qint64>(done)),
                          locale.formattedDataSize(static_cast<qint64>(total))));
    const double part = total == 0 ? 1 : static_cast<double>(done) / static_cast<double>(total);
    setValue(static_cast<int>(std::min(part, 1.0) * steps));
}

} // namespace tarvel
