// Waiting in tests for what is awaited, and never for a time.
#pragma once

#include "widgets/easing.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QTest>
#include <QWidget>

#include <algorithm>

namespace tarvel::test {

/// Deals with everything that is due: posted events, timers without delay, and what these cause.
inline void settle() {
    for (int turn = 0; turn < 5; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Waits until nothing in a window glides any more.
inline bool waitForGliding(const QWidget& window) {
    const auto glides = window.findChildren<Easing*>();
    return QTest::qWaitFor([&] {
        return std::none_of(glides.begin(), glides.end(),
                            [](const Easing* easing) { return easing->isRunning(); });
    });
}

/// Takes everything that glides in a window to its end, for tests of something else.
inline void endGliding(const QWidget& window) {
    const auto glides = window.findChildren<Easing*>();
    for (Easing* easing : glides) {
        easing->finish();
    }
    settle();
}

/// Waits until a file that is written now has a later time than any that was written before. File
/// systems tell times in steps of some milliseconds.
inline bool waitForLaterFileTime() {
    QTemporaryFile file;
    const auto time = [&] {
        (void)file.write("x");
        (void)file.flush();
        return QFileInfo(file.fileName()).lastModified();
    };
    if (!file.open()) {
        return false;
    }
    const QDateTime before = time();
    return QTest::qWaitFor([&] { return time() > before; });
}

} // namespace tarvel::test
