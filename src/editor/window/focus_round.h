// Keys that lead around the main window: F6 from part to part, F10 to the menu bar.
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QMainWindow;
class QWidget;

namespace tarvel {

/// F6 goes to the next part of the window in which something can have the focus, Shift+F6 to the
/// one before; a part gets the focus where it had it last. The window is not owned and outlives it.
class FocusRound : public QObject {
    Q_OBJECT

  public:
    /// A part, by the widgets that hold its controls. The focus comes to the first control of the
    /// first widget that has a usable one.
    using Part = std::vector<QWidget*>;

    FocusRound(QMainWindow& window, std::vector<Part> parts);

  private:
    struct Place {
        Part holders;
        QPointer<QWidget> last;
    };

    void go(int step);
    void openMenuBar();
    void noteFocus(QWidget* widget);
    [[nodiscard]] int partOf(const QWidget* widget) const;
    [[nodiscard]] static QWidget* entryOf(const Place& place);

    QMainWindow& window_;
    std::vector<Place> parts_;
    int current_ = -1; // the part that had the focus last
};

} // namespace tarvel
