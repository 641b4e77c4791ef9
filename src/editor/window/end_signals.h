// The events by which the system asks a program to end, as events of the program: one header, a
// source for each system.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace tarvel {

/// Calls ended(signal) from the event loop for the first SIGTERM, SIGINT or SIGHUP, or for what a
/// console sends in their place; a second one ends the program at once, as it would without this.
/// One at a time may live.
class EndSignals : public QObject {
    Q_OBJECT

  public:
    explicit EndSignals(std::function<void(int signal)> ended);
    ~EndSignals() override;

  private:
    struct Watch;

    std::function<void(int)> ended_;
    std::unique_ptr<Watch> watch_;
};

} // namespace tarvel
