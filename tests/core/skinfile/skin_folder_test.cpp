// Saving: the folder's files, its failures, and whole round trips.
#include "document/element_factory.h"
#include "document/layout_screens.h"
#include "document/normalised.h"
#include "files/host_files.h"
#include "files/path_text.h"
#include "files/windows_names.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "support/document_support.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

class SkinFolderTest : public testing::Test {
  protected:
    SkinFolderTest() {
        document_.editSettings([](SkinSettings& settings) { settings.skinName = "Nova"; });
    }
    SaveOutcome save(const SaveHooks& extra = {}) {
        SkinWriter writer(folder_.path());
        SaveHooks hooks = extra;
        hooks.showProblem = [this](const std::string& text) { problems_.push_back(text); };
        return saveSkin(document_, writer, out_, hooks);
    }
    void addMusic(const std::string& path) {
        document_.editSettings([&](SkinSettings& settings) {
            settings.music.rows.push_back(static_cast<int>(settings.music.musicFiles.size()));
            settings.music.musicFiles.push_back(path);
        });
    }
    [[nodiscard]] std::string content(std::string_view name) const { return readFile(out_ / name); }

    TemporaryFolder folder_;
    fs::path out_ = folder_.folder("out");
    SkinDocument document_;
    std::vector<std::string> problems_;
};

} // namespace

TEST_F(SkinFolderTest, AnEmptySkinMakesBothFolders) {
    const SaveOutcome outcome = save();
    EXPECT_TRUE(outcome.succeeded());
    EXPECT_TRUE(problems_.empty());
    EXPECT_TRUE(fs::is_directory(out_ / "Media"));
    EXPECT_TRUE(fs::is_directory(out_ / "Music"));
    EXPECT_TRUE(content("QOR_Skin.xml").ends_with("</Skin>\r\n\r\n"));
    EXPECT_EQ(std::distance(fs::directory_iterator(out_), fs::directory_iterator{}), 3);
}

TEST_F(SkinFolderTest, CopiesResourcesBackgroundAndMusic) {
    folder_.file("a/Pic.png", "picture");
    folder_.file("b/back.jpg", "background");
    folder_.file("c/Song.wma", "song");
    folder_.file("c/removed.wma", "removed");
    document_.addRes("pic", folder_.document("a\\pic.PNG"));
    document_.addcRes("<File>::SkyTile</File>", "tile");
    document_.editSettings([&](SkinSettings& settings) {
        settings.background = {true, folder_.document("b\\back.jpg")};
    });
    addMusic(folder_.document("c\\removed.wma"));
    addMusic(folder_.document("c\\Song.wma"));
    document_.editSettings(
        [](SkinSettings& settings) { settings.music.rows.erase(settings.music.rows.begin()); });
    const SkinDocument before = document_;
    EXPECT_TRUE(save().succeeded());
    EXPECT_EQ(content("Media/pic.PNG"), "picture");
    EXPECT_EQ(content("Media/back.jpg"), "background");
    EXPECT_EQ(content("Music/Song.wma"), "song");
    EXPECT_FALSE(fs::exists(out_ / "Music/removed.wma"));
    EXPECT_EQ(document_, before);
}

TEST_F(SkinFolderTest, SavingTwiceReplacesEverything) {
    const auto picture = folder_.file("a/pic.png", "first");
    document_.addRes("pic", folder_.document("a\\pic.png"));
    EXPECT_TRUE(save().succeeded());
    writeFile(picture, "second");
    EXPECT_TRUE(save().succeeded());
    EXPECT_TRUE(problems_.empty());
    EXPECT_EQ(content("Media/pic.png"), "second");
}

TEST_F(SkinFolderTest, IntoItsOwnFolderNothingIsCopiedOntoItself) {
    folder_.file("out/Media/pic.png", "picture");
    folder_.file("out/media2/x", "");
    document_.addRes("pic", folder_.document("out\\Media\\pic.png"));
    document_.addRes("other spelling", folder_.document("out\\MEDIA\\PIC.png"));
    document_.addRes("way round", folder_.document("out\\media2\\..\\Media\\pic.png"));
    EXPECT_TRUE(save().succeeded());
    EXPECT_TRUE(problems_.empty());
    EXPECT_EQ(content("Media/pic.png"), "picture");
}

TEST_F(SkinFolderTest, WhatIsMissingInItsOwnFolderIsNoProblem) {
    document_.addRes("gone", folder_.document("out\\Media\\gone.png"));
    addMusic(folder_.document("out\\Music\\gone.wma"));
    EXPECT_TRUE(save().succeeded());
    EXPECT_EQ(problems_, std::vector<std::string>{});
}

TEST_F(SkinFolderTest, MusicAndBackgroundAreNotCopiedOntoThemselves) {
    folder_.file("out/Media/back.jpg", "background");
    folder_.file("out/Music/song.wma", "song");
    document_.editSettings([&](SkinSettings& settings) {
        settings.background = {true, folder_.document("out\\Media\\back.jpg")};
    });
    addMusic(folder_.document("out\\Music\\song.wma"));
    addMusic(folder_.document("out\\music\\SONG.wma"));
    std::vector<std::string> copied;
    EXPECT_TRUE(save({.showProblem = {},
                      .progress =
                          [&](auto name, auto, auto) {
                              copied.emplace_back(name);
                              return true;
                          }})
                    .succeeded());
    EXPECT_TRUE(problems_.empty());
    EXPECT_TRUE(copied.empty());
    EXPECT_EQ(content("Media/back.jpg"), "background");
    EXPECT_EQ(content("Music/song.wma"), "song");
}

TEST_F(SkinFolderTest, LongFileNamesAreCopied) {
    const auto name = std::string(251, 'n').append(".png"); // the longest that there is
    folder_.file("short", "picture");
    fs::create_directories(folder_ / "a");
    fs::rename(folder_ / "short", folder_ / "a" / name);
    document_.addRes("long", folder_.document("a\\" + name));
    EXPECT_TRUE(save().succeeded());
    EXPECT_TRUE(problems_.empty());
    EXPECT_EQ(content("Media/" + name), "picture");
}

TEST_F(SkinFolderTest, AFolderThatCannotHoldASkinIsRefused) {
    folder_.file("c/d/QOR_Skin.xml", "older");
    // A backslash is part of a name, or it separates.
    const bool isName = fs::path::preferred_separator == '/';
    for (const fs::path& refused :
         isName ? std::vector<fs::path>{folder_.folder("c\\d"), {}} : std::vector<fs::path>{{}}) {
        out_ = refused;
        const SaveOutcome outcome = save();
        EXPECT_FALSE(outcome.succeeded());
        EXPECT_TRUE(outcome.stopped);
        EXPECT_FALSE(folderProblem(refused).empty());
        EXPECT_EQ(outcome.writeProblem, folderProblem(refused));
        EXPECT_EQ(problems_.back(), folderProblem(refused));
    }
    EXPECT_EQ(fs::is_empty(folder_ / "c\\d"), isName);
    EXPECT_EQ(readFile(folder_ / "c/d/QOR_Skin.xml"), "older");
    EXPECT_EQ(folderProblem(folder_.path()), "");
}

TEST_F(SkinFolderTest, FieldsOfAnyNameComeBack) {
    for (const char* name : {"/x", "!x", "?x", "/", "!", "?", "/Information", "2nd", "\u0159"}) {
        const std::vector<InformationField> fields = {{name, "a & <b>"}, {"Author", "me"}};
        document_.editSettings([&](SkinSettings& settings) { settings.information = fields; });
        EXPECT_TRUE(save().succeeded());
        SkinDocument loaded;
        ASSERT_NO_THROW(readSkin(loaded, out_)) << name;
        ASSERT_EQ(loaded.settings().information.size(), 3U) << name; // and MadeUsing
        EXPECT_EQ(loaded.settings().information[0], fields[0]) << name;
        EXPECT_EQ(loaded.settings().information[1], fields[1]) << name;
    }
}

TEST_F(SkinFolderTest, TheLaterOfTwoFilesOfOneNameWins) {
    folder_.file("a/pic.png", "first");
    folder_.file("b/pic.png", "second");
    document_.addRes("one", folder_.document("a\\pic.png"));
    document_.addRes("two", folder_.document("b\\pic.png"));
    EXPECT_TRUE(save().succeeded());
    EXPECT_EQ(content("Media/pic.png"), "second");
}

TEST_F(SkinFolderTest, AFailingCopyEndsTheSave) {
    folder_.file("here.png", "x");
    folder_.file("song.wma", "x");
    document_.addRes("gone", folder_.document("gone.png"));
    document_.addRes("here", folder_.document("here.png"));
    addMusic(folder_.document("song.wma"));
    const SaveOutcome outcome = save();
    EXPECT_TRUE(outcome.textWritten);
    EXPECT_TRUE(outcome.stopped);
    EXPECT_FALSE(outcome.succeeded());
    EXPECT_EQ(problems_, std::vector<std::string>{"No such file or directory: " +
                                                  utf8Of(folder_ / "gone.png")});
    EXPECT_FALSE(fs::exists(out_ / "Media/here.png"));
    EXPECT_FALSE(fs::exists(out_ / "Music/song.wma"));
}

TEST_F(SkinFolderTest, AFailingMusicCopyEndsTheSave) {
    addMusic(folder_.document("gone.wma"));
    EXPECT_FALSE(save().succeeded());
    EXPECT_EQ(problems_.size(), 1U);
}

TEST_F(SkinFolderTest, AFailingBackgroundIsPassedOver) {
    folder_.file("song.wma", "x");
    document_.editSettings([&](SkinSettings& settings) {
        settings.background = {true, folder_.document("gone.jpg")};
    });
    addMusic(folder_.document("song.wma"));
    EXPECT_TRUE(save().succeeded());
    EXPECT_TRUE(problems_.empty());
    EXPECT_EQ(content("Music/song.wma"), "x");
}

TEST_F(SkinFolderTest, AnUnwritableTextIsNotShownAndTheCopyingGoesOn) {
    folder_.file("here.png", "x");
    folder_.folder("out/QOR_Skin.xml/in the way");
    document_.addRes("here", folder_.document("here.png"));
    const SaveOutcome outcome = save();
    EXPECT_TRUE(problems_.empty());
    EXPECT_FALSE(outcome.textWritten);
    EXPECT_FALSE(outcome.succeeded());
    EXPECT_NE(outcome.writeProblem.find("QOR_Skin.xml"), std::string::npos);
    EXPECT_EQ(content("Media/here.png"), "x");
}

TEST_F(SkinFolderTest, AFolderThatCannotBeMadeIsShownAndTheSaveGoesOn) {
    fs::remove(out_);
    document_.addcRes("<File>::SkyTile</File>", "tile");
    const SaveOutcome outcome = save();
    EXPECT_EQ(problems_.size(), 2U); // Media and Music
    EXPECT_FALSE(outcome.stopped);
    EXPECT_FALSE(outcome.textWritten);
}

TEST_F(SkinFolderTest, ATextThatCannotBeGeneratedStopsBeforeAnythingChanges) {
    folder_.file("out/QOR_Skin.xml", "older");
    Element element;
    element.elementModifiers.edit().addChild(XmlTree::top, "Modifier");
    document_.setCurrentLayout(4);
    document_.addElement(std::move(element));
    SkinWriter writer(folder_ / "no such folder");
    const SaveOutcome outcome = saveSkin(
        document_, writer, out_,
        {.showProblem = [this](const auto& text) { problems_.push_back(text); }, .progress = {}});
    EXPECT_FALSE(outcome.succeeded());
    EXPECT_EQ(problems_.size(), 1U);
    EXPECT_EQ(content("QOR_Skin.xml"), "older");
    EXPECT_FALSE(fs::exists(out_ / "Media"));
    EXPECT_EQ(document_.currentLayout(), menuScreen);
}

TEST_F(SkinFolderTest, ResourcesOutsideAreLeftOutAndNamed) {
    folder_.file("secret.png", "secret");
    document_.addRes("far", folder_.document("secret.png"), true);
    const SaveOutcome outcome = save();
    EXPECT_TRUE(outcome.succeeded());
    EXPECT_EQ(outcome.leftOut, std::vector<std::string>{"far"});
    EXPECT_TRUE(fs::is_empty(out_ / "Media"));
}

TEST_F(SkinFolderTest, ResourcesOutsideForTheirNameAreToldSo) {
    const HostNames ofWindows(true);
    const std::string prefix = withSlash(documentPath(folder_.path()));
    document_.addRes("a", prefix + "Media\\a?.png", true);
    document_.addRes("b", prefix + "C:\\b.png", true);
    document_.addRes("c", "C:\\c.\\c.png", true);
    EXPECT_EQ(save().leftOut,
              (std::vector<std::string>{"a (Windows cannot have the name \"a?.png\")", "b",
                                        "c (Windows cannot have the name \"c.\")"}));
}

TEST_F(SkinFolderTest, CancellingStopsAndLeavesNoHalfFile) {
    folder_.file("a.png", std::string(600'000, 'a'));
    folder_.file("out/Media/a.png", "older");
    document_.addRes("a", folder_.document("a.png"));
    std::string told;
    const SaveOutcome outcome =
        save({.showProblem = {}, .progress = [&](auto name, auto, auto total) {
                  told = std::string(name) + std::to_string(total);
                  return false;
              }});
    EXPECT_TRUE(outcome.stopped);
    EXPECT_TRUE(problems_.empty());
    EXPECT_EQ(told, "a.png600000");
    EXPECT_EQ(content("Media/a.png"), "older");
    EXPECT_EQ(std::distance(fs::directory_iterator(out_ / "Media"), fs::directory_iterator{}), 1);
}

TEST(SkinFileBytes, AreWindows1252AndEndInAnEmptyLine) {
    EXPECT_EQ(skinFileBytes("a\r\n"), "a\r\n\r\n");
    EXPECT_EQ(skinFileBytes("\u00E4\u20AC\u4E2D"), "\xE4\x80&#20013;\r\n");
    EXPECT_EQ(skinFileBytes("\u00C3\u00A9"), "&#195;&#169;\r\n"); // could be taken for UTF-8
}

TEST_F(SkinFolderTest, ExamplesComeBackWhole) {
    for (const char* name : {"aurora", "handmade"}) {
        SkinDocument loaded;
        readSkin(loaded, fs::path(TARVEL_EXAMPLES_DIR) / name);
        document_ = loaded;
        EXPECT_TRUE(save().succeeded());
        SkinDocument again;
        readSkin(again, out_);
        EXPECT_EQ(normalised(again), normalised(loaded)) << name;
        const std::string first = content("QOR_Skin.xml");
        document_ = again;
        EXPECT_TRUE(save().succeeded());
        EXPECT_EQ(content("QOR_Skin.xml"), first) << name;
    }
}

} // namespace tarvel
