// The application: lives on when something in it fails.
#pragma once

#include <QApplication>

#include <functional>
#include <string>

namespace tarvel {

/// An exception that leaves the handling of an event ends that handling and nothing else: its words
/// are told as soon as the event loop runs again.
class Application : public QApplication {
    Q_OBJECT

  public:
    Application(int& argc, char** argv)
        : QApplication(argc, argv) {}

    /// How a failure is told; until then it goes to the error stream.
    void tellFailures(std::function<void(const QString& words)> tell) { tell_ = std::move(tell); }

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void failed(const std::string& words);

    std::function<void(const QString&)> tell_;
};

} // namespace tarvel
