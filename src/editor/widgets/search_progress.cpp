// Counts what a search has looked at.
#include "widgets/search_progress.h"

#include <QLocale>

namespace tarvel {

SearchProgress::SearchProgress(QWidget* parent, int delay)
    : LateProgress(tr("Locate"), tr("Looking for files"), delay, parent) {
    setObjectName(QStringLiteral("frmSearch"));
    setRange(0, 0);
}

bool SearchProgress::step(std::size_t entries) {
    return take([&] {
        setLabelText(tr("Looking for files\n%1 files and folders looked at")
                         .arg(QLocale().toString(static_cast<qulonglong>(entries))));
    });
}

} // namespace tarvel
