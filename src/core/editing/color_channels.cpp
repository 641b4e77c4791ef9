// Holds the values of a Color modifier within their limits, however they are dragged.
#include "editing/color_channels.h"

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

constexpr double highestValue = 255;
constexpr double shortestPeriod = 50;
constexpr double periodPerPixel = 10;

} // namespace

std::string_view channelValueName(ChannelValue which) {
    constexpr std::array<std::string_view, channelValues.size()> names = {"Min", "Max", "Period"};
    return names[static_cast<std::size_t>(which)];
}

double ColorChannel::value(ChannelValue which) const {
    switch (which) {
    case ChannelValue::Min:
        return Min;
    case ChannelValue::Max:
        return Max;
    default:
        return Period;
    }
}

void ColorChannel::setValue(ChannelValue which, double value) {
    switch (which) {
    case ChannelValue::Min:
        Min = value;
        break;
    case ChannelValue::Max:
        Max = value;
        break;
    default:
        Period = value;
    }
}

void ColorChannel::change(ChannelValue which, double value) {
    const double whole = std::nearbyint(value);
    switch (which) {
    case ChannelValue::Min:
        Min = whole > Max ? Max : std::max(whole, 0.0);
        break;
    case ChannelValue::Max:
        Max = whole < Min ? Min : std::min(whole, highestValue);
        break;
    default:
        Period = std::max(whole, shortestPeriod);
    }
}

void ColorChannel::drag(ChannelValue which, double pixels) {
    const double distance = which == ChannelValue::Period ? pixels * periodPerPixel : pixels;
    change(which, value(which) + distance);
}

void HandlePointer::mouseMove(ColorChannel& channel, ChannelValue which, int x, bool held) {
    if (held) {
        channel.drag(which, static_cast<double>(x) - lastX_);
    }
    lastX_ = x;
}

} // namespace tarvel
