// An open file: writing at places of its own.
#include "files/host_files.h"
#include "files/open_file.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvel {

TEST(OpenFile, WritesAtAPlaceAndGoesOnWhereItWas) {
    const TemporaryFolder folder;
    const OpenFile file(folder / "file", Opening::makeNew);
    file.write("0123456789", 10);
    file.writeAt(2, "ab", 2);
    file.write("!", 1);
    file.writeAt(10, "?+", 2);
    EXPECT_EQ(readFile(folder / "file"), "01ab456789?+");
}

TEST(OpenFile, NamesTheFileWhoseWritingFails) {
    const TemporaryFolder folder;
    const OpenFile file(folder.file("file", "kept"), Opening::read, "the target");
    try {
        file.writeAt(0, "a", 1);
        ADD_FAILURE() << "no failure";
    } catch (const FileError& error) {
        EXPECT_STREQ(error.what(), "Bad file descriptor: the target");
    }
    EXPECT_EQ(readFile(folder / "file"), "kept");
}

} // namespace tarvel
