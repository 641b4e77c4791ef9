// Brings a screen to a time, with its videos, and paints it.
#include "tool/screen_picture.h"

#include "tool/video_moments.h"

namespace tarvel::tool {

ScreenPicture::ScreenPicture(const SkinDocument& document, int screen, PictureCache& pictures,
                             const ModifierCatalogue& catalogue, const RenderOptions& options)
    : document_(document)
    , screen_(screen)
    , videos_(std::make_unique<VideoMoments>(document, screen))
    , painter_(pictures) {
    painter_.setVideoFrames(videos_.get());
    if (options.isPlayed) {
        played_.emplace(document, screen, catalogue);
        choices_ = options.choicesWith(played_->menu());
        frame_.emplace(*played_, choices_);
    }
}

ScreenPicture::~ScreenPicture() = default;

void ScreenPicture::paint(QPainter& painter, PlayTime time) {
    SurfaceView view;
    if (frame_) {
        frame_->show(time, choices_, [](const auto*, const auto*) {});
        videos_->goTo(time);
        view.played = &*frame_;
    }
    painter_.paint(painter, document_, screen_, QRectF(0, 0, skinWidth, skinHeight), view);
}

} // namespace tarvel::tool
