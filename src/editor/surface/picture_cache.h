// Decoded pictures, kept by file and wanted size up to a bound of memory.
#pragma once

#include "surface/picture_decoder.h"

#include <QByteArray>
#include <QCache>
#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QSize>

#include <optional>
#include <string_view>

namespace tarvel {

/// What has been decoded since PictureCache::beginSlice().
struct DecodingSlice {
    QElapsedTimer clock;
    int budgetMs = 0;
    int decoded = 0;
    bool leftPending = false;
};

/// Decodes pictures on demand and forgets the ones used longest ago when memory runs out, or when a
/// large one is being decoded. Changes of a file on the disk go unnoticed until refresh().
/// References it returns are good until the next call.
///
/// Files are document paths; a text that begins with ":/" is a picture built into the program.
class PictureCache {
  public:
    /// Memory for decoded pictures in bytes, about a quarter of it for the pictures that stretched
    /// ones are made from.
    static constexpr qsizetype defaultBytes = qsizetype{256} << 20;

    explicit PictureCache(qsizetype bytes = defaultBytes);

    /// The picture stretched to exactly `size`, in device pixels; for a size too large to be worth
    /// keeping, a smaller image that the caller stretches.
    const Picture& stretched(std::string_view file, QSize size);

    /// The same, but a picture that would be enlarged comes as it is, for the caller to enlarge:
    /// no memory goes into pixels that are many times the same.
    const Picture& notEnlarged(std::string_view file, QSize size);

    /// The picture at its own size. Of a very large one it is the top left corner, far larger than
    /// any screen.
    const Picture& unscaled(std::string_view file);

    /// The picture's own size in pixels; empty when it cannot be read. Decodes the picture only
    /// where that was never done.
    QSize pictureSize(std::string_view file);

    /// From here to endSlice(), files that were never decoded before are decoded only while less
    /// than `budgetMs` milliseconds have passed, one at least; others are pending.
    void beginSlice(int budgetMs);
    /// Whether anything was left pending since beginSlice(): then paint again soon.
    bool endSlice();

    /// Looks at every file again, without reading any, and forgets what came of the ones that
    /// changed, went or appeared. True when there was one: then paint again.
    bool refresh();

    void clear();

    /// Decoded bytes held at present.
    [[nodiscard]] qsizetype bytes() const;

  private:
    struct Key {
        QByteArray file;
        QSize size; // empty: unscaled

        bool operator==(const Key&) const = default;
        friend size_t qHash(const Key& key, size_t seed) {
            return qHashMulti(seed, key.file, key.size.width(), key.size.height());
        }
    };
    struct Facts {
        SeenFile seen;
        QSize ownSize;
    };

    const Picture& source(const QByteArray& file);
    Picture decode(const QByteArray& file, PictureUse use);
    const Picture& keep(const Key& key, Picture picture);
    void makeRoom(qint64 needed);
    void forget(const QSet<QByteArray>& files);
    bool mustWait(const QByteArray& file);

    QCache<Key, Picture> shown_;
    // To stretch from, not larger than a few screens.
    QCache<QByteArray, Picture> sources_;
    // Of every file that was decoded, as it was the first time, since what is shown may be from
    // then. Outlives the pictures: a thumbnail that is kept needs no more than the size.
    QHash<QByteArray, Facts> facts_;
    std::optional<DecodingSlice> slice_; // the one under way
    // A file that was decoded once never waits again: where memory is short it may be forgotten
    // between two paints, and would be waited for without end.
    QSet<QByteArray> decodedBefore_;
    // Answers that are too large for the caches.
    Picture uncachedPicture_;
    Picture uncachedSource_;
};

} // namespace tarvel
