// Playing in the main window, without a display: how much of a core it takes, how many frames a
// second it shows, what a frame repaints, how soon it starts and whether memory grows; and the
// frames alone, by the number of elements.
//
// The limits are those of the project. Processor time counts, of all threads; wall time stands
// beside it. Too few frames a second count only where the process got the processor when it wanted
// it. The program ends with an error when a limit is missed.
#include "files/host_files.h"
#include "playing/played_frame.h"
#include "playing_scenes.h"
#include "playing_stage.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <malloc.h>
#include <string>
#include <utility>
#include <vector>

namespace tarvel::bench {

namespace {

constexpr int framePause = 16;
constexpr double percent = 100;

struct Share {
    double core = 0;    ///< per cent of one core
    double frames = 0;  ///< repaints of the surface a second
    bool isFree = true; ///< the process got the processor when it wanted it
};

Share shareOf(QWidget& painted, int wallMs) {
    constexpr double mostWaiting = 0.02; // of the time
    const PaintCount paints(painted);
    const double start = milliseconds(CLOCK_MONOTONIC);
    const double processor = milliseconds(CLOCK_PROCESS_CPUTIME_ID);
    const double waited = waitedForProcessor();
    runFor(wallMs);
    const double wall = milliseconds(CLOCK_MONOTONIC) - start;
    return {.core = (milliseconds(CLOCK_PROCESS_CPUTIME_ID) - processor) / wall * percent,
            .frames = paints.count() / wall * 1e3,
            .isFree = waitedForProcessor() - waited < mostWaiting * wall};
}

/// As many rectangles, whose colours change at the same pace, and nothing else.
class BareWidget : public QWidget {
  public:
    explicit BareWidget(int count)
        : boxes_(sceneBoxes(count)) {
        setFixedSize(skinWidth, skinHeight);
        setAttribute(Qt::WA_OpaquePaintEvent);
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
        timer_.start(framePause);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        ++frame_;
        QPainter painter(this);
        painter.fillRect(rect(), Qt::black);
        for (const auto& [rect, color] : boxes_) {
            const int step = frame_ + rect.x();
            painter.fillRect(rect, QColor((color.red() + step) % 256, (color.green() + step) % 256,
                                          (color.blue() + step) % 256, color.alpha()));
        }
    }

  private:
    std::vector<SceneBox> boxes_;
    QTimer timer_;
    int frame_ = 0;
};

constexpr int many = 1000;
constexpr int playedMs = 10'000;

Share playedShare(SkinDocument document) {
    constexpr int untilAllAreThere = 2500;
    Stage stage(std::move(document));
    stage.play();
    runFor(untilAllAreThere);
    return shareOf(stage.surface(), playedMs);
}

void benchMoving(Table& table) {
    constexpr double mostOfCore = 50;
    constexpr double leastFrames = 55;
    double bare = 0;
    {
        BareWidget widget(many);
        widget.show();
        runFor(500);
        const Share share = shareOf(widget, playedMs / 2);
        bare = share.core / share.frames;
        table.line("bare widget, 1,000 changing fillRects", share.core, "% of a core");
        table.line("  frames", share.frames, "a second");
    }
    const auto run = [&](const char* what, const Playing& playing) {
        const Share share = playedShare(sceneOf(many, playing));
        table.line(what, share.core, "% of a core", mostOfCore);
        if (share.isFree || share.frames >= leastFrames) {
            table.atLeast("  frames", share.frames, "a second", leastFrames);
        } else {
            table.line("  frames, while other work took the processor", share.frames, "a second");
        }
        table.line("  a frame against one of the bare widget", share.core / share.frames / bare,
                   "times");
    };
    run("1,000 boxes with timers and colour modifiers", {.timers = true, .modifiers = true});
    run("1,000 boxes, texts and lines with them",
        {.timers = true, .modifiers = true, .otherKinds = true});
}

void benchStill(Table& table) {
    constexpr double mostOfCore = 2;
    table.line("1,000 elements of which nothing moves",
               playedShare(sceneOf(many, {.otherKinds = true})).core, "% of a core", mostOfCore);
    table.line("1,000 elements with timers, an eighth changes each 1/4 s",
               playedShare(sceneOf(many, {.timers = true, .otherKinds = true})).core,
               "% of a core");
    SkinDocument rare = sceneOf(many, {.otherKinds = true});
    for (int id = 1; id <= rare.lastElementId(); ++id) {
        rare.editElement(id, [](Element& element) { element.elementTimers = {0, 3000, 3000, 0}; });
    }
    table.line("1,000 elements with timers, all change each 3 s", playedShare(rare).core,
               "% of a core", mostOfCore);
}

/// One box that blinks in the middle of many that stay.
void benchRepainted(Table& table) {
    constexpr int side = 40;
    constexpr PlayTime half = 500;
    constexpr int changes = 40;
    constexpr double withEdges = 1.15; // a pixel around it, where edges between pixels may lie
    SkinDocument document = sceneOf(many, {});
    document.editElement(many / 2, [](Element& element) {
        ElementControl& control = element.elementControl;
        control.left = 300;
        control.top = 200;
        control.width = side;
        control.height = side;
        element.elementTimers = {0, half, half, 0};
    });
    Stage stage(std::move(document));
    stage.useMadeClock();
    stage.play();
    runFor(300);
    const PaintCount paints(stage.surface());
    for (int change = 0; change < changes; ++change) {
        stage.pass(half);
        stage.key(Qt::Key_A); // time is looked at
        runFor(30);
    }
    table.line("area painted for that of one of 1,000 that blinks",
               paints.area() / (static_cast<double>(changes) * side * side), "times", withEdges);
    table.line("  repaints for each change", static_cast<double>(paints.count()) / changes, "times",
               1);
}

struct Starts {
    double first = 0; ///< processor, milliseconds
    double median = 0;
    double wall = 0;
    double repaint = 0; ///< of the surface at rest
    bool hasPlayed = true;
};

/// From F5 to the end of the first painting of the playing screen.
Starts startsOf(SkinDocument document, int turns) {
    Stage stage(std::move(document));
    PaintCount paints(stage.surface());
    std::vector<double> processor;
    std::vector<double> wall;
    std::vector<double> repaints;
    bool hasPlayed = true;
    for (int turn = 0; turn < turns; ++turn) {
        double start = milliseconds(CLOCK_PROCESS_CPUTIME_ID);
        stage.surface().repaint();
        repaints.push_back(milliseconds(CLOCK_PROCESS_CPUTIME_ID) - start);
        const double wallStart = milliseconds(CLOCK_MONOTONIC);
        start = milliseconds(CLOCK_PROCESS_CPUTIME_ID);
        stage.key(Qt::Key_F5);
        (void)paints.wait();
        processor.push_back(milliseconds(CLOCK_PROCESS_CPUTIME_ID) - start);
        wall.push_back(milliseconds(CLOCK_MONOTONIC) - wallStart);
        hasPlayed = hasPlayed && stage.isPlaying();
        stage.key(Qt::Key_Escape);
        runFor(100);
    }
    return {.first = processor.front(),
            .median = median(processor),
            .wall = median(wall),
            .repaint = median(repaints),
            .hasPlayed = hasPlayed};
}

void benchStart(Table& table) {
    constexpr double most = 100;
    constexpr int count = 10'000;
    const auto run = [&](const char* what, int elements, const Playing& playing, double limit) {
        const Starts starts = startsOf(sceneOf(elements, playing), limit == 0 ? 3 : 9);
        if (!starts.hasPlayed) {
            table.failed("F5 does not play: is the window active?");
            return;
        }
        table.line(what, starts.median, "ms", limit);
        table.line("  the first time", starts.first, "ms", limit);
        table.line("  wall time", starts.wall, "ms");
        table.line("  against a repaint of the surface at rest", starts.median / starts.repaint,
                   "times");
    };
    run("start with 10,000 boxes at rest", count, {}, most);
    run("start with 10,000 boxes with timers and modifiers", count,
        {.timers = true, .atOnce = true, .modifiers = true}, most);
    run("start with 10,000 boxes, texts and lines with them", count,
        {.timers = true, .atOnce = true, .modifiers = true, .otherKinds = true}, most);
    run("start with 80,000 boxes with timers and modifiers", 8 * count,
        {.timers = true, .atOnce = true, .modifiers = true}, 0);
}

Element fieldAt(const char* field, float top) {
    Element text;
    text.elementKind = ElementKind::Text;
    ElementControl& control = text.elementControl;
    control.kind = ControlKind::txt;
    control.caption = field;
    control.textColor = makeColor(255, 255, 255);
    control.left = 10;
    control.top = top;
    control.width = 300;
    control.height = 30;
    return text;
}

/// A list of games in front.
Element listElement() {
    Element menu;
    menu.elementKind = ElementKind::Menu;
    ElementControl& control = menu.elementControl;
    control.kind = ControlKind::qor;
    control.left = 320;
    control.top = 100;
    control.width = 300;
    control.height = 240;
    MenuSettings settings;
    settings.glowSelected = true;
    menu.menuSettings = SharedValue(settings);
    return menu;
}

/// A picture of a file that grows and shrinks.
Element pulsingPicture(const QString& file) {
    Element image;
    image.elementKind = ElementKind::Image;
    ElementControl& control = image.elementControl;
    control.kind = ControlKind::img;
    control.file = documentPath(file.toStdString());
    control.left = 60;
    control.top = 300;
    control.width = 120;
    control.height = 90;
    XmlTree& tree = image.elementModifiers.edit();
    const auto modifier = tree.addChild(XmlTree::top, "Modifier");
    tree.addAttribute(modifier, "Type", "Pulse");
    const auto range = tree.addChild(modifier, "Range");
    tree.addAttribute(range, "X", "40");
    tree.addAttribute(range, "Y", "180");
    return image;
}

SkinDocument everythingThatPlays(const QString& picture) {
    SkinDocument document = sceneOf(many, {.timers = true, .modifiers = true, .otherKinds = true});
    float top = 10;
    for (const char* field : {"Time", "Date", "DateTime", "CGTitle", "CGDescr"}) {
        document.addElement(fieldAt(field, top));
        top += 30;
    }
    document.addElement(listElement());
    document.addElement(pulsingPicture(picture));
    return document;
}

double allocatedMegabytes() {
    const auto account = ::mallinfo2();
    constexpr double bytes = 1e6;
    return static_cast<double>(account.uordblks + account.hblkhd) / bytes;
}

/// Ten minutes by a made clock, in fewer frames than the machine would show: 25 a second.
void benchMemory(Table& table) {
    constexpr PlayTime frame = 40;
    constexpr PlayTime minute = 60'000;
    constexpr PlayTime end = 10 * minute;
    constexpr PlayTime keyPause = 720;
    constexpr double mostGrowth = 1; // per cent
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("picture.png"));
    QImage image(320, 240, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    image.save(picture);
    Stage stage(everythingThatPlays(picture));
    stage.useMadeClock();
    stage.play();
    PaintCount paints(stage.surface());
    (void)paints.wait();
    std::vector<double> each; // of the last second of each minute
    std::vector<double> minutes;
    for (PlayTime at = 0; at < end; at += frame) {
        stage.pass(frame);
        const bool down = at / keyPause % 20 < 10;
        stage.key(at % keyPause != 0 ? Qt::Key_A : down ? Qt::Key_Down : Qt::Key_Up);
        (void)paints.wait();
        if (at % minute >= minute - 1000) {
            each.push_back(allocatedMegabytes());
        }
        if (at % minute == minute - frame) {
            minutes.push_back(median(std::exchange(each, {})));
        }
    }
    if (!stage.isPlaying()) {
        table.failed("it ended before the ten minutes were over");
    }
    table.line("frames painted in ten minutes of playing", paints.count(), "frames");
    table.line("memory in use after the first minute", minutes.front(), "MB");
    table.line("memory in use after ten minutes", minutes.back(), "MB");
    table.line("  growth", (minutes.back() / minutes.front() - 1) * percent, "%", mostGrowth);
}

/// Of one frame, for each element, in nanoseconds.
double frameTime(int count, const Playing& playing) {
    const SkinDocument document = sceneOf(count, playing);
    QFile file(QStringLiteral(":/tarvel/modifiers.xml"));
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("modifiers.xml"));
    file.copy(copy);
    const PlayedScreen screen(document, document.currentLayout(),
                              ModifierCatalogue::read(copy.toStdString()));
    PlayedFrame frame(screen, {});
    PlayTime at = 4000; // all have come
    frame.show(at, {}, [](const auto*, const auto*) {});
    std::vector<double> times;
    const int frames = std::max(20, 200'000 / count);
    for (int number = 0; number < frames; ++number) {
        at += framePause;
        const double start = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        frame.show(at, {}, [](const auto*, const auto*) {});
        times.push_back((milliseconds(CLOCK_THREAD_CPUTIME_ID) - start) * 1e6 / count);
    }
    return median(times);
}

void benchFrames(Table& table) {
    constexpr double mostGrowth = 3; // caches end somewhere
    const double few = frameTime(1'000, {.timers = true, .modifiers = true});
    table.line("a frame alone, each of 1,000 elements", few, "ns");
    table.line("the same of 10,000", frameTime(10'000, {.timers = true, .modifiers = true}), "ns");
    const double most = frameTime(80'000, {.timers = true, .modifiers = true});
    table.line("the same of 80,000", most, "ns");
    table.line("  against 1,000", most / few, "times", mostGrowth);
    table.line("the same of 10,000 with timers alone", frameTime(10'000, {.timers = true}), "ns");
}

/// Runs the parts that are named, or all of them.
bool runParts(const std::vector<std::string>& named) {
    struct Part {
        const char* name;
        void (*run)(Table&);
    };
    constexpr std::array parts = {Part{"frames", benchFrames}, Part{"moving", benchMoving},
                                  Part{"still", benchStill},   Part{"repainted", benchRepainted},
                                  Part{"start", benchStart},   Part{"memory", benchMemory}};
    Table table;
    for (const Part& part : parts) {
        if (named.empty() || std::find(named.begin(), named.end(), part.name) != named.end()) {
            part.run(table);
        }
    }
    return table.isKept();
}

} // namespace

} // namespace tarvel::bench

// Usage: tarvel_playing_bench [frames|moving|still|repainted|start|memory]...
int main(int argc, char** argv) {
    tarvel::bench::needNoDisplay();
    const QApplication application(argc, argv);
    return tarvel::bench::runParts({argv + 1, argv + argc}) ? 0 : 1;
}
