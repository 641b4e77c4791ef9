// Makes an image of a file, with an account of the memory before it is taken.
#include "surface/picture_decoder.h"

#include <QImageReader>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace tarvel {

namespace {

// Stretched pictures are made from no more than this: over the whole screen at double resolution
// it still has more pixels than they need.
constexpr qint64 sourcePixels = qint64{8} << 20;
// Of an unscaled picture no more than this can come into view.
constexpr int unscaledSide = 4096;
constexpr qint64 bytesPerPixel = 4; // of what is kept
constexpr qint64 largestImage = largestPixels * bytesPerPixel;
// A JPEG file that comes in several passes is held whole until the last one is read: this many
// bytes for a colour of each pixel.
constexpr qint64 jpegColorBytes = 2;
constexpr qint64 jpegColors = 4; // at most

qint64 pixelsOf(QSize size) {
    return qint64{size.width()} * size.height();
}

Picture failure(QString problem) {
    return {Picture::State::failed, {}, std::move(problem)};
}

// The largest size of the same shape within a number of pixels.
QSize within(QSize size, qint64 pixels) {
    const double factor =
        std::sqrt(static_cast<double>(pixels) / static_cast<double>(pixelsOf(size)));
    return {std::max(1, static_cast<int>(size.width() * factor)),
            std::max(1, static_cast<int>(size.height() * factor))};
}

bool isJpegFile(const QImageReader& reader) {
    return reader.format() == "jpeg";
}

// A JPEG picture is decoded at as many eighths of its size as the wanted one needs, and then made
// smaller.
QSize decodedJpegSize(QSize size, QSize wanted) {
    const double factor = std::min(static_cast<double>(size.width()) / wanted.width(),
                                   static_cast<double>(size.height()) / wanted.height());
    const int eighths = std::clamp(static_cast<int>(std::ceil(8 / factor)), 1, 8);
    const auto part = [&](int side) { return static_cast<int>((qint64{side} * eighths + 7) / 8); };
    return {part(size.width()), part(size.height())};
}

// What decoding is going to make.
struct Plan {
    QSize decoded; // the image that comes out of the format
    QSize kept;    // and what is made of it
};

// Has the reader decode a smaller image where the format can do that.
Plan planFor(QImageReader& reader, QSize size, PictureUse use) {
    const bool isJpeg = isJpegFile(reader);
    if (use == PictureUse::unscaled) {
        const QSize corner = size.boundedTo({unscaledSide, unscaledSide});
        if (!isJpeg) {
            return {size, corner};
        }
        reader.setClipRect(QRect(QPoint(0, 0), corner));
        return {corner, corner};
    }
    if (pixelsOf(size) <= sourcePixels) {
        return {size, size};
    }
    const QSize kept = within(size, sourcePixels);
    if (!isJpeg) {
        return {size, kept};
    }
    reader.setScaledSize(kept);
    return {decodedJpegSize(size, kept), kept};
}

bool isFormatKept(QImage::Format format) {
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32 ||
           format == QImage::Format_ARGB32_Premultiplied;
}

// The most that is held at a time; `whole` is held while the image is decoded.
qint64 bytesFor(const Plan& plan, QImage::Format format, qint64 whole) {
    const qint64 image = pixelsOf(plan.decoded) * QImage::toPixelFormat(format).bitsPerPixel() / 8;
    const qint64 converted = isFormatKept(format) ? 0 : pixelsOf(plan.decoded) * bytesPerPixel;
    const qint64 kept = plan.kept == plan.decoded ? 0 : pixelsOf(plan.kept) * bytesPerPixel;
    if (image > largestImage) {
        return image + whole + largestDecoding; // no image of Qt becomes as large
    }
    return std::max(whole + image, image + converted + kept);
}

// The most that decoding the picture is going to hold; nothing for one that is too large.
std::optional<qint64> memoryFor(QImageReader& reader, QSize size, PictureUse use) {
    const QImage::Format told = reader.imageFormat();
    const QImage::Format format = told == QImage::Format_Invalid ? QImage::Format_ARGB32 : told;
    qint64 whole = 0;
    if (isJpegFile(reader)) {
        const qint64 colors = format == QImage::Format_Grayscale8 ? 1 : jpegColors;
        if (pixelsOf(size) * colors > largestJpeg * jpegColors) {
            return std::nullopt;
        }
        whole = pixelsOf(size) * colors * jpegColorBytes;
    }
    const Plan plan = planFor(reader, size, use);
    const qint64 needed = bytesFor(plan, format, whole);
    const bool fits = pixelsOf(plan.decoded) <= largestPixels && needed <= largestDecoding;
    return fits ? std::optional(needed) : std::nullopt;
}

struct Read {
    QImage image;
    QString problem;
    QSize ownSize;
};

Read readImage(QFile& file, PictureUse use, const MakeRoom& makeRoom) {
    QImageReader reader(&file);
    // By the content, since names of files lie.
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead()) {
        return {{}, QStringLiteral("not a picture"), {}};
    }
    const QSize size = reader.size();
    if (!size.isEmpty()) {
        const auto needed = memoryFor(reader, size, use);
        if (!needed) {
            return {{}, QStringLiteral("too large"), size};
        }
        makeRoom(*needed);
    }
    QImage image = reader.read();
    if (image.isNull()) {
        return {{}, QStringLiteral("damaged"), {}};
    }
    const QSize own = size.isEmpty() ? image.size() : size;
    return {std::move(image), {}, own};
}

QImage reduced(QImage image, PictureUse use) {
    const QSize corner = image.size().boundedTo({unscaledSide, unscaledSide});
    if (use == PictureUse::unscaled && corner != image.size()) {
        return image.copy(QRect(QPoint(0, 0), corner));
    }
    if (use == PictureUse::stretched && pixelsOf(image.size()) > sourcePixels) {
        return image.scaled(within(image.size(), sourcePixels), Qt::IgnoreAspectRatio,
                            Qt::SmoothTransformation);
    }
    return image;
}

} // namespace

Picture readyPicture(QImage image) {
    const auto format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    image.convertTo(format);
    // Dots per metre would make some painters scale by the picture's resolution.
    image.setDevicePixelRatio(1);
    return {Picture::State::ready, std::move(image), {}};
}

Decoded decodePicture(const QByteArray& file, const SeenFile& seen, PictureUse use,
                      const MakeRoom& makeRoom) {
    QFile opened;
    QString problem = openPicture(file, seen, opened);
    if (!problem.isEmpty()) {
        return {failure(std::move(problem)), {}};
    }
    // The reader and its memory are gone before the image is worked on.
    Read read = readImage(opened, use, makeRoom);
    if (!read.problem.isEmpty()) {
        return {failure(std::move(read.problem)), read.ownSize};
    }
    Picture whole = readyPicture(std::move(read.image));
    return {readyPicture(reduced(std::move(whole.image), use)), read.ownSize};
}

void raiseImageLimit() {
    constexpr int limit = static_cast<int>(largestImage >> 20); // in megabytes
    if (QImageReader::allocationLimit() != 0 && QImageReader::allocationLimit() < limit) {
        QImageReader::setAllocationLimit(limit);
    }
}

} // namespace tarvel
