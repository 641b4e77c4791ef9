// The letters of the main window: its menus, its buttons and its behaviour panels.
#pragma once

class QMainWindow;

namespace tarvel {

/// Gives every menu of the window and every button in it a letter, once all are made. Buttons have
/// none of the menu bar's, and none of another button that can be seen at the same time. The
/// screens have none: they are one group, in which arrow keys choose, and there are too few
/// letters.
void giveWindowMnemonics(QMainWindow& window);

} // namespace tarvel
