// The list of games in a menu, as it looks while the screen plays.
#pragma once

#include "playing/played_screen.h"

#include <QRectF>

class QPainter;

namespace tarvel {

/// Paints the sample games into a menu's rectangle, in skin pixels, by its settings; what does not
/// fit is cut off. Leaves the painter's state as it was.
void paintPlayedList(QPainter& painter, const QRectF& rect, const MenuSettings& settings,
                     const PlayedList& list);

} // namespace tarvel
