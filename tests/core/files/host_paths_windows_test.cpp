// Paths with drives and shares, where a backslash separates and letter case is told by the disk.
#include "files/host_files.h"
#include "files/host_paths.h"
#include "files/path_text.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <windows.h>

namespace tarvel {

TEST(HostPathOfWindows, IsOneForAllLetterCases) {
    const TemporaryFolder folder;
    folder.file("a.png", "small");
    folder.file("A.PNG", "capital");
    EXPECT_EQ(readFile(hostPath(folder.document("a.png"))), "capital");
    EXPECT_EQ(utf8Of(hostPath(folder.document("A.PNG")).filename()), "a.png");
}

// Capitals that a skin file can hold in several bytes alone, and the short names of the system.
TEST(FileFinderOfWindows, FindsWhateverNameTheSystemFinds) {
    const TemporaryFolder folder;
    const auto file = folder.file("Media/a long name.png", "x");
    folder.file(utf8Of(pathOf("Media/\xD0\x96.png")), "x");
    FileFinder finder;
    EXPECT_EQ(utf8Of(finder.hostPath(folder.document("media\\\xD0\xB6.png")).filename()),
              "\xD0\x96.png");
    EXPECT_TRUE(finder.FileExists(folder.document("media\\\xD0\xB6.png")));
    EXPECT_FALSE(finder.FileExists(folder.document("media\\\xD0\xB7.png")));
    std::array<wchar_t, MAX_PATH> brief{};
    ASSERT_NE(::GetShortPathNameW(file.c_str(), brief.data(), brief.size()), 0U);
    const std::filesystem::path name = std::filesystem::path(brief.data()).filename();
    EXPECT_EQ(finder.hostPath(folder.document("Media\\" + utf8Of(name))), file);
}

TEST(DocumentPathOfWindows, IsAbsoluteWithItsDrive) {
    EXPECT_EQ(documentPath(pathOf("C:/a/b c/d.png")), "C:\\a\\b c\\d.png");
    EXPECT_EQ(documentPath(pathOf("\\\\host\\share/d.png")), "\\\\host\\share\\d.png");
    EXPECT_EQ(documentPath("d.png").substr(1, 2), ":\\");
    EXPECT_TRUE(documentPath("d.png").ends_with("\\d.png"));
}

TEST(FolderProblemOfWindows, IsAnEmptyPathAlone) {
    EXPECT_EQ(folderProblem(pathOf("C:\\a\\b c")), "");
    EXPECT_EQ(folderProblem({}), "No folder is named");
    EXPECT_EQ(fileProblem(pathOf("C:\\a\\b c.png")), "");
}

TEST(RootLengthOfWindows, IsOfADriveAShareOrASlash) {
    EXPECT_EQ(rootLength("C:/a"), 3U);
    EXPECT_EQ(rootLength("c:a"), 2U);
    EXPECT_EQ(rootLength("/a"), 1U);
    EXPECT_EQ(rootLength("//host/share/a"), 13U);
    EXPECT_EQ(rootLength("//host/share"), 12U);
    EXPECT_EQ(rootLength("a/b"), 0U);
}

} // namespace tarvel
