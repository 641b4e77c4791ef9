// Finds fonts for texts of a skin in their sizes, and a stand-in for Tahoma.
#include "widgets/skin_fonts.h"

#include "widgets/qt_text.h"

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
constexpr auto standInFile = "/usr/share/wine/fonts/tahoma.ttf";

// Its bold face has the widths of a bold one and the strokes of a light one. Emboldening the plain
// face gives the strokes; spaced by this much, texts come out as wide as in the bold face, within 3
// %.
constexpr double boldSpacing = 114; // percent

const QString& tahoma() {
    static const QString name = QStringLiteral("Tahoma");
    return name;
}

// Makes Tahoma or its stand-in known; true when it is the stand-in.
bool isTahomaStandIn() {
    static const bool standIn =
        !QFontDatabase::hasFamily(tahoma()) && QFontDatabase::addApplicationFont(standInFile) >= 0;
    return standIn;
}

} // namespace

void makeSkinFontsKnown() {
    (void)isTahomaStandIn();
}

QFont skinFont(const FontChoice& choice) {
    QFont font(qtText(choice.family));
    const bool standIn =
        isTahomaStandIn() && font.family().compare(tahoma(), Qt::CaseInsensitive) == 0;
    const double pixels = std::round(double{choice.size} * pixelsPerPoint);
    font.setPixelSize(static_cast<int>(std::clamp(pixels, 1.0, largestPixels)));
    font.setBold(choice.bold);
    font.setUnderline(choice.underline);
    if (standIn && choice.bold) {
        font.setLetterSpacing(QFont::PercentageSpacing, boldSpacing);
    }
    return font;
}

} // namespace tarvel
