// GIF animations: giflib packs, and what it packs goes to the file at once.
#include "tool/animation_file.h"
#include "tool/gif_palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <exception>
#include <gif_lib.h>
#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvel::tool {

namespace {

constexpr std::size_t mapSize = 256;
constexpr GifByteType clearIndex = GifPalette::most; // the pixel of the frame before stays

// With a spare place for what stays.
ColorMapObject* mapOf(const GifPalette& palette) {
    std::array<GifColorType, mapSize> colors{};
    std::transform(palette.colors.begin(), palette.colors.end(), colors.begin(), [](QRgb color) {
        return GifColorType{static_cast<GifByteType>(qRed(color)),
                            static_cast<GifByteType>(qGreen(color)),
                            static_cast<GifByteType>(qBlue(color))};
    });
    ColorMapObject* const map = GifMakeMapObject(static_cast<int>(mapSize), colors.data());
    if (map == nullptr) {
        throw std::bad_alloc();
    }
    return map;
}

class GifAnimation final : public AnimationFile {
  public:
    GifAnimation(const OpenFile& file, QSize size)
        : file_(file) {
        int problem = 0;
        gif_ = EGifOpen(this, writeTo, &problem);
        if (gif_ == nullptr) {
            throw std::bad_alloc();
        }
        try {
            begin(size);
        } catch (...) {
            close();
            throw;
        }
    }
    ~GifAnimation() override { close(); }
    GifAnimation(const GifAnimation&) = delete;
    GifAnimation& operator=(const GifAnimation&) = delete;

    void add(const QImage& frame, double until) override {
        const QImage now = frame.convertToFormat(QImage::Format_RGB32);
        QRect area = before_.isNull() ? now.rect() : changedArea(before_, now);
        if (area.isEmpty()) {
            area = {0, 0, 1, 1};
        }
        putTime(until);
        putArea(now, area);
        before_ = now;
    }

    void finish() override { check(close()); }

  private:
    static int writeTo(GifFileType* gif, const GifByteType* bytes, int count) {
        auto* self = static_cast<GifAnimation*>(gif->UserData);
        try {
            self->file_.write(reinterpret_cast<const char*>(bytes),
                              static_cast<std::size_t>(count));
            return count;
        } catch (...) { // giflib's own code lies between
            self->failure_ = std::current_exception();
            return 0;
        }
    }

    void begin(QSize size) {
        constexpr int bitsPerChannel = 8;
        EGifSetGifVersion(gif_, true);
        check(EGifPutScreenDesc(gif_, size.width(), size.height(), bitsPerChannel, 0, nullptr));
        constexpr std::string_view name = "NETSCAPE2.0";
        constexpr std::array<GifByteType, 3> withoutEnd = {1, 0, 0};
        check(EGifPutExtensionLeader(gif_, APPLICATION_EXT_FUNC_CODE));
        check(EGifPutExtensionBlock(gif_, static_cast<int>(name.size()), name.data()));
        check(EGifPutExtensionBlock(gif_, static_cast<int>(withoutEnd.size()), withoutEnd.data()));
        check(EGifPutExtensionTrailer(gif_));
    }

    void putTime(double until) {
        constexpr double hundredths = 100;
        const std::int64_t end = std::llround(until * hundredths);
        const GraphicsControlBlock control{
            .DisposalMode = DISPOSE_DO_NOT,
            .UserInputFlag = false,
            .DelayTime = static_cast<int>(end - std::exchange(shownUntil_, end)),
            .TransparentColor = clearIndex};
        std::array<GifByteType, 4> bytes{};
        EGifGCBToExtension(&control, bytes.data());
        check(EGifPutExtension(gif_, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(bytes.size()),
                               bytes.data()));
    }

    void putArea(const QImage& now, const QRect& area) {
        std::vector<QRgb> pixels;
        forEachPixel(now, area, [&](QRgb pixel, bool stays) {
            if (!stays) {
                pixels.push_back(pixel);
            }
        });
        const GifPalette palette = GifPalette::of(pixels);
        ColorMapObject* const map = mapOf(palette);
        const int described = EGifPutImageDesc(gif_, area.left(), area.top(), area.width(),
                                               area.height(), false, map);
        GifFreeMapObject(map);
        check(described);
        std::size_t next = 0;
        std::vector<GifByteType> line;
        forEachPixel(now, area, [&](QRgb /*pixel*/, bool stays) {
            line.push_back(stays ? clearIndex : palette.indexes[next++]);
            if (line.size() == static_cast<std::size_t>(area.width())) {
                check(EGifPutLine(gif_, line.data(), area.width()));
                line.clear();
            }
        });
    }

    // Line by line, with whether the frame before has the same there.
    template <class Told> void forEachPixel(const QImage& now, const QRect& area, Told told) const {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            const auto* newer = reinterpret_cast<const QRgb*>(now.constScanLine(y));
            const auto* older = before_.isNull()
                                    ? nullptr
                                    : reinterpret_cast<const QRgb*>(before_.constScanLine(y));
            for (int x = area.left(); x <= area.right(); ++x) {
                told(newer[x], older != nullptr && older[x] == newer[x]);
            }
        }
    }

    void check(int outcome) {
        if (failure_) {
            std::rethrow_exception(std::exchange(failure_, nullptr));
        }
        if (outcome == GIF_ERROR) {
            throw std::runtime_error("giflib could not pack a frame");
        }
    }

    int close() {
        int problem = 0;
        return gif_ == nullptr ? GIF_OK : EGifCloseFile(std::exchange(gif_, nullptr), &problem);
    }

    const OpenFile& file_;
    GifFileType* gif_ = nullptr;
    std::exception_ptr failure_;
    QImage before_;
    std::int64_t shownUntil_ = 0; // hundredths of a second
};

} // namespace

std::unique_ptr<AnimationFile> gifAnimation(const OpenFile& file, QSize size) {
    return std::make_unique<GifAnimation>(file, size);
}

} // namespace tarvel::tool
