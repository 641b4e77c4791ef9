// The colour of words that are less important than the text around them.
#pragma once

#include <QColor>
#include <QPalette>

namespace tarvel {

[[nodiscard]] inline QColor faintText(const QPalette& palette) {
    QColor color = palette.color(QPalette::Text);
    color.setAlphaF(0.7F); // enough to be read on the light and the dark palette
    return color;
}

} // namespace tarvel
