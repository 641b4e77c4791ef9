// An animation as a viewer sees it.
#pragma once

#include "files/host_files.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>
#include <webp/demux.h>

namespace tarvel {

struct DecodedAnimation {
    std::vector<QImage> frames; // opaque, 32 bits a pixel
    std::vector<int> milliseconds;
    bool isEndless = false;
};

inline DecodedAnimation decodedGif(const std::filesystem::path& file) {
    const std::string bytes = readFile(file);
    QBuffer buffer;
    buffer.setData(bytes.data(), static_cast<int>(bytes.size()));
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "gif");
    DecodedAnimation animation;
    for (QImage frame = reader.read(); !frame.isNull(); frame = reader.read()) {
        animation.frames.push_back(frame.convertToFormat(QImage::Format_RGB32));
        animation.milliseconds.push_back(reader.nextImageDelay());
    }
    animation.isEndless = reader.loopCount() == -1;
    return animation;
}

inline DecodedAnimation decodedWebp(const std::filesystem::path& file) {
    const std::string bytes = readFile(file);
    const WebPData data{reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
    WebPAnimDecoderOptions options;
    WebPAnimDecoderOptionsInit(&options);
    options.color_mode = MODE_BGRA;
    DecodedAnimation animation;
    WebPAnimDecoder* const decoder = WebPAnimDecoderNew(&data, &options);
    if (decoder == nullptr) {
        ADD_FAILURE() << "no animation";
        return animation;
    }
    WebPAnimInfo info;
    WebPAnimDecoderGetInfo(decoder, &info);
    animation.isEndless = info.loop_count == 0;
    int before = 0;
    std::uint8_t* pixels = nullptr;
    int until = 0;
    while (WebPAnimDecoderGetNext(decoder, &pixels, &until) != 0) {
        const QImage frame(pixels, static_cast<int>(info.canvas_width),
                           static_cast<int>(info.canvas_height), QImage::Format_ARGB32);
        EXPECT_EQ(frame.pixelColor(0, 0).alpha(), 255);
        animation.frames.push_back(frame.convertToFormat(QImage::Format_RGB32));
        animation.milliseconds.push_back(until - before);
        before = until;
    }
    EXPECT_EQ(animation.frames.size(), info.frame_count);
    WebPAnimDecoderDelete(decoder);
    return animation;
}

} // namespace tarvel
