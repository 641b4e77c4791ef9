// The program's own style or the system's, as chosen in the menu "Options".
#pragma once

#include <QObject>

class QAction;

namespace tarvel {

class Remembered;

/// Takes the style that is remembered, and another one as soon as it is chosen, for the whole
/// program. Entry and memory are not owned and outlive it.
class StyleChoice : public QObject {
    Q_OBJECT

  public:
    StyleChoice(QAction& systemStyle, Remembered& remembered);

  private:
    void choose(bool system);

    Remembered& remembered_;
};

} // namespace tarvel
