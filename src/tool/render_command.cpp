// Carries out `render`: reads the skin, and writes its screens as a picture or an animation.
#include "document/layout_screens.h"
#include "document/modifier_catalogue.h"
#include "files/host_files.h"
#include "files/path_text.h"
#include "files/replacement.h"
#include "skinfile/skin_reader.h"
#include "surface/picture_cache.h"
#include "text/text_case.h"
#include "tool/animation_file.h"
#include "tool/render_options.h"
#include "tool/screen_picture.h"
#include "tool/screen_sheet.h"
#include "tool/skin_commands.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cerrno>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string_view>

namespace tarvel::tool {

namespace {

/// What is drawn at a time.
using Drawing = std::function<QImage(PlayTime)>;

QImage screenImage(ScreenPicture& screen, PlayTime time) {
    QImage image(skinWidth, skinHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    screen.paint(painter, time);
    return image;
}

std::string pngBytes(const QImage& image) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

// A picture is replaced through links to it, but never a device or a pipe.
std::filesystem::path placeOf(const std::filesystem::path& file) {
    const auto status = statusOf(file);
    const auto real = status ? realPath(file) : std::nullopt;
    if (!real) {
        return file;
    }
    if (status->kind != FileKind::regular) {
        throw FileError(status->kind == FileKind::folder ? EISDIR : EINVAL, pathOf(*real));
    }
    return pathOf(*real);
}

// An animation takes long enough to be broken off: what that left goes with the next one.
void removeBrokenOff(const std::filesystem::path& place) {
    const auto folder = place.parent_path();
    removeLeftovers(folder.empty() ? "." : folder);
}

void writeAnimation(const RenderOptions& options, const Drawing& drawing) {
    const std::filesystem::path place = placeOf(options.out);
    removeBrokenOff(place);
    Replacement replacement(place);
    const Moments& moments = options.moments;
    QImage frame = drawing(moments.at(0));
    const auto animation = options.format == PictureFormat::gif
                               ? gifAnimation(replacement.file(), frame.size())
                               : webpAnimation(replacement.file(), frame.size());
    for (std::size_t i = 0; i < moments.count; ++i) {
        animation->add(i == 0 ? frame : drawing(moments.at(i)), moments.until(i));
    }
    animation->finish();
    replacement.takePlace();
}

void write(const RenderOptions& options, const Drawing& drawing) {
    if (options.format == PictureFormat::png) {
        const std::string bytes = pngBytes(drawing(options.moments.at(0)));
        writeFile(placeOf(options.out), bytes);
    } else {
        writeAnimation(options, drawing);
    }
}

void draw(const SkinDocument& document, const RenderOptions& options, int screen) {
    ModifierCatalogue catalogue;
    if (options.isPlayed) {
        catalogue = ModifierCatalogue::read(programsCatalogue());
    }
    PictureCache pictures;
    if (options.screen) {
        ScreenPicture picture(document, screen, pictures, catalogue, options);
        write(options, [&](PlayTime time) { return screenImage(picture, time); });
    } else {
        ScreenSheet sheet(document, pictures, catalogue, options);
        write(options, [&](PlayTime time) { return sheet.at(time); });
    }
}

// What Qt and its plugins note about the machine is not for those who read a command's errors.
void passOnlyFatal(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "tarvel-skin: %s\n", qPrintable(text)); // NOLINT: must not throw
    }
}

ExitCode drawInApplication(const SkinDocument& document, const RenderOptions& options, int screen,
                           Output output) {
#ifndef Q_OS_WIN // there is always a display there, and without it there are no fonts
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // a picture needs no display
    }
#endif
    qInstallMessageHandler(passOnlyFatal);
    int argc = 1;
    std::string name = "tarvel-skin";
    char* argv = name.data();
    const QGuiApplication application(argc, &argv);
    try {
        draw(document, options, screen);
    } catch (const std::runtime_error& error) {
        complain(output, error.what());
        return findings;
    }
    return done;
}

} // namespace

ExitCode render(const RenderOptions& options, Output output) {
    const std::string screen = options.screen.value_or(std::string(layoutScreens.front().caption));
    const int number = getLayoutNum(lowerCased(screen));
    if (!equalsIgnoringCase(layoutScreens.at(static_cast<std::size_t>(number)).caption, screen)) {
        complain(output, "there is no screen \"" + screen + "\"");
        return unreadable;
    }
    SkinDocument document;
    try {
        readSkin(document, options.folder);
    } catch (const SkinReadError& error) {
        complain(output, error.what());
        return unreadable;
    }
    document.setCurrentLayout(number);
    return drawInApplication(document, options, number, output);
}

} // namespace tarvel::tool
