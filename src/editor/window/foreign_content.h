// What other programs put onto the clipboard, as elements in the middle of the screen.
#pragma once

#include "editing/panel_values.h"
#include "skinfile/clipboard.h"

#include <QImage>
#include <QString>

#include <filesystem>
#include <optional>

namespace tarvel {

class PictureCache;

/// Longer texts are no captions, but documents that were copied by mistake.
inline constexpr qsizetype longestPastedText = 5000; // characters

/// A text element with the text as its fixed text, and the font, colour and opacity of the panel; a
/// colour that is clear there is white. Control characters but line breaks are left out. Nothing
/// for a text without a visible character, or a longer one than longestPastedText.
[[nodiscard]] std::optional<ClipboardContent>
textContent(const QString& text, const PanelValues& panel, PictureCache& pictures);

/// An image element of the picture's size, as far as it fits the screen, and its resource. The
/// picture is kept as a PNG in the folder, which is made when needed: the same picture as the same
/// file. Throws FileError when it cannot be kept.
[[nodiscard]] ClipboardContent
pictureContent(const QImage& picture, const std::filesystem::path& folder, PictureCache& pictures);

/// Where pasted pictures are kept: in the user's data folder.
[[nodiscard]] std::filesystem::path pastedPictures();

} // namespace tarvel
