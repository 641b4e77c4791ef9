// Whether the desktop wants things to move.
#pragma once

namespace tarvel {

/// False where the style is told to show everything at once, or where the user's GTK settings
/// switch animations off ("gtk-enable-animations" in the settings.ini of gtk-4.0 or gtk-3.0).
[[nodiscard]] bool motionWanted();

} // namespace tarvel
