// Shows the two faces of the play button.
#include "widgets/play_button.h"

#include "widgets/icons.h"

#include <algorithm>

namespace tarvel {

PlayButton::PlayButton(QWidget* parent)
    : QPushButton(parent) {
    // As wide as its wider text, so that nothing moves when it changes.
    setText(tr("Stop"));
    drawIcon();
    const int stopWidth = sizeHint().width();
    showState();
    setMinimumWidth(std::max(stopWidth, sizeHint().width()));
}

void PlayButton::setPlaying(bool playing) {
    if (playing != playing_) {
        playing_ = playing;
        showState();
    }
}

void PlayButton::showState() {
    setText(playing_ ? tr("S&top") : tr("&Play")); // set anew while the dialog is open
    setToolTip(playing_ ? tr("End the music that is played (Space in the list)")
                        : tr("Listen to the selected file (Space in the list)"));
    setAccessibleName(playing_ ? tr("Stop listening") : tr("Play the selected file"));
    drawIcon();
}

void PlayButton::drawIcon() {
    setIcon(tarvel::icon(playing_ ? IconName::stop : IconName::play));
}

} // namespace tarvel
