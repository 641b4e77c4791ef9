// Catches what the handling of an event throws, and tells the user of it.
#include "window/application.h"

#include <exception>

namespace tarvel {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        failed(error.what());
    } catch (...) {
        failed("something that has no words");
    }
    return true;
}

// Not from here: the event that failed may be in the middle of anything.
void Application::failed(const std::string& words) {
    const QString text = tr("Something went wrong, and what was being done may not be complete: %1")
                             .arg(QString::fromStdString(words));
    QMetaObject::invokeMethod(
        this,
        [this, text] {
            if (tell_) {
                tell_(text);
            } else {
                qWarning("%s", qPrintable(text));
            }
        },
        Qt::QueuedConnection);
}

} // namespace tarvel
