// What the benchmarks of playing measure with: the main window with a screen that plays, its
// repaints, and the table of figures.
#pragma once

#include "document/skin_document.h"
#include "playing/timer_play.h"
#include "shown_window.h"
#include "support/scripted_prompts.h"
#include "surface/pic.h"
#include "widgets/remembered.h"
#include "window/play_session.h"

#include <QAction>
#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace tarvel::bench {

inline double milliseconds(clockid_t clock) {
    timespec now{};
    ::clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) * 1e-6;
}

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Milliseconds for which this thread was ready to run and something else did.
inline double waitedForProcessor() {
    std::ifstream file("/proc/thread-self/schedstat");
    double ran = 0;
    double waited = 0;
    file >> ran >> waited;
    return waited * 1e-6;
}

/// The lines of the table, and whether all limits were kept.
class Table {
  public:
    void line(const char* what, double figure, const char* unit, double most = 0) {
        print(what, figure, unit, most, "at most", most == 0 || figure <= most);
    }
    void atLeast(const char* what, double figure, const char* unit, double least) {
        print(what, figure, unit, least, "at least", figure >= least);
    }
    void failed(const char* why) {
        std::printf("%s\n", why);
        isKept_ = false;
    }
    [[nodiscard]] bool isKept() const { return isKept_; }

  private:
    void print(const char* what, double figure, const char* unit, double limit, const char* bound,
               bool kept) {
        std::printf("%-62s %10.3f %-13s", what, figure, unit);
        if (limit != 0) {
            std::printf(" %s %g  %s", bound, limit, kept ? "kept" : "MISSED");
        }
        std::printf("\n");
        (void)std::fflush(stdout);
        isKept_ = isKept_ && kept;
    }

    bool isKept_ = true;
};

/// Counts a widget's repaints, and the area of what they painted.
class PaintCount : public QObject {
  public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }

    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] double area() const { return area_; }
    /// Lets events run until the widget is painted again; false when it is not for a second.
    bool wait() {
        const int before = count_;
        const double end = milliseconds(CLOCK_MONOTONIC) + 1000;
        while (count_ == before && milliseconds(CLOCK_MONOTONIC) < end) {
            QApplication::processEvents();
        }
        return count_ != before;
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++count_;
            for (const QRect& part : static_cast<QPaintEvent*>(event)->region()) {
                area_ += static_cast<double>(part.width()) * part.height();
            }
        }
        return false;
    }

  private:
    int count_ = 0;
    double area_ = 0;
};

inline void runFor(int wallMs) {
    QEventLoop loop;
    QTimer::singleShot(wallMs, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The main window with a document, shown and at rest.
class Stage {
  public:
    explicit Stage(SkinDocument document) {
        QFile::copy(QStringLiteral(":/tarvel/modifiers.xml"),
                    folder_.filePath(QStringLiteral("modifiers.xml")));
        window_.document() = std::move(document);
        showAtRest(window_);
    }

    Pic& surface() { return *window_.findChild<Pic*>(); }
    [[nodiscard]] bool isPlaying() const {
        return window_.findChild<QWidget*>(QStringLiteral("fraPlay"))->isVisible();
    }

    /// From now on time passes only by pass().
    void useMadeClock() {
        window_.playBy({.elapsed = [this] { return clock_; },
                        .wall = [] { return WallClock{2026, 11, 21, 20, 15, 0}; }});
    }
    void pass(PlayTime time) { clock_ += time; }

    void key(Qt::Key which) {
        QWidget* focus = window_.focusWidget();
        QWidget* target = focus == nullptr ? &window_ : focus;
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
            QKeyEvent event(type, which, Qt::NoModifier);
            QApplication::sendEvent(target, &event);
        }
    }
    void play() { window_.findChild<QAction*>(QStringLiteral("mnuPlay"))->trigger(); }

  private:
    PlayTime clock_ = 1'000'000;
    QTemporaryDir folder_;
    test::ScriptedPrompts prompts_;
    Remembered remembered_{folder_.filePath(QStringLiteral("settings.ini"))};
    FrmMain window_{prompts_, folder_.path().toStdString(), remembered_};
};

} // namespace tarvel::bench
