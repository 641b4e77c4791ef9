// Image: a picture that fills its rectangle, a PNG picture in its own size, or a video.
#include "document/image_source.h"
#include "surface/element_looks.h"
#include "surface/picture_cache.h"
#include "surface/picture_place.h"
#include "surface/surface_pass.h"
#include "surface/video_frames.h"

namespace tarvel {

namespace {

constexpr std::string_view programIconPicture = ":/tarvel/imgCustom.png";

void paintVideo(SurfacePass& pass, int id, const ElementControl& control) {
    const QRectF rect = controlRect(control);
    const VideoFrames* frames = pass.frames();
    const QString problem = frames != nullptr ? frames->problem(id) : QString();
    if (!problem.isEmpty()) {
        pass.paintMissing(rect, control.file, problem);
        return;
    }
    const QImage frame = frames != nullptr ? frames->frame(id) : QImage();
    if (frame.isNull()) {
        paintPendingPicture(pass.painter(), pass.targetOf(rect));
    } else {
        pass.drawStretched(rect, frame);
    }
}

void paintFile(SurfacePass& pass, int id, const ElementControl& control) {
    if (control.kind == ControlKind::vid) {
        paintVideo(pass, id, control);
    } else if (control.kind == ControlKind::png) {
        pass.paintUnscaled(controlRect(control), control.file);
    } else {
        pass.paintStretched(controlRect(control), control.file);
    }
}

void paint(SurfacePass& pass, int id, const Element& element) {
    const ElementControl& control = element.elementControl;
    const QRectF rect = controlRect(control);
    if (pass.targetOf(rect).isEmpty()) {
        return;
    }
    switch (control.picture) {
    case PictureContent::programIcon:
        pass.paintStretched(rect, programIconPicture);
        break;
    case PictureContent::barred:
        pass.paintMissing(rect, control.file, QStringLiteral("outside the skin"));
        break;
    case PictureContent::file:
        paintFile(pass, id, control);
        break;
    }
}

// Of pictures; a video tells its size when it plays.
std::optional<SkinSize> naturalSize(const PanelValues& values, const SkinSettings& settings,
                                    PictureCache& pictures) {
    const auto& resources = settings.resources;
    if (values.resource < 0 || static_cast<std::size_t>(values.resource) >= resources.size()) {
        return std::nullopt;
    }
    ElementControl control;
    showResource(resources[static_cast<std::size_t>(values.resource)], control);
    if (control.picture != PictureContent::file || control.kind == ControlKind::vid) {
        return std::nullopt;
    }
    const QSize size = pictures.pictureSize(control.file);
    return size.isEmpty() ? std::nullopt
                          : std::optional(SkinSize{static_cast<float>(size.width()),
                                                   static_cast<float>(size.height())});
}

} // namespace

const KindLook imageLook = {.tool = {.name = "optImg",
                                     .caption = "Image/Video",
                                     .icon = IconName::image,
                                     .tip = "Place a picture or a video of the skin's resources"},
                            .paint = paint,
                            .bounds = rectangleBounds,
                            .naturalSize = naturalSize};

} // namespace tarvel
