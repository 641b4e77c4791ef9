// JPEG files as the tests of pictures need them.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageWriter>

namespace tarvel::test {

inline QByteArray jpegBytes(const QImage& image, bool progressive) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(progressive);
    if (!writer.write(image)) {
        qFatal("cannot write a JPEG picture");
    }
    return buffer.data();
}

/// The same file claiming to be a picture of another size. Decoders take its memory before they
/// miss its data.
inline QByteArray claimingSize(QByteArray jpeg, int width, int height) {
    auto frame = jpeg.indexOf(QByteArray::fromHex("ffc2"));
    if (frame < 0) {
        frame = jpeg.indexOf(QByteArray::fromHex("ffc0"));
    }
    const auto put = [&](qsizetype at, int number) {
        jpeg[at] = static_cast<char>(number >> 8);
        jpeg[at + 1] = static_cast<char>(number & 0xFF);
    };
    put(frame + 5, height);
    put(frame + 7, width);
    return jpeg;
}

/// The same progressive file, of three colours, claiming to have a fourth, and each for every
/// pixel: nothing takes more memory.
inline QByteArray withFourWholeColors(QByteArray jpeg) {
    constexpr int colorsAt = 9; // bytes after the frame's marker
    constexpr int colorBytes = 3;
    const auto frame = jpeg.indexOf(QByteArray::fromHex("ffc2"));
    jpeg[frame + 3] = 8 + 4 * colorBytes;
    jpeg[frame + colorsAt] = 4;
    jpeg.insert(frame + colorsAt + 1 + 3 * colorBytes, QByteArray::fromHex("041100"));
    for (int color = 0; color < 4; ++color) {
        jpeg[frame + colorsAt + 2 + color * colorBytes] = 0x11;
    }
    return jpeg;
}

} // namespace tarvel::test
