// Starts the editor.
#include "app/frm_main.h"
#include "app/qt_prompts.h"
#include "canvas/skin_fonts.h"
#include "skinfile/host_files.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tarvel"));
    QApplication::setDesktopFileName(QStringLiteral("tarvel"));
    tarvel::QtPrompts prompts;
    tarvel::FrmMain window(prompts, tarvel::programFolder());
    window.show();
    return QApplication::exec();
}
