// Files of a save that meet in one place, links, and saves that meet in one folder.
#include "files/folder_hold.h"
#include "files/host_files.h"
#include "files/path_text.h"
#include "skinfile/skin_folder.h"
#include "support/links.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

using Texts = std::vector<std::string>;
using Files = std::map<std::string, std::string>; // content by path

class SavePlanTest : public testing::Test {
  protected:
    SavePlanTest() {
        document_.editSettings([](SkinSettings& settings) { settings.skinName = "Nova"; });
    }
    void addResource(const std::string& file) { document_.addRes(file, folder_.document(file)); }
    void setBackground(const std::string& file) {
        document_.editSettings([&](SkinSettings& settings) {
            settings.background = {true, folder_.document(file)};
        });
    }
    void addMusic(const std::string& file) {
        document_.editSettings([&](SkinSettings& settings) {
            settings.music.rows.push_back(static_cast<int>(settings.music.musicFiles.size()));
            settings.music.musicFiles.push_back(folder_.document(file));
        });
    }
    SaveOutcome save() {
        SkinWriter writer(folder_.path());
        problems_.clear();
        return saveSkin(document_, writer, out_,
                        {.showProblem = [this](const auto& text) { problems_.push_back(text); },
                         .progress = {}});
    }
    [[nodiscard]] Files files() const {
        Files found;
        for (const auto& entry : fs::recursive_directory_iterator(folder_.path())) {
            if (entry.is_regular_file()) {
                found[slashedUtf8Of(entry.path().lexically_relative(folder_.path()))] =
                    readFile(entry.path());
            }
        }
        return found;
    }
    // Expects a save that says why it does nothing, and does nothing.
    void expectRefused(const std::string& message) {
        const Files before = files();
        const SaveOutcome outcome = save();
        EXPECT_FALSE(outcome.succeeded());
        EXPECT_EQ(outcome.writeProblem, message);
        EXPECT_EQ(problems_, Texts{message});
        EXPECT_EQ(files(), before);
    }
    [[nodiscard]] std::string meeting(const std::string& kept, const std::string& taker) const {
        return "Nothing was saved: two files have one name, " + utf8Of(folder_ / kept) + " and " +
               utf8Of(folder_ / taker) + ", and the second would take the place of the first";
    }
    [[nodiscard]] std::string content(std::string_view name) const { return readFile(out_ / name); }

    TemporaryFolder folder_;
    fs::path out_ = folder_.folder("out");
    SkinDocument document_;
    Texts problems_;
};

} // namespace

TEST_F(SavePlanTest, AnotherFileNeverTakesThePlaceOfAnOriginal) {
    folder_.file("out/Media/x.png", "the only one");
    folder_.file("out/pics/x.png", "the other");
    addResource("out\\Media\\x.png");
    addResource("out\\pics\\x.png");
    expectRefused(meeting("out/Media/x.png", "out/pics/x.png"));
}

TEST_F(SavePlanTest, InWhateverOrderAndLetterCase) {
    folder_.file("out/Media/x.png", "the only one");
    folder_.file("pics/X.PNG", "the other");
    addResource("pics\\X.PNG");
    addResource("out\\media\\X.png");
    expectRefused(meeting("out/Media/x.png", "pics/X.PNG"));
}

TEST_F(SavePlanTest, ABackgroundNeitherTakesNorLosesAPlace) {
    folder_.file("out/Media/x.jpg", "the only one");
    folder_.file("pics/x.jpg", "the other");
    addResource("out\\Media\\x.jpg");
    setBackground("pics\\x.jpg");
    expectRefused(meeting("out/Media/x.jpg", "pics/x.jpg"));
    document_.editSettings([](SkinSettings& settings) { settings.resources.clear(); });
    addResource("pics\\x.jpg");
    setBackground("out\\Media\\x.jpg");
    expectRefused(meeting("out/Media/x.jpg", "pics/x.jpg"));
}

TEST_F(SavePlanTest, MusicMeetsMusic) {
    folder_.file("out/Music/x.wma", "the only one");
    folder_.file("songs/x.wma", "the other");
    addMusic("out\\Music\\x.wma");
    addMusic("songs\\x.wma");
    expectRefused(meeting("out/Music/x.wma", "songs/x.wma"));
}

TEST_F(SavePlanTest, MusicThatLiesInMediaIsNotLostToAPicture) {
    folder_.file("out/Media/x.wmv", "a song");
    folder_.file("films/x.wmv", "a film");
    addResource("films\\x.wmv");
    addMusic("out\\Media\\x.wmv");
    expectRefused(meeting("out/Media/x.wmv", "films/x.wmv"));
}

TEST_F(SavePlanTest, OneNameInMediaAndInMusicIsTwoFiles) {
    folder_.file("films/x.wmv", "a film");
    folder_.file("songs/x.wmv", "a song");
    addResource("films\\x.wmv");
    addMusic("songs\\x.wmv");
    const SaveOutcome outcome = save();
    EXPECT_TRUE(outcome.succeeded());
    EXPECT_EQ(outcome.sharedNames, Texts{});
    EXPECT_EQ(content("Media/x.wmv"), "a film");
    EXPECT_EQ(content("Music/x.wmv"), "a song");
}

TEST_F(SavePlanTest, OfTwoFilesFromElsewhereTheLaterWinsAndTheNameIsTold) {
    folder_.file("out/Media/x.png", "of an older skin");
    folder_.file("a/x.png", "first");
    folder_.file("b/X.PNG", "second");
    folder_.file("a/y.jpg", "first");
    folder_.file("b/y.jpg", "second");
    folder_.file("a/z.png", "alone");
    for (const char* file : {"a\\x.png", "a\\y.jpg", "a\\z.png", "b\\X.PNG"}) {
        addResource(file);
    }
    setBackground("b\\y.jpg");
    const SaveOutcome outcome = save();
    EXPECT_TRUE(outcome.succeeded());
    EXPECT_EQ(problems_, Texts{});
    EXPECT_EQ(outcome.sharedNames, (Texts{"X.PNG", "y.jpg"}));
    EXPECT_EQ(sharedNamesMessage(outcome.sharedNames),
              "These file names stand for two files each, and the later one was kept: X.PNG, "
              "y.jpg");
    EXPECT_EQ(content("Media/x.png"), "second");
    EXPECT_EQ(content("Media/y.jpg"), "second");
    EXPECT_EQ(content("Media/z.png"), "alone");
}

TEST_F(SavePlanTest, NamesThatDifferInLetterCaseAloneAreOneFileInANewFolderToo) {
    folder_.file("a/x.png", "first");
    folder_.file("b/X.PNG", "second");
    addResource("a\\x.png");
    addResource("b\\X.PNG");
    EXPECT_EQ(save().sharedNames, Texts{"X.PNG"});
    EXPECT_EQ(content("Media/x.png"), "second");
    EXPECT_EQ(files().count("out/Media/X.PNG"), 0U);
}

TEST_F(SavePlanTest, OneFileNamedTwiceIsNoMeeting) {
    folder_.file("a/x.png", "one");
    test::makeLink(folder_ / "a", folder_ / "b");
    addResource("a\\x.png");
    addResource("a\\x.png");
    addResource("A\\X.png");
    addResource("b\\x.png");
    const SaveOutcome outcome = save();
    EXPECT_TRUE(outcome.succeeded());
    EXPECT_EQ(outcome.sharedNames, Texts{});
    EXPECT_EQ(sharedNamesMessage(outcome.sharedNames), "");
    EXPECT_EQ(content("Media/x.png"), "one");
}

TEST_F(SavePlanTest, AFileThatIsMissingMeetsNothing) {
    folder_.file("out/Media/x.png", "the only one");
    addResource("out\\Media\\x.png");
    addResource("gone\\x.png");
    const SaveOutcome outcome = save();
    EXPECT_TRUE(outcome.textWritten);
    EXPECT_TRUE(outcome.stopped);
    EXPECT_EQ(problems_, Texts{"No such file or directory: " + utf8Of(folder_ / "gone/x.png")});
    EXPECT_EQ(content("Media/x.png"), "the only one");
}

TEST_F(SavePlanTest, AFolderThatSomebodyIsSavingIntoIsLeftAlone) {
    folder_.file("a/x.png", "x");
    addResource("a\\x.png");
    {
        const FolderHold other(out_);
        expectRefused("Somebody is saving into this folder at the moment: " + utf8Of(out_));
    }
    EXPECT_TRUE(save().succeeded());
    EXPECT_TRUE(save().succeeded()); // nobody holds it any more
}

TEST_F(SavePlanTest, ASaveHoldsItsFolderToTheEnd) {
    folder_.file("a/x.png", "x");
    addResource("a\\x.png");
    SkinWriter writer(folder_.path());
    bool asked = false;
    saveSkin(document_, writer, out_, {.showProblem = {}, .progress = [&](auto, auto, auto) {
                                           asked = true;
                                           EXPECT_TRUE(FolderHold(out_).isTaken());
                                           return true;
                                       }});
    EXPECT_TRUE(asked);
    EXPECT_FALSE(FolderHold(out_).isTaken());
}

TEST_F(SavePlanTest, LeftoversOfKilledSavesAreRemovedFromAllThreeFolders) {
    folder_.file("left", "half a file");
    for (const char* below : {"out", "out/Media", "out/Music"}) {
        folder_.folder(below);
        fs::copy_file(folder_ / "left", folder_ / below / ".tarvel-1234-1");
    }
    EXPECT_TRUE(save().succeeded());
    EXPECT_EQ(files().size(), 2U); // the skin file and the one here
}

TEST_F(SavePlanTest, AMediaFolderThatIsAFileFailsTheSave) {
    for (const char* name : {"Media", "Music"}) {
        fs::remove_all(out_);
        folder_.file(std::string("out/") + name, "kept");
        const SaveOutcome outcome = save();
        EXPECT_FALSE(outcome.succeeded());
        EXPECT_TRUE(outcome.textWritten);
        EXPECT_EQ(outcome.folderProblems, Texts{"Not a directory: " + utf8Of(out_ / name)});
        EXPECT_EQ(problems_, outcome.folderProblems);
        EXPECT_EQ(content(name), "kept");
    }
}

TEST_F(SavePlanTest, AMediaFolderThatLeadsOutOfTheSkinIsRefused) {
    folder_.file("elsewhere/x.png", "of another skin");
    folder_.file("a/x.png", "x");
    addResource("a\\x.png");
    test::makeLink(folder_ / "elsewhere", out_ / "Media");
    expectRefused("Nothing was saved: " + utf8Of(out_ / "Media") +
                  " is a link that leads out of the skin's folder");
}

TEST_F(SavePlanTest, AMediaFolderThatLeadsWithinTheSkinIsWrittenTo) {
    folder_.folder("out/art");
    folder_.file("a/x.png", "x");
    addResource("a\\x.png");
    test::makeLink("art", out_ / "Media");
    EXPECT_TRUE(save().succeeded());
    EXPECT_EQ(content("art/x.png"), "x");
    EXPECT_TRUE(test::isLink(out_ / "Media"));
}

TEST_F(SavePlanTest, LinksToFilesAreFollowedWithinTheSkinOnly) {
    if (!test::areFileLinksTold()) {
        GTEST_SKIP() << test::linksUntold;
    }
    folder_.file("a/in.png", "new");
    folder_.file("a/out.png", "new");
    folder_.file("out/art/in.png", "old");
    folder_.file("out/text.xml", "old");
    folder_.file("kept.png", "kept");
    folder_.folder("out/Media");
    test::makeLink("../art/in.png", out_ / "Media/in.png");
    test::makeLink(folder_ / "kept.png", out_ / "Media/out.png");
    test::makeLink("text.xml", out_ / "QOR_Skin.xml");
    addResource("a\\in.png");
    addResource("a\\out.png");
    EXPECT_TRUE(save().succeeded());
    EXPECT_EQ(content("art/in.png"), "new");
    EXPECT_TRUE(test::isLink(out_ / "Media/in.png"));
    EXPECT_EQ(content("Media/out.png"), "new");
    EXPECT_FALSE(test::isLink(out_ / "Media/out.png"));
    EXPECT_EQ(readFile(folder_ / "kept.png"), "kept");
    EXPECT_TRUE(test::isLink(out_ / "QOR_Skin.xml"));
    EXPECT_TRUE(content("text.xml").starts_with("<Skin"));
}

TEST_F(SavePlanTest, ATextFileThatLeadsOutOfTheSkinIsReplaced) {
    if (!test::areFileLinksTold()) {
        GTEST_SKIP() << test::linksUntold;
    }
    folder_.file("kept.xml", "kept");
    test::makeLink(folder_ / "kept.xml", out_ / "QOR_Skin.xml");
    EXPECT_TRUE(save().succeeded());
    EXPECT_FALSE(test::isLink(out_ / "QOR_Skin.xml"));
    EXPECT_EQ(readFile(folder_ / "kept.xml"), "kept");
}

} // namespace tarvel
