// Starts the editor: the folder of the program with its catalogue, and the main window.
#include "files/host_files.h"
#include "widgets/qt_prompts.h"
#include "widgets/qt_text.h"
#include "window/application.h"
#include "window/end_signals.h"
#include "window/frm_main.h"

#include <QFile>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QTimer>

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

// Runs that find no place to keep their work say so and go on.
void keepWork(tarvel::FrmMain& window, tarvel::Prompts& prompts) {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    try {
        window.keepWorkIn(tarvel::hostPathOf(data) / "recovery");
    } catch (const tarvel::FileError& error) {
        prompts.message(&window, QObject::tr("Your work cannot be kept for the case of a crash: %1")
                                     .arg(tarvel::qtText(error.what())));
        return;
    }
    window.offerLostWork();
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
    const tarvel::EndSignals endSignals([&](int signal) {
        constexpr int endedBySignal = 128;
        window.keepWorkNow();
        QApplication::exit(endedBySignal + signal);
    });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                     &tarvel::FrmMain::keepWorkNow, Qt::DirectConnection);
    window.show();
    QTimer::singleShot(0, &window, [&] { keepWork(window, prompts); });
    return QApplication::exec();
}
