// Asks the core about each chosen or dropped file, and tells the user of those that are refused.
#include "widgets/usable_files.h"

#include "files/host_paths.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"

#include <QTimer>
#include <QWidget>

namespace tarvel {

QStringList usableFiles(const QStringList& files, Prompts& prompts, QWidget* owner) {
    QStringList usable;
    QStringList problems;
    for (const QString& file : files) {
        const std::string problem = fileProblem(hostPathOf(file));
        if (problem.empty()) {
            usable << file;
        } else {
            problems << qtText(problem);
        }
    }
    if (!problems.isEmpty()) {
        QTimer::singleShot(0, owner, [&prompts, owner, text = problems.join(QLatin1Char('\n'))] {
            prompts.message(owner, text);
        });
    }
    return usable;
}

} // namespace tarvel
