// Decoding, stretching and keeping of pictures.
#include "canvas/picture_cache.h"

#include "skinfile/host_files.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <filesystem>
#include <string>
#include <system_error>

namespace tarvel {

namespace {

// Sources are kept no larger than this: stretched over the whole screen at double resolution they
// still have more pixels than they need.
constexpr qint64 sourcePixels = qint64{8} << 20;
// Stretching to more than this costs more memory than it saves time.
constexpr qint64 stretchedPixels = qint64{8} << 20;
// Of an unscaled picture no more than this can come into view.
constexpr int unscaledSide = 4096;
constexpr std::uintmax_t largestFile = std::uintmax_t{256} << 20;
// What remembering a failure costs.
constexpr qsizetype failureBytes = 1024;

qint64 pixelsOf(QSize size) {
    return qint64{size.width()} * size.height();
}

qsizetype costOf(const Picture& picture) {
    return picture.image.sizeInBytes() + failureBytes;
}

Picture failure(QString problem) {
    return {Picture::State::failed, {}, std::move(problem)};
}

Picture success(QImage image) {
    const auto format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    image.convertTo(format);
    // Dots per metre would make some painters scale by the picture's resolution.
    image.setDevicePixelRatio(1);
    return {Picture::State::ready, std::move(image), {}};
}

const Picture& pendingPicture() {
    static const Picture pending{Picture::State::pending, {}, {}};
    return pending;
}

struct Bytes {
    QByteArray data;
    QString problem;
};

Bytes builtInBytes(const QByteArray& file) {
    QFile resource(QString::fromUtf8(file));
    if (!resource.open(QIODevice::ReadOnly)) {
        return {{}, QStringLiteral("not found")};
    }
    return {resource.readAll(), {}};
}

Bytes fileBytes(const QByteArray& file) {
    namespace fs = std::filesystem;
    const fs::path path = hostPath({file.constData(), static_cast<std::size_t>(file.size())});
    std::error_code error;
    const auto status = fs::status(path, error);
    if (file.isEmpty() || status.type() == fs::file_type::not_found) {
        return {{}, QStringLiteral("not found")};
    }
    // Only regular files: opening a pipe would wait for its writer.
    if (status.type() != fs::file_type::regular) {
        return {{}, QStringLiteral("not readable")};
    }
    if (fs::file_size(path, error) > largestFile && !error) {
        return {{}, QStringLiteral("too large")};
    }
    try {
        const std::string content = readFile(path);
        return {QByteArray(content.data(), static_cast<qsizetype>(content.size())), {}};
    } catch (const FileError&) {
        return {{}, QStringLiteral("not readable")};
    }
}

// The largest size of the same shape within a number of pixels.
QSize within(QSize size, qint64 pixels) {
    const double factor =
        std::sqrt(static_cast<double>(pixels) / static_cast<double>(pixelsOf(size)));
    return {std::max(1, static_cast<int>(size.width() * factor)),
            std::max(1, static_cast<int>(size.height() * factor))};
}

struct Decoded {
    Picture picture;
    QSize ownSize;
};

// `pixels`: what to shrink the picture to where the format does that while decoding.
Decoded decode(const QByteArray& file, qint64 pixels) {
    Bytes bytes = file.startsWith(":/") ? builtInBytes(file) : fileBytes(file);
    if (!bytes.problem.isEmpty()) {
        return {failure(std::move(bytes.problem)), {}};
    }
    QBuffer buffer(&bytes.data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    // By the content, since names of files lie.
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead()) {
        return {failure(QStringLiteral("not a picture")), {}};
    }
    const QSize size = reader.size();
    if (pixelsOf(size) > pixels && reader.format() == "jpeg") {
        reader.setScaledSize(within(size, pixels));
    } else if (pixelsOf(size) > PictureCache::largestPixels) {
        return {failure(QStringLiteral("too large")), size};
    }
    QImage image = reader.read();
    if (image.isNull()) {
        return {failure(QStringLiteral("damaged")), {}};
    }
    const QSize own = size.isEmpty() ? image.size() : size;
    return {success(std::move(image)), own};
}

} // namespace

PictureCache::PictureCache(qsizetype bytes)
    : shown_(bytes - bytes / 4)
    , sources_(bytes / 4) {
    // Qt's own limit, in megabytes, is below what is promised here.
    constexpr int limit = static_cast<int>(largestPixels * 4 >> 20);
    if (QImageReader::allocationLimit() != 0 && QImageReader::allocationLimit() < limit) {
        QImageReader::setAllocationLimit(limit);
    }
}

const Picture& PictureCache::stretched(std::string_view file, QSize size) {
    const Key key{QByteArray::fromRawData(file.data(), static_cast<qsizetype>(file.size())), size};
    if (const Picture* known = shown_.object(key)) {
        return *known;
    }
    if (mustWait(key.file)) {
        return pendingPicture();
    }
    const Source& from = source(key.file);
    if (from.picture.state != Picture::State::ready) {
        // Kept here too, where it outlives the sources: the disk is not asked again at every
        // paint.
        return keep(key, from.picture);
    }
    if (pixelsOf(size) > stretchedPixels) {
        return from.picture;
    }
    return keep(key, success(from.picture.image.scaled(size, Qt::IgnoreAspectRatio,
                                                       Qt::SmoothTransformation)));
}

const Picture& PictureCache::unscaled(std::string_view file) {
    const Key key{QByteArray::fromRawData(file.data(), static_cast<qsizetype>(file.size())), {}};
    if (const Picture* known = shown_.object(key)) {
        return *known;
    }
    if (mustWait(key.file)) {
        return pendingPicture();
    }
    Decoded decoded = decode(key.file, largestPixels);
    const QSize size = decoded.picture.image.size();
    if (size.width() > unscaledSide || size.height() > unscaledSide) {
        decoded.picture.image = decoded.picture.image.copy(
            QRect(QPoint(0, 0), size.boundedTo({unscaledSide, unscaledSide})));
    }
    return keep(key, std::move(decoded.picture));
}

QSize PictureCache::pictureSize(std::string_view file) {
    return source(QByteArray::fromRawData(file.data(), static_cast<qsizetype>(file.size())))
        .ownSize;
}

void PictureCache::beginSlice(int budgetMs) {
    slice_ = DecodingSlice();
    slice_->budgetMs = budgetMs;
    slice_->clock.start();
}

bool PictureCache::endSlice() {
    const bool leftPending = slice_ && slice_->leftPending;
    slice_.reset();
    return leftPending;
}

bool PictureCache::mustWait(const QByteArray& file) {
    if (!slice_ || decodedBefore_.contains(file)) {
        return false;
    }
    if (slice_->decoded > 0 && slice_->clock.elapsed() >= slice_->budgetMs) {
        slice_->leftPending = true;
        return true;
    }
    ++slice_->decoded;
    decodedBefore_.insert(QByteArray(file.constData(), file.size()));
    return false;
}

void PictureCache::clear() {
    decodedBefore_.clear();
    shown_.clear();
    sources_.clear();
    uncachedPicture_ = {};
    uncachedSource_ = {};
}

qsizetype PictureCache::bytes() const {
    return shown_.totalCost() + sources_.totalCost();
}

const PictureCache::Source& PictureCache::source(const QByteArray& file) {
    if (const Source* known = sources_.object(file)) {
        return *known;
    }
    Decoded decoded = decode(file, sourcePixels);
    QImage& image = decoded.picture.image;
    if (pixelsOf(image.size()) > sourcePixels) {
        image = image.scaled(within(image.size(), sourcePixels), Qt::IgnoreAspectRatio,
                             Qt::SmoothTransformation);
    }
    const qsizetype cost = costOf(decoded.picture);
    Source found{std::move(decoded.picture), decoded.ownSize};
    if (cost > sources_.maxCost()) {
        uncachedSource_ = std::move(found);
        return uncachedSource_;
    }
    // A deep copy of the name: the caller's may end before the cache does.
    const QByteArray name(file.constData(), file.size());
    auto* kept = new Source(std::move(found)); // NOLINT: owned by the cache
    sources_.insert(name, kept, cost);
    return *kept;
}

const Picture& PictureCache::keep(const Key& key, Picture picture) {
    const qsizetype cost = costOf(picture);
    if (cost > shown_.maxCost()) {
        uncachedPicture_ = std::move(picture);
        return uncachedPicture_;
    }
    const Key owned{QByteArray(key.file.constData(), key.file.size()), key.size};
    auto* kept = new Picture(std::move(picture)); // NOLINT: owned by the cache
    shown_.insert(owned, kept, cost);
    return *kept;
}

} // namespace tarvel
