// Starts the editor: its arguments, the folder of the program with its catalogue, and the window.
#include "files/host_files.h"
#include "files/own_process.h"
#include "widgets/qt_prompts.h"
#include "widgets/qt_text.h"
#include "widgets/remembered.h"
#include "window/application.h"
#include "window/arguments.h"
#include "window/end_signals.h"
#include "window/frm_main.h"
#include "window/other_runs.h"
#include "window/window_place.h"

#include <QFile>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>

namespace {

// Where the program's own folder cannot be written to, its files are the user's: the modifier
// catalogue is laid there once, to be edited.
void layCatalogue(const std::filesystem::path& folder) {
    const auto catalogue = folder / "modifiers.xml";
    const bool isOwn = tarvel::executableFolder() == folder;
    QFile builtIn(QStringLiteral(":/tarvel/modifiers.xml"));
    if (isOwn || tarvel::statusOf(catalogue) || !builtIn.open(QIODevice::ReadOnly)) {
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
    }
}

int answer(const tarvel::Reply& reply) {
    tarvel::useConsoleOfStarter();
    const tarvel::ConsoleInUtf8 console;
    std::fputs(reply.text.c_str(), reply.exitCode == 0 ? stdout : stderr);
    return reply.exitCode;
}

} // namespace

int main(int argc, char* argv[]) {
    const tarvel::Arguments arguments = tarvel::parseArguments(tarvel::ownArguments(argc, argv));
    if (arguments.reply) {
        return answer(*arguments.reply);
    }
    tarvel::Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tarvel"));
    QApplication::setDesktopFileName(QStringLiteral("tarvel"));
    const std::filesystem::path folder = tarvel::programFolder();
    layCatalogue(folder);
    tarvel::Remembered remembered(tarvel::Remembered::usersFile());
    tarvel::QtPrompts prompts(&remembered);
    tarvel::FrmMain window(prompts, folder, remembered);
    window.startRunsBy(tarvel::startRun);
    application.tellFailures([&](const QString& words) { prompts.message(&window, words); });
    const tarvel::EndSignals endSignals([&](int signal) {
        constexpr int endedBySignal = 128;
        window.keepWorkNow();
        QApplication::exit(endedBySignal + signal);
    });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                     &tarvel::FrmMain::keepWorkNow, Qt::DirectConnection);
    tarvel::takePlace(window, remembered);
    window.show();
    QTimer::singleShot(0, &window, [&] {
        keepWork(window, prompts);
        window.begin(arguments.folders);
    });
    return QApplication::exec();
}
