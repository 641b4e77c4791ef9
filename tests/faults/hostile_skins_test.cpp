// Skins that are made to hurt: numbers beyond every limit, names of a megabyte, hundreds of
// thousands of elements, trees deeper than any stack. Each command ends by itself, soon, and within
// memory that the file's size accounts for.
#include "faults/child.h"
#include "files/host_files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <string>

namespace tarvel::test {
namespace {

std::string repeated(std::size_t times, std::string_view piece) {
    std::string text;
    text.reserve(times * piece.size());
    for (std::size_t i = 0; i < times; ++i) {
        text += piece;
    }
    return text;
}

std::string onMenu(const std::string& elements) {
    return "<Skin Name=\"hostile\"><Layout Screen=\"Menu\">" + elements + "</Layout></Skin>";
}

constexpr const char* kinds[] = {"Box", "Line", "Image", "Text", "Menu"};
constexpr const char* places[] = {"L", "T", "W", "H", "X1", "Y1", "X2", "Y2"};

// An element whose places hold the number where `isWild` says so, and something plain elsewhere.
std::string elementAt(const std::string& kind, const std::string& number,
                      const std::function<bool(const char* place)>& isWild) {
    std::string text = "<LayoutElement Type=\"" + kind + "\" Source=\"Time\"><Pos";
    for (const char* place : places) {
        text.append(" ").append(place).append("=\"");
        text.append(isWild(place) ? number : "40").append("\"");
    }
    return text +
           "/><Color>0x80FFFFFF</Color><BorderColor>0xFFFFFFFF</BorderColor></LayoutElement>";
}

// Every kind with each of the numbers in each of its places.
std::string elementsAt(const std::vector<std::string>& numbers) {
    std::string text;
    for (const char* kind : kinds) {
        for (const std::string& number : numbers) {
            for (const char* wild : places) {
                text +=
                    elementAt(kind, number, [wild](const char* place) { return place == wild; });
            }
        }
    }
    return text;
}

std::string elementsEverywhere(const std::vector<std::string>& numbers) {
    std::string text;
    for (const char* kind : kinds) {
        for (const std::string& number : numbers) {
            text += elementAt(kind, number, [](const char*) { return true; });
        }
    }
    return text;
}

const std::vector<std::string> wildNumbers = {
    "1e30",   "-1e30",  "nan",        "NaN",         "-nan", "inf", "-inf",       "1e400",
    "-1e400", "1e-400", "2147483648", "-2147483649", "",     "-0",  "4294967296", "1.7e38"};

std::string countsBeyondLimits() {
    std::string text;
    for (const char* number : {"32768", "65536", "70000", "2147483648", "4294967297", "-40000",
                               "99999999999999999999", "1e30", "nan", "-1e30"}) {
        const std::string value(number);
        text +=
            "<LayoutElement Type=\"Menu\"><Pos L=\"0\" T=\"0\" W=\"400\" H=\"300\"/><NumItems>" +
            value + "</NumItems><ScrollFactor>" + value + "</ScrollFactor><Timer Type=\"Delay\">" +
            value + "</Timer><Timer Type=\"Lifetime\">" + value + "</Timer><Color>" + value +
            "</Color><Color>0x" + value + "FFFFFF</Color></LayoutElement>";
    }
    return "<Skin Name=\"counts\"><Delays><Title>1e300</Title><Load>nan</Load><Saver>-1e300</Saver>"
           "</Delays><Layout Screen=\"Menu\">" +
           text + "</Layout></Skin>";
}

std::string megabyteNames() {
    const std::string name(1'000'000, 'n');
    return "<Skin Name=\"" + name + "\"><Resource Type=\"Image\" Name=\"" + name +
           "\"><File>Media\\" + name + ".png</File></Resource><Layout Screen=\"Menu\">" +
           "<e Type=\"Image\" Source=\"" + name + "\"><p/></e><e Type=\"Text\">" + "<Constant>" +
           name + "</Constant><Pos/></e></Layout></Skin>";
}

std::string megabyteTags() {
    const std::string name(1'000'000, 't');
    return "<Skin Name=\"tags\"><" + name + " " + name + "=\"x\"/><Layout Screen=\"" + name +
           "\"/><Layout Screen=\"Menu\"><LayoutElement Type=\"" + name + "\"/></Layout></Skin>";
}

std::string deepModifier(std::size_t depth) {
    return onMenu("<LayoutElement Type=\"Box\"><Pos/><Modifier Type=\"Glow\" Target=\"x\">" +
                  repeated(depth, "<m>") + repeated(depth, "</m>") + "</Modifier></LayoutElement>");
}

std::string longPath() {
    return "<Skin Name=\"path\"><Resource Type=\"Image\" Name=\"a\"><File>" +
           repeated(100'000, "a\\") +
           "x.png</File></Resource><Resource Type=\"Image\" Name=\"b\">" + "<File>" +
           repeated(100'000, ".\\") + "x.png</File></Resource></Skin>";
}

// What the writer itself makes of many elements is read by another way than a person's file.
std::string manyAttributes() {
    std::string text = "<LayoutElement Type=\"Box\"";
    for (int i = 0; i < 200'000; ++i) {
        text += " a" + std::to_string(i) + "=\"1\"";
    }
    return onMenu(text + "><Pos/></LayoutElement>");
}

struct HostileSkin {
    const char* name;
    std::function<std::string()> text;
};

const HostileSkin hostileSkins[] = {
    {"wild numbers in one place", [] { return onMenu(elementsAt(wildNumbers)); }},
    {"wild numbers in all places", [] { return onMenu(elementsEverywhere(wildNumbers)); }},
    {"counts beyond limits", countsBeyondLimits},
    {"names of a megabyte", megabyteNames},
    {"tags of a megabyte", megabyteTags},
    {"200,000 elements",
     [] { return onMenu(repeated(200'000, "<e Type=\"Box\"><p W=\"9\" H=\"9\"/></e>")); }},
    {"100,000 elements without a size",
     [] { return onMenu(repeated(100'000, "<e Type=\"Box\"><p/></e>")); }},
    {"100,000 texts",
     [] { return onMenu(repeated(100'000, "<e Type=\"Text\" Source=\"Time\"><p/></e>")); }},
    {"a modifier 100,000 deep", [] { return deepModifier(100'000); }},
    {"a modifier 700,000 deep", [] { return deepModifier(700'000); }},
    {"1,000 layouts of one screen",
     [] {
         return "<Skin Name=\"layouts\">" +
                repeated(1000, "<Layout Screen=\"Menu\"><e Type=\"Box\"><p/></e></Layout>") +
                "</Skin>";
     }},
    {"paths of 100,000 parts", longPath},
    {"200,000 attributes", manyAttributes},
};

class HostileSkins : public testing::TestWithParam<HostileSkin> {};

void expectHarmless(const std::vector<std::string>& command, std::size_t fileSize) {
    ChildOptions options;
    options.seconds = 30; // beside other work on the machine
    const ChildResult result = runChild(command, options);
    const std::string what = command[1];
    std::cout << "  " << what << ": exit " << result.code << ", " << result.processorSeconds
              << " s, " << result.peakKilobytes / 1024 << " MB of file's " << fileSize / 1024
              << " KB\n";
    EXPECT_EQ(result.signal, 0) << what;
    EXPECT_LT(result.processorSeconds, 5) << what;
    EXPECT_LT(static_cast<double>(result.peakKilobytes) * 1024,
              10.0 * static_cast<double>(fileSize) + 100e6)
        << what;
    EXPECT_TRUE(result.code == 0 || !result.err.empty() || what == "check") << what;
}

TEST_P(HostileSkins, DoNoHarm) {
    const TemporaryFolder folder;
    const std::string text = GetParam().text();
    folder.file("in/QOR_Skin.xml", text);
    const auto in = (folder / "in").string();
    const std::string program = TARVEL_SKIN_PROGRAM;
    expectHarmless({program, "check", in}, text.size());
    expectHarmless({program, "render", in, "Menu", (folder / "out.png").string()}, text.size());
    const auto out = folder / "out";
    expectHarmless({program, "resave", in, out.string()}, text.size());
    // And what became of it, in the writer's own form.
    if (std::filesystem::exists(out / "QOR_Skin.xml")) {
        const auto size = std::filesystem::file_size(out / "QOR_Skin.xml");
        expectHarmless({program, "resave", out.string(), (folder / "again").string()}, size);
    }
}

INSTANTIATE_TEST_SUITE_P(All, HostileSkins, testing::ValuesIn(hostileSkins), [](const auto& skin) {
    std::string name(skin.param.name);
    std::erase_if(name, [](char c) { return std::isalnum(c) == 0; });
    return name;
});

} // namespace
} // namespace tarvel::test
