// Finds the skin pixel that a point of the skin lies in.
#include "surface/view_mapping.h"

#include <cmath>

namespace tarvel {

SkinPoint pixelOf(QPointF skin) {
    return {static_cast<float>(std::floor(skin.x())), static_cast<float>(std::floor(skin.y()))};
}

} // namespace tarvel
