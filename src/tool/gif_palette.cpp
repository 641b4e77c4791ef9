// Chooses colours by cutting the space of colours where those of the pixels differ most. giflib's
// own choice goes by how many pixels there are alone: small bright pictures on a large dark ground
// become grey.
#include "tool/gif_palette.h"

#include <algorithm>
#include <unordered_map>

namespace tarvel::tool {

namespace {

constexpr int channelCount = 3; // red, green, blue
constexpr int keptBits = 6;     // of a channel: colours closer than that are one
constexpr int droppedBits = 8 - keptBits;
constexpr std::size_t spaceSize = std::size_t{1} << (channelCount * keptBits);

using Channels = std::array<double, channelCount>;

Channels channelsOf(QRgb pixel) {
    return {static_cast<double>(qRed(pixel)), static_cast<double>(qGreen(pixel)),
            static_cast<double>(qBlue(pixel))};
}

// Pixels of nearly one colour.
struct Bin {
    double count = 0;
    Channels sum{};
    std::uint8_t box = 0;

    [[nodiscard]] double mean(std::size_t channel) const { return sum.at(channel) / count; }
};

std::size_t spotOf(QRgb pixel) {
    const auto kept = [](int value) { return static_cast<std::size_t>(value) >> droppedBits; };
    return (kept(qRed(pixel)) << (2 * keptBits)) | (kept(qGreen(pixel)) << keptBits) |
           kept(qBlue(pixel));
}

// A part of the space of colours that becomes one colour.
struct Box {
    std::vector<Bin*> bins;
    Channels mean{};
    std::size_t widest = 0; // the channel in which its pixels differ most
    double error = 0;       // how much they do in that, squared and summed

    explicit Box(std::vector<Bin*> of)
        : bins(std::move(of)) {
        double count = 0;
        Channels sum{};
        Channels squares{};
        for (const Bin* bin : bins) {
            count += bin->count;
            for (std::size_t i = 0; i < channelCount; ++i) {
                sum.at(i) += bin->sum.at(i);
                squares.at(i) += bin->sum.at(i) * bin->mean(i);
            }
        }
        for (std::size_t i = 0; i < channelCount; ++i) {
            mean.at(i) = sum.at(i) / count;
            const double here = squares.at(i) - sum.at(i) * mean.at(i);
            if (here > error) {
                error = here;
                widest = i;
            }
        }
    }
};

// Cuts at the mean; false for a box of one bin, or of bins that differ by less than what rounding
// leaves.
bool cut(std::vector<Box>& boxes) {
    const auto worst = std::max_element(
        boxes.begin(), boxes.end(), [](const Box& a, const Box& b) { return a.error < b.error; });
    std::vector<Bin*> bins = worst->bins;
    const auto middle = std::partition(bins.begin(), bins.end(), [&](const Bin* bin) {
        return bin->mean(worst->widest) < worst->mean.at(worst->widest);
    });
    if (middle == bins.begin() || middle == bins.end()) {
        return false;
    }
    Box upper(std::vector<Bin*>(middle, bins.end()));
    *worst = Box(std::vector<Bin*>(bins.begin(), middle));
    boxes.push_back(std::move(upper));
    return true;
}

// All colours as they are; false when they are too many.
bool takeAll(const std::vector<QRgb>& pixels, GifPalette& palette) {
    std::unordered_map<QRgb, std::uint8_t> known;
    palette.indexes.reserve(pixels.size());
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        if (i > 0 && pixels[i] == pixels[i - 1]) {
            palette.indexes.push_back(palette.indexes.back());
            continue;
        }
        const auto place =
            known.try_emplace(pixels[i], static_cast<std::uint8_t>(known.size())).first;
        if (known.size() > GifPalette::most) {
            return false;
        }
        palette.colors.at(place->second) = pixels[i];
        palette.indexes.push_back(place->second);
    }
    return true;
}

void choose(const std::vector<QRgb>& pixels, GifPalette& palette) {
    std::vector<Bin> space(spaceSize);
    for (const QRgb pixel : pixels) {
        Bin& bin = space[spotOf(pixel)];
        const Channels channels = channelsOf(pixel);
        ++bin.count;
        for (std::size_t i = 0; i < channelCount; ++i) {
            bin.sum.at(i) += channels.at(i);
        }
    }
    std::vector<Bin*> used;
    for (Bin& bin : space) {
        if (bin.count > 0) {
            used.push_back(&bin);
        }
    }
    std::vector<Box> boxes{Box(std::move(used))};
    while (boxes.size() < GifPalette::most && cut(boxes)) {
    }
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const auto whole = [&](std::size_t channel) {
            constexpr double half = 0.5;
            return static_cast<int>(boxes[i].mean.at(channel) + half);
        };
        palette.colors.at(i) = qRgb(whole(0), whole(1), whole(2));
        for (Bin* bin : boxes[i].bins) {
            bin->box = static_cast<std::uint8_t>(i);
        }
    }
    for (const QRgb pixel : pixels) {
        palette.indexes.push_back(space[spotOf(pixel)].box);
    }
}

} // namespace

GifPalette GifPalette::of(const std::vector<QRgb>& pixels) {
    GifPalette palette;
    if (!takeAll(pixels, palette)) {
        palette = {};
        palette.indexes.reserve(pixels.size());
        choose(pixels, palette);
    }
    return palette;
}

} // namespace tarvel::tool
