// What a loaded skin keeps in memory, by the allocator's own account: bytes for each element,
// pictures apart.
#include "files/host_files.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "skins.h"

#include <benchmark/benchmark.h>

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

} // namespace

BENCHMARK(loadedSkin)
    ->ArgNames({"elements", "modifiers"})
    ->ArgsProduct({{10'000, 100'000}, {0, 1}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace tarvel::bench
