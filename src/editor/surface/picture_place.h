// What stands in for a picture or a video that cannot be shown, or not yet.
#pragma once

#include <QPainter>
#include <QString>

namespace tarvel {

/// A crossed frame with the file's name and why it is not shown, in skin pixels. The texts stay
/// within `rect` and within `visible`, and are left out where there is no room for them.
void paintMissingPicture(QPainter& painter, const QRectF& rect, const QRectF& visible,
                         const QString& name, const QString& reason);

/// A dark place with a thin frame: the picture is on its way.
void paintPendingPicture(QPainter& painter, const QRectF& rect);

} // namespace tarvel
