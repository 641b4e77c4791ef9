// Names of controls: the one in code and tests, and the one that is read out.
#pragma once

#include <QString>

namespace tarvel {

/// Gives a control its object name and, in plain words, its accessible name. Returns the control.
template <class Control>
Control* named(Control* control, const QString& name, const QString& accessibleName) {
    control->setObjectName(name);
    control->setAccessibleName(accessibleName);
    return control;
}

/// Gives a button with a caption its object name; what is read out is the caption.
template <class Button> Button* named(Button* button, const QString& name) {
    return named(button, name, button->text());
}

} // namespace tarvel
