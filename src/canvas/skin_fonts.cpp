// Sizes of skin fonts, and the stand-in for Tahoma.
#include "canvas/skin_fonts.h"

#include <QFontDatabase>
#include <QString>

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

constexpr double pixelsPerPoint = 96.0 / 72.0;
constexpr double largestPixels = 1024;

// The package fonts-wine keeps a Tahoma of the same widths outside the folders where fonts are
// looked for, so that it has to be made known to this process.
void findTahoma() {
    static const bool done = [] {
        if (!QFontDatabase::hasFamily(QStringLiteral("Tahoma"))) {
            QFontDatabase::addApplicationFont(QStringLiteral("/usr/share/wine/fonts/tahoma.ttf"));
            QFontDatabase::addApplicationFont(QStringLiteral("/usr/share/wine/fonts/tahomabd.ttf"));
        }
        return true;
    }();
    static_cast<void>(done);
}

} // namespace

QFont skinFont(const FontChoice& choice) {
    findTahoma();
    QFont font(QString::fromStdString(choice.family));
    const double pixels = std::round(double{choice.size} * pixelsPerPoint);
    font.setPixelSize(static_cast<int>(std::clamp(pixels, 1.0, largestPixels)));
    font.setBold(choice.bold);
    font.setUnderline(choice.underline);
    return font;
}

} // namespace tarvel
