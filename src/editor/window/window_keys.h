// Keys that work wherever the focus is in the main window, but for its open panels and dialogs.
#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QKeyEvent;
class QWidget;

namespace tarvel {

/// Escape and Delete as the window wants them, and Shift+F10 for the menu key, which not every
/// platform takes for it.
class WindowKeys : public QObject {
    Q_OBJECT

  public:
    /// A key with the question whether it is the window's just now; else it is the widget's that
    /// has the focus.
    struct Key {
        int key;
        std::function<bool()> isWanted;
        std::function<void()> press;
    };

    /// `isOpen` says whether keys are taken at all. The window is not owned and outlives this.
    WindowKeys(QWidget& window, std::function<bool()> isOpen, std::vector<Key> keys);
    ~WindowKeys() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool windowKey(QKeyEvent& event, bool pressed);
    static bool menuKey(const QKeyEvent& event, QWidget& widget);

    QWidget& window_;
    std::function<bool()> isOpen_;
    std::vector<Key> keys_;
};

} // namespace tarvel
