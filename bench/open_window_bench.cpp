// One process for bench/open_window to time: starts the editor, loads a skin by its menu entry and
// leaves as soon as the surface has painted it.
//
// Usage: tarvel_open_window_bench FOLDER
//        tarvel_open_window_bench --make FOLDER COUNT screens|boxes|pictures|menu
// The second form makes the folder and a skin of COUNT elements in it: of all kinds on all screens,
// boxes on "Menu", images on "Menu" that have a picture file each, all kinds on "Menu".
#include "files/host_files.h"
#include "paint_watch.h"
#include "skins.h"
#include "support/scripted_prompts.h"
#include "widgets/panel_slide.h"
#include "widgets/remembered.h"
#include "window/frm_main.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvel::bench {

namespace {

// A picture as large as half the screen, and unlike the others.
void drawPicture(int number, const QString& file) {
    QImage picture(320, 240, QImage::Format_ARGB32);
    QLinearGradient gradient(0, 0, picture.width(), picture.height());
    gradient.setColorAt(0, QColor::fromHsv(number * 37 % 360, 200, 220));
    gradient.setColorAt(1, QColor::fromHsv(number * 91 % 360, 120, 90, 80));
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), gradient);
    painter.end();
    if (!picture.save(file)) {
        throw std::runtime_error("a picture cannot be written");
    }
}

SkinDocument pictureSkin(int count, const std::filesystem::path& pictures) {
    SkinDocument skin = mixedSkin(count, {.menuOnly = true});
    skin.editSettings([](SkinSettings& settings) { settings.resources.clear(); });
    for (int number = 0; number < count; ++number) {
        const std::string name = "picture" + std::to_string(number);
        const auto file = pictures / (name + ".png");
        drawPicture(number, QString::fromStdString(file.string()));
        skin.editSettings([&](SkinSettings& settings) {
            settings.resources.push_back({name, documentPath(file), true, false});
        });
        skin.editElement(number + 1, [&](Element& element) {
            element.elementKind = ElementKind::Image;
            element.imageSource = name;
        });
    }
    return skin;
}

int make(const std::filesystem::path& folder, int count, std::string_view kind) {
    const TemporaryFolder pictures;
    SkinDocument skin =
        kind == "pictures"
            ? pictureSkin(count, pictures.path())
            : mixedSkin(count, {.menuOnly = kind != "screens", .boxesOnly = kind == "boxes"});
    std::filesystem::create_directories(folder);
    saveInto(folder, skin);
    return 0;
}

int open(QApplication& application, const QString& folder) {
    test::ScriptedPrompts prompts;
    prompts.folders << folder;
    const QTemporaryDir settings;
    Remembered remembered(settings.filePath(QStringLiteral("settings.ini")));
    FrmMain window(prompts, programFolder(), remembered);
    window.show();
    // The panels slide in for the same time whatever is loaded; without it the ratio says more.
    QApplication::processEvents();
    window.findChild<PanelSlide*>()->finish();
    QApplication::processEvents();
    const PaintWatch watch(*window.findChild<QWidget*>(QStringLiteral("Pic")));
    window.findChild<QAction*>(QStringLiteral("mnuLoad"))->trigger();
    constexpr int longestMs = 60'000;
    QTimer::singleShot(longestMs, &application, [] { QCoreApplication::exit(1); });
    const int code = QApplication::exec();
    if (code != 0 || window.document().lastElementId() == 0) {
        std::fprintf(stderr, "the skin was not shown\n");
        return 1;
    }
    return 0;
}

} // namespace

} // namespace tarvel::bench

int main(int argc, char* argv[]) {
    try {
        if (argc == 5 && std::string_view(argv[1]) == "--make") {
            return tarvel::bench::make(argv[2], std::stoi(argv[3]), argv[4]);
        }
        QApplication application(argc, argv);
        return tarvel::bench::open(application, QString::fromLocal8Bit(argv[argc - 1]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
