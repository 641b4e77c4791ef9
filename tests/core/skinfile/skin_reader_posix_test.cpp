// A skin's file that is closed.
#include "skinfile/skin_reader.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace tarvel {

TEST(SkinReader, DescribesAFileThatMayNotBeRead) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "the superuser may read everything";
    }
    const TemporaryFolder folder;
    std::filesystem::permissions(folder.file("QOR_Skin.xml", "<Skin/>"),
                                 std::filesystem::perms::none);
    SkinDocument document;
    try {
        readSkin(document, folder.path());
        ADD_FAILURE() << "no failure";
    } catch (const SkinReadError& error) {
        EXPECT_TRUE(std::string(error.what())
                        .starts_with("QOR_Skin.xml cannot be read: Permission denied: "));
    }
}

} // namespace tarvel
