// The size of a picture out of whole, cut and broken heads of files.
#include "skinfile/picture_size.h"
#include "support/picture_heads.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarvel {

static void PrintTo(const PictureSize& size, std::ostream* out) {
    *out << size.width << " by " << size.height;
}

namespace {

using namespace test;
using Size = std::optional<PictureSize>;

std::string oldBmpHead(std::uint32_t width, std::uint32_t height) {
    return "BM" + littleEndian(0, 12) + littleEndian(12, 4) + littleEndian(width, 2) +
           littleEndian(height, 2) + littleEndian(0, 4);
}

TEST(PictureSize, IsToldByTheHead) {
    const std::string exif = jpegSegment(0xE1, std::string(65533, 'x'));
    const std::string tables = jpegSegment(0xC4, "t") + jpegSegment(0xDB, std::string(64, 'q'));
    const std::pair<std::string, PictureSize> cases[] = {
        {pngHead(1, 2), {1, 2}},
        {pngHead(0x12345, 0x7FFFFFFF), {0x12345, 0x7FFFFFFF}},
        {bmpHead(640, 480), {640, 480}},
        {bmpHead(640, 0xFFFFFE20), {640, 480}}, // its first line on top
        {oldBmpHead(300, 200), {300, 200}},
        {jpegHead(640, 480), {640, 480}},
        {jpegHead(65535, 1, {}, 0xC2), {65535, 1}}, // progressive
        {jpegHead(7, 9, exif + exif + tables), {7, 9}},
        {jpegHead(7, 9, "\xFF\xFF\xFF"), {7, 9}}, // filled up before a marker
    };
    for (const auto& [bytes, size] : cases) {
        EXPECT_EQ(pictureSize(bytes), Size(size)) << size.width;
    }
}

TEST(PictureSize, IsNotToldByABrokenHead) {
    const std::string cases[] = {
        "",
        "text of some length that is no picture at all",
        pngHead(0, 5),
        pngHead(5, 0x80000000U),
        pngHead(5, 5).replace(12, 1, "J"),
        bmpHead(0, 5),
        bmpHead(0xFFFFFFFF, 5),
        bmpHead(5, 0x80000000U),
        bmpHead(5, 5).replace(14, 1, "\x0D"),
        jpegHead(5, 0),
        jpegHead(5, 5, "x"),
        jpegHead(5, 5, std::string("\xFF\xE0\0\1", 4)),                   // shorter than its length
        jpegHead(5, 5, jpegSegment(0xDA, "data")),                        // data before the frame
        jpegHead(5, 5, std::string("\xFF\xD9\0\2", 4)),                   // its end
        jpegHead(5, 5, jpegSegment(0xE1, "x").replace(2, 2, "\xFF\xFF")), // beyond the end
        "\xFF\xD8" + jpegSegment(0xC4, "\x08" + bigEndian(5, 2) + bigEndian(5, 2) + "\x03"),
        "\xFF\xD8" + std::string(100'000, '\xFF'),
    };
    for (const std::string& bytes : cases) {
        EXPECT_EQ(pictureSize(bytes), Size()) << bytes.substr(0, 40);
    }
}

TEST(PictureSize, IsNotToldByAHeadThatIsCut) {
    for (const std::string& whole :
         {pngHead(5, 6).substr(0, 24), bmpHead(5, 6).substr(0, 26),
          jpegHead(5, 6, jpegSegment(0xE0, "JFIF")).substr(0, 2 + 8 + 9)}) {
        ASSERT_EQ(pictureSize(whole), Size({5, 6}));
        for (std::size_t size = 0; size < whole.size(); ++size) {
            EXPECT_EQ(pictureSize(whole.substr(0, size)), Size()) << size;
        }
    }
}

TEST(PictureSize, OfFilesIsThatOfTheirBytes) {
    const TemporaryFolder folder;
    const std::string far = jpegSegment(0xE2, std::string(60000, 'i'));
    EXPECT_EQ(pictureSizeOfFile(folder.file("a.bin", pngHead(3, 4))), Size({3, 4}));
    EXPECT_EQ(pictureSizeOfFile(folder.file("b.png", jpegHead(30, 40, far + far + far))),
              Size({30, 40}));
    EXPECT_EQ(pictureSizeOfFile(folder.file("c.png", "")), Size());
    EXPECT_EQ(pictureSizeOfFile(folder / "gone.png"), Size());
    EXPECT_EQ(pictureSizeOfFile(folder.folder("folder.png")), Size());
}

TEST(PictureSize, DecodedBytesAreFourForEachPixel) {
    EXPECT_EQ(decodedBytes({3, 5}), 60U);
    EXPECT_EQ(decodedBytes({0x7FFFFFFF, 0x7FFFFFFF}), 18'446'744'056'529'682'436U);
}

} // namespace
} // namespace tarvel
