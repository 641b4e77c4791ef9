// Which files of a skin are missing, and what becomes of those that are found again.
#include "document/image_source.h"
#include "editing/missing_files.h"
#include "support/document_support.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvel {

static void PrintTo(const MissingFile& missing, std::ostream* out) {
    *out << static_cast<int>(missing.what) << ' ' << missing.index << ' ' << missing.path;
}

static void PrintTo(const LocatedFile& located, std::ostream* out) {
    PrintTo(located.missing, out);
    *out << " -> " << located.path;
}

namespace {

using What = MissingFile::What;

class MissingFilesTest : public testing::Test {
  protected:
    MissingFilesTest() {
        folder_.file("skin/there.png", "x");
        document_.addRes("there", path("skin/There.png"));
        document_.addRes("gone", path("skin/gone.png"));
        document_.addRes("outside", path("skin/../outside.png"), true);
        document_.addcRes("<File>::Logo</File>", "logo");
        document_.addRes("also", path("skin/also.wmv"));
        document_.editSettings([this](SkinSettings& settings) {
            settings.background = {true, path("skin/back.bmp")};
            settings.music.musicFiles = {path("skin/removed.mp3"), path("skin/song.mp3"),
                                         path("skin/there.png")};
            settings.music.rows = {2, 1, 1};
        });
        Element image;
        image.elementKind = ElementKind::Image;
        image.imageSource = "::GONE";
        attachSource(document_, image.imageSource, image.elementControl);
        document_.addElement(std::move(image));
    }

    [[nodiscard]] std::string path(std::string_view name) const { return folder_.document(name); }

    TemporaryFolder folder_;
    SkinDocument document_;
};

TEST_F(MissingFilesTest, AreThoseOfResourcesBackgroundAndMusic) {
    EXPECT_EQ(missingFiles(document_),
              (std::vector<MissingFile>{{What::resource, 1, path("skin/gone.png")},
                                        {What::resource, 4, path("skin/also.wmv")},
                                        {What::background, 0, path("skin/back.bmp")},
                                        {What::music, 1, path("skin/song.mp3")}}));
    document_.editSettings([](SkinSettings& settings) { settings.background.loaded = false; });
    EXPECT_EQ(missingFiles(document_).size(), 3U);
    EXPECT_EQ(missingFiles(SkinDocument()), std::vector<MissingFile>());
}

TEST_F(MissingFilesTest, AreFoundAgainWithoutRegardToCase) {
    folder_.file("new/deep/GONE.png", "x");
    folder_.file("new/Song.MP3", "x");
    folder_.file("new/removed.mp3", "x");
    const auto missing = missingFiles(document_);
    const LocatedFiles located = locate(missing, folder_ / "new");
    EXPECT_TRUE(located.complete);
    EXPECT_EQ(located.files, (std::vector<LocatedFile>{{missing[0], path("new/deep/GONE.png")},
                                                       {missing[3], path("new/Song.MP3")}}));
    EXPECT_FALSE(locate(missing, folder_ / "new", 1).complete);

    EXPECT_EQ(useLocated(document_, located.files), 2);
    EXPECT_EQ(document_.settings().resources[1],
              (Resource{"gone", path("new/deep/GONE.png"), true, false}));
    EXPECT_EQ(document_.settings().music.musicFiles[1], path("new/Song.MP3"));
    EXPECT_EQ(document_.element(1).elementControl.file, path("new/deep/GONE.png"));
    EXPECT_EQ(document_.element(1).imageSource, "::GONE");
    EXPECT_EQ(missingFiles(document_).size(), 2U);
}

TEST_F(MissingFilesTest, BackgroundComesBack) {
    folder_.file("new/BACK.BMP", "x");
    EXPECT_EQ(useLocated(document_, locate(missingFiles(document_), folder_ / "new").files), 1);
    EXPECT_EQ(document_.settings().background, (Background{true, path("new/BACK.BMP")}));
}

TEST_F(MissingFilesTest, PlacesFilledMeanwhileStayAsTheyAre) {
    for (const char* name : {"gone.png", "also.wmv", "back.bmp", "song.mp3"}) {
        folder_.file(std::string("new/") + name, "x");
    }
    const LocatedFiles located = locate(missingFiles(document_), folder_ / "new");
    ASSERT_EQ(located.files.size(), 4U);
    document_.editSettings([](SkinSettings& settings) {
        settings.resources[1].content = "\\other.png";
        settings.resources.resize(4);
        settings.background.loaded = false;
        settings.music.musicFiles.resize(1);
    });
    const SkinDocument before = document_;
    EXPECT_EQ(useLocated(document_, located.files), 0);
    EXPECT_EQ(document_, before);
}

} // namespace
} // namespace tarvel
