// The signals by which the system asks a program to end, as events of the program.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace tarvel {

/// Calls ended(signal) from the event loop for the first SIGTERM, SIGINT or SIGHUP; a second one
/// ends the program at once, as it would without this. One at a time may live.
class EndSignals : public QObject {
    Q_OBJECT

  public:
    explicit EndSignals(std::function<void(int signal)> ended);
    ~EndSignals() override;

  private:
    void read();

    std::function<void(int)> ended_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tarvel
