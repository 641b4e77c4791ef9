// What is kept in memory, by the allocator's own account: of a loaded skin, pictures apart, and of
// the steps that can be undone.
#include "bench_support.h"
#include "document/history.h"
#include "document/open_edit.h"
#include "files/host_files.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "skins.h"

#include <malloc.h>
#include <memory>
#include <string>

namespace tarvel::bench {

namespace {

constexpr double limit = 1536; // bytes for each element

std::size_t allocatedBytes() {
    const auto account = ::mallinfo2();
    return account.uordblks + account.hblkhd;
}

// Writes a skin whose pictures are files, so that each image element carries a path. The files
// themselves are never there: reading does not open them.
void writeSkinInto(const TemporaryFolder& folder, int count, bool modifiers) {
    SkinDocument document = mixedSkin(count, {.modifiers = modifiers});
    document.editSettings([&](SkinSettings& settings) {
        for (Resource& resource : settings.resources) {
            resource.isFile = true;
            resource.content = documentPath(folder.path() / "Media" / (resource.name + ".png"));
        }
    });
    SkinWriter writer(folder.path());
    writer.generateXML(document);
    writeFile(skinFilePath(folder.path()), skinFileBytes(writer.xmlText()));
}

void loadedSkin(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const TemporaryFolder folder;
    writeSkinInto(folder, count, state.range(1) != 0);
    double perElement = 0;
    for (auto _ : state) {
        const auto before = allocatedBytes();
        const auto document = std::make_unique<SkinDocument>();
        readSkin(*document, folder.path());
        perElement = static_cast<double>(allocatedBytes() - before) / count;
        if (document->lastElementId() != count) {
            state.SkipWithError("not every element was read");
        }
    }
    state.counters["bytes_per_element"] = perElement;
    if (perElement > limit) {
        state.SkipWithError("an element takes more than 1.5 KB");
    }
}

class NoPlaces : public WorkPlaces {
  public:
    [[nodiscard]] WorkPlace place() const override { return {}; }
    void goTo(const WorkPlace& /*place*/) override {}
};

// What somebody does who lays out a screen: mostly moving one element or another.
void makeStep(SkinDocument& document, int step) {
    const OpenEdit edit(document, "step");
    const int rows = document.rowCount(document.currentLayout());
    const int row = step * 7919 % rows; // all over the skin
    switch (step % 8) {
    case 0:
        document.addElement(
            Element(document.element(document.itemData(document.currentLayout(), row))));
        return;
    case 1:
        document.delItem(row);
        return;
    case 2:
        document.moveRow(document.currentLayout(), row, rows - 1);
        return;
    default:
        document.editElement(
            document.itemData(document.currentLayout(), row),
            [&](Element& element) { element.elementControl.left = static_cast<float>(step); });
    }
}

constexpr int steps = 1000;

// A thousand steps on a document of so many elements, all on one screen, against the same changes
// without a history.
void stepsKept(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    SkinDocument first = mixedSkin(count, {.modifiers = state.range(1) != 0, .menuOnly = true});
    constexpr double bytesInMegabyte = 1e6;
    constexpr double mostMegabytes = 100;
    constexpr double mostSeconds = 1e-3;
    double megabytes = 0;
    std::vector<double> ratios;
    std::vector<double> longest;
    for (auto _ : state) {
        SkinDocument bare = first;
        const double baseline = seconds([&] {
            for (int step = 0; step < steps; ++step) {
                makeStep(bare, step);
            }
        });
        SkinDocument document = first;
        const auto before = allocatedBytes();
        NoPlaces places;
        const auto history = std::make_unique<History>(document, places);
        std::vector<double> each;
        for (int step = 0; step < steps; ++step) {
            each.push_back(seconds([&] { makeStep(document, step); }));
        }
        megabytes = static_cast<double>(allocatedBytes() - before) / bytesInMegabyte;
        double own = 0;
        for (const double one : each) {
            own += one;
        }
        state.SetIterationTime(own / steps);
        ratios.push_back(own / baseline);
        longest.push_back(median(each));
    }
    state.counters["megabytes"] = megabytes;
    state.counters["ratio"] = median(ratios);
    if (megabytes > mostMegabytes || median(longest) > mostSeconds) {
        state.SkipWithError("a thousand steps take more than 100 MB, or one more than 1 ms");
    }
}

// What keeping the work costs the event loop: whether anything is unsaved, and a copy.
void takenForKeeping(benchmark::State& state) {
    SkinDocument document = mixedSkin(static_cast<int>(state.range(0)), {.menuOnly = true});
    NoPlaces places;
    History history(document, places);
    history.startOver(true);
    document.editElement(document.lastElementId(),
                         [](Element& element) { element.elementControl.left += 1; });
    for (auto _ : state) {
        if (history.isChanged()) {
            SkinDocument copy = document;
            benchmark::DoNotOptimize(copy);
        }
    }
}

} // namespace

BENCHMARK(takenForKeeping)
    ->ArgName("elements")
    ->Arg(10'000)
    ->Arg(80'000)
    ->Unit(benchmark::kMicrosecond);

BENCHMARK(stepsKept)
    ->ArgNames({"elements", "modifiers"})
    ->ArgsProduct({{1'000, 10'000}, {0, 1}})
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

BENCHMARK(loadedSkin)
    ->ArgNames({"elements", "modifiers"})
    ->ArgsProduct({{10'000, 100'000}, {0, 1}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace tarvel::bench
