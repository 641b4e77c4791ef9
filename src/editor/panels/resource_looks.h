// How a resource looks in small and in large.
#pragma once

#include "document/skin_settings.h"

#include <QImage>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <string>

class QPainter;

namespace tarvel {

class PictureCache;

/// What is shown of a resource.
enum class ResourceLook : std::uint8_t {
    picture, ///< the file itself
    video,   ///< the file plays
    preset,  ///< the dashboard supplies it: a built-in icon picture stands for it
    outside  ///< a file that is not opened
};

[[nodiscard]] ResourceLook lookOf(const Resource& resource);

/// A line that says what the resource is, for under its preview.
[[nodiscard]] QString lineAbout(const Resource& resource, PictureCache& pictures);

/// The built-in icon picture, for a PictureCache.
inline constexpr std::string_view presetPicture = ":/tarvel/imgCustom.png";

/// Two greys in squares of `square` pixels, to be seen through a picture.
void paintCheckerboard(QPainter& painter, const QRectF& rect, int square);

/// Paints a picture in the middle of `room`, at its own size or smaller and never larger, on a
/// checkerboard where it is not opaque. Returns why it cannot be shown, or an empty text.
QString paintFitted(QPainter& painter, const QRectF& room, PictureCache& pictures,
                    std::string_view file, int square);

/// A small picture for a list, with the given size in pixels at that device pixel ratio.
[[nodiscard]] QImage thumbnailOf(const Resource& resource, PictureCache& pictures, QSize size,
                                 double ratio);
/// What stands in for a thumbnail that is not made yet.
[[nodiscard]] QImage emptyThumbnail(QSize size, double ratio);

} // namespace tarvel
