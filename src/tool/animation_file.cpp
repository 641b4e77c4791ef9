// Finds what changes from one frame to the next.
#include "tool/animation_file.h"

#include <algorithm>

namespace tarvel::tool {

namespace {

const QRgb* lineOf(const QImage& image, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

} // namespace

QRect changedArea(const QImage& before, const QImage& now) {
    QRect area;
    for (int y = 0; y < now.height(); ++y) {
        const QRgb* const older = lineOf(before, y);
        const QRgb* const newer = lineOf(now, y);
        const QRgb* const end = newer + now.width();
        const auto first = std::mismatch(newer, end, older).first;
        if (first == end) {
            continue;
        }
        const QRgb* last = end - 1;
        while (*last == older[last - newer]) {
            --last;
        }
        area |= QRect(QPoint(static_cast<int>(first - newer), y),
                      QPoint(static_cast<int>(last - newer), y));
    }
    return area;
}

} // namespace tarvel::tool
