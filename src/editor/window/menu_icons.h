// Icons of the entries of the main window's menus.
#pragma once

class QWidget;

namespace tarvel {

/// Gives the entries, which are found by their names, their icons. Entries without a picture that
/// says more than their caption have none, and what can be checked has its check mark.
void setMenuIcons(QWidget& window);

} // namespace tarvel
