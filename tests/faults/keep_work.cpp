// A run that keeps its work twice and is gone, or one that takes up what lost runs have left.
// keep_work keep FOLDER | keep_work take FOLDER
//
// What went well is told on the error stream, a line each; a failure by its message and exit
// code 1.
#include "skinfile/recovery_store.h"

#include <iostream>
#include <string_view>

namespace tarvel {

namespace {

WorkState workNamed(const std::string& name) {
    WorkState work{.document = {}, .selected = {}, .folder = name};
    work.document.editSettings([&](SkinSettings& settings) { settings.skinName = name; });
    return work;
}

void keep(const char* folder) {
    RecoveryStore store(folder);
    store.keep(workNamed("older"));
    std::cerr << "kept older\n";
    store.keep(workNamed("newer"));
    std::cerr << "kept newer\n";
}

void take(const char* folder) {
    RecoveryStore store(folder);
    const auto lost = store.takeLost();
    std::cerr << "found " << lost.size() << '\n';
    for (const auto& file : lost) {
        const WorkState work = RecoveryStore::read(file);
        std::cerr << "read " << work.folder << '\n';
        store.keep(work);
        std::cerr << "kept again\n";
        store.forget(file);
    }
}

} // namespace

} // namespace tarvel

int main(int argc, char* argv[]) {
    try {
        if (argc == 3 && std::string_view(argv[1]) == "keep") {
            tarvel::keep(argv[2]);
        } else if (argc == 3 && std::string_view(argv[1]) == "take") {
            tarvel::take(argv[2]);
        } else {
            return 2;
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "failed: " << error.what() << '\n';
        return 1;
    }
}
