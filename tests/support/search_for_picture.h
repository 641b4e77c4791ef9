// Searches of a folder for a picture, as tests of them ask.
#pragma once

#include "files/file_search.h"
#include "files/path_text.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvel::test {

class SearchForPicture : public testing::Test {
  protected:
    /// Where "a.png" is found, seen from the folder; "" for nowhere.
    std::string find(const char* in = "in") {
        const FileSearch search = searchFiles(folder_ / in, {"a.png"});
        EXPECT_TRUE(search.complete);
        const auto found = search.found.find("a.png");
        return found == search.found.end()
                   ? ""
                   : slashedUtf8Of(found->second.lexically_relative(folder_.path()));
    }

    TemporaryFolder folder_;
};

} // namespace tarvel::test
