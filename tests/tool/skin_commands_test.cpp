// The commands of tarvel-skin: arguments, resave, check, exit codes and lines.
#include "files/host_files.h"
#include "support/picture_heads.h"
#include "support/program_version.h"
#include "support/temporary_folder.h"
#include "tool/skin_commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <unistd.h>

namespace tarvel::tool {

namespace {

using Lines = std::vector<std::string>;
namespace fs = std::filesystem;

const fs::path aurora = fs::path(TARVEL_EXAMPLES_DIR) / "aurora";
const fs::path handmade = fs::path(TARVEL_EXAMPLES_DIR) / "handmade";

constexpr auto usage = "usage: tarvel-skin resave IN OUT\n"
                       "       tarvel-skin check FOLDER\n"
                       "       tarvel-skin render FOLDER SCREEN|--all OUT [OPTION]...\n"
                       "       tarvel-skin --help | --version\n";

struct Result {
    int code = -1;
    std::string out;
    std::string err;
};

Result runWith(const std::vector<std::string>& arguments) {
    std::ostringstream out;
    std::ostringstream err;
    const int code = run(arguments, {out, err});
    return {code, out.str(), err.str()};
}

void expectOneLine(const std::string& text, const std::string& part) {
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
    EXPECT_TRUE(text.starts_with("tarvel-skin: ")) << text;
    EXPECT_TRUE(text.ends_with('\n')) << text;
    EXPECT_NE(text.find(part), std::string::npos) << text;
}

Lines linesOf(const std::string& text) {
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

bool isRoot() {
    return ::geteuid() == 0;
}

} // namespace

TEST(SkinCommands, HelpGivesTheUsageTheScreensAndTheExitCodes) {
    const Result result = runWith({"--help"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(result.out.starts_with(usage));
    for (const auto* part :
         {"resave  ", "check   ", "render  ", "Title", "Menu", "Load", "Saver", "JukeBox",
          "FileManager", "Exit codes: 0 ", "--all ", "--at ", "--from ", "--to ", "--fps ",
          "--select ", "--condition ", "20:15:00 on 15 March 2026"}) {
        EXPECT_NE(result.out.find(part), std::string::npos) << part;
    }
}

TEST(SkinCommands, VersionIsOneLine) {
    const Result result = runWith({"--version"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "tarvel-skin " + test::programVersion() + "\n");
    EXPECT_EQ(result.err, "");
}

TEST(SkinCommands, WrongArgumentsGiveTheUsageAndExitCodeTwo) {
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {""},
        {"--helpless"},
        {"--help", "check"},
        {"--version", "now"},
        {"Check", aurora.string()},
        {"check"},
        {"check", aurora.string(), "more"},
        {"resave"},
        {"resave", aurora.string()},
        {"resave", aurora.string(), "out", "more"},
        {"render", aurora.string(), "Menu"},
        {"render", aurora.string(), "Menu", "out.png", "more"},
        {"render", "--all", aurora.string()},
        {"render", "--all", aurora.string(), "Menu", "out.png", "more"},
        {"render", aurora.string(), "Menu", "--at", "1"}};
    for (const auto& arguments : wrong) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.code, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(result.err, usage) << testing::PrintToString(arguments);
        EXPECT_EQ(result.out, "") << testing::PrintToString(arguments);
    }
}

TEST(Resave, MakesAMissingFolderAndCopiesTheMedia) {
    const TemporaryFolder folder;
    const Result result = runWith({"resave", aurora.string(), (folder / "new").string()});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(fs::is_regular_file(folder / "new/QOR_Skin.xml"));
    EXPECT_TRUE(fs::is_directory(folder / "new/Music"));
    for (const auto& entry : fs::directory_iterator(aurora / "Media")) {
        const auto copy = folder / "new/Media" / entry.path().filename();
        ASSERT_TRUE(fs::is_regular_file(copy)) << copy;
        EXPECT_EQ(readFile(copy), readFile(entry.path())) << copy;
    }
}

TEST(Resave, ASecondSaveChangesNothing) {
    for (const auto& example : {aurora, handmade}) {
        const TemporaryFolder folder;
        const auto first = (folder / "1").string();
        const auto second = (folder / "2").string();
        EXPECT_EQ(runWith({"resave", example.string(), first}).code, 0);
        EXPECT_EQ(runWith({"resave", first, second}).code, 0);
        EXPECT_EQ(readFile(folder / "2/QOR_Skin.xml"), readFile(folder / "1/QOR_Skin.xml"));
    }
}

TEST(Resave, OverItselfKeepsEveryFile) {
    const TemporaryFolder folder;
    const auto skin = folder / "skin";
    ASSERT_EQ(runWith({"resave", aurora.string(), skin.string()}).code, 0);
    const auto text = readFile(skin / "QOR_Skin.xml");
    const auto logo = readFile(skin / "Media/logo.png");
    const Result result = runWith({"resave", skin.string(), skin.string() + "/."});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(readFile(skin / "QOR_Skin.xml"), text);
    EXPECT_EQ(readFile(skin / "Media/logo.png"), logo);
}

TEST(Resave, BelowAFileIsOneLineAndExitCodeOne) {
    const TemporaryFolder folder;
    const auto file = folder.file("file", "kept");
    const Result result = runWith({"resave", aurora.string(), (file / "out").string()});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    expectOneLine(result.err, (file / "out").string());
    EXPECT_EQ(readFile(file), "kept");
}

TEST(Resave, OntoAFileIsOneLineAndExitCodeOne) {
    const TemporaryFolder folder;
    const auto file = folder.file("file", "kept");
    const Result result = runWith({"resave", aurora.string(), file.string()});
    EXPECT_EQ(result.code, 1);
    expectOneLine(result.err, file.string());
    EXPECT_EQ(readFile(file), "kept");
}

TEST(Resave, IntoAFolderWithoutWritePermission) {
    if (isRoot()) {
        GTEST_SKIP() << "everything can be written to";
    }
    const TemporaryFolder folder;
    const auto out = folder.folder("out");
    fs::permissions(out, fs::perms::owner_read | fs::perms::owner_exec);
    const Result result = runWith({"resave", handmade.string(), out.string()});
    fs::permissions(out, fs::perms::owner_all);
    EXPECT_EQ(result.code, 1);
    expectOneLine(result.err, (out / "QOR_Skin.xml").string());
    EXPECT_TRUE(fs::is_empty(out));
}

TEST(Resave, ASkinFileThatCannotBeReplacedFailsTheSave) {
    const TemporaryFolder folder;
    folder.folder("out/QOR_Skin.xml"); // a folder in its place, which no save takes away
    const Result result = runWith({"resave", handmade.string(), (folder / "out").string()});
    EXPECT_EQ(result.code, 1);
    expectOneLine(result.err, "QOR_Skin.xml");
    EXPECT_TRUE(fs::is_directory(folder / "out/QOR_Skin.xml"));
}

TEST(Resave, AFileInPlaceOfTheMediaFolderFailsTheSave) {
    const TemporaryFolder folder;
    folder.file("out/Media", "kept");
    const Result result = runWith({"resave", handmade.string(), (folder / "out").string()});
    EXPECT_EQ(result.code, 1);
    expectOneLine(result.err, (folder / "out/Media").string());
    EXPECT_EQ(readFile(folder / "out/Media"), "kept");
}

TEST(Resave, ASkinWithoutANameIsNotSaved) {
    const TemporaryFolder folder;
    folder.file("in/QOR_Skin.xml", "<Skin name=''></Skin>");
    const Result result = runWith({"resave", (folder / "in").string(), (folder / "out").string()});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "tarvel-skin: Enter a name for the skin, and then click save again\n");
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST(Resave, IntoAFolderThatCannotHoldASkinChangesNothing) {
    const TemporaryFolder folder;
    folder.file("c/d/QOR_Skin.xml", "older");
    const auto out = folder / "c\\d";
    const Result result = runWith({"resave", handmade.string(), out.string()});
    EXPECT_EQ(result.code, 2);
    expectOneLine(result.err, out.string());
    EXPECT_FALSE(fs::exists(out));
    EXPECT_EQ(readFile(folder / "c/d/QOR_Skin.xml"), "older");
}

TEST(SkinCommands, AnEmptyFolderArgumentIsRefused) {
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"resave", handmade.string(), ""}, {"resave", "", "out"}, {"check", ""}}) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.code, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "tarvel-skin: No folder is named\n");
    }
    EXPECT_FALSE(fs::exists("out"));
}

TEST(Resave, OfWhatCannotBeReadMakesNoFolder) {
    const TemporaryFolder folder;
    folder.folder("empty");
    const Result result =
        runWith({"resave", (folder / "empty").string(), (folder / "out").string()});
    EXPECT_EQ(result.code, 2);
    expectOneLine(result.err, "QOR_Skin.xml");
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST(Check, OfTheExampleAsTarvelWritesItASaveChangesTheBackground) {
    const TemporaryFolder folder; // for what this version writes
    fs::copy(aurora, folder.path(), fs::copy_options::recursive);
    std::string text = readFile(folder / "QOR_Skin.xml");
    const std::string madeUsing = "<MadeUsing>Tarvel ";
    const auto version = text.find(madeUsing) + madeUsing.size();
    text.replace(version, text.find('<', version) - version, test::programVersion());
    folder.file("QOR_Skin.xml", text);
    const Result result = runWith({"check", folder.path().string()});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(linesOf(result.out), (Lines{"A save changes QOR_Skin.xml from line 168 on"}));
}

TEST(Check, TheExampleMadeByHand) {
    const Result result = runWith({"check", handmade.string()});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(linesOf(result.out),
              (Lines{"A save drops an element of type \"Clock\" on \"MENU\": the type is unknown",
                     "A save drops an element of type \"Text\" on \"MENU\": it is empty",
                     "The screen \"Options\" is unknown: a save moves it to \"Title\"",
                     "A save drops the resource \"Glow\" of type \"Colour\"",
                     "A save drops the unknown section \"Weather\"",
                     "A save changes QOR_Skin.xml from line 1 on"}));
}

TEST(Check, ASavedSkinHasNoFindings) {
    const TemporaryFolder folder;
    const auto saved = (folder / "saved").string();
    ASSERT_EQ(runWith({"resave", aurora.string(), saved}).code, 0);
    const Result result = runWith({"check", saved});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
}

TEST(Check, DropsNothingOfAnExampleButWhatItNames) {
    const TemporaryFolder folder;
    const auto saved = (folder / "saved").string();
    ASSERT_EQ(runWith({"resave", handmade.string(), saved}).code, 0);
    EXPECT_EQ(runWith({"check", saved}).out, "");
}

TEST(Check, EachFindingIsOneLineWhateverItNames) {
    const TemporaryFolder folder;
    folder.file("QOR_Skin.xml", "<Skin name='Nova'><Layout Screen='Load'>"
                                "<LayoutElement Type='Image' Source='a&#10;b'>"
                                "<Pos W='9' H='9'/></LayoutElement></Layout></Skin>");
    const Result result = runWith({"check", folder.path().string()});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(linesOf(result.out),
              (Lines{"Load, element 1 (Image: a b): its source \"a b\" names no resource",
                     "A save changes QOR_Skin.xml from line 1 on"}));
}

TEST(Check, LooksAtFieldsPicturesAndCovers) {
    const TemporaryFolder folder;
    folder.file("Media/sky.bmp", test::bmpHead(1300, 1000));
    folder.file("QOR_Skin.xml",
                "<Skin name='Nova'><Resource Type='Image' Name='sky'><File>Media/sky.bmp</File>"
                "</Resource><Layout Screen='Load'>"
                "<LayoutElement Type='Text' Source='Tiem'><Pos X='1' Y='1' W='9' H='9'/>"
                "</LayoutElement><LayoutElement Type='Box'><Color>0xFF000000</Color>"
                "<Pos W='99' H='99'/></LayoutElement><LayoutElement Type='Image' Source='sky'>"
                "<Pos W='640' H='480'/></LayoutElement></Layout></Skin>");
    const Result result = runWith({"check", folder.path().string()});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(linesOf(result.out),
              (Lines{"Load, element 1 (Text: Tiem): its source \"Tiem\" names no field of the "
                     "dashboard",
                     "Load, element 1 (Text: Tiem): is hidden completely behind element 2 (Box: "
                     "Alpha 100)",
                     "Load, element 3 (Image: sky): its picture Media\\sky.bmp of 1300 by 1000 "
                     "pixels is more than twice as wide and high as it is shown anywhere, and "
                     "takes 5200000 bytes when decoded",
                     "All pictures together take 5200000 bytes when decoded",
                     "A save changes QOR_Skin.xml from line 1 on"}));
}

TEST(Check, WhatCannotBeReadIsOneLineAndExitCodeTwo) {
    using namespace std::string_view_literals;
    for (const auto& [content, part] :
         std::initializer_list<std::pair<std::string_view, const char*>>{
             {"", "the file is empty (line 1)"},
             {"\x7F\x45\n\0\x03 noise"sv, "it is not a text file (line 2)"},
             {"words", "no XML element is in it (line 1)"},
             {"<Skin name='Nova'>\n<Layout", "a broken start element tag (line 2)"}}) {
        const TemporaryFolder folder;
        folder.file("QOR_Skin.xml", content);
        const Result result = runWith({"check", folder.path().string()});
        EXPECT_EQ(result.code, 2) << part;
        EXPECT_EQ(result.out, "") << part;
        EXPECT_EQ(result.err,
                  std::string("tarvel-skin: QOR_Skin.xml cannot be read: ") + part + '\n');
    }
}

TEST(Check, AMissingFolderAndAFolderInPlaceOfTheFile) {
    const TemporaryFolder folder;
    const Result missing = runWith({"check", (folder / "gone").string()});
    EXPECT_EQ(missing.code, 2);
    expectOneLine(missing.err, "QOR_Skin.xml");

    folder.folder("QOR_Skin.xml");
    const Result inPlace = runWith({"check", folder.path().string()});
    EXPECT_EQ(inPlace.code, 2);
    expectOneLine(inPlace.err, "QOR_Skin.xml");
}

TEST(Check, ASkinFileWithoutTheRightToReadIt) {
    if (isRoot()) {
        GTEST_SKIP() << "everything can be read";
    }
    const TemporaryFolder folder;
    const auto file = folder.file("QOR_Skin.xml", "<Skin name='Nova'></Skin>");
    fs::permissions(file, fs::perms::none);
    const Result result = runWith({"check", folder.path().string()});
    EXPECT_EQ(result.code, 2);
    expectOneLine(result.err, "QOR_Skin.xml");
}

} // namespace tarvel::tool
