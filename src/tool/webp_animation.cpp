// WebP animations: each frame is packed by libwebp and goes to the file at once. The library's own
// writer of animations would hold all of them until the end.
#include "tool/animation_file.h"

#include <array>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <webp/encode.h>

namespace tarvel::tool {

namespace {

constexpr std::size_t chunkHead = 8; // four letters, and the size of what follows
constexpr std::size_t fileHead = 12; // a chunk's head, and four letters more

void putNumber(std::string& bytes, std::uint64_t number, int count) {
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>((number >> (8 * i)) & 0xFFU);
    }
}

std::string chunk(std::string_view name, std::string_view content) {
    std::string bytes(name);
    putNumber(bytes, content.size(), 4);
    bytes += content;
    return bytes;
}

// A picture of libwebp's with its pixels.
class Pixels {
  public:
    explicit Pixels(QSize size) {
        if (WebPPictureInit(&picture_) == 0) {
            throw std::runtime_error("libwebp is of another version than was built for");
        }
        picture_.use_argb = 1;
        picture_.width = size.width();
        picture_.height = size.height();
        if (WebPPictureAlloc(&picture_) == 0) {
            throw std::bad_alloc();
        }
    }
    ~Pixels() { WebPPictureFree(&picture_); }
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;

    [[nodiscard]] std::uint32_t* line(int y) {
        return picture_.argb + static_cast<std::ptrdiff_t>(y) * picture_.argb_stride;
    }

    // The picture's chunk, without the head of a file by itself.
    [[nodiscard]] std::string packed() {
        constexpr int effort = 2; // of 9: more takes many times as long and saves little
        WebPConfig config;
        if (WebPConfigInit(&config) == 0 || WebPConfigLosslessPreset(&config, effort) == 0) {
            throw std::runtime_error("libwebp is of another version than was built for");
        }
        std::string bytes;
        picture_.custom_ptr = &bytes;
        picture_.writer = [](const std::uint8_t* data, std::size_t size, const WebPPicture* of) {
            static_cast<std::string*>(of->custom_ptr)
                ->append(reinterpret_cast<const char*>(data), size);
            return 1;
        };
        if (WebPEncode(&config, &picture_) == 0) {
            throw std::runtime_error("libwebp could not pack a frame (its error " +
                                     std::to_string(picture_.error_code) + ")");
        }
        return bytes.substr(fileHead);
    }

  private:
    WebPPicture picture_{};
};

// What a frame changes: pixels that stay are clear, so that those of the frame before show.
std::string packedChange(const QImage& before, const QImage& now, const QRect& area) {
    constexpr QRgb opaque = 0xFF000000U;
    Pixels pixels(area.size());
    for (int y = 0; y < area.height(); ++y) {
        const auto lineOf = [&](const QImage& image) {
            return reinterpret_cast<const QRgb*>(image.constScanLine(area.top() + y)) + area.left();
        };
        const QRgb* const newer = lineOf(now);
        const QRgb* const older = before.isNull() ? nullptr : lineOf(before);
        std::uint32_t* const line = pixels.line(y);
        for (int x = 0; x < area.width(); ++x) {
            const bool stays = older != nullptr && older[x] == newer[x];
            line[x] = stays ? 0 : newer[x] | opaque;
        }
    }
    return pixels.packed();
}

class WebpAnimation final : public AnimationFile {
  public:
    WebpAnimation(const OpenFile& file, QSize size)
        : file_(file)
        , size_(size) {
        put(head(0));
    }

    void add(const QImage& frame, double until) override {
        constexpr double milliseconds = 1000;
        const QImage now = frame.convertToFormat(QImage::Format_RGB32);
        const QRect area = areaOf(now);
        const std::int64_t end = std::llround(until * milliseconds);
        std::string content;
        putNumber(content, static_cast<unsigned>(area.left()) / 2, 3);
        putNumber(content, static_cast<unsigned>(area.top()) / 2, 3);
        putNumber(content, static_cast<unsigned>(area.width() - 1), 3);
        putNumber(content, static_cast<unsigned>(area.height() - 1), 3);
        putNumber(content, static_cast<std::uint64_t>(end - shownUntil_), 3);
        putNumber(content, 0, 1); // over the frame before, which stays
        content += packedChange(before_, now, area);
        put(chunk("ANMF", content));
        shownUntil_ = end;
        before_ = now;
    }

    void finish() override {
        constexpr std::uint64_t longest = 0xFFFFFFFEU;
        if (written_ - chunkHead > longest) {
            errno = EFBIG;
            file_.fail();
        }
        const std::string whole = head(written_ - chunkHead);
        file_.writeAt(0, whole.data(), whole.size());
    }

  private:
    // Places are stored by half.
    [[nodiscard]] QRect areaOf(const QImage& now) const {
        if (before_.isNull()) {
            return now.rect();
        }
        QRect area = changedArea(before_, now);
        if (area.isEmpty()) {
            return {0, 0, 1, 1};
        }
        area.setLeft(area.left() - area.left() % 2);
        area.setTop(area.top() - area.top() % 2);
        return area;
    }

    // The beginning of a file, with the size of all that follows its first head.
    [[nodiscard]] std::string head(std::uint64_t size) const {
        constexpr unsigned animated = 0x02;
        constexpr unsigned clear = 0x10; // pixels may be
        std::string canvas;
        putNumber(canvas, animated | clear, 4);
        putNumber(canvas, static_cast<unsigned>(size_.width() - 1), 3);
        putNumber(canvas, static_cast<unsigned>(size_.height() - 1), 3);
        std::string loop;
        putNumber(loop, 0xFF000000U, 4); // black behind
        putNumber(loop, 0, 2);           // again without end
        std::string bytes = "RIFF";
        putNumber(bytes, size, 4);
        return bytes + "WEBP" + chunk("VP8X", canvas) + chunk("ANIM", loop);
    }

    void put(const std::string& bytes) {
        file_.write(bytes.data(), bytes.size());
        written_ += bytes.size();
    }

    const OpenFile& file_;
    QSize size_;
    QImage before_;
    std::int64_t shownUntil_ = 0; // ms
    std::uint64_t written_ = 0;
};

} // namespace

std::unique_ptr<AnimationFile> webpAnimation(const OpenFile& file, QSize size) {
    return std::make_unique<WebpAnimation>(file, size);
}

} // namespace tarvel::tool
