// The tool tips of the main window and its dialogs.
#pragma once

class QWidget;

namespace tarvel {

/// Gives the controls of the main window, of its panels and of its dialogs their tool tips; those
/// that tell about a value have their own.
void setControlTips(QWidget& window);

} // namespace tarvel
