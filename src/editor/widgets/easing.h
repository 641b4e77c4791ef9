// Numbers that glide to their targets: fast at first, slower and slower, exact at the end.
#pragma once

#include <QObject>
#include <QVariantAnimation>

#include <functional>
#include <memory>
#include <vector>

namespace tarvel {

/// Moves any number of numbers at the same time. Each step covers a fixed part of what is left;
/// what comes near enough to its target is there. The steps are spread over the frames so that all
/// is done in `duration`, however far it is and however busy the program; events run between
/// frames.
class Easing : public QObject {
    Q_OBJECT

  public:
    using Apply = std::function<void(double value)>;

    struct Move {
        double from = 0;
        double to = 0;
        Apply apply; ///< called with each new value, the last time with exactly `to`
    };

    static constexpr int duration = 330; ///< milliseconds

    /// A step covers 1 / `divisor` of the remaining distance; `nearEnough` is in the unit of the
    /// moves.
    Easing(int divisor, double nearEnough, QObject* parent = nullptr);

    /// Starts moving. Moves under way are left where they are. Where the desktop wants no motion,
    /// all are at their targets when it returns.
    void start(std::vector<Move> moves);
    /// Takes all moves to their targets at once.
    void finish();
    [[nodiscard]] bool isRunning() const;

  signals:
    /// All moves are at their targets.
    void finished();

  private:
    using Moves = std::vector<Move>;

    [[nodiscard]] double stepsFor(const Move& move) const;
    [[nodiscard]] double valueAfter(const Move& move, double steps) const;
    void show(double passed);

    double left_; // part of the distance that a step leaves
    double nearEnough_;
    double steps_ = 0; // that the longest move needs
    std::shared_ptr<const Moves> moves_;
    QVariantAnimation passed_; // the part of the duration that has passed, from 0 to 1
};

} // namespace tarvel
