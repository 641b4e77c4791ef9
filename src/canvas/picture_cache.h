// Decoded pictures, kept by file and wanted size up to a bound of memory.
#pragma once

#include <QByteArray>
#include <QCache>
#include <QElapsedTimer>
#include <QImage>
#include <QSet>
#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarvel {

/// What the cache knows of a picture.
struct Picture {
    enum class State : std::uint8_t {
        ready,   ///< image is there
        pending, ///< will be there later; shown as an empty place until then
        failed   ///< never will be; problem says why
    };
    State state = State::failed;
    /// RGB32 or premultiplied ARGB32, device pixel ratio 1.
    QImage image;
    /// A few words: "not found", "not readable", "not a picture", "damaged", "too large".
    QString problem;
};

/// What has been decoded since PictureCache::beginSlice().
struct DecodingSlice {
    QElapsedTimer clock;
    int budgetMs = 0;
    int decoded = 0;
    bool leftPending = false;
};

/// Decodes pictures on demand and forgets the ones used longest ago when memory runs out. Changes
/// of a file on the disk go unnoticed until clear(). References it returns are good until the next
/// call.
///
/// Files are document paths; a text that begins with ":/" is a picture built into the program.
class PictureCache {
  public:
    /// Memory for decoded pictures in bytes, about a quarter of it for the pictures that stretched
    /// ones are made from.
    static constexpr qsizetype defaultBytes = qsizetype{256} << 20;
    /// Pictures of more pixels are refused, unless their format can be decoded at a smaller size.
    static constexpr qsizetype largestPixels = qsizetype{64} << 20;

    explicit PictureCache(qsizetype bytes = defaultBytes);

    /// The picture stretched to exactly `size`, in device pixels; for a size too large to be worth
    /// keeping, a smaller image that the caller stretches.
    const Picture& stretched(std::string_view file, QSize size);

    /// The picture at its own size. Of a very large one it is the top left corner, far larger than
    /// any screen.
    const Picture& unscaled(std::string_view file);

    /// The picture's own size in pixels; empty when it cannot be read.
    QSize pictureSize(std::string_view file);

    /// From here to endSlice(), files that were never decoded before are decoded only while less
    /// than `budgetMs` milliseconds have passed, one at least; others are pending.
    void beginSlice(int budgetMs);
    /// Whether anything was left pending since beginSlice(): then paint again soon.
    bool endSlice();

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
    /// A decoded picture to stretch from, not larger than a few screens.
    struct Source {
        Picture picture;
        QSize ownSize;
    };

    const Source& source(const QByteArray& file);
    const Picture& keep(const Key& key, Picture picture);
    bool mustWait(const QByteArray& file);

    QCache<Key, Picture> shown_;
    QCache<QByteArray, Source> sources_;
    std::optional<DecodingSlice> slice_; // the one under way
    // A file that was decoded once never waits again: where memory is short it may be forgotten
    // between two paints, and would be waited for without end.
    QSet<QByteArray> decodedBefore_;
    // Answers that are too large for the caches.
    Picture uncachedPicture_;
    Source uncachedSource_;
};

} // namespace tarvel
