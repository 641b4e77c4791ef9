// The program's own style or the system's, as chosen in the menu "Options".
#pragma once

#include <QObject>

class QAction;

namespace tarvel {

class Remembered;

/// Takes the style that is remembered, and another one as soon as it is chosen, for the whole
/// program. Entry and memory are not owned and outlive it. To be made before the widgets, which
/// would otherwise take one style and then another.
class StyleChoice : public QObject {
    Q_OBJECT

  public:
    explicit StyleChoice(Remembered& remembered);

    /// Lets the entry choose.
    void offer(QAction& systemStyle);

  private:
    void choose(bool system);

    Remembered& remembered_;
};

} // namespace tarvel
