// The size of a picture where a file should be and a pipe or a device is.
#include "skinfile/picture_size.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tarvel {
namespace {

TEST(PictureSize, IsNotAwaitedOfPipesAndDevices) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe.png").c_str(), 0600), 0);
    EXPECT_FALSE(pictureSizeOfFile(folder / "pipe.png")); // nobody writes to it
    EXPECT_FALSE(pictureSizeOfFile(std::filesystem::path("/dev/zero")));
}

} // namespace
} // namespace tarvel
