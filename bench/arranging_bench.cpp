// Many elements at once: moving and scaling all of them in a frame of a drag, snapping among them,
// and choosing them.
//
// Processor time; the limits are those of the project, and a benchmark that misses its own is an
// error.
#include "bench_support.h"
#include "editing/arrange.h"
#include "editing/group_scale.h"
#include "editing/manipulation.h"
#include "editing/pick_index.h"
#include "editing/select_rules.h"
#include "editing/snapping.h"

#include <cmath>
#include <numeric>
#include <random>
#include <span>
#include <string>
#include <utility>

namespace tarvel::bench {

namespace {

constexpr double tolerance = 6;
constexpr double frameLimit = 1.0 / 60;  // seconds, for all that a frame takes
constexpr double moveLimit = 0.001;      // what snapping may add to a move
constexpr double buildLimit = 0.005;     // before the first move of a drag
constexpr double selectAllLimit = 0.050; // all that Ctrl+A takes

Place randomPlace(std::mt19937& random) {
    const auto upTo = [&](unsigned limit) {
        return static_cast<float>(random() % (limit * 4)) / 4;
    };
    return {upTo(600), upTo(440), 10 + upTo(70), 10 + upTo(70)};
}

std::vector<Place> randomPlaces(int count) {
    std::mt19937 random(1); // NOLINT: the same places in every run
    std::vector<Place> places;
    for (int i = 0; i < count; ++i) {
        places.push_back(randomPlace(random));
    }
    return places;
}

// Short rectangles along the upper edge: none is beside what moves below, so that looking for
// neighbours is longest.
std::vector<Place> upperRow(int count) {
    std::vector<Place> places = randomPlaces(count);
    for (Place& place : places) {
        place[1] = 0;
        place[3] = 4;
    }
    return places;
}

SkinDocument documentOf(const std::vector<Place>& places) {
    SkinDocument document;
    for (std::size_t i = 0; i < places.size(); ++i) {
        Element element;
        element.label = "Box: Alpha 100";
        const bool isLine = i % 5 == 4; // a line in every five
        if (isLine) {
            element.elementKind = ElementKind::Line;
            element.elementControl.kind = ControlKind::lin;
        }
        setPlace(element.elementControl, places[i]);
        document.addElement(std::move(element));
    }
    return document;
}

std::vector<int> allIds(const SkinDocument& document) {
    std::vector<int> ids(static_cast<std::size_t>(document.lastElementId()));
    std::iota(ids.begin(), ids.end(), 1);
    return ids;
}

// The error that ends the benchmark when its median is over the limit; each iteration does `times`
// pieces of work.
void holdTo(benchmark::State& state, double limit, double times = 1) {
    const double each = state.counters["ratio"] * state.counters["baseline_ms"] / 1e3 / times;
    state.counters["each_us"] = each * 1e6;
    if (each > limit) {
        state.SkipWithError("the limit is missed");
    }
}

double wayOf(int step, double reach) {
    return std::sin(step * 0.03) * reach;
}

// A document with an index for picking, as the surface has one, that is told of all changes.
struct Watched {
    explicit Watched(const std::vector<Place>& places)
        : document(documentOf(places)) {}

    SkinDocument document;
    PickIndex index;
    DocumentWatch watch = document.watch(index);
};

void moveAllAgainstBareElements(benchmark::State& state) {
    Watched work(randomPlaces(static_cast<int>(state.range(0))));
    const auto starts = startPlaces(work.document, allIds(work.document));
    std::vector<Element> bare;
    for (const StartPlace& start : starts) {
        bare.push_back(work.document.element(start.elementId));
    }
    int step = 0;
    comparePairs(
        state,
        [&] {
            ++step;
            moveAll(work.document, starts, wayOf(step, 100), wayOf(step, 70));
        },
        [&] {
            const auto dx = static_cast<float>(wayOf(step, 100));
            const auto dy = static_cast<float>(wayOf(step, 70));
            for (std::size_t i = 0; i < bare.size(); ++i) {
                const Place& from = starts[i].place;
                setPlace(bare[i].elementControl, {from[0] + dx, from[1] + dy, from[2], from[3]});
            }
            benchmark::DoNotOptimize(bare.data());
        });
    holdTo(state, frameLimit);
}

// The first frame of a drag, which parts the elements from the document that undo keeps.
void firstMoveAgainstMoveAll(benchmark::State& state) {
    Watched work(randomPlaces(static_cast<int>(state.range(0))));
    const auto starts = startPlaces(work.document, allIds(work.document));
    int step = 0;
    SkinDocument kept;
    const auto move = [&] {
        ++step;
        moveAll(work.document, starts, wayOf(step, 100), wayOf(step, 70));
    };
    comparePairs(
        state,
        [&] {
            kept = work.document;
            move();
        },
        move);
    holdTo(state, frameLimit);
}

void scaleAllAgainstMoveAll(benchmark::State& state) {
    Watched work(randomPlaces(static_cast<int>(state.range(0))));
    const auto starts = startPlaces(work.document, allIds(work.document));
    const Place frame = commonFrame(starts);
    int step = 0;
    comparePairs(
        state,
        [&] {
            const auto way = static_cast<float>(wayOf(++step, 200));
            scaleAll(work.document, starts, frame,
                     resized(frame, Handle::bottomRight, way, way, false));
        },
        [&] { moveAll(work.document, starts, wayOf(step, 100), wayOf(step, 70)); });
    holdTo(state, frameLimit);
}

// A walk over all rectangles for the nearest edge or middle on each axis, without gaps and guides.
double walkedOffset(std::span<const Place> places, const Place& frame, std::size_t axis) {
    double best = tolerance;
    for (const Place& place : places) {
        for (const float own : {0.0F, 0.5F, 1.0F}) {
            for (const float other : {0.0F, 0.5F, 1.0F}) {
                const double way = static_cast<double>(place[axis]) + place[axis + 2] * other -
                                   (frame[axis] + frame[axis + 2] * own);
                best = std::abs(way) < std::abs(best) ? way : best;
            }
        }
    }
    return best;
}

void snapAgainstWalk(benchmark::State& state, const std::vector<Place>& places, float top) {
    constexpr int moves = 20;
    const SnapIndex index(documentOf(places), {});
    int step = 0;
    const auto frameAt = [&](int move) {
        return Place{static_cast<float>(300 + wayOf(move, 250)),
                     static_cast<float>(top + wayOf(2 * move, 100)), 60, 40};
    };
    comparePairs(
        state,
        [&] {
            for (int move = 0; move < moves; ++move) {
                benchmark::DoNotOptimize(index.snapMove(frameAt(step + move), tolerance));
            }
        },
        [&] {
            for (int move = 0; move < moves; ++move) {
                benchmark::DoNotOptimize(walkedOffset(places, frameAt(step + move), 0));
                benchmark::DoNotOptimize(walkedOffset(places, frameAt(step + move), 1));
            }
            step += moves;
        });
    holdTo(state, moveLimit, moves);
}

void snapAllOverAgainstWalk(benchmark::State& state) {
    snapAgainstWalk(state, randomPlaces(static_cast<int>(state.range(0))), 220);
}

void snapWithoutNeighboursAgainstWalk(benchmark::State& state) {
    snapAgainstWalk(state, upperRow(static_cast<int>(state.range(0))), 300);
}

void buildIndexAgainstSorting(benchmark::State& state) {
    const std::vector<Place> places = randomPlaces(static_cast<int>(state.range(0)));
    const SkinDocument document = documentOf(places);
    const std::vector<int> moved = {1, 2, 3};
    comparePairs(
        state, [&] { benchmark::DoNotOptimize(SnapIndex(document, moved)); },
        [&] {
            for (std::size_t axis = 0; axis < 2; ++axis) {
                for (const float part : {0.0F, 0.5F, 1.0F}) {
                    std::vector<float> positions;
                    positions.reserve(places.size());
                    for (const Place& place : places) {
                        positions.push_back(place[axis] + place[axis + 2] * part);
                    }
                    std::sort(positions.begin(), positions.end());
                    benchmark::DoNotOptimize(positions.data());
                }
            }
        });
    holdTo(state, buildLimit);
}

void bandAgainstBareRectangles(benchmark::State& state) {
    const std::vector<Place> places = randomPlaces(static_cast<int>(state.range(0)));
    const SkinDocument document = documentOf(places);
    comparePairs(
        state,
        [&] {
            benchmark::DoNotOptimize(rowsTouched(document, {{100, 100}, {400, 300}}));
        },
        [&] {
            std::vector<int> rows;
            for (std::size_t i = 0; i < places.size(); ++i) {
                const Place& place = places[i];
                if (place[0] <= 400 && place[0] + place[2] >= 100 && place[1] <= 300 &&
                    place[1] + place[3] >= 100) {
                    rows.push_back(static_cast<int>(i));
                }
            }
            benchmark::DoNotOptimize(rows.data());
        });
    holdTo(state, frameLimit);
}

void chooseAllAgainstBareNumbers(benchmark::State& state) {
    const SkinDocument document = documentOf(randomPlaces(static_cast<int>(state.range(0))));
    comparePairs(
        state, [&] { benchmark::DoNotOptimize(unlockedRows(document)); },
        [&] {
            std::vector<int> rows;
            for (int row = 0; row < document.lastElementId(); ++row) {
                rows.push_back(row);
            }
            benchmark::DoNotOptimize(rows.data());
        });
    holdTo(state, selectAllLimit);
}

void arrangeAgainstMoveAll(benchmark::State& state) {
    Watched work(randomPlaces(static_cast<int>(state.range(0))));
    const std::vector<int> ids = allIds(work.document);
    const auto starts = startPlaces(work.document, ids);
    comparePairs(
        state, [&] { arrange(work.document, ids, ids.back(), ArrangeCommand::distributeAcross); },
        [&] { moveAll(work.document, starts, 0, 0); });
    holdTo(state, frameLimit);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(100)->Arg(1'000)->Arg(10'000)->UseManualTime()->Iterations(200)->Unit(
        benchmark::kMicrosecond);
}

} // namespace

BENCHMARK(moveAllAgainstBareElements)->Apply(sizes);
BENCHMARK(firstMoveAgainstMoveAll)->Apply(sizes);
BENCHMARK(scaleAllAgainstMoveAll)->Apply(sizes);
BENCHMARK(arrangeAgainstMoveAll)->Apply(sizes);
BENCHMARK(snapAllOverAgainstWalk)->Apply(sizes);
BENCHMARK(snapWithoutNeighboursAgainstWalk)->Apply(sizes);
BENCHMARK(buildIndexAgainstSorting)->Apply(sizes);
BENCHMARK(bandAgainstBareRectangles)->Apply(sizes);
BENCHMARK(chooseAllAgainstBareNumbers)->Apply(sizes);

} // namespace tarvel::bench
