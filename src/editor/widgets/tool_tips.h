// Tool tips: what a control is for, and its key.
#pragma once

#include <QObject>
#include <QString>

#include <span>

class QWidget;

namespace tarvel {

/// The tool tip of a widget with the key that works or reaches it, which its caption or that of its
/// label underlines: "Draw a line (Alt+L)". The tip alone where there is none.
[[nodiscard]] QString toolTipOf(const QWidget& widget);

/// Shows the tool tips of a window and of its dialogs with their keys.
class ToolTips : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the window.
    explicit ToolTips(QWidget& window);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// The tip of a control by its name, "cmdOK", or by the names of its window and its own,
/// "frmInfo/cmdAdd". Names of arrays stand without their index.
struct ControlTip {
    const char* control;
    const char* tip;
};

/// Gives the controls in a window, and in the dialogs that belong to it, their tips. A control that
/// has one keeps it.
void setToolTips(QWidget& window, std::span<const ControlTip> tips);

} // namespace tarvel
