// The fonts that texts of a skin are drawn with.
#pragma once

#include "document/element.h"

#include <QFont>

namespace tarvel {

/// The font of a Text element, sized in whole skin pixels: its points at 96 dots per inch, whatever
/// the resolution of the screen. Sizes are held between 1 and 1024 pixels.
///
/// Where the system has no Tahoma, a font of the same widths takes its place, and where there is
/// none either, the system's own font. Needs a QGuiApplication.
[[nodiscard]] QFont skinFont(const FontChoice& choice);

/// Makes the stand-in for Tahoma known where it is wanted. That makes all fonts in use load anew,
/// so it is best done before there are any; otherwise skinFont() does it.
void makeSkinFontsKnown();

} // namespace tarvel
