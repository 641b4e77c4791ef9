// The one weight of headings.
#pragma once

#include <QFont>

namespace tarvel {

/// A font as headings have it, of panels and of parts of dialogs.
[[nodiscard]] inline QFont headingFont(QFont font) {
    font.setBold(true);
    return font;
}

} // namespace tarvel
