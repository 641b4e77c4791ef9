// Makes one part of the window modal.
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QMainWindow;
class QWidget;

namespace tarvel {

/// Disables what the user could work with but a panel and one further control.
class WindowGate : public QObject {
    Q_OBJECT

  public:
    explicit WindowGate(QMainWindow& window);

    /// Disables all controls and menus of the window except `control`, what is in it and what holds
    /// it, and except the controls named "cmdStop": videos can always be stopped.
    void disablex(const QWidget& control);
    /// Enables again what disablex disabled.
    void enableAll();
    [[nodiscard]] bool isClosed() const { return closed_; }

  signals:
    /// isClosed() is another one.
    void changed();

  private:
    QMainWindow& window_;
    std::vector<QPointer<QWidget>> disabled_;
    bool closed_ = false;
};

} // namespace tarvel
