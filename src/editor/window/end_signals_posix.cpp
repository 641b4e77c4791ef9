// A signal may interrupt anything, so its handler only writes its number into a pipe.
#include "window/end_signals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tarvel {

namespace {

constexpr std::array endSignals = {SIGTERM, SIGINT, SIGHUP};
constexpr std::size_t readEnd = 0;
constexpr std::size_t writeEnd = 1;

// The handler can be given nothing.
std::array<int, 2>& pipeEnds() {
    static std::array<int, 2> ends{-1, -1};
    return ends;
}

extern "C" void noteEndSignal(int signal) {
    const auto number = static_cast<unsigned char>(signal);
    [[maybe_unused]] const auto written = ::write(pipeEnds()[writeEnd], &number, 1);
}

void handle(void (*handler)(int), int flags) {
    struct sigaction action {};
    action.sa_handler = handler; // NOLINT: a union of the system
    action.sa_flags = flags;
    for (const int signal : endSignals) {
        ::sigaction(signal, &action, nullptr);
    }
}

// Asked from the event loop.
int readSignal() {
    unsigned char number = 0;
    return ::read(pipeEnds()[readEnd], &number, 1) == 1 ? number : 0;
}

} // namespace

struct EndSignals::Watch {
    QSocketNotifier notifier{static_cast<qintptr>(pipeEnds()[readEnd]), QSocketNotifier::Read};
};

EndSignals::EndSignals(std::function<void(int)> ended)
    : ended_(std::move(ended)) {
    if (::pipe2(pipeEnds().data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // signals end the program as they always do
    }
    watch_ = std::make_unique<Watch>();
    connect(&watch_->notifier, &QSocketNotifier::activated, this, [this] {
        if (const int signal = readSignal(); signal != 0) {
            ended_(signal);
        }
    });
    handle(noteEndSignal, static_cast<int>(SA_RESTART | static_cast<int>(SA_RESETHAND)));
}

EndSignals::~EndSignals() {
    handle(SIG_DFL, 0);
    watch_.reset();
    for (int& end : pipeEnds()) {
        if (end >= 0) {
            ::close(end);
        }
        end = -1;
    }
}

} // namespace tarvel
