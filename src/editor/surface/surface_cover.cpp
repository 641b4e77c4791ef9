// Lays the curtain over the surface for a moment, and goes on with what it is told then.
#include "surface/surface_cover.h"

#include "surface/pic.h"

#include <chrono>
#include <utility>

namespace tarvel {

SurfaceCover::SurfaceCover(Pic& pic)
    : QObject(&pic)
    , pic_(pic) {
    using namespace std::chrono_literals;
    timer_.setSingleShot(true);
    timer_.setInterval(200ms);
    connect(&timer_, &QTimer::timeout, this, &SurfaceCover::timeOver);
}

void SurfaceCover::cover(std::function<void()> then) {
    emit aboutToCover();
    pic_.setCursor(Qt::CrossCursor);
    pic_.picBox().setGeometry(pic_.rect());
    pic_.picBox().show();
    pic_.picBox().raise();
    then_ = std::move(then);
    timer_.start();
}

void SurfaceCover::uncover() {
    pic_.picBox().hide();
}

void SurfaceCover::timeOver() {
    uncover();
    hurry();
}

void SurfaceCover::hurry() {
    if (const auto then = std::exchange(then_, {})) {
        then();
    }
}

} // namespace tarvel
