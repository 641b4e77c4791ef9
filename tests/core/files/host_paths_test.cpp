// Paths of a document on the host, and files that may lie outside a skin.
#include "files/host_files.h"
#include "files/host_paths.h"
#include "support/links.h"
#include "support/system_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

std::string repeated(std::string_view part, std::size_t times) {
    std::string text;
    for (std::size_t i = 0; i < times; ++i) {
        text.append(part);
    }
    return text;
}

} // namespace

TEST(HostPath, TurnsBackslashesAndFindsOtherLetterCase) {
    const TemporaryFolder folder;
    const auto file = folder.file("Media/Sub/Pic.PNG", "x");
    EXPECT_EQ(hostPath(folder.document("Media\\Sub\\Pic.PNG")), file);
    EXPECT_EQ(hostPath(folder.document("media\\SUB\\pic.png")), file);
    EXPECT_EQ(hostPath(folder.document("MEDIA\\new.png")), folder / "Media/new.png");
    EXPECT_EQ(hostPath(folder.document("no\\SUB\\pic.png")), folder / "no/SUB/pic.png");
}

TEST(FileExists, IsTrueForFilesOnly) {
    const TemporaryFolder folder;
    folder.file("Media/a.png", "x");
    EXPECT_TRUE(FileExists(folder.document("Media\\a.png")));
    EXPECT_TRUE(FileExists(folder.document("MEDIA\\A.PNG")));
    EXPECT_FALSE(FileExists(folder.document("Media")));
    EXPECT_FALSE(FileExists(folder.document("Media\\b.png")));
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FileExists(std::string("a\0b", 3)));
    EXPECT_FALSE(FileExists(std::string(70000, 'x')));
}

TEST(LeadsOutside, KnowsEveryWayOut) {
    const TemporaryFolder folder;
    folder.file("skin/Media/a.png", "x");
    folder.file("secret.png", "x");
    test::makeLink(folder / "secret.png", folder / "skin/Media/link.png");
    test::makeLink(folder.path(), folder / "skin/up");
    test::makeLink("a.png", folder / "skin/Media/inner.png");
    struct Case {
        const char* file;
        bool outside;
    };
    for (const auto& [file, outside] : std::initializer_list<Case>{
             {"Media\\a.png", false},
             {"Media\\missing.png", false},
             {"Media\\..\\Media\\a.png", false},
             {"Media\\inner.png", false},
             {"", false},
             {"..\\secret.png", true},
             {"Media\\..\\..\\skin\\Media\\a.png", true},
             {"\\Media\\a.png", true},
             {"/etc/passwd", true},
             {"C:\\a.png", true},
             {"c:a.png", true},
             {"Media\\link.png", true},
             {"MEDIA\\LINK.png", true},
             {"up\\secret.png", true},
         }) {
        EXPECT_EQ(leadsOutside(folder / "skin", file), outside) << file;
    }
}

TEST(LongPaths, AreRefusedWithoutLookingForThem) {
    const TemporaryFolder folder;
    folder.file("Media/x.png", "x");
    for (const char* part : {"a\\", ".\\", "Media\\..\\"}) {
        const std::string file = repeated(part, 100'000) + "Media\\x.png";
        systemCalls = {};
        EXPECT_TRUE(leadsOutside(folder.path(), file)) << part;
        EXPECT_FALSE(FileExists(folder.document(file))) << part;
        EXPECT_EQ(systemCalls.opens, 0) << part;
    }
}

TEST(LongPaths, OfManyPartsOpenEachOnce) {
    const TemporaryFolder folder;
    folder.file("Media/x.png", "x");
    constexpr std::size_t parts = 400;
    for (const char* part : {"a\\", ".\\", "Media\\..\\", "MEDIA\\..\\"}) {
        const std::string file = repeated(part, parts) + "Media\\X.PNG";
        ASSERT_LT(folder.document(file).size(), longestPath());
        systemCalls = {};
        EXPECT_FALSE(leadsOutside(folder.path(), file)) << part;
        EXPECT_EQ(FileExists(folder.document(file)), *part != 'a') << part;
        EXPECT_LT(systemCalls.opens, 10 * static_cast<int>(parts)) << part;
    }
}

TEST(FileFinder, AnswersAsTheSingleLookUpsDo) {
    const TemporaryFolder folder;
    folder.file("skin/Media/Pic.png", "x");
    folder.file("skin/Media/both.png", "x");
    folder.file("skin/Media/BOTH.png", "x");
    folder.file("secret.png", "x");
    test::makeLink(folder / "secret.png", folder / "skin/Media/link.png");
    const fs::path skin = folder / "skin";
    FileFinder finder;
    for (const char* file :
         {"Media\\Pic.png", "media\\pic.PNG", "Media\\both.png", "MEDIA\\BOTH.png",
          "MEDIA\\both.png", "media\\Both.png", "Media\\gone.png", "gone\\gone.png", "Media",
          "media\\", "..\\secret.png", "Media\\link.png", "MEDIA\\LINK.png",
          "Media\\..\\MEDIA\\pic.png", ""}) {
        const std::string path = documentPath(skin) + '\\' + file;
        // A folder with two files that differ in letter case alone may give either for a third.
        if (std::string_view(file) != "media\\Both.png") {
            EXPECT_EQ(finder.hostPath(path), hostPath(path)) << file;
        }
        EXPECT_EQ(finder.FileExists(path), FileExists(path)) << file;
        EXPECT_EQ(finder.leadsOutside(skin, file), leadsOutside(skin, file)) << file;
    }
    EXPECT_EQ(finder.hostPath("gone.png"), "gone.png");
}

TEST(FileFinder, ReadsAFolderOnce) {
    const TemporaryFolder folder;
    folder.file("Media/x.png", "x");
    FileFinder finder;
    EXPECT_FALSE(finder.FileExists(folder.document("MEDIA\\0.png")));
    systemCalls = {};
    for (int i = 0; i < 1000; ++i) {
        const std::string name = std::to_string(i) + ".png";
        EXPECT_FALSE(finder.FileExists(folder.document("MEDIA\\" + name)));
        EXPECT_TRUE(finder.FileExists(folder.document("MEDIA\\X.png")));
    }
    EXPECT_EQ(systemCalls.opens, 0);
}

TEST(WrittenPath, FollowsALinkOnlyToAFileOfTheSkin) {
    if (!test::areFileLinksTold()) {
        GTEST_SKIP() << test::linksUntold;
    }
    const TemporaryFolder folder;
    const fs::path skin = folder.folder("skin");
    const auto inner = folder.file("skin/art/x.png", "inner");
    folder.file("outer.png", "outer");
    folder.folder("skin/Media");
    const auto target = skin / "Media/x.png";
    EXPECT_EQ(writtenPath(skin, target), target); // that is not there
    const auto pointedAt = [&](const fs::path& to) {
        fs::remove(target);
        test::makeLink(to, target);
        return writtenPath(skin, target);
    };
    EXPECT_EQ(pointedAt("../art/x.png"), fs::canonical(inner));
    EXPECT_EQ(pointedAt(inner), fs::canonical(inner));
    EXPECT_EQ(pointedAt(folder / "outer.png"), target);
    EXPECT_EQ(pointedAt("../../outer.png"), target);
    EXPECT_EQ(pointedAt("../art"), target);
    EXPECT_EQ(pointedAt("gone.png"), target);
    EXPECT_EQ(pointedAt("x.png"), target); // to itself
}

} // namespace tarvel
