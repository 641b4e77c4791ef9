// Where the main window is on the display, from one run to the next.
#pragma once

class QWidget;

namespace tarvel {

class Remembered;

/// Puts the window where it was when it was closed last; at the first start it has the size that it
/// asks for. It is never larger than the display, nor outside of it.
void takePlace(QWidget& window, const Remembered& remembered);

/// Remembers where the window is now.
void keepPlace(const QWidget& window, Remembered& remembered);

} // namespace tarvel
