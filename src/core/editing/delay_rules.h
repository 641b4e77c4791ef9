// The display delays of three screens, as they are typed and shown.
#pragma once

#include "document/skin_settings.h"

#include <array>
#include <string>
#include <string_view>

namespace tarvel {

/// Names of the delays, by DelaySlot.
inline constexpr std::array<std::string_view, 3> delayFields = {"Title", "Load", "Saver"};

/// The delay in milliseconds as decimal text; field 0 to 2.
[[nodiscard]] std::string delayText(const SkinSettings& settings, int field);

/// Sets a delay to the number that the text begins with, 0 without one. Fields other than 0 to 2
/// do not exist; nothing happens then.
void setDelay(SkinSettings& settings, int field, std::string_view text);

} // namespace tarvel
