// Starts the editor: the folder of the program with its catalogue, and the main window.
#include "files/host_files.h"
#include "widgets/qt_prompts.h"
#include "widgets/qt_text.h"
#include "window/application.h"
#include "window/frm_main.h"

#include <QFile>

namespace {

// Where the program's own folder cannot be written to, its files are the user's: the modifier
// catalogue is laid there once, to be edited.
void layCatalogue(const std::filesystem::path& folder) {
    const auto catalogue = folder / "modifiers.xml";
    const bool isOwn = tarvel::hostPathOf(QCoreApplication::applicationDirPath()) == folder;
    QFile builtIn(QStringLiteral(":/tarvel/modifiers.xml"));
    if (isOwn || std::filesystem::exists(catalogue) || !builtIn.open(QIODevice::ReadOnly)) {
        return;
    }
    try {
        tarvel::writeFile(catalogue, builtIn.readAll().toStdString());
    } catch (const tarvel::FileError& error) {
        qWarning("modifiers.xml cannot be laid into its folder: %s", error.what());
    }
}

} // namespace

int main(int argc, char* argv[]) {
    tarvel::Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tarvel"));
    QApplication::setDesktopFileName(QStringLiteral("tarvel"));
    const std::filesystem::path folder = tarvel::programFolder();
    layCatalogue(folder);
    tarvel::QtPrompts prompts;
    tarvel::FrmMain window(prompts, folder);
    application.tellFailures([&](const QString& words) { prompts.message(&window, words); });
    window.show();
    return QApplication::exec();
}
