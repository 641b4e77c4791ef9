// Steps of a fixed part of what is left, by the clock of Qt's animations.
#include "widgets/easing.h"

#include "widgets/motion.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvel {

Easing::Easing(int divisor, double nearEnough, QObject* parent)
    : QObject(parent)
    , left_(1.0 - 1.0 / divisor)
    , nearEnough_(nearEnough) {
    passed_.setDuration(duration);
    passed_.setStartValue(0.0);
    passed_.setEndValue(1.0);
    connect(&passed_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& passed) { show(passed.toDouble()); });
    connect(&passed_, &QVariantAnimation::finished, this, &Easing::finished);
}

void Easing::start(std::vector<Move> moves) {
    {
        const QSignalBlocker quiet(passed_); // moves that are left where they are do not finish
        passed_.stop();
    }
    steps_ = 0;
    for (const Move& move : moves) {
        steps_ = std::max(steps_, stepsFor(move));
    }
    moves_ = std::make_shared<const Moves>(std::move(moves));
    passed_.start();
    if (!motionWanted()) {
        finish();
    }
}

void Easing::finish() {
    if (isRunning()) {
        passed_.setCurrentTime(duration);
    }
}

bool Easing::isRunning() const {
    return passed_.state() == QAbstractAnimation::Running;
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

void Easing::show(double passed) {
    if (passed == 0) {
        return; // nothing has moved yet
    }
    const auto moves = moves_;
    for (const Move& move : *moves) {
        move.apply(passed < 1 ? valueAfter(move, std::ceil(steps_ * passed)) : move.to);
        if (moves != moves_) {
            return; // started anew meanwhile
        }
    }
}

} // namespace tarvel
