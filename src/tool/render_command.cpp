// Paints one screen to a PNG file for `render`, by the painting code of the editor's surface.
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "skinfile/skin_reader.h"
#include "surface/picture_cache.h"
#include "surface/surface_painter.h"
#include "surface/video_stage.h"
#include "text/text_case.h"
#include "tool/skin_commands.h"

#include <QBuffer>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTimer>

#include <cerrno>
#include <cstdio>
#include <stdexcept>
#include <string_view>

namespace tarvel::tool {

namespace {

// Lets the videos of the screen come to their first frame, or to a word why there is none.
void awaitVideos(const VideoStage& stage, const SkinDocument& document) {
    constexpr int longestMs = 5000;
    const QDeadlineTimer deadline(longestMs);
    QTimer wake; // so that the wait ends even when no event comes
    wake.start(50);
    while (!stage.isSettled(document) && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

QImage screenImage(const SkinDocument& document, int screen) {
    PictureCache pictures;
    VideoStage videos;
    videos.show(document, screen);
    awaitVideos(videos, document);
    SurfacePainter painter(pictures);
    painter.setVideoFrames(&videos);
    QImage image(skinWidth, skinHeight, QImage::Format_RGB32);
    QPainter target(&image);
    painter.paint(target, document, screen, QRectF(0, 0, skinWidth, skinHeight));
    return image;
}

std::string pngBytes(const QImage& image) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

// Replaces a picture, through links to it, but never a device or a pipe.
void writePicture(std::filesystem::path file, std::string_view bytes) {
    if (std::filesystem::exists(file)) {
        file = std::filesystem::canonical(file);
        if (!std::filesystem::is_regular_file(file)) {
            throw FileError(std::filesystem::is_directory(file) ? EISDIR : EINVAL, file);
        }
    }
    writeFile(file, bytes);
}

// What Qt and its plugins note about the machine is not for those who read a command's errors.
void passOnlyFatal(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "tarvel-skin: %s\n", qPrintable(text)); // NOLINT: must not throw
    }
}

} // namespace

ExitCode render(const std::filesystem::path& folder, const std::string& screen,
                const std::filesystem::path& png, Output output) {
    const int number = getLayoutNum(lowerCased(screen));
    if (!equalsIgnoringCase(layoutScreens[static_cast<std::size_t>(number)].caption, screen)) {
        complain(output, "there is no screen \"" + screen + "\"");
        return unreadable;
    }
    SkinDocument document;
    try {
        readSkin(document, folder);
    } catch (const SkinReadError& error) {
        complain(output, error.what());
        return unreadable;
    }
    document.setCurrentLayout(number);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // a picture needs no display
    }
    qInstallMessageHandler(passOnlyFatal);
    int argc = 1;
    std::string name = "tarvel-skin";
    char* argv = name.data();
    const QGuiApplication application(argc, &argv);
    try {
        writePicture(png, pngBytes(screenImage(document, number)));
    } catch (const std::runtime_error& error) {
        complain(output, error.what());
        return findings;
    }
    return done;
}

} // namespace tarvel::tool
