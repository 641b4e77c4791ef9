// One process for bench/start_window to time: shows a window and leaves as soon as it is painted.
//
// Usage: tarvel_start_bench editor
//        tarvel_start_bench count
//        tarvel_start_bench bare WIDGETS VISIBLE
// The first shows the editor's window, with its panels at their places. The second tells how many
// widgets that has, and how many of them are visible. The third shows a window of as many labels,
// buttons and fields, of which the others are in dialogs that are not shown.
#include "files/host_files.h"
#include "support/scripted_prompts.h"
#include "widgets/panel_slide.h"
#include "widgets/remembered.h"
#include "window/frm_main.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

namespace tarvel::bench {

namespace {

/// Ends the program after the next painting of a widget.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            // Not quit(), which asks the window whether it may.
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
        }
        return false;
    }
};

int showEditor(bool counts) {
    test::ScriptedPrompts prompts;
    const QTemporaryDir settings;
    Remembered remembered(settings.filePath(QStringLiteral("settings.ini")));
    FrmMain window(prompts, programFolder(), remembered);
    const PaintWatch watch(*window.findChild<QWidget*>(QStringLiteral("Pic")));
    window.show();
    // Once the panels have begun to slide in: they are painted where they stay.
    auto* slide = window.findChild<PanelSlide*>();
    QTimer::singleShot(0, slide, &PanelSlide::finish);
    const int code = QApplication::exec();
    if (counts) {
        const auto widgets = window.findChildren<QWidget*>();
        const auto visible = std::count_if(widgets.begin(), widgets.end(),
                                           [](const QWidget* each) { return each->isVisible(); });
        std::printf("%d %d\n", static_cast<int>(widgets.size()), static_cast<int>(visible));
    }
    return code;
}

QWidget* control(int number) {
    const QString text = QString::number(number);
    switch (number % 3) {
    case 0:
        return new QLabel(text);
    case 1:
        return new QPushButton(text);
    default:
        return new QLineEdit(text);
    }
}

void fill(QWidget& window, int widgets) {
    constexpr int columns = 12;
    auto* grid = new QGridLayout(&window);
    for (int number = 0; number < widgets; ++number) {
        grid->addWidget(control(number), number / columns, number % columns);
    }
}

int showBare(int widgets, int visible) {
    QMainWindow window;
    auto* centre = new QWidget;
    fill(*centre, visible);
    window.setCentralWidget(centre);
    QDialog others(&window);
    fill(others, widgets - visible);
    const PaintWatch watch(*centre);
    window.show();
    return QApplication::exec();
}

} // namespace

} // namespace tarvel::bench

int main(int argc, char* argv[]) {
    const std::string_view what = argc > 1 ? argv[1] : "";
    QApplication application(argc, argv);
    if (what == "bare" && argc == 4) {
        return tarvel::bench::showBare(std::stoi(argv[2]), std::stoi(argv[3]));
    }
    return tarvel::bench::showEditor(what == "count");
}
