// The colours of the program, light and dark.
#pragma once

#include <QColor>
#include <QPalette>

#include <cstdint>

namespace tarvel {

enum class Shade : std::uint8_t { light, dark };

/// Whether a palette has light text on dark ground.
[[nodiscard]] Shade shadeOf(const QPalette& palette);

/// All roles of all groups. Highlight is the one accent, Mid the edge of fields and buttons.
[[nodiscard]] const QPalette& paletteOf(Shade shade);

/// The ground of a panel, on which its heading and its controls stand.
[[nodiscard]] QColor panelGround(const QPalette& palette);

/// Of what is wrong or missing, as text or icon on Base or Window.
[[nodiscard]] QColor alarmColor(const QPalette& palette);

} // namespace tarvel
