// What a check finds: nothing in a saved skin, and each kind of fault in others.
#include "files/path_text.h"
#include "files/windows_names.h"
#include "skinfile/skin_check.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "support/system_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvel {

namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const std::vector<Finding>& findings) {
    Lines lines;
    for (const Finding& finding : findings) {
        lines.push_back(finding.text);
    }
    return lines;
}

Lines checked(const std::filesystem::path& folder) {
    return linesOf(checkSkin(folder));
}

class SkinCheckTest : public testing::Test {
  protected:
    Lines check(const std::string& body) {
        folder_.file("QOR_Skin.xml", "<Skin name=\"Nova\">" + body + "</Skin>");
        Lines lines = checked(folder_.path());
        // Such a file is never what a save writes; that finding is tested by itself.
        EXPECT_EQ(lines.back(), "A save changes QOR_Skin.xml from line 1 on");
        lines.pop_back();
        return lines;
    }

    TemporaryFolder folder_;
};

} // namespace

TEST_F(SkinCheckTest, ASavedSkinHasNoFindings) {
    SkinDocument document;
    document.editSettings([](SkinSettings& settings) { settings.skinName = "Caf\u00E9 & <b>"; });
    Element element;
    element.elementControl.width = 10;
    element.elementControl.height = 10;
    element.elementModifiers.edit().addChild(XmlTree::top, "Modifier");
    document.addElement(std::move(element));
    SkinWriter writer(folder_.path());
    ASSERT_TRUE(saveSkin(document, writer, folder_.path(), {}).succeeded());
    EXPECT_EQ(checked(folder_.path()), Lines{});
}

TEST_F(SkinCheckTest, SourcesAndResources) {
    folder_.file("Media/a.png", "x");
    EXPECT_EQ(
        check("<Resource Type='Image' Name='a'><File>Media\\A.png</File></Resource>"
              "<Resource Type='Image' Name='b'><File>Media/gone.png</File></Resource>"
              "<Resource Type='Image' Name='c'><File>..\\c.png</File></Resource>"
              "<Resource Type='Image' Name='d'><File>other\\GONE.png</File></Resource>"
              "<Resource Type='Image' Name='e'><File>::SkyTile</File></Resource>"
              "<Layout Screen='Load'>"
              "<LayoutElement Type='Image' Source='::A'><Pos W='9' H='9'/></LayoutElement>"
              "<LayoutElement Type='Image' Source='zz'><Pos W='9' H='9'/></LayoutElement>"
              "</Layout>"),
        (Lines{"Resource \"b\": Media\\gone.png is missing",
               "Resource \"c\": ..\\c.png lies outside the skin folder",
               "Resource \"d\": other\\GONE.png is missing",
               "Resources \"b\" and \"d\" have one file name, GONE.png: a save keeps one file",
               "Load, element 2 (Image: zz): its source \"zz\" names no resource"}));
}

TEST_F(SkinCheckTest, NamesThatWindowsCannotHaveAreToldOnEverySystem) {
    const HostNames ofAnyKind(false);
    EXPECT_EQ(check("<Resource Type='Image' Name='a'><File>Media\\aux.png</File></Resource>"
                    "<Resource Type='Image' Name='b'><File>odd.\\b.png</File></Resource>"
                    "<Resource Type='Image' Name='c'><File>C:\\odd.\\c?.png</File></Resource>"
                    "<Resource Type='Image' Name='d'><File>Media\\d.png</File></Resource>"),
              (Lines{"Resource \"a\": Windows cannot have the name \"aux.png\"",
                     "Resource \"a\": Media\\aux.png is missing",
                     "Resource \"b\": Windows cannot have the name \"odd.\"",
                     "Resource \"b\": odd.\\b.png is missing",
                     "Resource \"c\": Windows cannot have the name \"c?.png\"",
                     "Resource \"c\": C:\\odd.\\c?.png lies outside the skin folder",
                     "Resource \"d\": Media\\d.png is missing"}));
}

TEST_F(SkinCheckTest, NamesOfBackgroundAndMusicThatWindowsCannotHave) {
    SkinDocument document;
    document.editSettings([](SkinSettings& settings) {
        settings.skinName = "a";
        settings.background = {true, "C:\\odd.\\a?.png"};
        settings.music.musicFiles = {"C:\\b.mp3", "C:\\con.mp3", "C:\\aux.mp3"};
        settings.music.rows = {0, 1};
    });
    Lines lines;
    for (const Finding& finding : checkDocument(document, {})) {
        lines.push_back(finding.text);
    }
    EXPECT_EQ(lines, (Lines{"The background: Windows cannot have the name \"a?.png\"",
                            "The music: Windows cannot have the name \"con.mp3\""}));
}

TEST_F(SkinCheckTest, FilesThatMeetInOnePlace) {
    folder_.file("Media/x.png", "x");
    folder_.file("pics/X.png", "other");
    const std::string resources =
        "<Resource Type='Image' Name='a'><File>pics\\X.png</File></Resource>"
        "<Resource Type='Image' Name='b'><File>Media\\x.png</File></Resource>";
    EXPECT_EQ(
        check(resources),
        (Lines{"Resources \"a\" and \"b\" have one file name, x.png: a save keeps one file",
               "A save over this folder is refused: two files have one name, " +
                   utf8Of(folder_ / "Media/x.png") + " and " + utf8Of(folder_ / "pics/X.png") +
                   ", and the second would take the place of the first"}));
    std::filesystem::rename(folder_ / "Media", folder_ / "other");
    EXPECT_EQ(check("<Resource Type='Image' Name='a'><File>pics\\X.png</File></Resource>"
                    "<Resource Type='Image' Name='b'><File>other\\x.png</File></Resource>"),
              Lines{"Resources \"a\" and \"b\" have one file name, x.png: a save keeps one file"});
}

TEST_F(SkinCheckTest, OneFileUnderTwoNamesIsNoFinding) {
    folder_.file("Media/x.png", "x");
    EXPECT_EQ(check("<Resource Type='Image' Name='a'><File>Media\\x.png</File></Resource>"
                    "<Resource Type='Image' Name='b'><File>MEDIA\\.\\X.png</File></Resource>"),
              Lines{});
}

TEST_F(SkinCheckTest, WritesNothing) {
    folder_.file("QOR_Skin.xml",
                 "<Skin name='Nova'><Layout Screen='Load'><LayoutElement Type='Box'>"
                 "<Pos W='9' H='9'/><Modifier/></LayoutElement></Layout></Skin>");
    systemCalls = {};
    EXPECT_EQ(checked(folder_.path()), Lines{"A save changes QOR_Skin.xml from line 1 on"});
    EXPECT_EQ(systemCalls.writes, 0);
}

TEST_F(SkinCheckTest, EmptyFileNames) {
    EXPECT_EQ(check("<Resource Type='Image' Name='a'><File></File></Resource>"
                    "<Resource Type='Image' Name='b'><File>Media\\</File></Resource>"),
              (Lines{"Resource \"a\" names no file", "Resource \"b\" names no file"}));
}

TEST_F(SkinCheckTest, ASkinWithoutAName) {
    folder_.file("QOR_Skin.xml", "<Skin/>");
    EXPECT_EQ(checked(folder_.path()), (Lines{"The skin has no name: it cannot be saved",
                                              "A save changes QOR_Skin.xml from line 1 on"}));
}

TEST_F(SkinCheckTest, ElementsOffTheScreen) {
    struct Case {
        const char* type;
        const char* pos;
        bool off;
    };
    for (const auto& [type, pos, off] : std::initializer_list<Case>{
             {"Box", "L='0' T='0' W='640' H='480'", false},
             {"Box", "L='639' T='479' W='9' H='9'", false},
             {"Box", "L='640' T='0' W='9' H='9'", true},
             {"Box", "L='0' T='480' W='9' H='9'", true},
             {"Box", "L='-9' T='0' W='9' H='9'", true},
             {"Box", "L='-8.5' T='0' W='9' H='9'", false},
             {"Box", "L='0' T='-9' W='9' H='9'", true},
             {"Line", "X1='-5' Y1='5' X2='0' Y2='5'", false},
             {"Line", "X1='-5' Y1='5' X2='-1' Y2='5'", true},
             {"Line", "X1='640' Y1='480' X2='700' Y2='500'", false},
             {"Line", "X1='5' Y1='481' X2='7' Y2='500'", true},
         }) {
        const Lines lines = check(std::string("<Layout Screen='Title'><LayoutElement Type='") +
                                  type + "'><Pos " + pos + "/></LayoutElement></Layout>");
        EXPECT_EQ(lines.size(), off ? 1U : 0U) << type << ' ' << pos;
        if (off && !lines.empty()) {
            EXPECT_TRUE(lines[0].starts_with("Title, element 1 ("));
            EXPECT_TRUE(lines[0].ends_with("): lies wholly off the 640 by 480 screen"));
        }
    }
}

TEST_F(SkinCheckTest, WhatASaveDrops) {
    EXPECT_EQ(
        check("<Weather>fine</Weather><Resource Type='Sound' Name='s'/>"
              "<Layout Screen='Options'><LayoutElement Type='Video'><Pos/></LayoutElement>"
              "<LayoutElement Type='Line'/></Layout>"),
        (Lines{"A save drops the unknown section \"Weather\"",
               "A save drops the resource \"s\" of type \"Sound\"",
               "The screen \"Options\" is unknown: a save moves it to \"Title\"",
               "A save drops an element of type \"Video\" on \"Options\": the type is unknown",
               "A save drops an element of type \"Line\" on \"Options\": it is empty"}));
}

TEST_F(SkinCheckTest, CharactersAndMendedLines) {
    EXPECT_EQ(check("<Information><Author>\u4E2D</Author><Web>\u20AC</Web></Information>"),
              Lines{"Characters outside Windows-1252 in <Author>\u4E2D</Author>"});
    folder_.file("QOR_Skin.xml",
                 "<Skin name=\"x\">\n<Information>\n<Author>a < b</Author>\n</Information>\n"
                 "</Skin>\n");
    EXPECT_EQ(checked(folder_.path()),
              (Lines{"Line 3 is no XML and was read as the text that it shows",
                     "A save changes QOR_Skin.xml from line 1 on"}));
}

TEST_F(SkinCheckTest, AnUnreadableSkinIsAnError) {
    EXPECT_THROW((void)checkSkin(folder_.path()), SkinReadError);
    folder_.file("QOR_Skin.xml", "");
    EXPECT_THROW((void)checkSkin(folder_.path()), SkinReadError);
}

} // namespace tarvel
