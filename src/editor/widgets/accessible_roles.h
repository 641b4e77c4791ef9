// Roles of widgets for screen readers, where Qt's own would say something else.
#pragma once

class QAbstractButton;
class QWidget;

namespace tarvel {

/// To be called before anything else about the widget is told to those who listen. The widget is a
/// picture that is worked on, with its accessible description as its words.
void beCanvas(QWidget& widget);

/// A handle that is dragged, of a splitter or of a window's corner. Qt's own role for these is none
/// of those that screen readers know.
void beHandle(QWidget& widget);

/// The checkable button is one of several of which at most one is chosen.
void beRadioButton(QAbstractButton& button);

} // namespace tarvel
