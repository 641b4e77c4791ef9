// The pointer of a busy program, for the length of a scope.
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace tarvel {

class WaitCursor {
  public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace tarvel
