// How well two colours can be told apart.
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace tarvel {

inline constexpr double textContrast = 4.5; ///< the least between text and its ground
inline constexpr double markContrast = 3.0; ///< the least between marks, edges, icons and theirs

/// From 0, black, to 1, white, as the eye takes it.
[[nodiscard]] inline double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// From 1, the same, to 21, black and white.
[[nodiscard]] inline double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// `part` of one colour in another: 0 leaves `ground`.
[[nodiscard]] inline QColor mixed(const QColor& ground, const QColor& color, double part) {
    const auto mix = [&](int a, int b) {
        return static_cast<int>(std::lround(a + (b - a) * part));
    };
    return {mix(ground.red(), color.red()), mix(ground.green(), color.green()),
            mix(ground.blue(), color.blue())};
}

} // namespace tarvel
