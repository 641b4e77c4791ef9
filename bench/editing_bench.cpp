// Working in the main window, without a display: a drag from the pointer's event to the finished
// repaint, picking, and the selection in a long list; the drag also of a bare widget that does
// nothing else.
//
// Prints wall time, which is what the user waits, and processor time, which other work on the
// machine does not bend; the limits are those of the project and apply to the latter.
#include "document/open_edit.h"
#include "editing/pick_index.h"
#include "shown_window.h"
#include "surface/surface_room.h"
#include "widgets/prompts.h"
#include "widgets/remembered.h"

#include <QAction>
#include <QApplication>
#include <QFont>
#include <QListView>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace tarvel::bench {

namespace {

constexpr int screen = 1;
constexpr int moves = 2'000;

/// Nobody is there to answer.
class NoPrompts : public Prompts {
  public:
    void message(QWidget* /*owner*/, const QString& /*text*/) override {}
    Answer question(QWidget* /*owner*/, const QString& /*text*/) override { return Answer::Cancel; }
    bool confirm(QWidget* /*owner*/, const QString& /*text*/) override { return false; }
    QString input(QWidget* /*owner*/, const QString& /*prompt*/) override { return {}; }
    QString folder(QWidget* /*owner*/, const QString& /*title*/) override { return {}; }
    QStringList files(QWidget* /*owner*/, const QString& /*filter*/, bool /*several*/) override {
        return {};
    }
    std::optional<QColor> color(QWidget* /*owner*/, const QColor& /*initial*/) override {
        return std::nullopt;
    }
    std::optional<QFont> font(QWidget* /*owner*/, const QFont& /*initial*/) override {
        return std::nullopt;
    }
};

double milliseconds(clockid_t clock) {
    timespec now{};
    ::clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) * 1e-6;
}

struct Times {
    std::vector<double> wall;
    std::vector<double> processor;

    template <class Work> void take(Work&& work) {
        const double wallStart = milliseconds(CLOCK_MONOTONIC);
        const double processorStart = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        work();
        processor.push_back(milliseconds(CLOCK_THREAD_CPUTIME_ID) - processorStart);
        wall.push_back(milliseconds(CLOCK_MONOTONIC) - wallStart);
    }
};

double quantile(std::vector<double> values, double part) {
    const auto index = static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + index, values.end());
    return values[static_cast<std::size_t>(index)];
}

/// Longest processor times allowed, in milliseconds; 0 for none.
struct Limits {
    double median = 0;
    double worst = 0; // 99th percentile
};

/// Prints a line of the table. False when a limit is missed.
bool report(const char* what, const Times& times, const Limits& limits) {
    const double median = quantile(times.processor, 0.5);
    const double worst = quantile(times.processor, 0.99);
    const bool kept = (limits.median == 0 || median <= limits.median) &&
                      (limits.worst == 0 || worst <= limits.worst);
    std::printf("%-44s %8.4f %8.4f %8.4f %8.4f", what, quantile(times.wall, 0.5),
                quantile(times.wall, 0.99), median, worst);
    if (limits.median != 0 || limits.worst != 0) {
        std::printf("  %5.2f %5.2f  %s", limits.median, limits.worst, kept ? "kept" : "MISSED");
    }
    std::printf("\n");
    return kept;
}

struct Box {
    QRect rect;
    QColor color;
};

/// Boxes all over the screen with sides from 10 to 80 pixels, half of them opaque; the last, which
/// is dragged, stands in the middle.
std::vector<Box> boxes(int count) {
    std::mt19937 random(1); // NOLINT: the same boxes in every run
    const auto upTo = [&](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    std::vector<Box> result;
    for (int number = 0; number < count; ++number) {
        const QRect rect(upTo(600), upTo(440), 10 + upTo(71), 10 + upTo(71));
        const QColor color(upTo(256), upTo(256), upTo(256), number % 2 == 0 ? 255 : 153);
        result.push_back({rect, color});
    }
    if (!result.empty()) {
        result.back().rect = QRect(300, 220, 60, 40);
    }
    return result;
}

SkinDocument documentOf(const std::vector<Box>& boxes) {
    SkinDocument document;
    for (const auto& [rect, color] : boxes) {
        document.addElement(boxElement(rect, color));
    }
    return document;
}

/// Counts a widget's repaints.
class PaintCount : public QObject {
  public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }

    /// Lets pending events run until the widget is painted again, or nothing is left to be done.
    void wait() {
        const int before = count_;
        constexpr int mostTurns = 20;
        for (int turn = 0; count_ == before && turn < mostTurns; ++turn) {
            QApplication::processEvents();
        }
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count_ += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

  private:
    int count_ = 0;
};

void sendMouse(QWidget& widget, QEvent::Type type, QPoint at) {
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, at, widget.mapToGlobal(at), isMove ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

/// Where the pointer is after a number of steps of a drag: round the middle, a few pixels a step.
QPoint onTheWay(int step) {
    const double angle = step * 0.03;
    return {320 + static_cast<int>(std::lround(180 * std::sin(angle))),
            240 + static_cast<int>(std::lround(120 * std::sin(2 * angle)))};
}

/// Drags with the left button and times every move from its event to the end of the repaint.
/// `scale` in pixels of the window a skin pixel.
Times dragTimes(QWidget& widget, int scale = 1) {
    PaintCount paints(widget);
    Times times;
    sendMouse(widget, QEvent::MouseButtonPress, onTheWay(0) * scale);
    QApplication::processEvents();
    for (int step = 1; step <= moves; ++step) {
        if (onTheWay(step) != onTheWay(step - 1)) {
            times.take([&] {
                sendMouse(widget, QEvent::MouseMove, onTheWay(step) * scale);
                paints.wait();
            });
        }
    }
    sendMouse(widget, QEvent::MouseButtonRelease, onTheWay(moves) * scale);
    return times;
}

/// The same boxes in a widget that repaints only its dirty rectangles, and does nothing else.
class BareWidget : public QWidget {
  public:
    explicit BareWidget(std::vector<Box> boxes)
        : boxes_(std::move(boxes)) {
        setFixedSize(640, 480);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

  protected:
    void mousePressEvent(QMouseEvent* event) override { last_ = event->position().toPoint(); }
    void mouseMoveEvent(QMouseEvent* event) override {
        const QPoint now = event->position().toPoint();
        QRect& rect = boxes_.back().rect;
        update(rect);
        rect.translate(now - std::exchange(last_, now));
        update(rect);
    }
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        for (const QRect& dirty : event->region()) {
            painter.setClipRect(dirty);
            painter.fillRect(dirty, Qt::black);
            for (const auto& [rect, color] : boxes_) {
                if (rect.intersects(dirty)) {
                    painter.fillRect(rect, color);
                }
            }
        }
    }

  private:
    std::vector<Box> boxes_;
    QPoint last_;
};

Times bareDragTimes(int count) {
    BareWidget widget(boxes(count));
    widget.show();
    QApplication::processEvents();
    return dragTimes(widget);
}

/// The main window with so many boxes, shown and at rest.
class Window {
  public:
    explicit Window(int count) {
        window_.document() = documentOf(boxes(count));
        showAtRest(window_);
    }

    template <class Widget> Widget& find(const char* name) {
        return *window_.findChild<Widget*>(QLatin1String(name));
    }

    SkinDocument& document() { return window_.document(); }

  private:
    QTemporaryDir folder_;
    NoPrompts prompts_;
    Remembered remembered_{folder_.filePath(QStringLiteral("settings.ini"))};
    FrmMain window_{prompts_, folder_.path().toStdString(), remembered_};
};

Times selectionTimes(Window& window) {
    auto& list = window.find<QListView>("lst(1)");
    PaintCount paints(*list.viewport());
    std::mt19937 random(2); // NOLINT: the same rows in every run
    Times times;
    for (int change = 0; change < moves; ++change) {
        const int row =
            static_cast<int>(random() % static_cast<unsigned>(list.model()->rowCount()));
        if (row != list.currentIndex().row()) {
            times.take([&] {
                list.setCurrentIndex(list.model()->index(row, 0));
                paints.wait();
            });
        }
    }
    return times;
}

/// Undoes and redoes a step in turn, each from the command to the end of the repaint.
Times undoTimes(Window& window) {
    PaintCount paints(window.find<QWidget>("Pic"));
    Times times;
    constexpr int turns = 50;
    for (int turn = 0; turn < turns; ++turn) {
        for (const char* entry : {"mnuUndo", "mnuRedo"}) {
            times.take([&] {
                window.find<QAction>(entry).trigger();
                paints.wait();
            });
        }
    }
    return times;
}

/// Selects all rows and none in turn, each to the end of the repaint.
Times selectAllTimes(Window& window) {
    auto& list = window.find<QListView>("lst(1)");
    PaintCount paints(window.find<QWidget>("Pic"));
    Times times;
    constexpr int turns = 30;
    for (int turn = 0; turn < turns; ++turn) {
        times.take([&] {
            list.selectAll();
            paints.wait();
        });
        list.clearSelection();
        paints.wait();
    }
    return times;
}

/// Drags all boxes at once; the pointer is over one of them wherever it is.
Times dragAllTimes(Window& window) {
    window.find<QListView>("lst(1)").selectAll();
    QApplication::processEvents();
    return dragTimes(window.find<QWidget>("Pic"));
}

/// A step that changes every element, or brings them all.
void changeAll(SkinDocument& document) {
    const OpenEdit edit(document, "change all");
    for (int id = 1; id <= document.lastElementId(); ++id) {
        document.editElement(id, [](Element& element) { element.elementControl.left += 1; });
    }
}

void bringAll(SkinDocument& document, int count) {
    const OpenEdit edit(document, "bring all");
    for (const SkinDocument many = documentOf(boxes(count)); document.lastElementId() < count;) {
        document.addElement(Element(many.element(document.lastElementId() + 1)));
    }
}

/// Picks at points all over the screen; `afterChange` lets the rows change before each.
Times pickTimes(int count, bool afterChange) {
    const SkinDocument document = documentOf(boxes(count));
    PickIndex index;
    std::mt19937 random(3); // NOLINT: the same points in every run
    Times times;
    (void)index.rowAt(document, {0, 0});
    int found = 0;
    for (int pick = 0; pick < moves; ++pick) {
        const SkinPoint point{static_cast<float>(random() % 640U),
                              static_cast<float>(random() % 480U)};
        if (afterChange) {
            index.documentChanged({DocumentChange::What::rows, screen});
        }
        times.take([&] { found += index.rowAt(document, point) >= 0 ? 1 : 0; });
    }
    if (found == 0) {
        std::printf("no pick found an element\n");
    }
    return times;
}

bool runAll() {
    constexpr int many = 10'000;
    constexpr int few = 100;
    std::printf("%-44s %8s %8s %8s %8s  %11s\n", "milliseconds", "wall", "99 %", "cpu", "99 %",
                "limits");
    bool kept = true;
    const auto add = [&](const char* what, const Times& times, const Limits& limits) {
        kept = report(what, times, limits) && kept;
    };
    add("bare widget, a move among 10,000 boxes", bareDragTimes(many), {});
    {
        Window window(many);
        add("main window, a move among 10,000 boxes", dragTimes(window.find<QWidget>("Pic")),
            {1.5, 5});
        add("selection in a list of 10,000 rows", selectionTimes(window), {5, 0});
    }
    {
        Window window(many);
        window.find<SurfaceRoom>("surfaceRoom").zoomTo(400);
        add("a move among 10,000 boxes at 400 %", dragTimes(window.find<QWidget>("Pic"), 4),
            {16.7, 16.7});
    }
    constexpr Limits shown = {16, 16};
    {
        Window window(many);
        (void)dragTimes(window.find<QWidget>("Pic"));
        add("undo and redo of a drag among 10,000 boxes", undoTimes(window), shown);
        changeAll(window.document());
        add("the same of a change of all 10,000", undoTimes(window), shown);
    }
    {
        constexpr Limits frame = {1000.0 / 60, 0};
        Window window(many);
        add("select all of 10,000 boxes", selectAllTimes(window), {50, 50});
        add("a move of 10,000 selected boxes", dragAllTimes(window), frame);
        window.find<QAction>("mnuSnapElements").setChecked(true);
        add("the same, snapping", dragAllTimes(window), frame);
    }
    {
        Window window(0);
        bringAll(window.document(), many);
        add("the same of 10,000 new ones", undoTimes(window), shown);
    }
    add("bare widget, a move among 100 boxes", bareDragTimes(few), {});
    {
        Window window(few);
        add("main window, a move among 100 boxes", dragTimes(window.find<QWidget>("Pic")),
            {0.7, 0});
    }
    add("pick among 10,000 boxes", pickTimes(many, false), {0.1, 0.1});
    add("first pick after a change of their rows", pickTimes(many, true), {});
    return kept;
}

} // namespace

} // namespace tarvel::bench

int main(int argc, char** argv) {
    tarvel::bench::needNoDisplay();
    const QApplication application(argc, argv);
    return tarvel::bench::runAll() ? 0 : 1;
}
