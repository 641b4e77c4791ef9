// Steps and frames of gliding numbers.
#include "widgets/easing.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvel {

Easing::Easing(int divisor, double nearEnough, QObject* parent)
    : QObject(parent)
    , left_(1.0 - 1.0 / divisor)
    , nearEnough_(nearEnough) {
    constexpr int frame = 16; // ms
    frames_.setInterval(frame);
    frames_.setTimerType(Qt::PreciseTimer);
    connect(&frames_, &QTimer::timeout, this, &Easing::stepFrame);
}

void Easing::start(std::vector<Move> moves) {
    steps_ = 0;
    for (const Move& move : moves) {
        steps_ = std::max(steps_, stepsFor(move));
    }
    moves_ = std::make_shared<const Moves>(std::move(moves));
    clock_.start();
    frames_.start();
}

void Easing::finish() {
    if (!isRunning()) {
        return;
    }
    frames_.stop();
    // The applied functions may start something new.
    const auto moves = std::exchange(moves_, nullptr);
    for (const Move& move : *moves) {
        move.apply(move.to);
    }
    emit finished();
}

double Easing::stepsFor(const Move& move) const {
    const double distance = std::abs(move.to - move.from);
    return distance <= nearEnough_ ? 0
                                   : std::ceil(std::log(nearEnough_ / distance) / std::log(left_));
}

double Easing::valueAfter(const Move& move, double steps) const {
    const double rest = (move.to - move.from) * std::pow(left_, steps);
    return std::abs(rest) <= nearEnough_ ? move.to : move.to - rest;
}

void Easing::stepFrame() {
    const double passed = static_cast<double>(clock_.elapsed()) / duration;
    if (passed >= 1) {
        finish();
        return;
    }
    const auto moves = moves_;
    for (const Move& move : *moves) {
        move.apply(valueAfter(move, std::ceil(steps_ * passed)));
        if (moves != moves_) {
            return; // started anew meanwhile
        }
    }
}

} // namespace tarvel
