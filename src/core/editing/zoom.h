// Zooming the drawing surface: its steps, the zoom that fits a room, and the ticks of rulers.
//
// A zoom is told in whole per cent; at 100 a skin pixel is one pixel of the window.
#pragma once

#include <array>

namespace tarvel {

inline constexpr int smallestZoom = 25;
inline constexpr int actualZoom = 100;
inline constexpr int largestZoom = 1600;

/// What zooming in and out goes through.
inline constexpr std::array zoomSteps = {smallestZoom, 33,  50,  67,  75,  actualZoom, 150,
                                         200,          300, 400, 600, 800, 1200,       largestZoom};

/// The step after a zoom, or before it; the last one, or the first, stays.
[[nodiscard]] int zoomedIn(int zoom);
[[nodiscard]] int zoomedOut(int zoom);

/// A screen that would fit a little larger than it is stays as it is: sharp.
inline constexpr int largestCrispFit = 112;
/// The largest zoom at which the whole screen lies within a room of so many pixels of the window;
/// the smallest one where there is none.
[[nodiscard]] int fittingZoom(double width, double height);

/// From this zoom on the borders of skin pixels show.
inline constexpr int pixelGridZoom = 400;
/// From this zoom on enlarged pictures show their own pixels; below they are smoothed.
inline constexpr int crispZoom = 200;

/// Skin pixels between the ticks of a ruler, and between those of them that have a number.
struct RulerTicks {
    int number = 0;
    int tick = 0; ///< a divisor of `number`

    bool operator==(const RulerTicks&) const = default;
};
/// Ticks that stand apart far enough to be told apart and read. `scale` in pixels of the window a
/// skin pixel.
[[nodiscard]] RulerTicks rulerTicks(double scale);

} // namespace tarvel
