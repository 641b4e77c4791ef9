// Where the main window is on the display, from one run to the next, and how large others may be.
#pragma once

class QSize;
class QWidget;

namespace tarvel {

class Remembered;

/// Puts the window where it was when it was closed last; at the first start it has the size that it
/// asks for. It is never larger than the display, nor outside of it.
void takePlace(QWidget& window, const Remembered& remembered);

/// Gives a window that is still to be shown its size, or less where the display is smaller, in the
/// middle of its parent's window or of the display, as far as its title bar stays on the display.
void placeWithin(QWidget& window, QSize wanted);

/// Remembers where the window is now.
void keepPlace(const QWidget& window, Remembered& remembered);

} // namespace tarvel
