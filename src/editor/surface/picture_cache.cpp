// Stretches pictures, keeps them, and forgets those used longest ago.
#include "surface/picture_cache.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tarvel {

namespace {

// Stretching to more than this costs more memory than it saves time.
constexpr qint64 stretchedPixels = qint64{8} << 20;
// What is kept and what a decoding holds stay within this together.
constexpr qint64 largestTogether = qint64{392} << 20;
// From here on it is worth the time to give back what others left.
constexpr qint64 largeDecoding = qint64{32} << 20;
// What remembering a failure costs.
constexpr qsizetype failureBytes = 1024;

// Stands for the size of a picture that is kept to be enlarged.
constexpr QSize sizeAsItIs(-2, -2);

qint64 pixelsOf(QSize size) {
    return qint64{size.width()} * size.height();
}

qsizetype costOf(const Picture& picture) {
    return picture.image.sizeInBytes() + failureBytes;
}

const Picture& pendingPicture() {
    static const Picture pending{Picture::State::pending, {}, {}};
    return pending;
}

// The text without a copy, to look up with.
QByteArray borrowed(std::string_view text) {
    return QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
}

// A copy that lasts: a borrowed text may end before the cache does.
QByteArray owned(const QByteArray& text) {
    return {text.constData(), text.size()};
}

// Forgets what was used longest ago.
template <class Cache> void shrink(Cache& cache, qsizetype bytes) {
    const qsizetype bound = cache.maxCost();
    cache.setMaxCost(std::clamp(bytes, qsizetype{0}, bound));
    cache.setMaxCost(bound);
}

// Pictures that were forgotten leave their memory with the allocator, which would keep it while
// another large one is taken from the system.
void giveBackFreeMemory() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

} // namespace

PictureCache::PictureCache(qsizetype bytes)
    : shown_(bytes - bytes / 4)
    , sources_(bytes / 4) {
    raiseImageLimit();
}

const Picture& PictureCache::stretched(std::string_view file, QSize size) {
    const Key key{borrowed(file), size};
    if (const Picture* known = shown_.object(key)) {
        return *known;
    }
    if (mustWait(key.file)) {
        return pendingPicture();
    }
    const Picture& from = source(key.file);
    if (from.state != Picture::State::ready) {
        // Kept here too, where it outlives the sources: the disk is not asked again at every
        // paint.
        return keep(key, from);
    }
    if (pixelsOf(size) > stretchedPixels) {
        return from;
    }
    return keep(key, readyPicture(
                         from.image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
}

const Picture& PictureCache::notEnlarged(std::string_view file, QSize size) {
    const Key asItIs{borrowed(file), sizeAsItIs};
    const auto isEnlarged = [&](const Picture& picture) {
        return size.width() > picture.image.width() || size.height() > picture.image.height();
    };
    if (const Picture* known = shown_.object(asItIs)) {
        return isEnlarged(*known) ? *known : stretched(file, size);
    }
    const Key key{asItIs.file, size};
    if (const Picture* known = shown_.object(key)) {
        return *known;
    }
    if (mustWait(key.file)) {
        return pendingPicture();
    }
    const Picture& from = source(key.file);
    if (from.state != Picture::State::ready) {
        return keep(key, from);
    }
    return isEnlarged(from) ? keep(asItIs, from) : stretched(file, size);
}

const Picture& PictureCache::unscaled(std::string_view file) {
    const Key key{borrowed(file), {}};
    if (const Picture* known = shown_.object(key)) {
        return *known;
    }
    if (mustWait(key.file)) {
        return pendingPicture();
    }
    return keep(key, decode(key.file, PictureUse::unscaled));
}

QSize PictureCache::pictureSize(std::string_view file) {
    const QByteArray name = borrowed(file);
    if (!facts_.contains(name)) {
        (void)source(name);
    }
    return facts_.value(name).ownSize;
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

bool PictureCache::refresh() {
    QSet<QByteArray> changed;
    for (auto fact = facts_.begin(); fact != facts_.end(); ++fact) {
        if (hasChanged(fact.key(), fact->seen)) {
            changed.insert(fact.key());
        }
    }
    if (!changed.isEmpty()) {
        forget(changed);
    }
    return !changed.isEmpty();
}

void PictureCache::forget(const QSet<QByteArray>& files) {
    for (const QByteArray& file : files) {
        facts_.remove(file);
        decodedBefore_.remove(file);
        sources_.remove(file);
    }
    const auto shown = shown_.keys();
    for (const Key& key : shown) {
        if (files.contains(key.file)) {
            shown_.remove(key);
        }
    }
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
    decodedBefore_.insert(owned(file));
    return false;
}

void PictureCache::clear() {
    decodedBefore_.clear();
    facts_.clear();
    shown_.clear();
    sources_.clear();
    uncachedPicture_ = {};
    uncachedSource_ = {};
}

qsizetype PictureCache::bytes() const {
    return shown_.totalCost() + sources_.totalCost();
}

const Picture& PictureCache::source(const QByteArray& file) {
    if (const Picture* known = sources_.object(file)) {
        return *known;
    }
    Picture picture = decode(file, PictureUse::stretched);
    const qsizetype cost = costOf(picture);
    if (cost > sources_.maxCost()) {
        uncachedSource_ = std::move(picture);
        return uncachedSource_;
    }
    auto* kept = new Picture(std::move(picture)); // NOLINT: owned by the cache
    sources_.insert(owned(file), kept, cost);
    return *kept;
}

Picture PictureCache::decode(const QByteArray& file, PictureUse use) {
    const SeenFile seen = lookFor(file);
    Decoded decoded = decodePicture(file, seen, use, [this](qint64 needed) { makeRoom(needed); });
    if (!facts_.contains(file)) {
        facts_.insert(owned(file), {seen, decoded.ownSize});
    }
    return std::move(decoded.picture);
}

// Sources go first: what is shown is needed at the next paint.
void PictureCache::makeRoom(qint64 needed) {
    uncachedPicture_ = {};
    uncachedSource_ = {};
    const qint64 room = largestTogether - needed;
    if (bytes() > room) {
        shrink(sources_, room - shown_.totalCost());
        shrink(shown_, room - sources_.totalCost());
    }
    if (needed >= largeDecoding) {
        giveBackFreeMemory();
    }
}

const Picture& PictureCache::keep(const Key& key, Picture picture) {
    const qsizetype cost = costOf(picture);
    if (cost > shown_.maxCost()) {
        uncachedPicture_ = std::move(picture);
        return uncachedPicture_;
    }
    auto* kept = new Picture(std::move(picture)); // NOLINT: owned by the cache
    shown_.insert({owned(key.file), key.size}, kept, cost);
    return *kept;
}

} // namespace tarvel
