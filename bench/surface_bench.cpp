// Painting a screen, against the same rectangles and texts drawn with nothing in between.
#include "bench_support.h"
#include "surface/picture_cache.h"
#include "surface/surface_damage.h"
#include "surface/surface_painter.h"
#include "widgets/skin_fonts.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStaticText>
#include <QTextOption>

#include <random>
#include <vector>

namespace tarvel::bench {

namespace {

constexpr int screen = 1;
constexpr QRectF everything(0, 0, skinWidth, skinHeight);

QImage surfaceImage(int scale = 1) {
    return {skinWidth * scale, skinHeight * scale, QImage::Format_ARGB32_Premultiplied};
}

struct Boxes {
    SkinDocument document;
    std::vector<QRect> rects;
    std::vector<QColor> colors;
};

// Boxes all over the screen with sides from `smallest` to `largest`, half of them opaque.
Boxes boxes(int count, int smallest, int largest) {
    std::mt19937 random(1); // NOLINT: the same boxes in every run
    const auto upTo = [&](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    Boxes result;
    for (int number = 0; number < count; ++number) {
        const QRect rect(upTo(600), upTo(440), smallest + upTo(largest - smallest + 1),
                         smallest + upTo(largest - smallest + 1));
        const ColorNumber color = random() & 0xFFFFFFU;
        Element element;
        element.elementAlpha = number % 2 == 0 ? 100 : 60;
        ElementControl& control = element.elementControl;
        control.fillStyle = FillStyle::solid;
        control.fillColor = color;
        control.left = static_cast<float>(rect.x());
        control.top = static_cast<float>(rect.y());
        control.width = static_cast<float>(rect.width());
        control.height = static_cast<float>(rect.height());
        result.document.addElement(std::move(element));
        result.rects.push_back(rect);
        result.colors.emplace_back(static_cast<int>(redOf(color)), static_cast<int>(greenOf(color)),
                                   static_cast<int>(blueOf(color)), number % 2 == 0 ? 255 : 153);
    }
    return result;
}

// Arguments: number of boxes, shortest and longest side, and pixels a skin pixel.
void paintBoxesAgainstFillRect(benchmark::State& state) {
    const Boxes scene = boxes(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)),
                              static_cast<int>(state.range(2)));
    PictureCache pictures;
    SurfacePainter surface(pictures);
    const int scale = static_cast<int>(state.range(3));
    QImage own = surfaceImage(scale);
    QImage bare = surfaceImage(scale);
    comparePairs(
        state,
        [&] {
            QPainter painter(&own);
            painter.scale(scale, scale);
            surface.paint(painter, scene.document, screen, everything);
        },
        [&] {
            QPainter painter(&bare);
            painter.scale(scale, scale);
            painter.fillRect(everything, Qt::black);
            for (std::size_t index = 0; index < scene.rects.size(); ++index) {
                painter.fillRect(scene.rects[index], scene.colors[index]);
            }
        });
    state.counters["same"] = own == bare ? 1 : 0;
}

struct Texts {
    SkinDocument document;
    std::vector<QPointF> places;
    std::vector<QStaticText> prepared;
};

Texts texts(int count) {
    const QFont font = skinFont({});
    Texts result;
    for (int number = 0; number < count; ++number) {
        Element element;
        element.elementKind = ElementKind::Text;
        ElementControl& control = element.elementControl;
        control.kind = ControlKind::txt;
        control.textColor = makeColor(255, 255, 255);
        control.left = static_cast<float>(number * 37 % 500);
        control.top = static_cast<float>(number * 53 % 440);
        control.width = 140;
        control.height = 40;
        control.caption = "Free space " + std::to_string(number) + " MB on drive";
        QStaticText text(QString::fromStdString(control.caption));
        text.setTextFormat(Qt::PlainText);
        text.setTextWidth(140);
        text.prepare({}, font);
        result.prepared.push_back(text);
        result.places.emplace_back(control.left, control.top);
        result.document.addElement(std::move(element));
    }
    return result;
}

void paintTextsAgainstStaticText(benchmark::State& state) {
    const Texts scene = texts(static_cast<int>(state.range(0)));
    const QFont font = skinFont({});
    PictureCache pictures;
    SurfacePainter surface(pictures);
    QImage own = surfaceImage();
    QImage bare = surfaceImage();
    comparePairs(
        state,
        [&] {
            QPainter painter(&own);
            surface.paint(painter, scene.document, screen, everything);
        },
        [&] {
            QPainter painter(&bare);
            painter.fillRect(everything, Qt::black);
            painter.setPen(Qt::white);
            painter.setFont(font);
            for (std::size_t index = 0; index < scene.prepared.size(); ++index) {
                painter.drawStaticText(scene.places[index], scene.prepared[index]);
            }
        });
    state.counters["same"] = own == bare ? 1 : 0;
}

// One box of many moves by a pixel: the part of the surface that a drag repaints each time.
void repaintMovedBox(benchmark::State& state) {
    Boxes scene = boxes(static_cast<int>(state.range(0)), 10, 80);
    PictureCache pictures;
    SurfacePainter surface(pictures);
    SurfaceDamage damage;
    (void)damage.rowsChanged(scene.document, screen);
    QImage image = surfaceImage();
    QPainter painter(&image);
    float step = 1;
    for (auto _ : state) {
        scene.document.editElement(1,
                                   [&](Element& element) { element.elementControl.left += step; });
        step = -step;
        QRectF dirty;
        for (const QRectF& rect : damage.elementChanged(scene.document, 1).rects) {
            dirty |= rect;
        }
        surface.paint(painter, scene.document, screen, dirty);
    }
}

BENCHMARK(paintBoxesAgainstFillRect)
    ->ArgNames({"boxes", "from", "to", "scale"})
    ->Args({10'000, 10, 80, 1})
    ->Args({10'000, 100, 300, 1})
    ->Args({10'000, 4, 12, 1})
    ->Args({10'000, 10, 80, 2})
    ->Args({10'000, 4, 12, 2})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(paintTextsAgainstStaticText)
    ->ArgName("texts")
    ->Arg(1'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(repaintMovedBox)->ArgName("boxes")->Arg(10'000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tarvel::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // nothing is shown
    }
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
