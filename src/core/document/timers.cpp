// Filters what is typed into the timer boxes, and turns their texts into timers and back.
#include "document/timers.h"

#include "text/value_encodings.h"

#include <algorithm>

namespace tarvel {

char32_t numsonly(char32_t key) {
    constexpr char32_t backspace = 8;
    const bool digit = key >= U'0' && key <= U'9';
    return digit || key == backspace ? key : 0;
}

std::string_view timersMessage(const TimerBoxes& boxes) {
    constexpr double plausible = 30; // milliseconds
    const bool doubtful = std::any_of(boxes.begin(), boxes.end(), [](const std::string& box) {
        const double value = val(box);
        return value > 0 && value < plausible;
    });
    return doubtful
               ? "The values are in milliseconds.  i.e. 1s = 1000 ms.  Double-check your values"
               : "";
}

TimerBoxes timerBoxes(const TimerValues& values) {
    TimerBoxes boxes;
    std::transform(values.begin(), values.end(), boxes.begin(),
                   [](std::int32_t value) { return numberText(value); });
    return boxes;
}

TimerValues timerValues(const TimerBoxes& boxes) {
    TimerValues values{};
    std::transform(boxes.begin(), boxes.end(), values.begin(),
                   [](const std::string& box) { return toInt32(val(box)); });
    return values;
}

} // namespace tarvel
