// Makes the skins of disturbed saves, and compares what is left with them.
#include "faults/saves.h"

#include "files/host_files.h"

#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace tarvel::test {

namespace fs = std::filesystem;

namespace {

// Bytes without a period that a torn file could hide in.
std::string pictureBytes(std::size_t size, unsigned seed) {
    std::string bytes(size, '\0');
    unsigned state = seed * 2654435761U + 1;
    for (char& byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24U);
    }
    return bytes;
}

bool isLeftover(const std::string& name) {
    return fs::path(name).filename().string().starts_with(".tarvel-");
}

} // namespace

bool isLongRun() {
    const char* faults = std::getenv("TARVEL_FAULTS");
    return faults != nullptr && std::string_view(faults) == "long";
}

Files filesIn(const fs::path& folder) {
    Files files;
    if (!fs::exists(folder)) {
        return files;
    }
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_directory()) {
            files[entry.path().lexically_relative(folder).string()] = readFile(entry.path());
        }
    }
    return files;
}

TwoVersions::TwoVersions(const SkinSize& size) {
    fs::create_directories(folder_ / "program");
    fs::copy_file(TARVEL_SKIN_PROGRAM, folder_ / "program/tarvel-skin");
    for (const int version : {0, 1}) {
        makeVersion(version, size);
        fs::remove_all(out());
        if (const auto result = runChild(save(version)); result.code != 0) {
            throw std::runtime_error("the skin cannot be saved: " + result.err);
        }
        saved_[version] = filesIn(out());
    }
}

void TwoVersions::makeVersion(int version, const SkinSize& size) const {
    const std::string name = "Version" + std::to_string(version);
    std::string text = "<Skin Name=\"" + name + "\">";
    for (int i = 0; i < size.pictures; ++i) {
        const std::string number = std::to_string(i);
        text += "<Resource Type=\"Image\" Name=\"p" + number + "\"><File>Media/p" + number +
                ".png</File></Resource>";
        folder_.file(in(version).filename().string() + "/Media/p" + number + ".png",
                     pictureBytes(static_cast<std::size_t>(size.kilobytes) * 1024,
                                  static_cast<unsigned>(2 * i + version)));
    }
    text += "<Layout Screen=\"Menu\">";
    for (int i = 0; i < size.elements; ++i) {
        text += "<LayoutElement Type=\"Box\"><Pos X=\"" + std::to_string(i + version) +
                "\" Y=\"2\" W=\"3\" H=\"4\"/><Modifier Type=\"Glow\" Target=\"" + name +
                "\"><Range X=\"1\" Y=\"2\"/></Modifier></LayoutElement>";
    }
    text += "</Layout></Skin>";
    folder_.file(in(version).filename().string() + "/QOR_Skin.xml", text);
}

std::vector<std::string> TwoVersions::save(int version) const {
    return {folder_ / "program/tarvel-skin", "resave", in(version), out()};
}

void TwoVersions::reset() const {
    fs::remove_all(out());
    fs::create_directories(out() / "Media");
    fs::create_directories(out() / "Music");
    for (const auto& [name, bytes] : saved_[0]) {
        writeFile(out() / name, bytes);
    }
}

std::string TwoVersions::problem(bool leftoversToo) const {
    Files files = filesIn(out());
    for (const auto& [name, bytes] : saved_[0]) {
        if (files[name] != bytes && files[name] != saved_[1].at(name)) {
            return name + " is neither the old nor the new one";
        }
    }
    for (const auto& [name, bytes] : files) {
        if (!saved_[0].contains(name) && (leftoversToo || !isLeftover(name))) {
            return name + " was left";
        }
    }
    return {};
}

std::string TwoVersions::problemAfterSave(int version) const {
    const ChildResult result = runChild(save(version));
    if (result.code != 0) {
        return "the next save failed: " + result.err;
    }
    if (std::string problem = this->problem(true); !problem.empty()) {
        return "after the next save: " + problem;
    }
    if (filesIn(out()) != saved_[version]) {
        return "the next save did not save";
    }
    for (const auto& [name, bytes] : filesIn(folder_ / "program")) {
        if (name != "tarvel-skin") {
            return "beside the program: " + name + " was left";
        }
    }
    return {};
}

} // namespace tarvel::test
