// Makes one part of the window modal.
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QMainWindow;
class QWidget;

namespace tarvel {

/// Disables what the user could work with but a panel or two and one further control.
class WindowGate : public QObject {
    Q_OBJECT

  public:
    explicit WindowGate(QMainWindow& window);

    /// Disables all controls and menus of the window except the given ones, what is in them and
    /// what holds them, and except the controls named "cmdStop": videos can always be stopped.
    void disablex(const std::vector<const QWidget*>& controls);
    void disablex(const QWidget& control) { disablex(std::vector{&control}); }
    /// Enables again what disablex disabled.
    void enableAll();
    [[nodiscard]] bool isClosed() const { return closed_; }

  signals:
    /// isClosed() is another one.
    void changed();

  private:
    void enableMenus(bool enabled);

    QMainWindow& window_;
    std::vector<QPointer<QWidget>> disabled_;
    bool closed_ = false;
};

} // namespace tarvel
