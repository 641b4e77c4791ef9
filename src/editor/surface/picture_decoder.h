// Decodes pictures within a bound of memory.
#pragma once

#include "surface/picture_file.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <cstdint>
#include <functional>

namespace tarvel {

/// What is known of a picture.
struct Picture {
    enum class State : std::uint8_t {
        ready,   ///< image is there
        pending, ///< will be there later; shown as an empty place until then
        failed   ///< never will be, while its file stays; problem says why
    };
    State state = State::failed;
    /// RGB32 or premultiplied ARGB32, device pixel ratio 1.
    QImage image;
    /// A few words: "not found", "not readable", "not a picture", "damaged", "too large".
    QString problem;
};

[[nodiscard]] Picture readyPicture(QImage image);

struct Decoded {
    Picture picture;
    QSize ownSize; // empty when it is not known
};

enum class PictureUse : std::uint8_t {
    stretched, ///< a smaller image will do, of a few screens
    unscaled   ///< pixel by pixel; of a very large picture the top left corner
};

/// Pictures of more pixels are refused, unless their format can be decoded at a smaller size or in
/// part.
inline constexpr qint64 largestPixels = qint64{64} << 20;

/// JPEG pictures of more pixels are refused, by what their head says and before anything is
/// decoded: one that comes in passes, with four colours, then holds most of what decoding may. Grey
/// ones, of a single colour, may have four times as many.
inline constexpr qint64 largestJpeg = qint64{36} << 20;

/// Decoding never holds more than this at a time. What would need more is refused as too large, so
/// that a small file cannot take the memory of the whole machine.
inline constexpr qint64 largestDecoding = qint64{360} << 20;

/// Told before a picture is decoded how many bytes that will hold for the time being.
using MakeRoom = std::function<void(qint64)>;

[[nodiscard]] Decoded decodePicture(const QByteArray& file, const SeenFile& seen, PictureUse use,
                                    const MakeRoom& makeRoom);

/// Lets Qt make images of as many pixels as are promised here.
void raiseImageLimit();

} // namespace tarvel
