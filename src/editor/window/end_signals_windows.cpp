// Consoles tell of their events in a thread of their own. The end of the user's session comes by
// QGuiApplication::commitDataRequest.
#include "window/end_signals.h"

#include <csignal>
#include <mutex>
#include <windows.h>

namespace tarvel {

namespace {

// The handler can be given nothing.
struct Receiver {
    std::mutex mutex;
    QObject* object = nullptr; // until the first event
    std::function<void(int)> take;
};

Receiver& receiver() {
    static Receiver only;
    return only;
}

int signalOf(DWORD event) {
    return event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT ? SIGINT : SIGTERM;
}

BOOL WINAPI noteConsoleEvent(DWORD event) {
    constexpr DWORD untilEnded = 5'000; // milliseconds; the system waits no longer
    {
        const std::lock_guard lock(receiver().mutex);
        QObject* const object = std::exchange(receiver().object, nullptr);
        if (object == nullptr) {
            return FALSE; // ends the program
        }
        QMetaObject::invokeMethod(
            object, [take = receiver().take, signal = signalOf(event)] { take(signal); },
            Qt::QueuedConnection);
    }
    if (signalOf(event) != SIGINT) {
        ::Sleep(untilEnded); // once this returns the program is ended
    }
    return TRUE;
}

} // namespace

struct EndSignals::Watch {};

EndSignals::EndSignals(std::function<void(int)> ended)
    : ended_(std::move(ended)) {
    {
        const std::lock_guard lock(receiver().mutex);
        receiver().object = this;
        receiver().take = ended_;
    }
    // It stays, and does nothing without a receiver: taking it away would wait for an event that is
    // being handled, and so for the end of the program.
    static const bool isKnown = ::SetConsoleCtrlHandler(noteConsoleEvent, TRUE) != 0;
    static_cast<void>(isKnown);
}

EndSignals::~EndSignals() {
    const std::lock_guard lock(receiver().mutex);
    receiver().object = nullptr;
}

} // namespace tarvel
