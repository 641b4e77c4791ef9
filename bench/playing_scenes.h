// Screens that play, for the benchmarks.
#pragma once

#include "document/skin_document.h"

#include <QColor>
#include <QRect>

#include <vector>

namespace tarvel::bench {

/// What the elements of a screen do in time.
struct Playing {
    bool timers = false;     ///< come in groups, and are off for a while now and then
    bool atOnce = false;     ///< all of them are there at the beginning
    bool modifiers = false;  ///< colours swing, each at a pace of its own
    bool otherKinds = false; ///< texts and lines among the boxes, instead of boxes alone
};

/// A box of a scene at rest.
struct SceneBox {
    QRect rect; ///< skin pixels
    QColor color;
};

/// Boxes all over the screen with sides from 10 to 80 pixels, half of them opaque.
std::vector<SceneBox> sceneBoxes(int count);

/// A document with such boxes, and what they do, on "Menu".
SkinDocument sceneOf(int count, const Playing& playing);

/// An element whose colours swing; each `number` at another pace.
void addColors(Element& element, int number);

} // namespace tarvel::bench
