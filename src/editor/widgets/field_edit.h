// A text box that invites to type over what is in it.
#pragma once

#include <QLineEdit>

namespace tarvel {

/// Selects its whole text when it gets the focus, by a click as well; a drag selects what it
/// passes. Coming back to the window leaves the selection alone.
class FieldEdit : public QLineEdit {
    Q_OBJECT

  public:
    using QLineEdit::QLineEdit;

    /// Selects the whole text.
    void sel() { selectAll(); }

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    bool focusedByPress_ = false;
};

} // namespace tarvel
