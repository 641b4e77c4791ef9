// What a skin file does not carry, in one place.
#pragma once

#include "document/skin_document.h"

namespace tarvel {

/// The document as it comes back after being saved and loaded into a new document, its files'
/// folders apart. A skin file carries no
/// - fonts and text alignments, locks, and ids: elements are numbered anew, screen by screen, in
///   stacking order;
/// - opacity of lines, images and menus, and of boxes without a fill;
/// - colours of clear fills and borders;
/// - empty information fields, and the field that names the program that made the skin;
/// - system-colour opacities;
/// - list of music files, custom music, and whatever music is set while it is off;
/// - background's role: it becomes the first resource and the first element of "Menu";
/// - condition "None", which is none;
/// - captions that differ from what a source or constant makes them, and row labels but those that
/// a
///   fresh element gets.
/// Resources are named by file name only.
[[nodiscard]] SkinDocument normalised(const SkinDocument& document);

} // namespace tarvel
