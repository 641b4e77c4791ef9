// Reading the head of a JPEG file up to its first pass.
#include "surface/jpeg_passes.h"

#include <QIODevice>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace tarvel {

namespace {

// One colour of a picture: of how many squares it has in a unit of the file.
struct Channel {
    int across = 1;
    int down = 1;
};

struct Frame {
    bool progressive = false;
    int width = 0;
    int height = 0;
    std::vector<Channel> channels;
};

constexpr int frameHead = 6; // bytes before the channels
constexpr int channelBytes = 3;

int byteAt(const QByteArray& bytes, qsizetype at) {
    return at < bytes.size() ? static_cast<std::uint8_t>(bytes[at]) : 0;
}

int numberAt(const QByteArray& bytes, qsizetype at) {
    return byteAt(bytes, at) << 8 | byteAt(bytes, at + 1);
}

// The markers from C0 to CF begin a frame, but for three.
bool beginsFrame(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Followed by no length.
bool standsAlone(int marker) {
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

// The next marker, whatever lies before it; empty at the end of the file.
std::optional<int> nextMarker(QIODevice& file) {
    char byte = 0;
    bool marked = false;
    while (file.getChar(&byte)) {
        const int value = static_cast<std::uint8_t>(byte);
        if (marked && value != 0x00 && value != 0xFF) {
            return value;
        }
        marked = value == 0xFF;
    }
    return std::nullopt;
}

Frame frameOf(int marker, const QByteArray& segment) {
    Frame frame;
    frame.progressive = (marker & 0x03) == 0x02;
    frame.height = numberAt(segment, 1);
    frame.width = numberAt(segment, 3);
    for (int i = 0; i < byteAt(segment, 5); ++i) {
        const int factors = byteAt(segment, frameHead + i * channelBytes + 1);
        frame.channels.push_back({std::max(factors >> 4, 1), std::max(factors & 0x0F, 1)});
    }
    return frame;
}

qint64 roundedUp(qint64 number, qint64 step) {
    return (number + step - 1) / step * step;
}

// Two bytes for each of the 64 numbers of a square, and units that reach over the edge.
qint64 wholeBytes(const Frame& frame) {
    constexpr qint64 side = 8;
    int across = 1;
    int down = 1;
    for (const Channel& channel : frame.channels) {
        across = std::max(across, channel.across);
        down = std::max(down, channel.down);
    }
    const qint64 units = roundedUp(frame.width, side * across) / (side * across) *
                         (roundedUp(frame.height, side * down) / (side * down));
    qint64 squares = 0;
    for (const Channel& channel : frame.channels) {
        squares += units * channel.across * channel.down;
    }
    return squares * side * side * 2;
}

qint64 readHead(QIODevice& file) {
    if (file.read(2) != QByteArray::fromHex("ffd8")) {
        return 0;
    }
    Frame frame;
    while (const auto marker = nextMarker(file)) {
        if (standsAlone(*marker)) {
            continue;
        }
        const int length = std::max(numberAt(file.read(2), 0) - 2, 0);
        const bool firstPass = *marker == 0xDA;
        if (!beginsFrame(*marker) && !firstPass) {
            file.skip(length);
            continue;
        }
        const QByteArray segment = file.read(length);
        if (firstPass) {
            // One pass with some of the colours only means that others follow.
            const bool whole = byteAt(segment, 0) >= static_cast<int>(frame.channels.size());
            return frame.progressive || !whole ? wholeBytes(frame) : 0;
        }
        frame = frameOf(*marker, segment);
    }
    return 0;
}

} // namespace

qint64 jpegPassesBytes(QIODevice& file) {
    const qint64 start = file.pos();
    const qint64 bytes = readHead(file);
    file.seek(start);
    return bytes;
}

} // namespace tarvel
