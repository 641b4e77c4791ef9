// Looks zooms up in the table of steps, and ticks in the series 1, 2, 5.
#include "editing/zoom.h"

#include "document/skin_document.h"

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

constexpr double percent = 100;
constexpr double nearestNumbers = 48; // pixels of the window
constexpr double nearestTicks = 5;

constexpr std::array numberSteps = {1, 2, 5, 10, 20, 50, 100, 200, 500};

} // namespace

int zoomedIn(int zoom) {
    const auto* found = std::upper_bound(zoomSteps.begin(), zoomSteps.end(), zoom);
    return found == zoomSteps.end() ? largestZoom : *found;
}

int zoomedOut(int zoom) {
    const auto* found = std::lower_bound(zoomSteps.begin(), zoomSteps.end(), zoom);
    return found == zoomSteps.begin() ? smallestZoom : *(found - 1);
}

int fittingZoom(double width, double height) {
    const double fitting = std::min(width * percent / skinWidth, height * percent / skinHeight);
    if (fitting >= actualZoom && fitting <= largestCrispFit) {
        return actualZoom;
    }
    return static_cast<int>(std::clamp<double>(std::floor(fitting), smallestZoom, largestZoom));
}

RulerTicks rulerTicks(double scale) {
    const auto* found = std::find_if(numberSteps.begin(), numberSteps.end(),
                                     [&](int step) { return step * scale >= nearestNumbers; });
    const int number = found == numberSteps.end() ? numberSteps.back() : *found;
    const auto* tick = std::find_if(numberSteps.begin(), numberSteps.end(), [&](int step) {
        return number % step == 0 && step * scale >= nearestTicks;
    });
    return {number, tick == numberSteps.end() ? number : *tick};
}

} // namespace tarvel
