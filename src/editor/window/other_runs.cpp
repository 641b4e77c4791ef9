// Starts this very program, which does not end with the run that started it.
#include "window/other_runs.h"

#include <QCoreApplication>
#include <QProcess>

namespace tarvel {

bool startRun(const QString& folder) {
    return QProcess::startDetached(QCoreApplication::applicationFilePath(),
                                   folder.isEmpty() ? QStringList() : QStringList(folder));
}

} // namespace tarvel
