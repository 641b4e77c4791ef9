// render, run as a program: it makes an application object of its own.
#include "files/host_files.h"
#include "support/render_program.h"
#include "support/temporary_folder.h"

#include <QImage>
#include <gtest/gtest.h>

#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvel {

namespace {

namespace fs = std::filesystem;

const fs::path examples = TARVEL_EXAMPLES_DIR;

std::set<QRgb> colorsOf(const QImage& image) {
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors;
}

constexpr auto red = "<Layout Screen='Load'><LayoutElement Type='Box'><Color>0xFFFF0000</Color>"
                     "<Pos L='100' T='50' W='200' H='100'/></LayoutElement></Layout>";

} // namespace

TEST(Render, DrawsTheScreenOfTheExamplesInSkinPixels) {
    for (const char* example : {"aurora", "handmade"}) {
        const QImage image = renderedImage(examples / example, "Menu");
        EXPECT_EQ(image.size(), QSize(640, 480)) << example;
        EXPECT_GT(colorsOf(image).size(), 1000U) << example;
    }
}

TEST(Render, GivesTheSamePictureTwice) {
    // Aurora's menu holds a video, which has to be at its first frame each time.
    const TemporaryFolder folder;
    for (const char* name : {"1.png", "2.png"}) {
        ASSERT_EQ(render(examples / "aurora", "Menu", folder / name).code, 0);
    }
    EXPECT_EQ(readFile(folder / "1.png"), readFile(folder / "2.png"));
}

TEST(Render, DrawsWhatTheSkinSays) {
    const TemporaryFolder folder;
    const QImage image = renderedImage(skinOf(folder, red), "lOAD"); // in any letter case
    EXPECT_EQ(colorsOf(image).size(), 2U);
    EXPECT_EQ(image.pixel(200, 100), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(102, 52), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(97, 100), image.pixel(0, 0));
    EXPECT_EQ(image.pixel(303, 100), image.pixel(0, 0));
    EXPECT_EQ(image.pixel(200, 153), image.pixel(0, 0));
}

TEST(Render, AScreenWithoutElementsIsEmpty) {
    const TemporaryFolder folder;
    const QImage image = renderedImage(skinOf(folder, red), "Saver");
    EXPECT_EQ(image.size(), QSize(640, 480));
    EXPECT_EQ(colorsOf(image).size(), 1U);
}

TEST(Render, AMediaFileThatIsNoneIsACrossedFrame) {
    const TemporaryFolder folder;
    folder.file("skin/Media/a.png", "no picture");
    folder.file("skin/Media/b.jpg", "no picture");
    folder.file("skin/Media/c.wmv", "no video");
    std::string body;
    for (const char* name : {"a.png", "b.jpg", "c.wmv", "gone.bmp"}) {
        body += std::string("<Resource Type='Image' Name='") + name + "'><File>Media\\" + name +
                "</File></Resource>";
    }
    body += "<Layout Screen='Menu'>";
    int left = 0;
    for (const char* name : {"a.png", "b.jpg", "c.wmv", "gone.bmp"}) {
        body += std::string("<LayoutElement Type='Image' Source='") + name + "'><Pos L='" +
                std::to_string(left) + "' T='0' W='150' H='100'/></LayoutElement>";
        left += 160;
    }
    const QImage image = renderedImage(skinOf(folder, body + "</Layout>"), "Menu");
    const QRgb ground = image.pixel(320, 400);
    for (left = 0; left < 640; left += 160) {
        // A frame, its cross and words, and nothing between the frames.
        EXPECT_GT(colorsOf(image.copy(left, 0, 150, 100)).size(), 1U) << left;
        EXPECT_EQ(colorsOf(image.copy(left + 152, 0, 6, 100)), std::set<QRgb>{ground}) << left;
    }
}

TEST(Render, OfAnUnknownScreen) {
    const TemporaryFolder folder;
    expectFailure(render(examples / "aurora", "Lobby", folder / "out.png"), 2,
                  "there is no screen \"Lobby\"");
    expectFailure(render(examples / "aurora", "", folder / "out.png"), 2,
                  "there is no screen \"\"");
    EXPECT_FALSE(fs::exists(folder / "out.png"));
}

TEST(Render, OfWhatCannotBeReadMakesNoPicture) {
    const TemporaryFolder folder;
    expectFailure(render(folder.folder("empty"), "Menu", folder / "out.png"), 2,
                  "The selected folder does not contain a QOR_Skin.xml file");
    EXPECT_FALSE(fs::exists(folder / "out.png"));
}

TEST(Render, ToWhereNothingCanBeWritten) {
    const TemporaryFolder folder;
    const fs::path skin = skinOf(folder, red);
    const fs::path inMissing = folder / "no/out.png";
    expectFailure(render(skin, "Load", inMissing), 1,
                  "No such file or directory: " + inMissing.string());
    const fs::path file = folder.file("file", "kept");
    expectFailure(render(skin, "Load", file / "out.png"), 1,
                  "Not a directory: " + (file / "out.png").string());
    EXPECT_EQ(readFile(file), "kept");
    const fs::path inPlace = folder.folder("out.png");
    expectFailure(render(skin, "Load", inPlace), 1, "Is a directory: " + inPlace.string());
    const fs::path pipe = folder / "pipe.png";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    expectFailure(render(skin, "Load", pipe), 1, "Invalid argument: " + pipe.string());
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST(Render, IntoAFolderWithoutWritePermissionKeepsTheOlderPicture) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "everything can be written to";
    }
    const TemporaryFolder folder;
    const fs::path png = folder.file("out/out.png", "kept");
    fs::permissions(folder / "out", fs::perms::owner_read | fs::perms::owner_exec);
    const Rendered result = render(skinOf(folder, red), "Load", png);
    fs::permissions(folder / "out", fs::perms::owner_all);
    expectFailure(result, 1, "Permission denied: " + png.string());
    EXPECT_EQ(readFile(png), "kept");
}

TEST(Render, ReplacesAnOlderPictureThroughALink) {
    const TemporaryFolder folder;
    const fs::path older = folder.file("kept/out.png", "older");
    fs::create_symlink(older, folder / "link.png");
    EXPECT_EQ(render(skinOf(folder, red), "Load", folder / "link.png").code, 0);
    EXPECT_TRUE(fs::is_symlink(folder / "link.png"));
    EXPECT_EQ(imageOf(older).size(), QSize(640, 480));
}

} // namespace tarvel
