// A text box that invites to type over what is in it.
#pragma once

#include <QLineEdit>

namespace tarvel {

/// Selects its whole text when it gets the focus, and by the first click after that, also where
/// the focus came by a key or a program; further clicks place the caret, and a drag selects what
/// it passes. Coming back to the window leaves the selection alone.
class FieldEdit : public QLineEdit {
    Q_OBJECT

  public:
    using QLineEdit::QLineEdit;

    /// Selects the whole text, as does the next click.
    void sel();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    bool clicked_ = false; // since the whole was selected
};

} // namespace tarvel
