// What adding and removing do to the rows and files of the music list.
#include "editing/music_rules.h"

#include <gtest/gtest.h>

namespace tarvel {
namespace {

using Files = std::vector<std::string>;
using Rows = std::vector<int>;

MusicSettings threeFiles() {
    MusicSettings music;
    addMusicFile(music, "\\a.wma");
    addMusicFile(music, "\\b.wma");
    addMusicFile(music, "\\c.wma");
    return music;
}

TEST(IsMusicFile, GoesByTheEndingInAnyCase) {
    for (const std::string_view name :
         {"a.wma", "\\music\\A.MP3", "x.Wav", "x.ogg", "x.flac", "x.m4a", "b.png.aac"}) {
        EXPECT_TRUE(isMusicFile(name)) << name;
    }
    for (const std::string_view name : {"a.wmv", "wma", ".wma", "a.wma.txt", "", "mp3.png"}) {
        EXPECT_FALSE(isMusicFile(name)) << name;
    }
}

TEST(AddMusicFile, GivesEachRowTheIndexOfItsFile) {
    const MusicSettings music = threeFiles();
    EXPECT_EQ(music.musicFiles, (Files{"\\a.wma", "\\b.wma", "\\c.wma"}));
    EXPECT_EQ(music.rows, (Rows{0, 1, 2}));
}

TEST(RemoveMusicRow, LeavesTheFilesAndTheOtherIndexes) {
    MusicSettings music = threeFiles();
    removeMusicRow(music, 1);
    EXPECT_EQ(music.musicFiles, (Files{"\\a.wma", "\\b.wma", "\\c.wma"}));
    EXPECT_EQ(music.rows, (Rows{0, 2}));
    EXPECT_EQ(musicPath(music, 1), "\\c.wma");
}

TEST(RemoveMusicRow, IsNoObstacleToAddingMore) {
    MusicSettings music = threeFiles();
    removeMusicRow(music, 2);
    removeMusicRow(music, 0);
    addMusicFile(music, "\\a.wma");
    EXPECT_EQ(music.musicFiles, (Files{"\\a.wma", "\\b.wma", "\\c.wma", "\\a.wma"}));
    EXPECT_EQ(music.rows, (Rows{1, 3}));
}

TEST(RemoveMusicRow, IgnoresRowsThatAreNotThere) {
    MusicSettings music = threeFiles();
    removeMusicRow(music, -1);
    removeMusicRow(music, 3);
    EXPECT_EQ(music, threeFiles());
}

TEST(MusicPath, IsEmptyForWhatIsNotThere) {
    MusicSettings music = threeFiles();
    EXPECT_EQ(musicPath(music, 0), "\\a.wma");
    EXPECT_EQ(musicPath(music, -1), "");
    EXPECT_EQ(musicPath(music, 3), "");
    music.rows = {7};
    EXPECT_EQ(musicPath(music, 0), "");
}

} // namespace
} // namespace tarvel
