// Moves paused players from time to time, and waits for the frame that each hands over.
#include "tool/video_moments.h"

#include "files/host_files.h"
#include "surface/video_stage.h"
#include "widgets/qt_text.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QMediaPlayer>
#include <QTimer>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>

#include <functional>
#include <string>
#include <utility>

namespace tarvel::tool {

namespace {

// Lets events happen until something is so; false when it is not after this time.
bool waitUntil(const std::function<bool()>& isSo, int longestMs) {
    const QDeadlineTimer deadline(longestMs);
    QTimer wake; // so that the wait ends even when no event comes
    wake.start(20);
    while (!isSo()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace

class VideoMoments::Video {
  public:
    Video(std::string file, QImage firstFrame)
        : file_(std::move(file))
        , first_(std::move(firstFrame))
        , now_(first_) {}

    void goTo(PlayTime time) {
        if (!isOpen_) {
            open();
        }
        const PlayTime place = isMovable_ ? time % player_.duration() : 0;
        if (place == place_) {
            return;
        }
        place_ = place;
        if (place == 0) {
            now_ = first_;
        } else if (place >= tailFrom_) {
            now_ = tail_;
        } else if (!seek(place)) {
            findTail(place);
        }
    }

    [[nodiscard]] const QImage& frame() const { return now_; }

  private:
    // A player can be moved once it has a frame and knows how long its video is.
    void open() {
        constexpr int longestMs = 3000;
        isOpen_ = true;
        player_.setVideoSink(&sink_);
        QObject::connect(&sink_, &QVideoSink::videoFrameChanged, &sink_,
                         [this](const QVideoFrame& frame) { take(frame); });
        player_.setSource(QUrl::fromLocalFile(qtPath(hostPath(file_))));
        player_.pause();
        isMovable_ = waitUntil(
            [this] { return frames_ > 0 && player_.duration() > 0 && player_.isSeekable(); },
            longestMs);
        if (frames_ > 0) {
            first_ = now_; // the one that was playing may be some frames on
        }
    }

    void take(const QVideoFrame& frame) {
        QImage image = frame.isValid() ? frame.toImage() : QImage();
        if (!image.isNull()) {
            now_ = std::move(image);
            ++frames_;
        }
    }

    bool seek(PlayTime place) {
        constexpr int longestMs = 1000; // it takes a few, on a busy machine some more
        const int before = frames_;
        player_.setPosition(place);
        return waitUntil([&] { return frames_ != before; }, longestMs);
    }

    // A video lasts longer than its last frame says, and no frame comes for a time after that.
    void findTail(PlayTime place) {
        constexpr PlayTime step = 50;
        constexpr int tries = 4;
        bool isFound = false;
        for (int i = 1; i <= tries && !isFound && place > i * step; ++i) {
            isFound = seek(place - i * step);
        }
        if (!isFound) {
            now_ = first_;
        }
        tail_ = now_;
        tailFrom_ = place;
    }

    QVideoSink sink_;
    std::string file_;
    QImage first_;
    QImage now_;
    QImage tail_;
    PlayTime tailFrom_ = never;
    PlayTime place_ = 0;
    int frames_ = 0;
    bool isOpen_ = false;
    bool isMovable_ = false;
    QMediaPlayer player_; // goes first, as it uses the rest
};

VideoMoments::VideoMoments(const SkinDocument& document, int screen)
    : document_(document)
    , stage_(std::make_unique<VideoStage>()) {
    constexpr int longestMs = 5000;
    stage_->show(document, screen);
    (void)waitUntil([&] { return stage_->isSettled(document); }, longestMs);
    for (int row = 0; row < document.rowCount(screen); ++row) {
        const int id = document.itemData(screen, row);
        if (const QString problem = stage_->problem(id); !problem.isEmpty()) {
            problems_.emplace(id, problem);
        } else if (const QImage first = stage_->frame(id); !first.isNull()) {
            videos_.emplace(
                id, std::make_unique<Video>(document.element(id).elementControl.file, first));
        }
    }
}

VideoMoments::~VideoMoments() = default;

void VideoMoments::goTo(PlayTime time) {
    // At rest, but not gone: a player that is deleted before it has come to rest complains.
    stage_->show(document_, VideoStage::noScreen);
    for (auto& [id, video] : videos_) {
        video->goTo(time);
    }
}

QImage VideoMoments::frame(int elementId) const {
    const auto found = videos_.find(elementId);
    return found == videos_.end() ? QImage() : found->second->frame();
}

QString VideoMoments::problem(int elementId) const {
    const auto found = problems_.find(elementId);
    return found == problems_.end() ? QString() : found->second;
}

} // namespace tarvel::tool
