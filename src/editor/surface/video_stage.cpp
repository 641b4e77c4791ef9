// Makes, seats and retires the players of videos, and takes their frames.
#include "surface/video_stage.h"

#include "files/host_files.h"
#include "widgets/qt_text.h"

#include <QMediaPlayer>
#include <QRectF>
#include <QTimer>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <utility>

namespace tarvel {

namespace {

// A player's own thread hands over a frame and waits up to 300 ms for it to be taken; stopping or
// deleting the player meanwhile waits as long. Pausing does not, and after this time the thread
// rests.
constexpr int restMilliseconds = 200;

// How long a player may take to its first frame.
constexpr int patienceMilliseconds = 10'000;

const QString tooMany = QStringLiteral("too many videos");

bool isVideo(const Element& element) {
    return element.elementControl.kind == ControlKind::vid &&
           element.elementControl.picture == PictureContent::file;
}

bool canBeSeen(const ElementControl& control) {
    return QRectF(0, 0, skinWidth, skinHeight)
        .intersects({control.left, control.top, control.width, control.height});
}

// The screen that an element is on; noScreen for one that is gone.
int screenOf(const SkinDocument& document, int id) {
    if (id > document.lastElementId()) {
        return VideoStage::noScreen;
    }
    const int screen = document.element(id).elementLayout;
    return document.rowOf(screen, id) >= 0 ? screen : VideoStage::noScreen;
}

QString problemOfFile(const std::filesystem::path& path) {
    const auto status = statusOf(path);
    if (!status && (errno == ENOENT || errno == ENOTDIR)) {
        return QStringLiteral("not found");
    }
    if (!status || status->kind != FileKind::regular) {
        return QStringLiteral("not readable");
    }
    return {};
}

// Players tell a missing decoder from a broken file only in words of the user's language. A file
// that begins as a wmv file does is taken for a good one.
QString problemOfContent(const std::filesystem::path& path) {
    const Descriptor file = openFile(path, Opening::read);
    const QByteArray beginning = QByteArray::fromHex("3026b2758e66cf11");
    QByteArray found(beginning.size(), '\0');
    const auto size = readSomeAt(file, 0, found.data(), static_cast<std::size_t>(found.size()));
    if (size < 0) {
        return QStringLiteral("not readable");
    }
    return found == beginning ? QStringLiteral("no codec") : QStringLiteral("not a video");
}

} // namespace

VideoStage::VideoStage(QObject* parent)
    : QObject(parent) {}

VideoStage::~VideoStage() {
    // All at rest before the first is deleted, so that their waits pass together.
    for (auto& [id, seat] : seats_) {
        if (seat.player != nullptr) {
            seat.player->disconnect(this);
            seat.player->videoSink()->disconnect(this);
            seat.player->pause();
        }
    }
}

void VideoStage::show(const SkinDocument& document, int screen) {
    dropOutdated(document);
    if (screen != shown_) {
        shown_ = screen;
        startAfresh();
    }
    for (auto& [id, seat] : seats_) {
        seat.onShown = screenOf(document, id) == screen;
        if (seat.player != nullptr && !seat.onShown) {
            seat.player->pause();
        }
    }
    if (screen == noScreen) {
        return;
    }
    for (int row = 0; row < document.rowCount(screen); ++row) {
        const int id = document.itemData(screen, row);
        if (isVideo(document.element(id))) {
            play(id, document);
        }
    }
}

void VideoStage::stopAllVids(const SkinDocument& document) {
    const int screen = playing_ && shown_ != noScreen ? shown_ : document.currentLayout();
    for (auto& [id, seat] : seats_) {
        if (seat.player != nullptr && screenOf(document, id) == screen) {
            seat.player->pause();
            seat.stopped = true;
        }
    }
}

void VideoStage::setPlaying(bool playing) {
    if (playing == playing_) {
        return;
    }
    playing_ = playing;
    held_ = false;
    rate_ = 1;
    for (auto& [id, seat] : seats_) {
        if (playing) {
            seat.wasStopped = seat.stopped;
            continue;
        }
        seat.stopped = seat.wasStopped;
        if (seat.player != nullptr) {
            seat.player->setPlaybackRate(rate_);
            if (seat.stopped) {
                seat.player->pause();
            }
        }
    }
}

void VideoStage::setHeld(bool held) {
    if (!playing_ || held == held_) {
        return;
    }
    held_ = held;
    for (auto& [id, seat] : seats_) {
        if (seat.player != nullptr && seat.onShown && !seat.stopped) {
            startOrHold(*seat.player);
        }
    }
}

void VideoStage::setRate(double rate) {
    if (!playing_ || rate == rate_) {
        return;
    }
    rate_ = rate;
    for (auto& [id, seat] : seats_) {
        if (seat.player != nullptr) {
            seat.player->setPlaybackRate(rate);
        }
    }
}

void VideoStage::goTo(std::int64_t time) {
    for (auto& [id, seat] : seats_) {
        const bool canGo = seat.player != nullptr && seat.onShown && seat.player->duration() > 0;
        if (canGo && !seat.stopped) {
            seat.player->setPosition(time % seat.player->duration());
        }
    }
}

// A player that is held before its first frame still hands that over.
void VideoStage::startOrHold(QMediaPlayer& player) const {
    if (held_) {
        player.pause();
    } else {
        player.play();
    }
}

bool VideoStage::isPlaying(int elementId) const {
    const auto found = seats_.find(elementId);
    return found != seats_.end() && found->second.player != nullptr &&
           found->second.player->playbackState() == QMediaPlayer::PlayingState;
}

bool VideoStage::isSettled(const SkinDocument& document) const {
    return std::all_of(seats_.begin(), seats_.end(), [&](const auto& entry) {
        const auto& [id, seat] = entry;
        return screenOf(document, id) != shown_ || !seat.frame.isNull() ||
               !seat.problem.isEmpty() || !canBeSeen(document.element(id).elementControl);
    });
}

QImage VideoStage::frame(int elementId) const {
    const auto found = seats_.find(elementId);
    return found == seats_.end() ? QImage() : found->second.frame;
}

QString VideoStage::problem(int elementId) const {
    const auto found = seats_.find(elementId);
    return found == seats_.end() ? QString() : found->second.problem;
}

// Gives up the seats of elements that are gone, or show another file than before.
void VideoStage::dropOutdated(const SkinDocument& document) {
    for (auto seat = seats_.begin(); seat != seats_.end();) {
        const int id = seat->first;
        const bool current = screenOf(document, id) != noScreen && isVideo(document.element(id)) &&
                             document.element(id).elementControl.file == seat->second.file;
        seat = current ? std::next(seat) : drop(seat);
    }
}

// Stopped videos will play from their beginning, while a screen plays all of them will, and failed
// ones be tried again. Those that were stopped before a screen played stay so after it.
void VideoStage::startAfresh() {
    std::erase_if(seats_, [](const auto& seat) { return !seat.second.problem.isEmpty(); });
    for (auto& [id, seat] : seats_) {
        const bool stays = !playing_ && std::exchange(seat.wasStopped, false);
        if (stays) {
            continue;
        }
        if ((std::exchange(seat.stopped, false) || playing_) && seat.player != nullptr) {
            seat.player->setPosition(0);
        }
    }
}

void VideoStage::play(int elementId, const SkinDocument& document) {
    Seat& seat = seats_[elementId];
    seat.onShown = true;
    seat.file = document.element(elementId).elementControl.file;
    if (seat.player != nullptr) {
        if (!seat.stopped) {
            startOrHold(*seat.player);
        }
        return;
    }
    if (!seat.problem.isEmpty() && seat.problem != tooMany) {
        return;
    }
    if (makeRoom(document)) {
        seat.problem.clear();
        open(elementId, seat);
    } else if (seat.problem.isEmpty()) {
        seat.problem = tooMany;
        emit frameChanged(elementId);
    }
}

// True when one more player may be made; a paused one of another screen makes way for it.
bool VideoStage::makeRoom(const SkinDocument& document) {
    const auto count = std::count_if(seats_.begin(), seats_.end(), [](const auto& seat) {
        return seat.second.player != nullptr;
    });
    if (count < largestCount) {
        return true;
    }
    const auto idle = std::find_if(seats_.begin(), seats_.end(), [&](const auto& seat) {
        return seat.second.player != nullptr && screenOf(document, seat.first) != shown_;
    });
    if (idle == seats_.end()) {
        return false;
    }
    drop(idle);
    return true;
}

void VideoStage::open(int elementId, Seat& seat) {
    const auto path = hostPath(seat.file);
    seat.problem = problemOfFile(path);
    if (!seat.problem.isEmpty()) {
        emit frameChanged(elementId);
        return;
    }
    // Without an audio output nothing is heard, and no audio device is needed.
    auto* player = new QMediaPlayer(this);
    auto* sink = new QVideoSink(player);
    seat.player = player;
    player->setVideoSink(sink);
    player->setLoops(QMediaPlayer::Infinite);
    connect(sink, &QVideoSink::videoFrameChanged, this,
            [this, elementId](const QVideoFrame& frame) { takeFrame(elementId, frame); });
    // The state of a player says nothing after an error, and errors come in bursts.
    connect(player, &QMediaPlayer::errorOccurred, this,
            [this, elementId, path] { fail(elementId, problemOfContent(path)); });
    watch(elementId, player, path);
    player->setSource(QUrl::fromLocalFile(qtPath(path)));
    player->setPlaybackRate(rate_);
    player->play(); // also while time is held: a first frame is wanted
}

// Some broken files keep a player loading for ever, with neither a frame nor an error.
void VideoStage::watch(int elementId, QMediaPlayer* player, const std::filesystem::path& path) {
    auto* timer = new QTimer(player);
    connect(timer, &QTimer::timeout, this, [this, elementId, player, path, timer] {
        const auto found = seats_.find(elementId);
        if (found == seats_.end() || found->second.player != player ||
            !found->second.frame.isNull()) {
            timer->stop();
        } else if (isPlaying(elementId)) {
            fail(elementId, problemOfContent(path));
        }
    });
    timer->start(patienceMilliseconds);
}

void VideoStage::fail(int elementId, const QString& problem) {
    const auto found = seats_.find(elementId);
    if (found == seats_.end() || found->second.player == nullptr) {
        return;
    }
    Seat& seat = found->second;
    retire(std::exchange(seat.player, nullptr));
    seat.problem = problem;
    emit frameChanged(elementId);
    emit placeFreed();
}

void VideoStage::takeFrame(int elementId, const QVideoFrame& frame) {
    const auto found = seats_.find(elementId);
    // A player that comes to rest hands over an invalid frame.
    if (found == seats_.end() || !frame.isValid()) {
        return;
    }
    QImage image = frame.toImage();
    if (!image.isNull()) {
        found->second.frame = std::move(image);
        if (held_ && found->second.player != nullptr) {
            found->second.player->pause(); // it was made for this frame
        }
        emit frameChanged(elementId);
    }
}

void VideoStage::retire(QMediaPlayer* player) {
    player->disconnect(this);
    player->videoSink()->disconnect(this);
    player->pause();
    QTimer::singleShot(restMilliseconds, player, &QObject::deleteLater);
}

VideoStage::Seats::iterator VideoStage::drop(Seats::iterator seat) {
    if (seat->second.player != nullptr) {
        retire(seat->second.player);
    }
    return seats_.erase(seat);
}

} // namespace tarvel
