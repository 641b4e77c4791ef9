// Reads the values of the Modifier nodes once, and reckons each look from the time alone.
#include "playing/modifier_play.h"

#include "text/tag_scanner.h"
#include "text/value_encodings.h"

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

constexpr double rangePeriod = 2000; // ms
constexpr double travelPixels = 60;  // a second, across and down
constexpr double largestScale = 10;  // more would fill the screen with one pixel
constexpr std::array<const char*, 4> sides = {"L", "T", "R", "B"};

XmlNode partOf(XmlNode modifier, std::string_view name) {
    return childTagged(modifier, name);
}

double numberIn(XmlNode node, std::string_view name) {
    return node ? val(getAttrib(node, name)) : 0;
}

void readChannels(XmlNode modifier, Motion& motion) {
    for (std::size_t i = 0; i < channelCount; ++i) {
        const XmlNode node = partOf(modifier, channelNames[i]);
        if (!node) {
            return;
        }
        motion.channels[i].Enable = reverseBool(getAttrib(node, "Enable"));
        for (const ChannelValue which : channelValues) {
            motion.channels[i].setValue(which, numberIn(node, channelValueName(which)));
        }
    }
}

Motion motionOf(XmlNode modifier, const ModifierCatalogue& catalogue) {
    Motion motion;
    motion.type = getAttrib(modifier, "Type");
    motion.preview = catalogue.previewOf(motion.type);
    switch (motion.preview) {
    case ModifierPreview::color:
        readChannels(modifier, motion);
        break;
    case ModifierPreview::opacity:
    case ModifierPreview::scale: {
        const XmlNode range = partOf(modifier, "Range");
        motion.from = numberIn(range, "X");
        motion.to = numberIn(range, "Y");
        break;
    }
    case ModifierPreview::move: {
        const XmlNode bounds = partOf(modifier, "Bounds");
        for (std::size_t i = 0; i < sides.size(); ++i) {
            motion.bounds.at(i) = toSingle(numberIn(bounds, sides[i]));
        }
        break;
    }
    case ModifierPreview::still:
        break;
    }
    return motion;
}

bool swings(const ColorChannel& channel) {
    return channel.Enable && channel.Period >= 1 && channel.Min != channel.Max;
}

double roomFor(float size, float low, float high) {
    return static_cast<double>(high) - low - size;
}

// Between the sides there and back from where it stands, to the far side first; a thing that is
// larger than its bounds stays at the near one.
float travelled(float at, float size, float low, float high, PlayTime time) {
    const double room = roomFor(size, low, high);
    if (!(room > 0)) {
        return toSingle(static_cast<double>(low) - at);
    }
    const double start = std::clamp(static_cast<double>(at) - low, 0.0, room);
    const double period = 2 * room / travelPixels * 1000;
    const double begun = start / travelPixels * 1000;
    const double within = std::fmod(std::fmod(static_cast<double>(time), period) + begun, period);
    const double way = within / 1000 * travelPixels;
    return toSingle(low + (way <= room ? way : 2 * room - way) - at);
}

void add(PlayLook& look, const Motion& motion, const Place& rectangle, PlayTime at) {
    const auto [left, top, width, height] = rectangle;
    const auto range = [&] { return swing(motion.from, motion.to, rangePeriod, at) / 100; };
    switch (motion.preview) {
    case ModifierPreview::color:
        for (std::size_t i = 0; i < channelCount; ++i) {
            const ColorChannel& channel = motion.channels[i];
            if (channel.Enable) {
                const double value = swing(channel.Min, channel.Max, channel.Period, at);
                look.channels[i] = static_cast<int>(std::lround(std::clamp(value, 0.0, 255.0)));
            }
        }
        break;
    case ModifierPreview::opacity:
        look.opacity *= std::clamp(range(), 0.0, 1.0);
        break;
    case ModifierPreview::scale:
        look.scale = std::clamp(look.scale * range(), 0.0, largestScale);
        break;
    case ModifierPreview::move:
        look.right = travelled(left, width, motion.bounds[0], motion.bounds[2], at);
        look.down = travelled(top, height, motion.bounds[1], motion.bounds[3], at);
        break;
    case ModifierPreview::still:
        break;
    }
}

} // namespace

std::vector<Motion> motionsOf(const XmlTree& modifiers, const ModifierCatalogue& catalogue) {
    std::vector<Motion> motions;
    for (XmlNode each = modifiers.root(); each; each = each.nextSibling()) {
        motions.push_back(motionOf(each, catalogue));
    }
    return motions;
}

PlayLook lookAt(const std::vector<Motion>& motions, const Place& rectangle, PlayTime at) {
    PlayLook look;
    for (const Motion& motion : motions) {
        add(look, motion, rectangle, at);
    }
    return look;
}

bool moves(const std::vector<Motion>& motions, const Place& rectangle) {
    return std::any_of(motions.begin(), motions.end(), [&](const Motion& motion) {
        switch (motion.preview) {
        case ModifierPreview::color:
            return std::any_of(motion.channels.begin(), motion.channels.end(), swings);
        case ModifierPreview::opacity:
        case ModifierPreview::scale:
            return motion.from != motion.to;
        case ModifierPreview::move:
            return roomFor(rectangle[2], motion.bounds[0], motion.bounds[2]) > 0 ||
                   roomFor(rectangle[3], motion.bounds[1], motion.bounds[3]) > 0;
        case ModifierPreview::still:
            break;
        }
        return false;
    });
}

double swing(double low, double high, double period, PlayTime at) {
    if (!(period >= 1) || at < 0) {
        return low;
    }
    const double within = std::fmod(static_cast<double>(at), period) / period;
    return std::lerp(low, high, within < 0.5 ? 2 * within : 2 - 2 * within);
}

} // namespace tarvel
