// Reading and generating skins, against pugixml's bare parse and a bare loop of appends.
#include "bench_support.h"
#include "files/host_files.h"
#include "skinfile/document_check.h"
#include "skinfile/recovery_store.h"
#include "skinfile/skin_check.h"
#include "skinfile/skin_reader.h"
#include "skins.h"
#include "text/number_format.h"

#include <pugixml.hpp>

#include <cstdio>

namespace tarvel::bench {

namespace {

void compareWithBareParse(benchmark::State& state, const std::filesystem::path& file) {
    comparePairs(
        state,
        [&] {
            SkinDocument document;
            readSkin(document, file.parent_path());
            benchmark::DoNotOptimize(document);
        },
        [&] {
            pugi::xml_document document;
            document.load_file(file.c_str());
            benchmark::DoNotOptimize(document);
        });
    state.SetComplexityN(state.range(0));
}

void readSkinAgainstBareParse(benchmark::State& state) {
    const TemporaryFolder folder;
    SkinDocument skin = mixedSkin(static_cast<int>(state.range(0)));
    compareWithBareParse(state, saveInto(folder.path(), skin));
}

void readModifiersAgainstBareParse(benchmark::State& state) {
    const TemporaryFolder folder;
    SkinDocument skin = mixedSkin(static_cast<int>(state.range(0)), {.modifiers = true});
    compareWithBareParse(state, saveInto(folder.path(), skin));
}

// A skin that an editor for texts has saved: LF line ends, which the writer never writes.
void readForeignLineEndsAgainstBareParse(benchmark::State& state) {
    const TemporaryFolder folder;
    SkinDocument skin = mixedSkin(static_cast<int>(state.range(0)));
    const auto file = saveInto(folder.path(), skin);
    std::string text = readFile(file);
    std::erase(text, '\r');
    writeFile(file, text);
    compareWithBareParse(state, file);
}

// The worst place for a line that the writer never writes: the last.
void readForeignLastLineAgainstBareParse(benchmark::State& state) {
    const TemporaryFolder folder;
    SkinDocument skin = mixedSkin(static_cast<int>(state.range(0)));
    const auto file = saveInto(folder.path(), skin);
    writeFile(file, readFile(file) + "<!-- the end -->");
    compareWithBareParse(state, file);
}

// A piece of the output: text, or a number that still has to become text.
struct Piece {
    std::string_view text;
    float number = 0;
    bool isNumber = false;
};

// Cuts a generated text into its numbers (positions) and what lies between them.
std::vector<Piece> piecesOf(std::string_view text) {
    std::vector<Piece> pieces;
    const auto isDigit = [](char c) { return (c >= '0' && c <= '9') || c == '.' || c == '-'; };
    std::size_t start = 0;
    for (auto at = text.find("<Pos "); at != std::string_view::npos; at = text.find("<Pos ", at)) {
        const auto end = text.find("/>", at);
        while ((at = text.find("=\"", at)) < end) {
            at += 2;
            pieces.push_back({.text = text.substr(start, at - start)});
            const auto from = at;
            while (isDigit(text[at])) {
                ++at;
            }
            pieces.push_back({.text = {},
                              .number = toSingle(val(text.substr(from, at - from))),
                              .isNumber = true});
            start = at;
        }
        at = end;
    }
    pieces.push_back({.text = text.substr(start)});
    return pieces;
}

// Between its numbers the bare loop appends a line's literal pieces one by one, as the writer must.
std::vector<Piece> splitAtValues(const std::vector<Piece>& pieces) {
    std::vector<Piece> result;
    for (const Piece& piece : pieces) {
        if (piece.isNumber) {
            result.push_back(piece);
            continue;
        }
        auto text = piece.text;
        while (!text.empty()) {
            const auto cut = std::min(text.find_first_of("\"\n>", 1), text.size() - 1) + 1;
            result.push_back({.text = text.substr(0, cut)});
            text.remove_prefix(cut);
        }
    }
    return result;
}

void generateTextAgainstBareLoop(benchmark::State& state) {
    const TemporaryFolder folder;
    SkinDocument skin = mixedSkin(static_cast<int>(state.range(0)));
    SkinWriter writer(folder.path());
    writer.generateXML(skin);
    const std::string text = writer.xmlText();
    const std::vector<Piece> pieces = splitAtValues(piecesOf(text));
    comparePairs(
        state,
        [&] {
            SkinWriter fresh(folder.path());
            fresh.generateXML(skin);
            benchmark::DoNotOptimize(fresh.xmlText().data());
        },
        [&] {
            std::string output;
            std::array<char, 64> digits{};
            for (const Piece& piece : pieces) {
                if (piece.isNumber) {
                    const auto end =
                        std::to_chars(digits.data(), digits.data() + digits.size(), piece.number);
                    output.append(digits.data(), end.ptr);
                } else {
                    output.append(piece.text);
                }
            }
            benchmark::DoNotOptimize(output.data());
        });
    state.SetComplexityN(state.range(0));
}

// As many resources as images, each image with one of its own. Their files are missing.
void readResourcesAgainstBareParse(benchmark::State& state) {
    const TemporaryFolder folder;
    SkinDocument skin = imagesSkin(static_cast<int>(state.range(0)));
    compareWithBareParse(state, writeInto(folder.path(), skin));
}

void checkResourcesAgainstBareParse(benchmark::State& state) {
    const TemporaryFolder folder;
    SkinDocument skin = imagesSkin(static_cast<int>(state.range(0)));
    const auto file = writeInto(folder.path(), skin);
    comparePairs(
        state, [&] { benchmark::DoNotOptimize(checkSkin(folder.path())); },
        [&] {
            pugi::xml_document document;
            document.load_file(file.c_str());
            benchmark::DoNotOptimize(document);
        });
    state.SetComplexityN(state.range(0));
}

// The findings of an open skin, against making the text that is looked through for them.
void checkOpenSkinAgainstItsText(benchmark::State& state) {
    const TemporaryFolder folder;
    SkinDocument skin = mixedSkin(static_cast<int>(state.range(0)));
    comparePairs(
        state, [&] { benchmark::DoNotOptimize(checkDocument(skin, folder.path())); },
        [&] {
            SkinWriter writer(folder.path());
            writer.generateXML(skin);
            benchmark::DoNotOptimize(writer.xmlText().data());
        });
    state.SetComplexityN(state.range(0));
}

// One File text of many parts, which is no longer than a path can be.
void readManyPartsAgainstBareParse(benchmark::State& state) {
    const TemporaryFolder folder;
    std::string text = "<Skin name=\"Benchmark\"><Resource Type=\"Image\" Name=\"a\"><File>";
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        text += ".\\";
    }
    writeFile(folder.path() / skinFileName, text + "x.png</File></Resource></Skin>");
    compareWithBareParse(state, folder.path() / skinFileName);
}

// Each modifier through "temp.xml", against making, writing and removing such a file.
void generateModifiersAgainstBareFiles(benchmark::State& state) {
    const TemporaryFolder folder;
    SkinDocument skin = mixedSkin(static_cast<int>(state.range(0)), {.modifiers = true});
    const std::string block(400, 'x');
    const auto file = folder.path() / "temp.xml";
    comparePairs(
        state,
        [&] {
            SkinWriter writer(folder.path());
            writer.generateXML(skin);
            benchmark::DoNotOptimize(writer.xmlText().data());
        },
        [&] {
            for (std::int64_t i = 0; i < state.range(0); ++i) {
                std::FILE* opened = std::fopen(file.c_str(), "w");
                (void)std::fwrite(block.data(), 1, block.size(), opened);
                (void)std::fclose(opened);
                (void)std::remove(file.c_str());
            }
        });
    state.SetComplexityN(state.range(0));
}

void copyDocument(benchmark::State& state) {
    const SkinDocument skin = mixedSkin(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        SkinDocument copy = skin;
        benchmark::DoNotOptimize(copy);
    }
}

WorkState workOf(const benchmark::State& state) {
    WorkState work;
    work.document = mixedSkin(static_cast<int>(state.range(0)), {.modifiers = state.range(1) != 0});
    return work;
}

// What the event loop waits for when the state of the work is kept.
void writeRecovery(benchmark::State& state) {
    const WorkState work = workOf(state);
    std::vector<double> times;
    std::string buffer;
    std::size_t size = recoveryBytes(work, buffer).size(); // the first time finds the memory
    for (auto _ : state) {
        times.push_back(seconds([&] { size = recoveryBytes(work, buffer).size(); }));
    }
    constexpr double limit = 0.010;
    state.counters["bytes_per_element"] =
        static_cast<double>(size) / static_cast<double>(state.range(0));
    state.counters["median_ms"] = median(times) * 1e3;
    if (median(times) > limit) {
        state.SkipWithError("keeping the work takes more than 10 ms");
    }
}

// The same with the file: written beside, flushed and renamed.
void keepRecovery(benchmark::State& state) {
    const TemporaryFolder folder;
    const WorkState work = workOf(state);
    RecoveryStore store(folder.path());
    for (auto _ : state) {
        store.keep(work);
    }
}

void readRecoveryBack(benchmark::State& state) {
    const std::string bytes = recoveryBytes(workOf(state));
    for (auto _ : state) {
        benchmark::DoNotOptimize(readRecovery(bytes));
    }
}

} // namespace

BENCHMARK(readSkinAgainstBareParse)
    ->RangeMultiplier(10)
    ->Range(100, 100'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(readModifiersAgainstBareParse)
    ->Arg(10'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readForeignLineEndsAgainstBareParse)
    ->Arg(10'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readForeignLastLineAgainstBareParse)
    ->Arg(10'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(generateTextAgainstBareLoop)
    ->RangeMultiplier(10)
    ->Range(100, 100'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(readResourcesAgainstBareParse)
    ->Arg(5'000)
    ->Arg(20'000)
    ->Arg(80'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(checkResourcesAgainstBareParse)
    ->Arg(5'000)
    ->Arg(20'000)
    ->Arg(80'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(checkOpenSkinAgainstItsText)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(80'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(readManyPartsAgainstBareParse)
    ->Arg(500)
    ->Arg(1'900)
    ->Arg(100'000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(generateModifiersAgainstBareFiles)
    ->Arg(10'000)
    ->Arg(40'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(copyDocument)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(writeRecovery)
    ->ArgNames({"elements", "modifiers"})
    ->ArgsProduct({{10'000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(keepRecovery)
    ->ArgNames({"elements", "modifiers"})
    ->ArgsProduct({{10'000}, {0, 1}})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readRecoveryBack)
    ->ArgNames({"elements", "modifiers"})
    ->ArgsProduct({{10'000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

} // namespace tarvel::bench
