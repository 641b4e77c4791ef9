// The four timers of an element: captions, what may be typed, the warning, and values out of texts.
#pragma once

#include "document/element.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvel {

struct TimerText {
    std::string_view caption;
    std::string_view help;
};

/// By TimerSlot. The caption "Liftime" is spelt so on the panel only.
inline constexpr std::array<TimerText, timerSlots> timerTexts = {
    {{"Delay", "The number of milliseconds before the element appears when the screen is first "
               "activated. Defaults to '0'"},
     {"CycleOn", "Once it appears, the element will cycle on by this period. Defaults to "
                 "'infinite'"},
     {"CycleOff", "Once it appears, the element will cycle off by this period. If not defined, it "
                  "will inherit from the CycleOn value."},
     {"Liftime", "The length of time the element remains on the screen. Defaults to 'infinite'"}}};

/// The texts of the four boxes.
using TimerBoxes = std::array<std::string, timerSlots>;
/// Milliseconds by TimerSlot; 0 is not set.
using TimerValues = std::array<std::int32_t, timerSlots>;

/// The key's character code when it may be typed into a timer box (a digit or Backspace), else 0.
[[nodiscard]] char32_t numsonly(char32_t key);

/// Warns when a box holds more than 0 and less than 30, which looks like seconds; "" otherwise.
[[nodiscard]] std::string_view timersMessage(const TimerBoxes& boxes);

[[nodiscard]] TimerBoxes timerBoxes(const TimerValues& values);
/// Read leniently, rounded with halves to even, held at the limits of 32 bits.
[[nodiscard]] TimerValues timerValues(const TimerBoxes& boxes);

} // namespace tarvel
