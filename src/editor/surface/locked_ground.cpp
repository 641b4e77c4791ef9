// Makes the flat ground anew when the locks, the screen or a locked element change.
#include "surface/locked_ground.h"

#include "surface/pic.h"

namespace tarvel {

LockedGround::LockedGround(const SkinDocument& document, Pic& pic)
    : document_(document)
    , pic_(pic)
    , watch_(document.watch(*this)) {
    later_.setSingleShot(true);
    later_.setInterval(0);
    connect(&later_, &QTimer::timeout, this, &LockedGround::refresh);
    connect(&pic, &Pic::mappingChanged, this, [this] {
        if (locked_ > 0) {
            later_.start();
        }
    });
}

void LockedGround::documentChanged(const DocumentChange& change) {
    const int screen = document_.currentLayout();
    const int locked = document_.lockCount(screen);
    const bool inGround = change.what == DocumentChange::What::settings ||
                          change.what == DocumentChange::What::everything ||
                          change.what == DocumentChange::What::elements ||
                          (change.what == DocumentChange::What::element &&
                           document_.element(change.elementId).elementLocked);
    if (screen != screen_) {
        pic_.clearFlatGround(); // the ground of another screen must not show for a moment
        screen_ = screen;
        locked_ = 0;
    }
    if (locked != locked_ || (locked > 0 && inGround)) {
        later_.start();
    }
}

void LockedGround::refresh() {
    screen_ = document_.currentLayout();
    locked_ = document_.lockCount(screen_);
    pic_.clearFlatGround();
    constexpr double largestScale = largestFlatZoom / 100.0;
    if (locked_ > 0 && pic_.mapping().scale() <= largestScale) {
        pic_.setFlatGround(pic_.flatPicture(locked_), locked_);
    }
}

} // namespace tarvel
